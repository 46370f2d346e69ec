#pragma once

// The configuration wizard's step of the protection functions: one check box
// per function, shown as the edition allows and enabled when the function
// can run on this machine. A box shows whether its function is registered;
// Save writes the switch words and their masks as the edition demands, and
// the wizard's Finish registers the functions by them. "more..." opens the
// POP3 configuration page, "Set List to Scan" the folders that the screen
// saver's scan covers.

#include <cstdint>
#include <memory>
#include <vector>

#include "pages/FormPage.h"
#include "pages/NestedPageShell.h"
#include "targets/TargetList.h"
#include "ui_Dialog1004.h"

class QAbstractButton;

class CWizardFeaturePage : public CFormPage<Ui::Dialog1004> {
public:
    static constexpr int kTemplateId = 1004;

    CWizardFeaturePage();

    void Load() override;
    // Forwards to the POP3 configuration page, once it was opened.
    void Apply() override;

    // The screen saver's targets as the page holds them.
    const std::vector<Target>& Targets() const { return m_targets; }

protected:
    void BindControls() override;
    void PrepareControls() override;
    void SaveMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    // A box whose state Load takes from the registration of its function.
    struct RegisteredBox {
        QAbstractButton* box;
        int32_t code;
    };
    std::vector<RegisteredBox> RegisteredBoxes() const;

    bool Has(uint32_t flag) const { return (m_flags & flag) != 0; }
    void DisableUnlessRegistrable(QWidget* control, int32_t code);
    // What the master edition and the removed mail functions hide, and the
    // rows below moved up into their place.
    void HideMissingRows();
    // A click that set box asks the question textId; any answer but Yes
    // clears the box again.
    void KeepIfYes(QAbstractButton* box, uint32_t textId, uint32_t type);

    // The scan functions' word with each box's bits set or cleared.
    uint32_t ScanWordOfBoxes() const;
    void SaveMailWord();
    void SaveScreenSaverList();

    void OpenPop3Config();
    void EditScreenSaverList();

    std::vector<Target> m_targets;       // the list as it stands
    std::vector<Target> m_foundTargets;  // the list Load found
    std::unique_ptr<NestedPageShell> m_pop3Config;
};
