#pragma once

// The schedule wizard's second page: how the scheduled scan scans and what
// it does with an infected file. It is a member of the scan profile family
// whose values are the entry's scan words instead of a store section, with
// one box of its own, "Scan in the background", that keeps "Close the Scan
// View window..." ticked while it is ticked.
//
// On a host of the NT family the scheduler always runs the scan in the
// background, closes its window and repairs: there the three boxes stand
// ticked and disabled, are not loaded, and every save sets their bits,
// unless the session flags ask for the NT family's controls on any host.

#include "pages/scan/ScanProfilePage.h"
#include "pages/schedule/ScheduleEntryEditor.h"
#include "schedule/EntryScanValues.h"
#include "ui_Dialog1010.h"

class CScheduleScanPage : public CScanFormPage<Ui::Dialog1010>, public ScheduleEntryEditor {
public:
    static constexpr int kTemplateId = 1010;

    CScheduleScanPage();

    void LoadEntry(ScheduleEntry* entry) override;
    // Shows the entry's words.
    void Load() override;
    int32_t CanDefault() override { return 0; }

protected:
    ScanBlock Block() override;
    void BindMore() override;
    void PrepareControls() override;
    void SaveRelated() override;
    void UpdateEnables() override;

private:
    // Whether the three boxes of the scheduler's fixed behaviour are locked.
    bool Locked() const;

    EntryScanValues m_values;
};
