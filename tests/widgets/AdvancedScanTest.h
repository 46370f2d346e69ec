#pragma once

// Fixture of the advanced scan dialog and its tab tests: the dialog made and
// shown as DoModal would, without its modal run (or a tab page made on its
// own), a user's clicks on its tabs and buttons, the factory defaults of the
// store, and the host's kind restored after each test.

#include <QAbstractButton>
#include <QTabBar>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/scan/AdvancedTabPage.h"

class AdvancedScanTest : public SwitchPageTest {
protected:
    AdvancedScanTest();
    ~AdvancedScanTest() override;

    // The dialog of a variant, its members still to be set before Show.
    CAdvancedScanDlg& Make(int32_t variant, int32_t noIncremental = 0);
    // Creates and shows the dialog made.
    CAdvancedScanDlg& Show();
    CAdvancedScanDlg& Open(int32_t variant) {
        Make(variant);
        return Show();
    }

    QTabBar* Tabs() const;
    std::vector<std::string> TabCaptions() const;
    // A user's click on the tab at index.
    void SelectTab(int index) const;
    // A user's click on a button of the dialog: 1 OK, 2 Cancel, 1034 Default.
    void Press(int id) const;

    // The page the dialog made for a tab; null while it is not made.
    template <typename Page>
    Page* Tab() const {
        for (QWidget* child : m_dialog->findChildren<QWidget*>()) {
            if (auto* page = dynamic_cast<Page*>(child)) return page;
        }
        return nullptr;
    }
    // A tab page made on its own, from values, with the session flags.
    template <typename Page>
    std::unique_ptr<Page> MakeTab(const AdvancedScanValues& values, uint32_t flags = 0) {
        auto page = std::make_unique<Page>();
        page->Values() = values;
        page->SetFlags(flags);
        EXPECT_TRUE(page->Create(&m_parent));
        return page;
    }

    static QAbstractButton* Button(const CSettingsPage* page, int id);
    // The text and caption of the only message shown; empty when there was
    // not exactly one.
    std::string OnlyMessage() const;

    std::unique_ptr<CAdvancedScanDlg> m_dialog;

private:
    int32_t m_savedWinNT;
};
