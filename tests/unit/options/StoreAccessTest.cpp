#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "OptionStoreTest.h"
#include "StoreCallLog.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class StoreAccessTest : public OptionStoreTest {};

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes.push_back(static_cast<char>(value));
    return bytes;
}

}  // namespace

TEST(WordBitsTest, ReplaceBitsTakesOnlyTheMaskFromTheSource) {
    EXPECT_EQ(ReplaceBits(0xF0F0F0F0u, 0x0F0F0F0Fu, 0x000000FFu), 0xF0F0F00Fu);
    EXPECT_EQ(ReplaceBits(0x12345678u, 0xFFFFFFFFu, 0), 0x12345678u);
}

TEST(WordBitsTest, SetBitsSetsOrClearsTheWholeMask) {
    EXPECT_EQ(SetBits(0x1u, 0x10101u, true), 0x10101u);
    EXPECT_EQ(SetBits(0x10111u, 0x10101u, false), 0x10u);
}

TEST(StoreTextTest, NullAndEmptyBothGiveEmptyText) {
    EXPECT_EQ(StoreText(nullptr), "");
    EXPECT_EQ(StoreText(""), "");
    EXPECT_EQ(StoreText("exe/dll"), "exe/dll");
}

TEST_F(StoreAccessTest, TextIsCopiedFromTheStore) {
    Q9CfgE_SetStrEx(CES_SystemScan, CEK_ScanExtensions, "exe/dll");
    const std::string text = ReadStoreText(CES_SystemScan, CEK_ScanExtensions);
    Q9CfgE_SetStrEx(CES_SystemScan, CEK_ScanExtensions, "doc");
    EXPECT_EQ(text, "exe/dll");
    EXPECT_EQ(ReadStoreText(CES_SystemScan, CEK_ScanExtensions), "doc");
}

TEST_F(StoreAccessTest, AbsentTextReadsEmpty) {
    EXPECT_EQ(ReadStoreText(CES_SystemScan, CEK_ScanExtensions), "");
    EXPECT_EQ(ReadDefaultText(CES_SystemScan, CEK_ScanExtensions), "");
}

TEST_F(StoreAccessTest, DefaultTextComesFromTheFactoryDefaults) {
    WriteDefaults("[CES_SystemScan]\nCEK_ScanExtensions=\"com/exe\"\n");
    Q9CfgE_SetStrEx(CES_SystemScan, CEK_ScanExtensions, "doc");
    EXPECT_EQ(ReadDefaultText(CES_SystemScan, CEK_ScanExtensions), "com/exe");
    EXPECT_EQ(ReadStoreText(CES_SystemScan, CEK_ScanExtensions), "doc");
}

TEST_F(StoreAccessTest, WorkingFolderOfANeverWrittenScheduleEntryReadsEmpty) {
    EXPECT_EQ(ReadStoreText(ScheduleSection(0), CEK_SchedCurDir), "");
    EXPECT_EQ(ReadStoreText(ScheduleSection(7), CEK_SchedCurDir), "");
}

TEST_F(StoreAccessTest, WorkingFolderOfARemovedScheduleEntryReadsEmpty) {
    Q9CfgE_SetStrEx(ScheduleSection(2), CEK_SchedCurDir, "/opt/q9/");
    ASSERT_EQ(ReadStoreText(ScheduleSection(2), CEK_SchedCurDir), "/opt/q9/");
    Q9CfgE_SetStrEx(ScheduleSection(2), kObjectListKey, nullptr);
    EXPECT_EQ(ReadStoreText(ScheduleSection(2), CEK_SchedCurDir), "");
}

TEST_F(StoreAccessTest, TakeStoredBitsReplacesOnlyTheMaskFromTheStoredWord) {
    Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanOptions, 0x10001u);
    EXPECT_EQ(TakeStoredBits(CES_SystemScan, CEK_ScanOptions, 0x10000u, 0x100u), 0x10100u);
    Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanOptions, 0x1u);
    EXPECT_EQ(TakeStoredBits(CES_SystemScan, CEK_ScanOptions, 0x10000u, 0x10100u), 0x100u);
}

TEST_F(StoreAccessTest, EncipheredTextOfLengthZeroIsEmptyWithoutASecondCall) {
    const StoreCallLog log;
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), "");
    EXPECT_THAT(log.Calls(), ElementsAre("GetEncStrEx(3,9,null)"));
}

TEST_F(StoreAccessTest, EncipheredTextIsReadInTwoCalls) {
    Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, "Pa55word");
    const StoreCallLog log;
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), "Pa55word");
    EXPECT_THAT(log.Calls(), ElementsAre("GetEncStrEx(3,9,null)", "GetEncStrEx(3,9,buffer)"));
}

TEST(ObjectRecordTest, RecordIsSizeKindConstantAndText) {
    EXPECT_EQ(PackObjectRecord(2, "ab"), Bytes({7, 0, 2, 1, 'a', 'b', 0}));
    EXPECT_EQ(PackObjectRecord(0, ""), Bytes({5, 0, 0, 1, 0}));
}

TEST(ObjectRecordTest, SizeIsLittleEndian) {
    const std::string record = PackObjectRecord(1, std::string(300, 'x'));
    ASSERT_EQ(record.size(), 305u);
    EXPECT_EQ(static_cast<unsigned char>(record[0]), 0x31);
    EXPECT_EQ(static_cast<unsigned char>(record[1]), 0x01);
}

