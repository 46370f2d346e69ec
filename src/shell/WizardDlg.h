#pragma once

// "Configuration Wizard": leads a new user through the store in a few steps,
// each an ordinary settings page: the protection level, then, for a
// customized level, the scan settings, the functions and the schedule. A
// level other than Customized can finish at once. Finish commits the working
// copy and brings the whole product into line with it; Cancel leaves the
// product with the silent wizard's functions, since the wizard runs right
// after installation.

#include <cstdint>
#include <vector>

#include "framework/FormDialog.h"
#include "framework/ImageList.h"
#include "session/PageId.h"
#include "shell/PageTable.h"
#include "shell/UnreadableFilesNotice.h"
#include "ui_Dialog1002.h"

class CWizardDlg : public CFormDialog<Ui::Dialog1002> {
public:
    static constexpr int kTemplateId = 1002;
    static constexpr int kBackButton = 1003;
    static constexpr int kNextButton = 1004;

    CWizardDlg(uint32_t flags, QWidget* parent, PageFactory factory = CPageTable::ProgramPages());
    ~CWizardDlg() override;

    // The index of the step shown, 0 at first.
    int CurrentStep() const { return m_step; }
    int StepCount() const { return static_cast<int>(m_steps.size()); }
    // The page of the step shown; null when it could not be made.
    CSettingsPage* CurrentPage() const;
    CPageTable& Pages() { return m_pages; }

    void OnCommand(int id) override;
    // A new protection level may open or close the way past the first step.
    void OnPageMessage(int message) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    struct Step {
        PageId page;
        uint32_t textId;
    };

    void LoadPicture();
    void ChooseSteps();
    void ShowStep();
    CSettingsPage* ShowPage(PageId id);
    void UpdateButtons();
    void Turn(int delta);
    bool SaveCurrent();

    uint32_t m_dlgFlags;
    CPageTable m_pages;
    ImageList m_pageIcons;
    std::vector<Step> m_steps;
    int m_step = 0;
    CUnreadableFilesNotice m_unreadableFiles;
};
