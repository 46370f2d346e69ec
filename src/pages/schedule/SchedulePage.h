#pragma once

// "Scheduled scan": the list of scheduled scans, one row each with a tick
// that turns the scan on or off, its interval and what it scans. Add and
// Edit run the schedule wizard; a row equal to another in both texts
// (without regard to case) is refused, and so is an interval that cannot be
// shown. Save rewrites the store's schedule sections, Apply the scheduler's
// job keys after the commit.
//
// The list owns the entries: each row's entry lives as long as the row.

#include <QTreeWidget>
#include <cstdint>
#include <memory>
#include <vector>

#include "pages/FormPage.h"
#include "schedule/ScheduleEntry.h"
#include "ui_Dialog113.h"

class CSchedulePage : public CFormPage<Ui::Dialog113> {
public:
    static constexpr int kTemplateId = 113;

    // AddRow's refusals.
    static constexpr int kRefused = -1;
    static constexpr int kDuplicate = -2;
    static constexpr int kInvalidInterval = -3;

    CSchedulePage();
    ~CSchedulePage() override;

    void Load() override;
    void Apply() override;
    int32_t CanDefault() override { return 0; }

    // Appends a row for entry and selects it: its index, or a refusal (the
    // entry is then dropped).
    int AddRow(std::unique_ptr<ScheduleEntry> entry);
    // The first row whose two texts equal those of entry, or -1.
    int FindRow(const ScheduleEntry& entry) const;

    int RowCount() const;
    // The entry of a row; null for a row that does not exist.
    const ScheduleEntry* EntryAt(int row) const;
    bool IsTicked(int row) const;
    QTreeWidget* List() const { return m_ui.scheduleList; }

protected:
    // The rows are the page's values; nothing is bound to the store.
    void BindControls() override {}
    void PrepareControls() override;
    void SaveMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    // Runs the wizard on entry: whether it ended with "Finish", and in
    // *changed whether the wizard reports a change.
    bool RunWizard(ScheduleEntry* entry, bool* changed);

private:
    void AddEntry();
    void EditSelected();
    void DeleteSelected();
    void RemoveRow(int row);
    void OnItemChanged(QTreeWidgetItem* item);
    void Refuse(uint32_t text);
    int SelectedRow() const;
    void MarkChanged();

    // The entries of the rows, in row order.
    std::vector<std::unique_ptr<ScheduleEntry>> m_entries;
};
