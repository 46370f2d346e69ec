#include "schedule/ScheduleJobs.h"


#include "Q9CfgE.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "schedule/ScheduleEntry.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"

namespace {

// Scan options an unattended scan needs on the NT family.
constexpr uint32_t kNtScanOptions = 0x101001;
// Scan policy: ask the user before repairing a running program.
constexpr uint32_t kAskBeforeRepair = 0x1000000;
// Scan policy: repair a running program after a forced termination.
constexpr uint32_t kRepairAfterTermination = 0x2000000;

ScheduleJob JobOfSection(uint32_t index) {
    ScheduleJob job;
    job.section = ScheduleSection(index);
    job.name = kScheduleJobPrefix + std::to_string(index);
    for (std::size_t i = 0; i < job.words.size(); ++i) {
        job.words[i] = Q9CfgE_GetDWEx(job.section, CEK_SchedOn + static_cast<uint32_t>(i));
    }
    job.commandLine = ScheduleRegistryCommandLine(job.section);
    job.directory = g_szModuleDir;
    return job;
}

void PlanWordFixes(uint32_t section, bool ntHost, std::vector<ScheduleWordFix>& fixes) {
    if (ntHost) {
        const uint32_t options = Q9CfgE_GetDWEx(section, CEK_ScanOptions);
        fixes.push_back({section, CEK_ScanOptions, options, options | kNtScanOptions});
    }
    const uint32_t policy = Q9CfgE_GetDWEx(section, CEK_ScanPolicy);
    if (policy & kAskBeforeRepair) {
        fixes.push_back({section, CEK_ScanPolicy, policy,
                         (policy & ~kAskBeforeRepair) | kRepairAfterTermination});
    }
}

}  // namespace

ScheduleJobPlan PlanScheduleJobs(bool ntHost) {
    ScheduleJobPlan plan;
    for (uint32_t index = 0;
         !ReadStoreText(ScheduleSection(index), CEK_SchedCurDir).empty(); ++index) {
        plan.jobs.push_back(JobOfSection(index));
        PlanWordFixes(ScheduleSection(index), ntHost, plan.fixes);
    }
    return plan;
}

void WriteScheduleJobs(const ScheduleJobPlan& plan) {
    WipeRegistryEntries();
    for (const ScheduleWordFix& fix : plan.fixes) Q9CfgE_SetDWEx(fix.section, fix.key, fix.after);
    for (const ScheduleJob& job : plan.jobs) WriteScheduleJob(job);
}
