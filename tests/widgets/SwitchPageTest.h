#pragma once

// Fixture of the function selection page tests: a sibling installation with
// the built Q9SSCtrl, whose settings decide which functions can run and
// which are registered, and whose journal records every call; a recording
// message service that answers the pages' questions.

#include <QPoint>
#include <QWidget>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/RecordingMessageService.h"
#include "support/SiblingTest.h"

class CSettingsPage;

class SwitchPageTest : public SiblingTest {
protected:
    SwitchPageTest();

    // Makes a page with the session flags and creates its window.
    template <typename Page>
    Page* MakePage(uint32_t flags) {
        auto* page = new Page();
        page->SetFlags(flags);
        EXPECT_TRUE(page->Create(&m_parent));
        return page;
    }

    // Q9SSCtrl's answers: the functions that cannot run on this machine,
    // and those registered now.
    void SetUnregistrable(std::initializer_list<int32_t> codes) const;
    void SetRegistered(std::initializer_list<int32_t> codes) const;
    // The factory defaults of the store; body holds the sections.
    void WriteDefaults(const std::string& body) const;
    void ClearJournal() const;
    // The journal lines of one entry point, without its name: "<code>\t...".
    std::vector<std::string> CallsOf(const std::string& entryPoint) const;

    // A user's click on a check box.
    static void Click(CSettingsPage* page, int id);
    static bool IsChecked(const CSettingsPage* page, int id);
    // The text of the notice that covers a page; empty when it is not
    // covered.
    static std::string CoverText(const CSettingsPage* page);
    // A user's choice of item index in a combo, and what a combo shows.
    static void Choose(CSettingsPage* page, int id, int index);
    static int ChosenItem(const CSettingsPage* page, int id);
    static std::vector<std::string> ItemsOf(const CSettingsPage* page, int id);
    static bool IsShown(const CSettingsPage* page, int id);
    static bool IsEnabled(const CSettingsPage* page, int id);
    static QPoint PositionOf(const CSettingsPage* page, int id);
    // The control created right after the one with id: its description.
    static QWidget* ControlAfter(const CSettingsPage* page, int id);

    // Journal lines of Register and Unregister, as Apply makes them.
    static std::string Registered(int32_t code);
    static std::string Unregistered(int32_t code);

    RecordingMessageService m_messages;
    QWidget m_parent;
};
