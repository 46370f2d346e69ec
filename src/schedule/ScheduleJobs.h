#pragma once

// The scheduler's job keys rebuilt from the store's schedule sections, the
// way a policy brings the whole product into line: every job key of this
// product goes, and each schedule section of the store gets a key of its
// own. Unlike the schedule page's save, this works from the store alone: the
// run-as account, which the store does not keep, is not written.
//
// The rebuild is planned first and then carried out, so that a dry run can
// show exactly what a real one writes.

#include <cstdint>
#include <vector>

#include "schedule/ScheduleJobKeys.h"

// A scan word of a schedule section that the rebuild changes on the way.
struct ScheduleWordFix {
    uint32_t section = 0;
    uint32_t key = 0;
    uint32_t before = 0;
    uint32_t after = 0;

    bool operator==(const ScheduleWordFix&) const = default;
};

struct ScheduleJobPlan {
    std::vector<ScheduleJob> jobs;
    // Words the rebuild writes back, changed or not.
    std::vector<ScheduleWordFix> fixes;
};

// Reads the schedule sections from number 0 up to the first whose working
// folder is empty. On an NT host a section's scan options gain the bits
// that an unattended scan needs on that family; everywhere a scan policy
// that asks the user first is turned into one that repairs after a forced
// termination, as nobody is there to answer a scheduled scan.
ScheduleJobPlan PlanScheduleJobs(bool ntHost);

// Deletes every job key of this product (others stay), then writes the
// plan's words back to the store and its jobs' keys. Registry errors are
// ignored.
void WriteScheduleJobs(const ScheduleJobPlan& plan);
