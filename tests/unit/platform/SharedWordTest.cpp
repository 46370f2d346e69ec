#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "platform/ProblemReport.h"
#include "platform/SharedWord.h"
#include "support/TestPaths.h"

namespace {

using platform::SharedWord;

std::vector<std::string> g_wordReports;

void RecordWordReport(const char* line) { g_wordReports.emplace_back(line); }

struct HelperResult {
    std::string output;
    int exitCode = -1;
};

// Runs the helper program with a command line made of safe words only.
HelperResult RunHelper(const std::string& arguments) {
    const std::string command = TestPath("helpers") + "/q9_platform_helper " + arguments;
    HelperResult result;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return result;
    char buffer[256];
    while (std::fgets(buffer, sizeof buffer, pipe)) result.output += buffer;
    const int status = pclose(pipe);
    if (status != -1 && WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    return result;
}

class SharedWordTest : public testing::Test {
protected:
    void TearDown() override { SharedWord::Remove(name_); }

    // A name of this process, test and run (tests may be repeated), so that
    // runs never meet.
    static std::string UniqueName() {
        static int runs = 0;
        return "/Q9CfgUL_test_" + std::to_string(getpid()) + "_" +
               testing::UnitTest::GetInstance()->current_test_info()->name() + "_" +
               std::to_string(++runs);
    }

    const std::string name_ = UniqueName();
};

TEST(SharedWordNameTest, ConfigWindowWordIsNamedAfterLibrary) {
    EXPECT_STREQ(platform::kConfigWindowWordName, "/Q9CfgUL_");
}

TEST_F(SharedWordTest, NewWordIsSharedAndZero) {
    SharedWord word(name_);
    EXPECT_TRUE(word.IsShared());
    EXPECT_EQ(word.name(), name_);
    EXPECT_EQ(word.Load(), 0u);
}

TEST_F(SharedWordTest, ExchangeReturnsPreviousValue) {
    SharedWord word(name_);
    EXPECT_EQ(word.Exchange(5), 0u);
    EXPECT_EQ(word.Exchange(0xFFFFFFFFu), 5u);
    EXPECT_EQ(word.Load(), 0xFFFFFFFFu);
}

TEST_F(SharedWordTest, TwoInstancesSeeEachOther) {
    SharedWord first(name_);
    SharedWord second(name_);
    first.Exchange(41);
    EXPECT_EQ(second.Load(), 41u);
    EXPECT_EQ(second.Exchange(42), 41u);
    EXPECT_EQ(first.Load(), 42u);
}

TEST_F(SharedWordTest, ValueOutlivesInstances) {
    { SharedWord(name_).Exchange(17); }
    SharedWord later(name_);
    EXPECT_EQ(later.Load(), 17u);
}

TEST_F(SharedWordTest, AnotherProcessSeesAndChangesWord) {
    SharedWord word(name_);
    word.Exchange(7);
    const HelperResult result = RunHelper("word-exchange " + name_ + " 9");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "7\n");
    EXPECT_EQ(word.Load(), 9u);
}

TEST_F(SharedWordTest, RemoveDeletesWord) {
    SharedWord(name_).Exchange(3);
    EXPECT_TRUE(SharedWord::Remove(name_));
    EXPECT_FALSE(SharedWord::Remove(name_));
    EXPECT_EQ(SharedWord(name_).Load(), 0u);
}

// A name with a second '/' is refused by shm_open, as when /dev/shm is
// missing: the word then lives in this process, and that is said once.
TEST_F(SharedWordTest, FallsBackToProcessWordAndReportsOnce) {
    const std::string name = name_ + "/unavailable";
    g_wordReports.clear();
    const platform::ProblemSink previous = platform::SetProblemSink(&RecordWordReport);
    testing::internal::CaptureStderr();
    SharedWord first(name);
    SharedWord second(name);
    const std::string output = testing::internal::GetCapturedStderr();
    platform::SetProblemSink(previous);
    EXPECT_FALSE(first.IsShared());
    EXPECT_FALSE(second.IsShared());
    ASSERT_EQ(g_wordReports.size(), 1u);
    EXPECT_NE(g_wordReports[0].find(name), std::string::npos);
    EXPECT_NE(output.find("Q9CfgUL: "), std::string::npos);
}

TEST_F(SharedWordTest, FallbackWordIsOnePerNameInProcess) {
    testing::internal::CaptureStderr();
    SharedWord first(name_ + "/unavailable");
    SharedWord second(name_ + "/unavailable");
    SharedWord other(name_ + "/other");
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(first.Exchange(8), 0u);
    EXPECT_EQ(second.Exchange(9), 8u);
    EXPECT_EQ(first.Load(), 9u);
    EXPECT_EQ(other.Load(), 0u);
}

}  // namespace