TEST(ObjectRecordTest, TextEndsAtItsFirstNul) {
    EXPECT_EQ(PackObjectRecord(1, std::string("ab\0cd", 5)), Bytes({7, 0, 1, 1, 'a', 'b', 0}));
}

TEST(ObjectRecordTest, TextIsCutToWhatTheSizeFieldCanCount) {
    const std::string record = PackObjectRecord(1, std::string(70000, 'x'));
    ASSERT_EQ(record.size(), 0xFFFFu);
    EXPECT_EQ(static_cast<unsigned char>(record[0]), 0xFF);
    EXPECT_EQ(static_cast<unsigned char>(record[1]), 0xFF);
    EXPECT_EQ(record.back(), '\0');
    EXPECT_EQ(ParseObjectList((record + Bytes({0, 0})).data())[0].text.size(), kMaxRecordText);
}

TEST(ObjectListTest, NullBufferHasNoRecords) { EXPECT_THAT(ParseObjectList(nullptr), IsEmpty()); }

TEST(ObjectListTest, RecordsAreWalkedBySizeUpToASizeOfZero) {
    const std::string buffer = PackObjectRecord(2, "/home") + PackObjectRecord(5, "") +
                               PackObjectRecord(9, "/srv") + Bytes({0, 0}) +
                               PackObjectRecord(1, "after the end");
    EXPECT_THAT(
        ParseObjectList(buffer.data()),
        ElementsAre(ObjectRecord{2, "/home"}, ObjectRecord{5, ""}, ObjectRecord{9, "/srv"}));
}

TEST(ObjectListTest, TextStopsAtItsNulEvenWhenTheRecordIsLonger) {
    // A record of 10 bytes whose text is 2 characters followed by padding.
    const std::string buffer = Bytes({10, 0, 3, 1, 'a', 'b', 0, 'z', 'z', 'z', 0, 0});
    EXPECT_THAT(ParseObjectList(buffer.data()), ElementsAre(ObjectRecord{3, "ab"}));
}

TEST(ObjectListTest, SizeTooSmallForTheHeaderEndsTheWalk) {
    const std::string buffer = PackObjectRecord(2, "/home") + Bytes({3, 0, 7, 1, 0, 0});
    EXPECT_THAT(ParseObjectList(buffer.data()), ElementsAre(ObjectRecord{2, "/home"}));
}

TEST_F(StoreAccessTest, SectionWithoutAListHasNoRecords) {
    EXPECT_THAT(ReadObjectList(CES_ScreenSaver), IsEmpty());
}

TEST_F(StoreAccessTest, WrittenListReadsBack) {
    const std::vector<ObjectRecord> records = {{2, "/home/user"}, {3, "/mnt/share"}};
    WriteObjectList(CES_ScreenSaver, records);
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver), records);
    // Kind, then the constant 1.
    EXPECT_NE(LiveFile().find("record=2,1,\"/home/user\"\nrecord=3,1,\"/mnt/share\""),
              std::string::npos);
}

TEST_F(StoreAccessTest, RewriteIsOneClearThenOneCallPerRecordFromIndexZero) {
    const StoreCallLog log;
    WriteObjectList(CES_Exclude, {{2, "/a"}, {4, "/b"}});
    EXPECT_THAT(log.Calls(), ElementsAre("SetStrEx(1,-1,null)", "SetObjectList(1,0,kind 2,\"/a\")",
                                         "SetObjectList(1,1,kind 4,\"/b\")"));
}

TEST_F(StoreAccessTest, RewriteLeavesExactlyTheNewList) {
    WriteObjectList(CES_Exclude, {{1, "/one"}, {1, "/two"}, {1, "/three"}});
    WriteObjectList(CES_Exclude, {{2, "/four"}, {3, "/five"}});
    EXPECT_THAT(ReadObjectList(CES_Exclude),
                ElementsAre(ObjectRecord{2, "/four"}, ObjectRecord{3, "/five"}));
}

TEST_F(StoreAccessTest, RewriteWithNoRecordLeavesAnEmptyListNotTheOldOne) {
    WriteObjectList(CES_Exclude, {{1, "/one"}, {1, "/two"}});
    const StoreCallLog log;
    WriteObjectList(CES_Exclude, {});
    EXPECT_THAT(log.Calls(), ElementsAre("SetStrEx(1,-1,null)"));
    EXPECT_THAT(ReadObjectList(CES_Exclude), IsEmpty());
    EXPECT_EQ(LiveFile().find("record="), std::string::npos);
}

TEST_F(StoreAccessTest, RewriteInAnEditSessionCommitsExactlyTheNewList) {
    WriteObjectList(ScheduleSection(1), {{1, "/old-a"}, {1, "/old-b"}});
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    WriteObjectList(ScheduleSection(1), {{5, "/new"}});
    Q9CfgE_UnlockEx();
    Q9CfgE_FlushEx(kAllSections, 1);
    EXPECT_THAT(ReadObjectList(ScheduleSection(1)), ElementsAre(ObjectRecord{5, "/new"}));
    EXPECT_EQ(LiveFile().find("/old-"), std::string::npos);
}
