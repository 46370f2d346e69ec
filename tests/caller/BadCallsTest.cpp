// Calls a careless or hostile caller could make at the exported functions:
// page ids far out of range, every flag bit, paths far longer than any limit
// or not UTF-8, null where a pointer may be null and where it may not. Each
// gets the documented result, nothing is shown where nothing may be, and
// nothing crashes.

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <climits>
#include <string>

#include "BoxAnswerer.h"
#include "CallerSessionTest.h"
#include "q9cfgul.h"

namespace bad_calls_test {
namespace {

using MsgBoxFn = int32_t(int32_t, uint32_t);
using RuleFileFn = int32_t(const void*, int32_t);
using PolicyDiffFn = int32_t(uint32_t, const char*, const char*, char*, uint32_t*);

class BadCallsTest : public CallerSessionTest {
protected:
    void SetUp() override { StartCaller({"Q9SSCtrl", "OrvDMZ"}); }

    static bool AnyWindowShown() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible()) return true;
        }
        return false;
    }

    // A silent call: no window, no box, and the result.
    int32_t Silent(uint32_t flags, const char* path1, const char* path2) {
        BoxAnswerer boxes;
        const int32_t result = doModal(0, flags | DMF_Silent, nullptr, path1, path2);
        EXPECT_TRUE(boxes.boxes.empty());
        EXPECT_FALSE(AnyWindowShown());
        return result;
    }
};

}  // namespace

TEST_F(BadCallsTest, PageIdsOutOfRangeAnswerMinusOneInEveryModeWithoutAWindow) {
    for (const int32_t page : {-1, 41, 1000, INT32_MIN, INT32_MAX}) {
        for (const uint32_t mode : {DMF_ModeDialog, DMF_ModeWizard, DMF_ModeSinglePage}) {
            int32_t pageInOut = page;
            BoxAnswerer boxes;
            EXPECT_EQ(doModal(0, mode, &pageInOut, nullptr, nullptr), -1) << page << " " << mode;
            EXPECT_EQ(pageInOut, page) << "the page is left as it was";
            EXPECT_TRUE(boxes.boxes.empty());
        }
    }
    EXPECT_FALSE(AnyWindowShown());
    EXPECT_EQ(caller->install.Read("Q9SSCtrl.journal"), "") << "refused before any gate";
}

TEST_F(BadCallsTest, EveryFlagBitSetIsAnUnknownModeAndAnswersMinusOneSilently) {
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, 0xFFFFFFFFu, nullptr, nullptr, nullptr), -1);
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_FALSE(AnyWindowShown());
}

TEST_F(BadCallsTest, EveryFlagBitButTheModeAppliesSilentlyAndAnswersOne) {
    EXPECT_EQ(Silent(0xFFFFFF00u, nullptr, nullptr), 1);
}

TEST_F(BadCallsTest, PathsFarLongerThanAnyLimitAreNoFilesToMergeAndAnswerOne) {
    const std::string longPath = caller->install.PathOf(std::string(5000, 'p'));
    EXPECT_EQ(Silent(0, nullptr, longPath.c_str()), 1);
    EXPECT_EQ(Silent(0, longPath.c_str(), longPath.c_str()), 1);
    EXPECT_FALSE(caller->install.Exists("OrvIni.dat"));
    const std::string withFolders = "/" + std::string(300, 'a') + "/" + std::string(300, 'b');
    EXPECT_EQ(Silent(0, withFolders.c_str(), withFolders.c_str()), 1);
}

TEST_F(BadCallsTest, PathsThatAreNotUtf8AreBytesLikeAnyOther) {
    const std::string policy = caller->install.PathOf("policy-\xff\xfe.dat");
    const std::string base = caller->install.PathOf("base-\xc3\x28.dat");
    caller->install.Write("policy-\xff\xfe.dat",
                          "Q9 Configuration Store 1\n[CES_Macro]\nCEK_MacroOptions=dword:00000005\n");
    EXPECT_EQ(Silent(0, base.c_str(), policy.c_str()), 1);
    EXPECT_NE(caller->install.Read("base-\xc3\x28.dat").find("CEK_MacroOptions=dword:00000005"),
              std::string::npos);
}

TEST_F(BadCallsTest, EmptyPathsAreNullPaths) {
    EXPECT_EQ(Silent(0, "", ""), 1);
    EXPECT_FALSE(caller->install.Exists("OrvIni.dat"));
}

TEST_F(BadCallsTest, MessageBoxesOfAnyKindAndValueShowOneBoxAndAnswerOne) {
    auto* msgBox = caller->Entry<MsgBoxFn>("Q9CfgUL_MsgBox");
    ASSERT_NE(msgBox, nullptr);
    for (const int32_t kind : {-1, 4, INT32_MIN, INT32_MAX}) {
        BoxAnswerer boxes;
        EXPECT_EQ(msgBox(kind, UINT32_MAX), 1) << kind;
        EXPECT_EQ(boxes.boxes.size(), 1u) << kind;
    }
}

TEST_F(BadCallsTest, ARuleFileCallWithoutRecordsOrWithANegativeCountWritesNothing) {
    auto* write = caller->Entry<RuleFileFn>("WriteGeneralRuleFile");
    ASSERT_NE(write, nullptr);
    EXPECT_EQ(write(nullptr, 3), 0);
    EXPECT_EQ(write(nullptr, -1), 0);
    const char record[52] = {};
    EXPECT_EQ(write(record, -5), 0);
    EXPECT_EQ(write(record, INT32_MIN), 0);
    EXPECT_EQ(write(nullptr, 0), 1) << "no records is an empty rule file";
}

TEST_F(BadCallsTest, TheDryRunTakesAnyPathsAndNeedsOnlyItsSize) {
    auto* diff = caller->Entry<PolicyDiffFn>("Q9CfgUL_PolicyDiff");
    ASSERT_NE(diff, nullptr);
    char buffer[8] = {};
    EXPECT_EQ(diff(0xFFFFFFFFu, nullptr, nullptr, buffer, nullptr), -1);
    const std::string longPath(5000, 'p');
    uint32_t size = 0;
    EXPECT_EQ(diff(0, longPath.c_str(), longPath.c_str(), nullptr, &size), 0);
    EXPECT_GT(size, 0u);
    size = 0;
    EXPECT_EQ(diff(0, "\xff\xfe", "\xc3\x28", nullptr, &size), 0);
    EXPECT_GT(size, 0u);
}

}  // namespace bad_calls_test
