// The dry run against the real run: on several policies, what the plan says
// is exactly what an apply then changes (values, registrations, the zone,
// the job keys), and a second plan finds nothing left to change.

#include "policy/PolicyPlan.h"

#include <filesystem>
#include <map>
#include <optional>

#include "PolicyTest.h"
#include "options/SwitchWord.h"
#include "policy/PolicyHistory.h"
#include "policy/PolicyMerge.h"
#include "policy/PolicySwitches.h"
#include "policy/RecordedApply.h"
#include "schedule/ScheduleJobs.h"
#include "session/RegistrationBinding.h"
#include "targets/ExclusionList.h"
#include "targets/ExclusionStore.h"

namespace {

// What an apply can change outside the store.
struct OutsideState {
    std::map<int32_t, bool> registered;
    std::vector<ZoneRecord> zone;  // this product's
    std::map<std::string, std::optional<ScheduleJob>> jobs;
    std::map<std::string, bool> accounts;

    static OutsideState Read() {
        OutsideState state;
        for (const PolicySwitchGroup& group : PolicySwitchGroups()) {
            for (const int32_t item : group.items) {
                state.registered[item] =
                    g_Siblings.ServiceControl(SC_IsRegistered, item, kServiceOption) != 0;
            }
        }
        for (const ZoneRecord& record : ReadZone().value_or(std::vector<ZoneRecord>{})) {
            if (!(record.flags & kZoneForeign)) state.zone.push_back(record);
        }
        for (const std::string& name : ScheduleJobNames()) {
            state.jobs[name] = ReadScheduleJob(name);
            state.accounts[name] = ScheduleJobHasAccount(name);
        }
        return state;
    }
};

bool Contains(const std::vector<ZoneRecord>& records, const ZoneRecord& record) {
    return std::find(records.begin(), records.end(), record) != records.end();
}

class PolicyPlanTest : public PolicyTest {
protected:
    std::string PolicyPath() const { return Install().PathOf("policy.dat"); }

    // Plans, applies with the record, and holds the apply to the plan.
    void ExpectThePlanIsWhatTheApplyDoes(const char* basePath, const char* policyPath) {
        const PolicyPlan plan = PlanConfiguration(basePath, policyPath);
        const OutsideState before = OutsideState::Read();
        ApplyPolicyRecorded(basePath, policyPath, 1);
        const OutsideState after = OutsideState::Read();

        const std::vector<HistoryEntry> history = PolicyHistory(g_szModuleDir).Read();
        ASSERT_FALSE(history.empty());
        ExpectSameValues(plan.values, history.back().values);
        ExpectSameFunctions(plan, before, after);
        ExpectSameZone(plan, before, after);
        ExpectSameJobs(plan, before, after);

        const PolicyPlan again = PlanConfiguration(basePath, policyPath);
        EXPECT_FALSE(again.ChangesSomething()) << "left to change: " << again.values.size()
                                               << " values, " << again.functions.size()
                                               << " functions, " << again.zone.size()
                                               << " zone records, " << again.jobs.size() << " jobs";
    }

    // Secret values are compared by whether they are secret: the record
    // holds no digest.
    static void ExpectSameValues(const std::vector<ValueChange>& planned,
                                 const std::vector<ValueChange>& recorded) {
        ASSERT_EQ(planned.size(), recorded.size());
        for (std::size_t i = 0; i < planned.size(); ++i) {
            EXPECT_EQ(planned[i].file, recorded[i].file);
            EXPECT_EQ(planned[i].section, recorded[i].section);
            EXPECT_EQ(planned[i].key, recorded[i].key);
            EXPECT_EQ(planned[i].IsSecret(), recorded[i].IsSecret());
            if (planned[i].IsSecret()) continue;
            EXPECT_EQ(planned[i].before, recorded[i].before);
            EXPECT_EQ(planned[i].after, recorded[i].after);
        }
    }

    static void ExpectSameFunctions(const PolicyPlan& plan, const OutsideState& before,
                                    const OutsideState& after) {
        std::vector<FunctionChange> observed;
        for (const PolicySwitchGroup& group : PolicySwitchGroups()) {
            for (const int32_t item : group.items) {
                const bool was = before.registered.at(item);
                const bool is = after.registered.at(item);
                if (was != is) {
                    observed.push_back(
                        {item, is ? FunctionAction::kRegister : FunctionAction::kStop});
                }
            }
        }
        std::vector<FunctionChange> planned = plan.functions;
        std::erase_if(planned, [](const FunctionChange& change) {
            return change.action == FunctionAction::kCannotRegister;
        });
        EXPECT_EQ(planned, observed);
    }

