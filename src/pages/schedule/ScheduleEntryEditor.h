#pragma once

// A page of the schedule wizard. The wizard hands each page the entry it
// edits before the first page is shown; the page shows it and writes back
// to it in its Save, which only "Finish" runs.

class ScheduleEntry;

class ScheduleEntryEditor {
public:
    virtual ~ScheduleEntryEditor() = default;

    // The entry to show and, at Save, to change; not owned.
    virtual void LoadEntry(ScheduleEntry* entry) = 0;
};
