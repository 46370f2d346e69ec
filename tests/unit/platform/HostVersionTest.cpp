#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "platform/HostVersion.h"
#include "platform/ProblemReport.h"

namespace {

using platform::DetectHostVersion;
using platform::FlagsFor;
using platform::HostFlags;
using platform::HostVersion;
using platform::ParseHostVersion;

struct FlagCase {
    const char* text;
    HostFlags flags;  // winNT, winMeOrLater, win2000, winXPOrLater
};

void PrintTo(const FlagCase& flagCase, std::ostream* out) { *out << flagCase.text; }

// "nt-5.1" -> "nt_5_1", a valid test name.
std::string CaseName(const testing::TestParamInfo<FlagCase>& info) {
    std::string name = info.param.text;
    for (char& c : name) {
        if (c == '-' || c == '.') c = '_';
    }
    return name;
}

class HostFlagsTest : public testing::TestWithParam<FlagCase> {};

TEST_P(HostFlagsTest, GivesFourFlags) {
    const std::optional<HostVersion> version = ParseHostVersion(GetParam().text);
    ASSERT_TRUE(version);
    const HostFlags flags = FlagsFor(*version);
    const HostFlags& expected = GetParam().flags;
    EXPECT_EQ(flags.winNT, expected.winNT);
    EXPECT_EQ(flags.winMeOrLater, expected.winMeOrLater);
    EXPECT_EQ(flags.win2000, expected.win2000);
    EXPECT_EQ(flags.winXPOrLater, expected.winXPOrLater);
}

INSTANTIATE_TEST_SUITE_P(
    Versions, HostFlagsTest,
    testing::Values(FlagCase{"nt-5.1", {1, 0, 0, 1}}, FlagCase{"nt-5.0", {1, 0, 1, 0}},
                    FlagCase{"nt-4.0", {1, 0, 0, 0}}, FlagCase{"nt-5.2", {1, 0, 0, 1}},
                    FlagCase{"nt-6.1", {1, 0, 0, 1}}, FlagCase{"nt-10.0", {1, 0, 0, 1}},
                    FlagCase{"9x-4.90", {0, 1, 0, 0}}, FlagCase{"9x-4.10", {0, 0, 0, 0}},
                    FlagCase{"9x-4.0", {0, 0, 0, 0}}, FlagCase{"9x-4.9", {0, 0, 0, 0}},
                    FlagCase{"9x-5.0", {0, 1, 0, 0}}),
    CaseName);

TEST(ParseHostVersionTest, ReadsFamilyAndNumbers) {
    const std::optional<HostVersion> me = ParseHostVersion("9x-4.90");
    ASSERT_TRUE(me);
    EXPECT_FALSE(me->ntFamily);
    EXPECT_EQ(me->major, 4u);
    EXPECT_EQ(me->minor, 90u);
    const std::optional<HostVersion> xp = ParseHostVersion("nt-5.1");
    ASSERT_TRUE(xp);
    EXPECT_TRUE(xp->ntFamily);
    EXPECT_EQ(xp->major, 5u);
    EXPECT_EQ(xp->minor, 1u);
}

constexpr const char* kInvalidVersions[] = {
    "xp",      "",         "nt",      "nt-",      "nt-5",    "nt-5.",   "nt-.1",   "nt-a.b",
    "nt-5.a",  "9x-4.90x", "NT-5.1",  "Nt-5.1",   "9X-4.90", " nt-5.1", "nt-5.1 ", "nt- 5.1",
    "nt-+5.1", "nt--5.1",  "nt-5..1", "nt-5.1.0", "nt_5.1",  "95-4.0",  "nt-5,1",  "9x-4.90\n"};

TEST(ParseHostVersionTest, RejectsEverythingElse) {
    for (const char* text : kInvalidVersions) {
        EXPECT_FALSE(ParseHostVersion(text)) << '"' << text << '"';
    }
}

TEST(ParseHostVersionTest, RejectsNumbersBeyond32Bits) {
    EXPECT_FALSE(ParseHostVersion("nt-4294967296.0"));
    EXPECT_FALSE(ParseHostVersion("nt-5.99999999999"));
}

TEST(ParseHostVersionTest, AcceptsLargestNumbers) {
    const std::optional<HostVersion> version = ParseHostVersion("nt-4294967295.4294967295");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->major, 4294967295u);
    EXPECT_EQ(version->minor, 4294967295u);
}