    static void ExpectSameZone(const PolicyPlan& plan, const OutsideState& before,
                               const OutsideState& after) {
        for (const ZoneChange& change : plan.zone) {
            EXPECT_EQ(Contains(after.zone, change.record), change.added) << change.record.path;
            EXPECT_EQ(Contains(before.zone, change.record), !change.added) << change.record.path;
        }
        std::size_t added = 0;
        std::size_t removed = 0;
        for (const ZoneChange& change : plan.zone) (change.added ? added : removed)++;
        EXPECT_EQ(after.zone.size(), before.zone.size() + added - removed);
    }

    static void ExpectSameJobs(const PolicyPlan& plan, const OutsideState& before,
                               const OutsideState& after) {
        std::vector<JobChange> observed;
        for (const auto& [name, job] : before.jobs) {
            if (!after.jobs.contains(name)) observed.push_back({name, true, false, {}});
        }
        for (const auto& [name, job] : after.jobs) {
            const auto old = before.jobs.find(name);
            const bool hadAccount = before.accounts.contains(name) && before.accounts.at(name);
            if (old != before.jobs.end() && old->second == job && !hadAccount) continue;
            ASSERT_TRUE(job.has_value()) << name;
            observed.push_back({name, false, hadAccount, *job});
        }
        std::vector<JobChange> planned = plan.jobs;
        const auto byName = [](const JobChange& a, const JobChange& b) { return a.name < b.name; };
        std::sort(planned.begin(), planned.end(), byName);
        std::sort(observed.begin(), observed.end(), byName);
        EXPECT_EQ(planned, observed);
    }
};

}  // namespace

TEST_F(PolicyPlanTest, APolicyTurningFunctionsOnAndOffAddingExclusionsAndSchedules) {
    g_Siblings.ServiceControl(SC_Register, SSCT_Q9BAR, kServiceOption);
    g_Siblings.ServiceControl(SC_Register, SSCT_TRAY, kServiceOption);
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/old"},
                              {1, kZoneFolder | kZoneFixed, "", "/opt/product"}});
    AddJobKey("Q9SScan4");
    const std::string base = Install().PathOf("base.dat");
    Install().Write("policy.dat",
                    StoreFileText("[CES_Switch]\nCEK_Switch_Scan=dword:00000011\n"
                                  "CEK_Switch_ScanMask=dword:000000ff\n"
                                  "CEK_Switch_General=dword:00200000\n"
                                  "CEK_Switch_GeneralMask=dword:00300000\n"
                                  "[CES_Exclude]\nCEK_ExcludeEnable=dword:00000001\n"
                                  "record=0,1,\"/srv/cache\"\nrecord=1,1,\"/srv/big.iso\"\n"
                                  "[0x10000000]\nCEK_SchedOn=dword:00000001\n"
                                  "CEK_SchedStyle=dword:00000002\nCEK_SchedHour=dword:00000009\n"
                                  "CEK_SchedCurDir=\"%Q9%\"\n"
                                  "[0x10000001]\nCEK_SchedOn=dword:00000000\n"
                                  "CEK_SchedStyle=dword:00000001\n"
                                  "CEK_ScanPolicy=dword:01000002\n"
                                  "CEK_SchedCurDir=\"%Q9%\"\n"));
    ExpectThePlanIsWhatTheApplyDoes(base.c_str(), PolicyPath().c_str());
    EXPECT_EQ(JobKeys().size(), 2u);
}

TEST_F(PolicyPlanTest, APolicyWithoutABaseMergesIntoTheBaseFileAndTheLiveStoreRulesTheRest) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x8);
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x8 | 0x2);
    g_Siblings.ServiceControl(SC_Register, SSCT_HTTP_PROXY, kServiceOption);
    AddStoreEntry(0, 7);
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000101\n"));
    ExpectThePlanIsWhatTheApplyDoes(nullptr, PolicyPath().c_str());
}

