#include "schedule/ScheduleJobs.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

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

// A value read twice with different fallbacks is there exactly when both
// reads agree.
std::optional<uint32_t> ReadJobWord(const std::string& key, const char* name) {
    const RegKey root = platform::LocalMachine();
    const uint32_t first = RegReadDword(root, key.c_str(), name, 0);
    if (first != RegReadDword(root, key.c_str(), name, 1)) return std::nullopt;
    return first;
}

std::optional<std::string> ReadJobText(const std::string& key, const char* name) {
    const RegKey root = platform::LocalMachine();
    std::string first = RegReadString(root, key.c_str(), name, "");
    if (first != RegReadString(root, key.c_str(), name, "-")) return std::nullopt;
    return first;
}

}  // namespace

std::optional<ScheduleJob> ReadScheduleJob(const std::string& name) {
    const std::string key = RegJoinPath(kScheduleKey, name);
    ScheduleJob job;
    job.name = name;
    // The number behind the prefix selects the store section, as the
    // scanner's command line says.
    job.section = ScheduleSection(static_cast<uint32_t>(
        std::strtoul(name.c_str() + std::min(name.size(), std::strlen(kScheduleJobPrefix)),
                     nullptr, 10)));
    for (std::size_t i = 0; i < job.words.size(); ++i) {
        const std::optional<uint32_t> word = ReadJobWord(key, kScheduleJobWordNames[i]);
        if (!word) return std::nullopt;
        job.words[i] = *word;
    }
    const std::optional<std::string> commandLine = ReadJobText(key, "CmdLine");
    const std::optional<std::string> directory = ReadJobText(key, "CurDir");
    if (!commandLine || !directory) return std::nullopt;
    job.commandLine = *commandLine;
    job.directory = *directory;
    return job;
}

bool ScheduleJobHasAccount(const std::string& name) {
    const std::string key = RegJoinPath(kScheduleKey, name);
    return RegReadBinary(platform::LocalMachine(), key.c_str(), kAccountValueName, nullptr, 0) > 0;
}

void WriteScheduleJob(const ScheduleJob& job) {
    const RegKey root = platform::LocalMachine();
    const std::string key = RegJoinPath(kScheduleKey, job.name);
    for (std::size_t i = 0; i < job.words.size(); ++i) {
        RegWriteDword(root, key.c_str(), kScheduleJobWordNames[i], job.words[i]);
    }
    RegWriteString(root, key.c_str(), "CmdLine", job.commandLine.c_str());
    RegWriteString(root, key.c_str(), "CurDir", job.directory.c_str());
}

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
