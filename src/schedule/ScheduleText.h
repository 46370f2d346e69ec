#pragma once

// The two texts of a scheduled scan in the schedule list and the setting
// status report: when it runs and what it scans. Times, dates and day names
// follow the default locale; the words come from the string table.

#include <cstdint>
#include <string>
#include <vector>

#include "schedule/ScheduleEntry.h"
#include "targets/TargetList.h"

// The interval text of a schedule style (ScheduleStyle) at time; a null time
// stands for the time now. Sets *valid to 0 when the time, the day of the
// week (style 2), the day of the month (style 3) or the date (style 4)
// cannot be shown, and never sets it to anything else; the caller sets it to
// 1 first. valid may be null. Style 5 and unknown styles give empty text,
// which is valid.
std::string FormatInterval(int32_t style, const ScheduleTime* time, int32_t* valid);

// The targets, joined by ", ": at most six are named, and ", ..." stands for
// the rest. The record for every local hard drive, and an empty list, read
// as "Local hard drives".
std::string FormatTargets(const std::vector<Target>& targets);
