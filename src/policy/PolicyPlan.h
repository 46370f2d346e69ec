#pragma once

// What bringing the product into line with a policy would do, worked out
// without changing anything: the values that would change (in the merge's
// target and in the store the rest reads), the functions that would be
// registered or stopped, this product's records of the exclusion zone that
// would come or go, and the scheduler's job keys that would be rewritten or
// removed. A dry run shows it; a real run does exactly this, since both use
// the same merge, the same switch rule, the same zone records and the same
// job plan.

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "policy/StoreSnapshot.h"
#include "schedule/ScheduleJobs.h"
#include "targets/ZoneRecords.h"

enum class MergeOutcome {
    kNoPolicy,     // no policy file was named
    kMerged,       // the policy's values were (or would be) merged
    kBaseTooLong,  // the target's path is longer than kMaxPolicyPath
    kNotOpened,    // the policy or the target could not be opened
    kNoValues,     // the policy holds no value the store can read
    kTooLarge,     // the policy file is larger than kMaxPolicyBytes
};

enum class FunctionAction {
    kRegister,        // the function would be registered
    kStop,            // the function would be stopped and unregistered
    kCannotRegister,  // it cannot be registered: its switch bit would be cleared
};

struct FunctionChange {
    int32_t item = 0;
    FunctionAction action = FunctionAction::kRegister;

    bool operator==(const FunctionChange&) const = default;
};

struct ZoneChange {
    bool added = false;  // else removed
    ZoneRecord record;

    bool operator==(const ZoneChange&) const = default;
};

struct JobChange {
    std::string name;
    bool removed = false;        // else written anew
    bool losesAccount = false;   // its run-as account goes with the rewrite
    ScheduleJob job;             // what is written, when not removed

    bool operator==(const JobChange&) const = default;
};

struct PolicyPlan {
    std::string target;  // the merge's target file
    MergeOutcome merge = MergeOutcome::kNoPolicy;
    std::vector<ValueChange> values;
    std::vector<FunctionChange> functions;
    bool zoneAvailable = false;
    std::vector<ZoneChange> zone;
    std::vector<JobChange> jobs;

    // A function that cannot be registered changes nothing of its own: its
    // bit, if set, shows among the values.
    bool ChangesSomething() const {
        const bool functionChanges =
            std::any_of(functions.begin(), functions.end(), [](const FunctionChange& change) {
                return change.action != FunctionAction::kCannotRegister;
            });
        return !values.empty() || functionChanges || !zone.empty() || !jobs.empty();
    }
};

// The plan of ApplyConfiguration(basePath, policyPath, any flag) as the
// silent call runs it: the store it reads is basePath when one is named
// (the call points the store at it first), else the live store. Nothing is
// written: the merge is worked out on a copy of the target.
PolicyPlan PlanConfiguration(const char* basePath, const char* policyPath);

// The name of the store file the silent call reads: basePath, or "" for the
// live store.
std::string SessionStorePath(const char* basePath);

// The live store's file in the installation.
constexpr const char* kLiveStoreFile = "Q9Cfg.dat";
