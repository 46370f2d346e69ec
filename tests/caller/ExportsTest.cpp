// The simple exports, called through the loaded library.
#include <gtest/gtest.h>

#include <string>

#include "BoxAnswerer.h"
#include "CallerInstallation.h"

namespace {

using MsgBoxFn = int32_t(int32_t, uint32_t);
using PolicyDiffFn = int32_t(uint32_t, const char*, const char*, char*, uint32_t*);

}  // namespace

TEST(Exports, OnlyTheFiveEntryPointsAreExported) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    EXPECT_NE(caller.Entry<void>("Q9CfgUL_DoModal"), nullptr);
    EXPECT_NE(caller.Entry<void>("Q9CfgUL_PolicyDiff"), nullptr);
    EXPECT_NE(caller.Entry<void>("Q9CfgUL_MsgBox"), nullptr);
    EXPECT_NE(caller.Entry<void>("Q9CfgUL_Report"), nullptr);
    EXPECT_NE(caller.Entry<void>("WriteGeneralRuleFile"), nullptr);
    EXPECT_EQ(caller.Entry<void>("_ZN8CDiagLog5WriteEPKcz"), nullptr);
}

TEST(Exports, ReportDoesNothingAndAnswersOne) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    EXPECT_EQ(caller.Entry<int32_t()>("Q9CfgUL_Report")(), 1);
}

TEST(Exports, MsgBoxShowsEachFixedMessageAndAnswersOne) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    auto* msgBox = caller.Entry<MsgBoxFn>("Q9CfgUL_MsgBox");
    BoxAnswerer answerer;
    for (int32_t kind = 0; kind <= 3; ++kind) EXPECT_EQ(msgBox(kind, 5), 1);
    ASSERT_EQ(answerer.boxes.size(), 4u);
    EXPECT_EQ(answerer.boxes[0].title, "Warning");
    EXPECT_EQ(answerer.boxes[0].text, "A new virus has been detected.");
    EXPECT_EQ(answerer.boxes[1].title, "Information");
    EXPECT_EQ(answerer.boxes[1].text, "Infected by viruses.");
    EXPECT_EQ(answerer.boxes[2].title, "Error");
    EXPECT_EQ(answerer.boxes[2].text, "Failed to initialize the Self Scan.");
    EXPECT_EQ(answerer.boxes[3].title, "Error");
    EXPECT_EQ(answerer.boxes[3].text, "Unable to execute.");
}

TEST(Exports, MsgBoxOfAnUnknownKindShowsAnEmptyBoxAndAnswersOne) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    BoxAnswerer answerer;
    EXPECT_EQ(caller.Entry<MsgBoxFn>("Q9CfgUL_MsgBox")(7, 0), 1);
    ASSERT_EQ(answerer.boxes.size(), 1u);
    EXPECT_EQ(answerer.boxes[0].title, "");
    EXPECT_EQ(answerer.boxes[0].text, "");
}

TEST(Exports, WriteGeneralRuleFileReplacesTheUserRuleFile) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    auto* write = caller.Entry<int32_t(const void*, int32_t)>("WriteGeneralRuleFile");
    std::vector<unsigned char> records(2 * 52);
    for (std::size_t i = 0; i < records.size(); ++i) records[i] = static_cast<unsigned char>(i);
    EXPECT_EQ(write(records.data(), 2), 1);
    const std::string file = caller.install.Read("OBRuleU.dat");
    EXPECT_EQ(file, std::string(records.begin(), records.end()));
    EXPECT_EQ(write(nullptr, 0), 1);
    EXPECT_TRUE(caller.install.Exists("OBRuleU.dat"));
    EXPECT_EQ(caller.install.Read("OBRuleU.dat"), "");
}

TEST(Exports, PolicyDiffGivesTheSizeFirstAndCopiesOnlyAReportThatFits) {
    CallerInstallation caller;
    ASSERT_NE(caller.Load(), nullptr) << dlerror();
    auto* diff = caller.Entry<PolicyDiffFn>("Q9CfgUL_PolicyDiff");
    ASSERT_NE(diff, nullptr);
    EXPECT_EQ(diff(0, nullptr, nullptr, nullptr, nullptr), -1);

    uint32_t size = 0;
    EXPECT_EQ(diff(0, nullptr, nullptr, nullptr, &size), 0);
    ASSERT_GT(size, 1u);
    std::string small(size - 1, 'x');
    uint32_t smallSize = size - 1;
    diff(0, nullptr, nullptr, small.data(), &smallSize);
    EXPECT_EQ(smallSize, size);
    EXPECT_EQ(small, std::string(size - 1, 'x')) << "nothing is copied into a buffer too small";

    std::string report(size, 'x');
    EXPECT_EQ(diff(0, nullptr, nullptr, report.data(), &size), 0);
    EXPECT_EQ(report.back(), '\0');
    EXPECT_EQ(report.substr(0, report.size() - 1),
              "No policy file: nothing is merged.\n"
              "Exclusion zone: no zone library, the zone is left alone.\n"
              "Nothing would change.\n");
}
