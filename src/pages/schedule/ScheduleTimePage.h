#pragma once

// The schedule wizard's first page: when the scan runs (the interval, a day
// and a time), what it scans (the folder tree and the list to scan side by
// side) and under which accounts ("Authorization Setting").
//
// The interval combo lists "Whenever the system starts" first, but the page
// keeps the entry's style: row 0 stands for style 6. The date control shows
// a weekday, a day of the month or a whole date by the interval, and each of
// the three keeps its own value while the user switches between them.

#include <cstdint>
#include <string>

#include "pages/FormPage.h"
#include "pages/schedule/ScheduleEntryEditor.h"
#include "schedule/ScheduleEntry.h"
#include "ui_Dialog1008.h"

class CScheduleTimePage : public CFormPage<Ui::Dialog1008>, public ScheduleEntryEditor {
public:
    static constexpr int kTemplateId = 1008;

    CScheduleTimePage();

    void LoadEntry(ScheduleEntry* entry) override;
    int32_t IsModified() override;
    int32_t CanDefault() override { return 0; }

    // The interval shown: a schedule style (6 for row 0).
    int32_t Interval() const { return m_nInterval; }

protected:
    // Nothing of the page is a store value: the entry holds it all.
    void BindControls() override {}
    void PrepareControls() override;
    void SaveMore() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    static int32_t IntervalOfRow(int row);
    static int RowOfInterval(int32_t interval);

    void OnIntervalChanged();
    // The date of an interval that shows one; null for the others.
    ScheduleTime* DateOf(int32_t interval);
    // Shows or hides the date and time by the interval, with the date's
    // label, format and value.
    void ShowInterval();
    void EditAccounts();
    bool AccountsAvailable() const;
    // The date the date control stands for, put into the time to save.
    void TakeDate(ScheduleTime& time) const;

    ScheduleEntry* m_entry = nullptr;
    int32_t m_nInterval = kScheduleEveryWeek;
    ScheduleTime m_time;
    ScheduleTime m_onceDate;
    ScheduleTime m_monthDate;
    ScheduleTime m_weekDate;
    std::string m_strUser;
    std::string m_strPassword;
    std::string m_strNetUser;
    std::string m_strNetPassword;
};
