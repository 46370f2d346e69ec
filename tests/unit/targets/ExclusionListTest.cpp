// The exclusion list's rows: adding paths and extensions with their
// messages, deleting what is the user's, and the records and extension text
// the store and the zone receive.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "targets/ExclusionList.h"

namespace {

constexpr uint32_t kNothingSelectedMessage = 1003;
constexpr uint32_t kAlreadyExistsMessage = 1005;
constexpr uint32_t kOtherProductFolder = kZoneFolder | kZoneForeign;

std::vector<std::string> TextsOf(const ExclusionList& list) {
    std::vector<std::string> texts;
    for (const ExclusionRow& row : list.Rows()) texts.push_back(row.text);
    return texts;
}

}  // namespace

TEST(ExclusionList, AnEmptyTextSaysNothingIsSelected) {
    ExclusionList list;
    const ExclusionAddition addition = list.Add("", ExclusionList::kUserFolder, true);
    EXPECT_FALSE(addition.added);
    EXPECT_EQ(addition.messageId, kNothingSelectedMessage);
    EXPECT_EQ(list.Add("", ExclusionList::kUserExtensions, true).messageId,
              kNothingSelectedMessage);
}

TEST(ExclusionList, AFolderListedTwiceIsRefused) {
    ExclusionList list;
    EXPECT_TRUE(list.Add("/srv/cache", ExclusionList::kUserFolder, true).added);
    const ExclusionAddition again = list.Add("/SRV/Cache", ExclusionList::kUserFolder, true);
    EXPECT_FALSE(again.added);
    EXPECT_EQ(again.messageId, kAlreadyExistsMessage);
    EXPECT_EQ(list.Rows().size(), 1u);
}

TEST(ExclusionList, TheSamePathAsAFileAndAsAFolderAreTwoRows) {
    ExclusionList list;
    EXPECT_TRUE(list.Add("/srv/x", ExclusionList::kUserFolder, true).added);
    EXPECT_TRUE(list.Add("/srv/x", ExclusionList::kUserFile, true).added);
    EXPECT_EQ(list.Rows().size(), 2u);
}

TEST(ExclusionList, ContainsComparesTextIgnoringCaseAndFlagsExactly) {
    ExclusionList list;
    list.Add("/Data/Keep", ExclusionList::kUserFolder, true);
    EXPECT_TRUE(list.Contains("/data/keep", ExclusionList::kUserFolder));
    EXPECT_FALSE(list.Contains("/data/keep", ExclusionList::kUserFile));
    EXPECT_FALSE(list.Contains("/data/keep", kZoneFolder));
}

TEST(ExclusionList, AddingDmpAndTmpWhenTmpExistsAddsOneRowAndSaysSoOnce) {
    ExclusionList list;
    list.Add("tmp", ExclusionList::kUserExtensions, true);
    const ExclusionAddition addition = list.Add("dmp/tmp", ExclusionList::kUserExtensions, true);
    EXPECT_TRUE(addition.added);
    EXPECT_EQ(addition.messageId, kAlreadyExistsMessage);
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"*.dmp", "*.tmp"}));
}

TEST(ExclusionList, ExtensionsAlreadyAllListedAddNothing) {
    ExclusionList list;
    list.Add("dmp/tmp", ExclusionList::kUserExtensions, true);
    const ExclusionAddition addition = list.Add("TMP/dmp", ExclusionList::kUserExtensions, true);
    EXPECT_FALSE(addition.added);
    EXPECT_EQ(addition.messageId, kAlreadyExistsMessage);
}

TEST(ExclusionList, RowsAreSortedByTextIgnoringCase) {
    ExclusionList list;
    list.Add("/b", ExclusionList::kUserFolder, true);
    list.Add("/C", ExclusionList::kUserFolder, true);
    list.Add("/a", ExclusionList::kUserFile, true);
    list.Add("zip", ExclusionList::kUserExtensions, true);
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"*.zip", "/a", "/b", "/C"}));
}

TEST(ExclusionList, AnotherProductsRowCannotBeDeleted) {
    ExclusionList list;
    list.Fill({{1, kOtherProductFolder, "Other", "/opt/other"}}, "", true);
    EXPECT_EQ(list.DeleteAt(0), ExclusionDeletion::kNotTheUsers);
    EXPECT_EQ(list.Rows().size(), 1u);
    EXPECT_EQ(list.DeleteAt(5), ExclusionDeletion::kNone);
}

TEST(ExclusionList, AnotherProductsRowStaysThroughDeleteAll) {
    ExclusionList list;
    list.Fill({{1, kOtherProductFolder, "Other", "/opt/other"},
               {1, ExclusionList::kUserFolder, "", "/srv/mine"}},
              "dmp", true);
    EXPECT_TRUE(list.DeleteAllOwn());
    EXPECT_EQ(TextsOf(list), (std::vector<std::string>{"/opt/other"}));
    EXPECT_FALSE(list.DeleteAllOwn());
}

TEST(ExclusionList, DeleteAllLeavesTheProductsFixedRows) {
    ExclusionList list;
    list.Fill({{1, ExclusionList::kUserFolder | kZoneFixed, "", "/fixed"}}, "", true);
    EXPECT_FALSE(list.DeleteAllOwn());
    EXPECT_EQ(list.Rows().size(), 1u);
}

TEST(ExclusionList, TheUsersRowIsDeleted) {
    ExclusionList list;
    list.Add("/srv/mine", ExclusionList::kUserFolder, true);
    EXPECT_EQ(list.DeleteAt(0), ExclusionDeletion::kDeleted);
    EXPECT_TRUE(list.Empty());
}

TEST(ExclusionList, RecordsAreTheUsersFoldersAndFilesInUseAsShown) {
    ExclusionList list;
    list.Fill({{1, kOtherProductFolder, "Other", "/opt/other"}}, "dmp", false);
    list.Add("/srv/a", ExclusionList::kUserFolder, false);
    list.Add("/srv/b.bin", ExclusionList::kUserFile, false);
    EXPECT_EQ(list.Records(),
              (std::vector<ZoneRecord>{{0, ExclusionList::kUserFolder, "", "/srv/a"},
                                       {0, ExclusionList::kUserFile, "", "/srv/b.bin"}}));
    list.SetUse(true);
    EXPECT_EQ(list.Records()[0].inUse, 1u);
}

TEST(ExclusionList, SetUseLeavesOtherProductsRowsAsTheyAre) {
    ExclusionList list;
    list.Fill({{0, kOtherProductFolder, "Other", "/opt/other"}}, "dmp", false);
    list.SetUse(true);
    EXPECT_FALSE(list.Rows()[1].use);
    EXPECT_TRUE(list.Rows()[0].use);
}

TEST(ExclusionList, TheExtensionTextJoinsTheExtensionsWithoutTheirPrefix) {
    ExclusionList list;
    list.Fill({}, "tmp/dmp/dbx", true);
    EXPECT_EQ(list.ExtensionText(), "dbx/dmp/tmp");
    EXPECT_EQ(ExclusionList().ExtensionText(), "");
}

TEST(ExclusionList, FillReplacesTheRowsAndKeepsOwners) {
    ExclusionList list;
    list.Add("/old", ExclusionList::kUserFolder, true);
    list.Fill({{1, kOtherProductFolder, "Other", "/opt/other"}}, "", true);
    ASSERT_EQ(list.Rows().size(), 1u);
    EXPECT_EQ(list.Rows()[0].owner, "Other");
}
