#pragma once

// The scan options of a schedule entry as a home of values, so that the
// controls of a scan profile (bound to keys 10, 11, 12, 13 and 16 of any
// section) show and change an entry instead of the store. Other addresses
// read as 0 or empty, and writes to them are dropped.

#include <string>

#include "options/StoreValues.h"

class ScheduleEntry;

class EntryScanValues : public ValueHome {
public:
    // The entry is not owned; null until set.
    void SetEntry(ScheduleEntry* entry) { m_entry = entry; }

    uint32_t Word(StoreAddress address) const override;
    std::string Text(StoreAddress address) const override;
    void Write(StoreAddress address, uint32_t word) override;
    void WriteText(StoreAddress address, const std::string& text) override;

private:
    ScheduleEntry* m_entry = nullptr;
};
