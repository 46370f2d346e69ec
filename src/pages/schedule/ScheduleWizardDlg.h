#pragma once

// "Schedule Scan Wizard": creates or edits one schedule entry on two pages,
// the timing and targets, then the scan options. The entry handed in changes
// only at "Finish" (the advanced scan dialog's values included); the
// wizard itself checks nothing, the schedule list judges the result.

#include <cstdint>
#include <memory>
#include <vector>

#include "framework/FormDialog.h"
#include "session/PageContext.h"
#include "ui_Dialog1009.h"

class CSettingsPage;
class ImageList;
class ScheduleEntry;

class CScheduleWizardDlg : public CFormDialog<Ui::Dialog1009> {
public:
    static constexpr int kTemplateId = 1009;

    // entry: the entry to edit, not owned; pageFlags: the schedule page's
    // session flags, handed to both pages.
    CScheduleWizardDlg(ScheduleEntry* entry, uint32_t pageFlags, QWidget* parent);
    ~CScheduleWizardDlg() override;

    // The session the pages work in; the process's by default.
    void SetContext(const PageContext& context) { m_context = context; }

    // After "Finish": 1 when a page reported a change.
    int32_t IsChanged() const { return m_changed; }
    // The index of the page shown, 0 or 1.
    int CurrentPage() const { return m_current; }
    CSettingsPage* Page(int index) const;

    void OnCommand(int id) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    static constexpr int kBackButton = 1003;
    static constexpr int kNextButton = 1004;

    void LoadPicture();
    void MakePages();
    void PlacePage(CSettingsPage* page);
    void Turn(int step);
    void ShowCurrent();

    ScheduleEntry* m_entry;
    uint32_t m_flags;
    PageContext m_context;
    int32_t m_changed = 0;
    int m_current = 0;
    std::unique_ptr<ImageList> m_icons;
    std::vector<std::unique_ptr<CSettingsPage>> m_pages;
};
