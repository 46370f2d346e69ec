// The store shared by several processes: killed writers, readers during
// flushes, two editors, direct writes during an edit session.
#include <random>
#include <sstream>
#include <thread>

#include "Generations.h"
#include "StoreHelper.h"
#include "StoreTest.h"

namespace store_test {
namespace {

class ProcessTest : public StoreTest {
protected:
    uint32_t Generation() const { return Q9CfgE_GetDWEx(kGenerationSection, kGenerationKey); }
};

TEST_F(ProcessTest, WriterKilledDuringFlushesLeavesTheOldOrTheNewFile) {
    constexpr int kRounds = 20;
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> pause(0, 30);
    uint32_t previous = 0;
    for (int round = 0; round < kRounds; ++round) {
        StoreHelper writer({"flush-loop", Directory()});
        ASSERT_TRUE(writer.Started());
        ASSERT_TRUE(WaitFor([&] { return Generation() > previous || writer.HasExited(); }));
        ASSERT_FALSE(writer.HasExited()) << "the writer stopped on its own";
        std::this_thread::sleep_for(std::chrono::milliseconds(pause(random)));
        writer.Kill();

        uint32_t generation = 0;
        std::string why;
        ASSERT_TRUE(CheckGeneration(&generation, &why)) << "round " << round << ": " << why;
        EXPECT_GT(generation, previous);
        previous = generation;
    }
}

// The writer commits at most a few generations per pass of the reader, so
// that a slow reader that meets a new file at many reads still finishes
// passes; the commits still overlap the reads.
TEST_F(ProcessTest, ReaderDuringFlushesAlwaysSeesAWholeConsistentFile) {
    constexpr uint32_t kCommitsPerPass = 3;
    const std::string passes = PathOf("passes");
    StoreHelper reader({"read-loop", Directory(), "10", passes});
    ASSERT_TRUE(reader.Started());
    const auto PassesDone = [&passes] {
        uint32_t done = 0;
        std::istringstream(ReadFile(passes)) >> done;
        return done;
    };
    uint32_t lastPasses = 0;
    for (uint32_t generation = 1; !reader.HasExited(); ++generation) {
        ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
        WriteGeneration(generation);
        Q9CfgE_UnlockEx();
        ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
        if (generation % kCommitsPerPass != 0) continue;
        ASSERT_TRUE(WaitFor([&] { return PassesDone() > lastPasses || reader.HasExited(); }))
            << "the reader made no progress";
        lastPasses = PassesDone();
    }
    EXPECT_EQ(reader.Wait(), 0);
}

TEST_F(ProcessTest, SecondEditorWaitsIsToldBusyAndBothCommitsLand) {
    const std::string ready = PathOf("ready");
    const std::string release = PathOf("release");
    StoreHelper first({"edit-hold", Directory(), ready, release, "4", "10", "111"});
    ASSERT_TRUE(WaitFor([&] { return Exists(ready); }));

    EXPECT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), Q9CFGE_BUSY);
    Q9CfgE_SetDWEx(kSystemScan, kScanArchive, 222);
    WriteFile(release, "\n");
    EXPECT_EQ(first.Wait(), 0);
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);

    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, kScanOptions), 111u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, kScanArchive), 222u);
}

TEST_F(ProcessTest, DirectWriteFromAnotherProcessSurvivesTheSessionsCommit) {
    Q9CfgE_SetDWEx(kSystemMonitor, kScanOptions, 1);
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    Q9CfgE_SetDWEx(kSystemMonitor, kScanOptions, 5);
    StoreHelper other({"set-dw", Directory(), "7", "14", "9"});
    ASSERT_EQ(other.Wait(), 0);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemMonitor, kMonitorOptions), 0u);  // the working copy
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemMonitor, kScanOptions), 5u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemMonitor, kMonitorOptions), 9u);
}

TEST_F(ProcessTest, ReturnedTextStaysValidAcrossAReloadCausedByAnotherProcess) {
    Q9CfgE_SetStrEx(kGeneral, kAlertSound, "alert.wav");
    const char* sound = Q9CfgE_GetStrEx(kGeneral, kAlertSound);
    ASSERT_NE(sound, nullptr);
    StoreHelper other({"set-dw", Directory(), "0", "2", "77"});
    ASSERT_EQ(other.Wait(), 0);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 77u);  // the reload
    EXPECT_STREQ(sound, "alert.wav");
    EXPECT_EQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), sound);
}

}  // namespace
}  // namespace store_test
