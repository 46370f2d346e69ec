#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "q9cfgul.h"
#include "session/ShellTrees.h"

namespace {

// The rows of a tree, written as page ids: a group's page is followed by its
// children in brackets, e.g. "0[1 4]".
std::string Outline(uint32_t flags) {
    std::string text;
    for (const TreeRow* row = TreeForFlags(flags); row->kind != TreeRowKind::kEnd; ++row) {
        if (row->kind == TreeRowKind::kClose) {
            text += "]";
            continue;
        }
        if (!text.empty() && text.back() != '[') text += ' ';
        text += std::to_string(ToInt(row->page)) + ":" + std::to_string(row->image);
        if (row->kind == TreeRowKind::kGroup) text += "[";
    }
    return text;
}

TEST(ShellTreesTest, NormalTreeHasItsRowsAndPictures) {
    EXPECT_EQ(Outline(0),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 24:0 25:0 16:0] 8:5[13:0 12:0 11:0 9:0 26:0] 18:6 "
              "17:3 15:7");
}

TEST(ShellTreesTest, MasterTreeHasItsRowsAndPictures) {
    EXPECT_EQ(Outline(DMF_Master),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 25:0 16:0] 18:6 34:9[35:0] 32:8 17:3 15:7");
}

TEST(ShellTreesTest, LightTreeHasPicturesOfItsOwn) {
    EXPECT_EQ(Outline(DMF_IsLight), "23:3 0:6[1:1 5:1] 15:3 18:11");
}

TEST(ShellTreesTest, MasterWinsOverLight) {
    EXPECT_EQ(TreeForFlags(DMF_Master | DMF_IsLight), TreeForFlags(DMF_Master));
}

TEST(ShellTreesTest, EachFlagLeavesOutItsRows) {
    struct Case {
        uint32_t flags;
        std::vector<int> leftOut;
    };
    const Case cases[] = {
        {DMF_RemoveInternetMon, {6, 7}},
        {DMF_RemoveNonScanSector, {16}},
        {DMF_RemoveSecurity, {17}},
        {DMF_RemovePopMon, {10, 11}},
        {DMF_RemoveOutlookMon, {12, 13}},
        {DMF_RemovePopMon | DMF_RemoveOutlookMon, {8, 9, 10, 11, 12, 13, 26}},
        {0, {}},
    };
    for (const Case& c : cases) {
        for (int page = 0; page <= 40; ++page) {
            const bool expected =
                std::find(c.leftOut.begin(), c.leftOut.end(), page) != c.leftOut.end();
            EXPECT_EQ(IsPageLeftOut(static_cast<PageId>(page), c.flags), expected)
                << "flags " << c.flags << " page " << page;
        }
    }
}

TEST(ShellTreesTest, OneRemovalFlagAloneKeepsTheMailGroup) {
    EXPECT_FALSE(IsPageLeftOut(PageId::kMailSwitch, DMF_RemovePopMon));
    EXPECT_FALSE(IsPageLeftOut(PageId::kWarnMail, DMF_RemoveOutlookMon));
    EXPECT_FALSE(IsPageLeftOut(PageId::kSpam, DMF_RemovePopMon));
}

}  // namespace
