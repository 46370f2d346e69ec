#include "schedule/ScheduleJobs.h"

#include "Q9CfgE.h"
#include "options/ScanBits.h"
#include "options/ScanProfile.h"
#include "options/StoreKeys.h"
#include "schedule/ScheduleEntry.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"

namespace {

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
        fixes.push_back({section, CEK_ScanOptions, options, options | kScanUnattendedNT});
    }
    const uint32_t policy = Q9CfgE_GetDWEx(section, CEK_ScanPolicy);
    if (const uint32_t unattended = WithoutUserVerification(policy); unattended != policy) {
        fixes.push_back({section, CEK_ScanPolicy, policy, unattended});
    }
}

}  // namespace

ScheduleJobPlan PlanScheduleJobs(bool ntHost) {
    ScheduleJobPlan plan;
    for (uint32_t index = 0; ScheduleSectionHoldsEntry(ScheduleSection(index)); ++index) {
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
