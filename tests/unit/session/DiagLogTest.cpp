#include "session/DiagLog.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/ProblemReport.h"
#include "session/RegistryHelpers.h"
#include "support/TemporaryRegistry.h"

namespace {

class DiagLogTest : public testing::Test {
protected:
    void SetDebug(uint32_t value) {
        ASSERT_EQ(RegWriteDword(platform::LocalMachine(), CDiagLog::kSettingKey, "Debug", value),
                  0);
    }
    std::string LogPath() const { return registry.Base() + "/q9cfgul.log"; }
    std::string ReadLog() const { return TemporaryRegistry::ReadFile(LogPath()); }
    void TearDown() override { platform::SetProblemSink(nullptr); }

    TemporaryRegistry registry;
    CDiagLog log;
};

}  // namespace

TEST_F(DiagLogTest, MissingKeyLeavesTheLogOff) {
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kOff);
    log.Write("line %d", 1);
    EXPECT_FALSE(std::filesystem::exists(LogPath()));
}

TEST_F(DiagLogTest, ModeOneAppendsEachLineToTheFile) {
    SetDebug(1);
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kFile);
    EXPECT_EQ(log.path(), LogPath());
    log.Write("first %d", 1);
    log.Write("second %s", "two");
    EXPECT_EQ(ReadLog(), "first 1\nsecond two\n");
    EXPECT_EQ(std::filesystem::status(LogPath()).permissions() & std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(DiagLogTest, EmptyTextIsDropped) {
    SetDebug(1);
    log.Open(LogPath());
    log.Write("%s", "");
    log.Write("kept");
    EXPECT_EQ(ReadLog(), "kept\n");
}

TEST_F(DiagLogTest, LinesAreCutAt1023Characters) {
    SetDebug(1);
    log.Open(LogPath());
    log.Write("%s", std::string(1500, 'x').c_str());
    EXPECT_EQ(ReadLog(), std::string(1023, 'x') + "\n");
}

TEST_F(DiagLogTest, ModeTwoWritesToStandardErrorWithoutASystemLog) {
    SetDebug(2);
    log.SetSystemLogSocket(registry.Base() + "/no-such-socket");
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kSystemLog);
    testing::internal::CaptureStderr();
    log.Write("to the debugger %u", 7u);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "to the debugger 7\n");
    EXPECT_FALSE(std::filesystem::exists(LogPath()));
}

TEST_F(DiagLogTest, DebugThreeLeavesTheLogOff) {
    SetDebug(3);
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kOff);
    log.Write("nothing");
    EXPECT_FALSE(std::filesystem::exists(LogPath()));
}

TEST_F(DiagLogTest, DebugZeroAndTextValuesLeaveTheLogOff) {
    SetDebug(0);
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kOff);
    ASSERT_EQ(RegWriteString(platform::LocalMachine(), CDiagLog::kSettingKey, "Debug", "1"), 0);
    log.Open(LogPath());
    EXPECT_EQ(log.mode(), CDiagLog::kOff);
}

TEST_F(DiagLogTest, MissingLogDirectoryIsSaidOnceAndTheProgramGoesOn) {
    SetDebug(1);
    const std::string path = registry.Base() + "/missing/dir/q9cfgul.log";
    log.Open(path);
    testing::internal::CaptureStderr();
    log.Write("one");
    log.Write("two");
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("cannot write the log file " + path), std::string::npos);
    EXPECT_EQ(said.find("cannot write", said.find("cannot write") + 1), std::string::npos);
}

TEST_F(DiagLogTest, ReportedProblemsAlsoLandInTheLog) {
    SetDebug(1);
    g_Log.Open(LogPath());
    testing::internal::CaptureStderr();
    platform::ReportProblem("hive could not be parsed");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Q9CfgUL: hive could not be parsed\n");
    EXPECT_EQ(ReadLog(), "hive could not be parsed\n");
    SetDebug(0);
    g_Log.Open(LogPath());
}

TEST_F(DiagLogTest, TheFixedPathNeedsNoDrive) {
    EXPECT_STREQ(CDiagLog::kDefaultPath, "/tmp/q9cfgul.log");
}
