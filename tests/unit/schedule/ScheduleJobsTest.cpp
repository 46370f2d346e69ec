// The job keys rebuilt from the store's schedule sections: the plan, the
// words written back, and reading a job key as it stands.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include "options/StoreKeys.h"
#include "schedule/ScheduleEntry.h"
#include "schedule/ScheduleJobs.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "support/SiblingTest.h"
#include "support/TemporaryRegistry.h"

namespace {

class ScheduleJobsTest : public SiblingTest {
protected:
    static void AddEntry(uint32_t index, uint32_t hour) {
        const uint32_t section = ScheduleSection(index);
        SetWord(section, CEK_SchedOn, 1);
        SetWord(section, CEK_SchedStyle, kScheduleEveryMonth);
        SetWord(section, CEK_SchedDay, 12);
        SetWord(section, CEK_SchedHour, hour);
        ASSERT_EQ(Q9CfgE_SetStrEx(section, CEK_SchedCurDir, kScheduleStoreDirectory), 1);
    }

    TemporaryRegistry m_registry;
};

}  // namespace

TEST_F(ScheduleJobsTest, ThePlanHasAJobPerSectionUpToTheFirstWithoutAWorkingFolder) {
    AddEntry(0, 8);
    AddEntry(1, 9);
    AddEntry(3, 11);
    const ScheduleJobPlan plan = PlanScheduleJobs(false);
    ASSERT_EQ(plan.jobs.size(), 2u);
    EXPECT_EQ(plan.jobs[1].name, "Q9SScan1");
    EXPECT_EQ(plan.jobs[1].section, ScheduleSection(1));
    EXPECT_EQ(plan.jobs[1].words,
              (std::array<uint32_t, 8>{1, kScheduleEveryMonth, 0, 0, 12, 0, 9, 0}));
    EXPECT_EQ(plan.jobs[1].commandLine, ScheduleRegistryCommandLine(ScheduleSection(1)));
    EXPECT_EQ(plan.jobs[1].directory, g_szModuleDir);
    EXPECT_TRUE(plan.fixes.empty());
}

TEST_F(ScheduleJobsTest, AWrittenJobReadsBackTheSame) {
    AddEntry(0, 8);
    const ScheduleJobPlan plan = PlanScheduleJobs(false);
    WriteScheduleJobs(plan);
    EXPECT_EQ(ReadScheduleJob("Q9SScan0"), plan.jobs[0]);
    EXPECT_FALSE(ScheduleJobHasAccount("Q9SScan0"));
}

TEST_F(ScheduleJobsTest, AJobKeyLackingAValueReadsAsNone) {
    AddEntry(0, 8);
    WriteScheduleJobs(PlanScheduleJobs(false));
    RegKey job = nullptr;
    ASSERT_EQ(platform::RegOpenKey(platform::LocalMachine(), ScheduleJobKey(0).c_str(),
                                   platform::kKeyAllAccess, &job),
              platform::kSuccess);
    platform::RegDeleteValue(job, "Minute");
    platform::RegCloseKey(job);
    EXPECT_FALSE(ReadScheduleJob("Q9SScan0").has_value());
    EXPECT_FALSE(ReadScheduleJob("Q9SScan9").has_value());
}

TEST_F(ScheduleJobsTest, AJobWithARunAsAccountSaysSo) {
    AddEntry(0, 8);
    WriteScheduleJobs(PlanScheduleJobs(false));
    ASSERT_EQ(ScheduleEntry::WriteAccountValue("scanner", "s3cret", 0), 1);
    EXPECT_TRUE(ScheduleJobHasAccount("Q9SScan0"));
}

TEST_F(ScheduleJobsTest, FixesNameTheWordsTheRebuildWritesBack) {
    AddEntry(0, 8);
    SetWord(ScheduleSection(0), CEK_ScanOptions, 0x8);
    SetWord(ScheduleSection(0), CEK_ScanPolicy, 0x1000002);
    const ScheduleJobPlan plan = PlanScheduleJobs(true);
    EXPECT_EQ(plan.fixes, (std::vector<ScheduleWordFix>{
                              {ScheduleSection(0), CEK_ScanOptions, 0x8, 0x101009},
                              {ScheduleSection(0), CEK_ScanPolicy, 0x1000002, 0x2000002}}));
    WriteScheduleJobs(plan);
    EXPECT_EQ(Word(ScheduleSection(0), CEK_ScanOptions), 0x101009u);
    EXPECT_EQ(Word(ScheduleSection(0), CEK_ScanPolicy), 0x2000002u);
}