std::vector<std::string> g_reports;

void RecordReport(const char* line) { g_reports.emplace_back(line); }

class DetectHostVersionTest : public testing::Test {
protected:
    void SetUp() override {
        if (const char* value = std::getenv(platform::kHostVersionVariable)) saved_ = value;
        g_reports.clear();
        previousSink_ = platform::SetProblemSink(&RecordReport);
    }

    void TearDown() override {
        platform::SetProblemSink(previousSink_);
        if (saved_) {
            setenv(platform::kHostVersionVariable, saved_->c_str(), 1);
        } else {
            unsetenv(platform::kHostVersionVariable);
        }
    }

    static void SetOverride(const std::string& value) {
        setenv(platform::kHostVersionVariable, value.c_str(), 1);
    }

    // An invalid value seen for the first time in this process (tests may be
    // repeated, and a value is reported only once).
    static std::string FreshInvalidValue(const std::string& stem) {
        static int values = 0;
        return stem + "-" + std::to_string(++values);
    }

    static void ExpectLinuxDefault(const HostVersion& version) {
        EXPECT_TRUE(version.ntFamily);
        EXPECT_EQ(version.major, 5u);
        EXPECT_EQ(version.minor, 1u);
    }

    std::optional<std::string> saved_;
    platform::ProblemSink previousSink_ = nullptr;
};

TEST_F(DetectHostVersionTest, LinuxCountsAsNtFiveOne) {
    unsetenv(platform::kHostVersionVariable);
    const HostVersion version = DetectHostVersion();
    ExpectLinuxDefault(version);
    const HostFlags flags = FlagsFor(version);
    EXPECT_EQ(flags.winNT, 1);
    EXPECT_EQ(flags.winMeOrLater, 0);
    EXPECT_EQ(flags.win2000, 0);
    EXPECT_EQ(flags.winXPOrLater, 1);
    EXPECT_TRUE(g_reports.empty());
}

TEST_F(DetectHostVersionTest, EnvironmentOverrides) {
    SetOverride("9x-4.90");
    const HostVersion me = DetectHostVersion();
    EXPECT_FALSE(me.ntFamily);
    EXPECT_EQ(me.major, 4u);
    EXPECT_EQ(me.minor, 90u);
    SetOverride("nt-5.0");
    EXPECT_EQ(FlagsFor(DetectHostVersion()).win2000, 1);
    EXPECT_TRUE(g_reports.empty());
}

TEST_F(DetectHostVersionTest, InvalidOverrideIsReportedOnceAndIgnored) {
    const std::string value = FreshInvalidValue("win-xp");
    testing::internal::CaptureStderr();
    SetOverride(value);
    ExpectLinuxDefault(DetectHostVersion());
    ExpectLinuxDefault(DetectHostVersion());
    const std::string output = testing::internal::GetCapturedStderr();
    ASSERT_EQ(g_reports.size(), 1u);
    EXPECT_NE(g_reports[0].find("Q9_HOST_VERSION"), std::string::npos);
    EXPECT_NE(g_reports[0].find(value), std::string::npos);
    EXPECT_NE(output.find("Q9CfgUL: "), std::string::npos);
}

TEST_F(DetectHostVersionTest, ChangedInvalidOverrideIsReportedAgain) {
    const std::string second = FreshInvalidValue("second");
    testing::internal::CaptureStderr();
    SetOverride(FreshInvalidValue("first"));
    DetectHostVersion();
    SetOverride(second);
    DetectHostVersion();
    DetectHostVersion();
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(g_reports.size(), 2u);
    EXPECT_NE(g_reports[1].find(second), std::string::npos);
}

TEST_F(DetectHostVersionTest, EmptyOverrideIsInvalid) {
    testing::internal::CaptureStderr();
    SetOverride(FreshInvalidValue("before-empty"));  // so that "" differs from the last report
    DetectHostVersion();
    g_reports.clear();
    SetOverride("");
    ExpectLinuxDefault(DetectHostVersion());
    testing::internal::GetCapturedStderr();
    ASSERT_EQ(g_reports.size(), 1u);
    EXPECT_NE(g_reports[0].find("Q9_HOST_VERSION=\"\""), std::string::npos);
}

}  // namespace
