#include "policy/PolicyPlan.h"

#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "Q9CfgE.h"
#include "options/SwitchWord.h"
#include "policy/PolicyMerge.h"
#include "policy/PolicySwitches.h"
#include "schedule/ScheduleEntry.h"
#include "session/ApplySwitch.h"
#include "session/ProcessState.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "targets/ExclusionStore.h"

namespace fs = std::filesystem;

namespace {

// A private folder for the copies a plan works on (they may hold enciphered
// values), removed with everything in it.
class ScratchFolder {
public:
    ScratchFolder() {
        std::error_code error;
        std::string pattern = (fs::temp_directory_path(error) / "q9policy.XXXXXX").string();
        if (mkdtemp(pattern.data())) m_path = pattern;
    }
    ~ScratchFolder() {
        std::error_code error;
        if (!m_path.empty()) fs::remove_all(m_path, error);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    bool IsMade() const { return !m_path.empty(); }
    std::string PathOf(const char* name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

// Copies a store file; a missing one stays missing (an empty store). False
// when the file is there but cannot be copied.
bool CopyStoreFile(const std::string& source, const std::string& copy) {
    std::error_code error;
    if (!fs::exists(source, error)) return !error;
    return fs::copy_file(source, copy, error);
}

MergeOutcome PlanMerge(const char* policyPath, const std::string& target,
                       const std::string& targetCopy) {
    if (!policyPath || !*policyPath) return MergeOutcome::kNoPolicy;
    if (target.empty()) return MergeOutcome::kBaseTooLong;
    if (PolicyTooLarge(policyPath)) return MergeOutcome::kTooLarge;
    if (!CopyStoreFile(target, targetCopy)) return MergeOutcome::kNotOpened;
    const int merged = MergePolicyFile(targetCopy, policyPath);
    if (merged < 0) return MergeOutcome::kNotOpened;
    return merged == 0 ? MergeOutcome::kNoValues : MergeOutcome::kMerged;
}

bool IsRegistered(int32_t item) {
    return g_Siblings.ServiceControl(SC_IsRegistered, item, kServiceOption) != 0;
}

// The change a function's step brings, if any; a bit that must be cleared
// is cleared in the store the plan works on.
std::optional<FunctionAction> PlanStep(const PolicySwitchWords& words, int32_t item) {
    const uint32_t bit = SwitchBitOf(item);
    switch (SwitchStepOf(words.word, words.mask, bit, item)) {
        case SwitchStep::kNone: return std::nullopt;
        case SwitchStep::kUnregister:
            return IsRegistered(item) ? std::optional(FunctionAction::kStop) : std::nullopt;
        case SwitchStep::kRegister:
            return IsRegistered(item) ? std::nullopt : std::optional(FunctionAction::kRegister);
        case SwitchStep::kClearBit: SetSwitchBit(bit, false); return FunctionAction::kCannotRegister;
    }
    return std::nullopt;
}

std::vector<FunctionChange> PlanFunctions() {
    std::vector<FunctionChange> changes;
    for (const PolicySwitchGroup& group : PolicySwitchGroups()) {
        const PolicySwitchWords words = ReadSwitchWords(group);
        for (const int32_t item : group.items) {
            if (const auto action = PlanStep(words, item)) changes.push_back({item, *action});
        }
    }
    return changes;
}

// Records compared by what the zone keeps of them.
bool SameRecord(const ZoneRecord& a, const ZoneRecord& b) {
    return a.inUse == b.inUse && a.flags == b.flags && a.path == b.path;
}

// The records of from that to lacks, each matched once.
std::vector<ZoneRecord> Missing(const std::vector<ZoneRecord>& from, std::vector<ZoneRecord> to) {
    std::vector<ZoneRecord> missing;
    for (const ZoneRecord& record : from) {
        const auto match = std::find_if(to.begin(), to.end(),
                                        [&](const ZoneRecord& r) { return SameRecord(r, record); });
        if (match == to.end()) {
            missing.push_back(record);
        } else {
            to.erase(match);
        }
    }
    return missing;
}

std::vector<ZoneChange> PlanZone(bool* available) {
    const std::optional<std::vector<ZoneRecord>> present = ReadZone();
    *available = present.has_value();
    if (!present) return {};
    std::vector<ZoneRecord> own;
    for (const ZoneRecord& record : *present) {
        if (!(record.flags & kZoneForeign)) own.push_back(record);
    }
    std::vector<ZoneRecord> written = SyncedZoneRecords(*present);
    std::erase_if(written, [](const ZoneRecord& r) { return (r.flags & kZoneForeign) != 0; });
    for (ZoneRecord& record : written) record.owner = kZoneOwnerTag;
    std::vector<ZoneChange> changes;
    for (const ZoneRecord& record : Missing(own, written)) changes.push_back({false, record});
    for (const ZoneRecord& record : Missing(written, own)) changes.push_back({true, record});
    return changes;
}

// Plans the job keys and writes the words the rebuild changes into the
// store the plan works on.
std::vector<JobChange> PlanJobs() {
    const ScheduleJobPlan plan = PlanScheduleJobs(g_bWinNT != 0);
    for (const ScheduleWordFix& fix : plan.fixes) Q9CfgE_SetDWEx(fix.section, fix.key, fix.after);
    std::vector<JobChange> changes;
    for (const std::string& name : ScheduleJobNames()) {
        const bool planned = std::any_of(plan.jobs.begin(), plan.jobs.end(),
                                         [&](const ScheduleJob& job) { return job.name == name; });
        if (!planned) changes.push_back({name, true, false, {}});
    }
    for (const ScheduleJob& job : plan.jobs) {
        const bool hasAccount = ScheduleJobHasAccount(job.name);
        if (ReadScheduleJob(job.name) == job && !hasAccount) continue;
        changes.push_back({job.name, false, hasAccount, job});
    }
    return changes;
}

void Append(std::vector<ValueChange>& to, std::vector<ValueChange> more) {
    for (ValueChange& change : more) to.push_back(std::move(change));
}

}  // namespace

std::string SessionStorePath(const char* basePath) {
    return (basePath && *basePath) ? std::string(basePath) : std::string();
}

PolicyPlan PlanConfiguration(const char* basePath, const char* policyPath) {
    PolicyPlan plan;
    plan.target = PolicyTargetPath(basePath, g_szModuleDir);
    const std::string session = SessionStorePath(basePath);
    const std::string storeFile = session.empty() ? g_szModuleDir + kLiveStoreFile : session;
    const ScratchFolder scratch;
    if (!scratch.IsMade()) {
        plan.merge = MergeOutcome::kNotOpened;
        return plan;
    }
    const std::string targetCopy = scratch.PathOf("target.dat");
    const std::string storeCopy = scratch.PathOf("store.dat");

    const StoreSnapshot targetBefore =
        plan.target.empty() ? StoreSnapshot() : StoreSnapshot::Read(plan.target, session);
    const StoreSnapshot storeBefore = StoreSnapshot::Read(storeFile, session);
    plan.merge = PlanMerge(policyPath, plan.target, targetCopy);
    const bool readsMergedCopy = plan.merge == MergeOutcome::kMerged && storeFile == plan.target;
    if (!readsMergedCopy) CopyStoreFile(storeFile, storeCopy);

    // The rest reads and writes the copy of the store, as the real run would
    // the store itself.
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, (readsMergedCopy ? targetCopy : storeCopy).c_str(),
                      Q9CFGE_MODE_PLAIN);
    plan.zone = PlanZone(&plan.zoneAvailable);
    plan.functions = PlanFunctions();
    plan.jobs = PlanJobs();
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, session.c_str(), Q9CFGE_MODE_PLAIN);

    if (plan.merge == MergeOutcome::kMerged) {
        Append(plan.values, CompareSnapshots(plan.target, targetBefore,
                                             StoreSnapshot::Read(targetCopy, session)));
    }
    if (!readsMergedCopy) {
        Append(plan.values,
               CompareSnapshots(storeFile, storeBefore, StoreSnapshot::Read(storeCopy, session)));
    }
    return plan;
}