TEST_F(PolicyPlanTest, APasswordAFunctionThatCannotRunAndAnNtHost) {
    g_bWinNT = 1;
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n144=0\n");
    const std::string base = Install().PathOf("base.dat");
    WriteThroughStore(base, [] {
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, "old-secret");
        AddStoreEntry(0, 6);
    });
    WriteThroughStore(PolicyPath(), [] {
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, "new-secret");
        Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, 0x40);
        Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, 0x40);
    });
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, base.c_str(), Q9CFGE_MODE_PLAIN);
    ExpectThePlanIsWhatTheApplyDoes(base.c_str(), PolicyPath().c_str());
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0u);
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), "new-secret");
}

TEST_F(PolicyPlanTest, NoPolicyAtAllStillPlansTheRest) {
    SetWord(CES_Switch, CEK_Switch_General, 0x100000);
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    AddStoreExclusion(0, "/srv/cache");
    AddStoreEntry(0, 5);
    ExpectThePlanIsWhatTheApplyDoes(nullptr, nullptr);
}

TEST_F(PolicyPlanTest, AJobWithARunAsAccountIsPlannedAsLosingIt) {
    AddStoreEntry(0, 5);
    WriteScheduleJobs(PlanScheduleJobs(false));
    ASSERT_EQ(ScheduleEntry::WriteAccountValue("scanner", "s3cret", 0), 1);
    const PolicyPlan plan = PlanConfiguration(nullptr, nullptr);
    ASSERT_EQ(plan.jobs.size(), 1u);
    EXPECT_TRUE(plan.jobs[0].losesAccount);
    ExpectThePlanIsWhatTheApplyDoes(nullptr, nullptr);
}

TEST_F(PolicyPlanTest, ThePlanChangesNothing) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n144=0\n");
    SetWord(CES_Switch, CEK_Switch_Scan, 0x40 | 0x10);
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0xFF);
    AddStoreEntry(0, 5);
    AddStoreExclusion(0, "/srv/cache");
    const std::string base = Install().PathOf("base.dat");
    const std::string baseText = StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000001\n");
    Install().Write("base.dat", baseText);
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    const std::string storeText = Install().Read("Q9Cfg.dat");

    const PolicyPlan plan = PlanConfiguration(base.c_str(), PolicyPath().c_str());
    EXPECT_TRUE(plan.ChangesSomething());
    // The plan leaves the store pointed at the base, as the silent call does.
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    EXPECT_EQ(Install().Read("base.dat"), baseText);
    EXPECT_EQ(Install().Read("Q9Cfg.dat"), storeText);
    EXPECT_TRUE(JobKeys().empty());
    EXPECT_TRUE(ReadZone()->empty());
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0x50u);
    for (const std::string& line : Calls()) {
        EXPECT_TRUE(line.starts_with("Q9SSCtrl_CanBeRegister")) << line;
    }
    EXPECT_FALSE(Install().Exists(kPolicyHistoryFile));
}

TEST_F(PolicyPlanTest, APolicyThatHoldsNoValueIsReportedAsSuch) {
    Install().Write("policy.dat", "\x7f" "ELF binary bytes\n");
    EXPECT_EQ(PlanConfiguration(nullptr, PolicyPath().c_str()).merge, MergeOutcome::kNoValues);
    Install().Write("policy.dat", "");
    EXPECT_EQ(PlanConfiguration(nullptr, PolicyPath().c_str()).merge, MergeOutcome::kNoValues);
    EXPECT_EQ(PlanConfiguration(nullptr, Install().PathOf("missing.dat").c_str()).merge,
              MergeOutcome::kNoValues);
    std::filesystem::create_directory(Install().PathOf("folder.dat"));
    EXPECT_EQ(PlanConfiguration(nullptr, Install().PathOf("folder.dat").c_str()).merge,
              MergeOutcome::kNotOpened);
    std::filesystem::resize_file(Install().PathOf("policy.dat"), kMaxPolicyBytes + 1);
    EXPECT_EQ(PlanConfiguration(nullptr, PolicyPath().c_str()).merge, MergeOutcome::kTooLarge);
    EXPECT_EQ(MergePolicyFile(Install().PathOf("base.dat"), PolicyPath()), -1);
    EXPECT_FALSE(Install().Exists("base.dat"));
    const std::string longBase(kMaxPolicyPath + 1, 'b');
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    EXPECT_EQ(PlanConfiguration(longBase.c_str(), PolicyPath().c_str()).merge,
              MergeOutcome::kBaseTooLong);
}
