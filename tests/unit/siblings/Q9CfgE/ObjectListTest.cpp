// Object lists and the removal of schedule entries.
#include <algorithm>
#include <cstring>
#include <vector>

#include "StoreTest.h"

namespace store_test {
namespace {

struct Target {
    uint8_t kind;
    std::string text;
    uint8_t flag = 1;
};

// One record as callers lay it out.
std::vector<unsigned char> RecordOf(const Target& target) {
    const size_t size = 4 + target.text.size() + 1;
    std::vector<unsigned char> record(size, 0);
    record[0] = static_cast<unsigned char>(size & 0xff);
    record[1] = static_cast<unsigned char>(size >> 8);
    record[2] = target.kind;
    record[3] = target.flag;
    std::copy(target.text.begin(), target.text.end(), record.begin() + 4);
    return record;
}

// The list buffer walked by its sizes; empty for null or a first size of 0.
std::vector<Target> Walk(const void* buffer) {
    std::vector<Target> targets;
    if (!buffer) return targets;
    const auto* at = static_cast<const unsigned char*>(buffer);
    while (const size_t size = static_cast<size_t>(at[0] | at[1] << 8)) {
        targets.push_back({at[2], reinterpret_cast<const char*>(at + 4), at[3]});
        EXPECT_EQ(size, 4 + targets.back().text.size() + 1);
        at += size;
    }
    return targets;
}

bool operator==(const Target& a, const Target& b) {
    return a.kind == b.kind && a.text == b.text && a.flag == b.flag;
}

void PrintTo(const Target& target, std::ostream* out) {
    *out << int(target.kind) << "," << int(target.flag) << "," << target.text;
}

class ObjectListTest : public StoreTest {
protected:
    static int32_t Put(uint32_t section, uint16_t index, const Target& target) {
        const std::vector<unsigned char> record = RecordOf(target);
        return Q9CfgE_SetObjectList(section, index, record.data());
    }
    static void Rewrite(uint32_t section, const std::vector<Target>& targets) {
        ASSERT_EQ(Q9CfgE_SetStrEx(section, Q9CFGE_KEY_OBJECT_LIST, nullptr), 1);
        for (size_t i = 0; i < targets.size(); ++i) {
            ASSERT_EQ(Put(section, static_cast<uint16_t>(i), targets[i]), 1);
        }
    }
};

TEST_F(ObjectListTest, SectionWithoutRecordsHasNoList) {
    EXPECT_EQ(Q9CfgE_GetObjectList(kExclude, 0), nullptr);
}

TEST_F(ObjectListTest, BufferLaysRecordsEndToEndAndEndsWithAZeroSize) {
    Put(kExclude, 0, {0, "/a"});
    Put(kExclude, 1, {2, "/bc", 1});
    const auto* buffer = static_cast<const unsigned char*>(Q9CfgE_GetObjectList(kExclude, 0));
    ASSERT_NE(buffer, nullptr);
    const unsigned char expected[] = {7, 0, 0, 1, '/', 'a', 0, 8, 0, 2, 1, '/', 'b', 'c', 0, 0, 0};
    EXPECT_EQ(std::memcmp(buffer, expected, sizeof expected), 0);
}

TEST_F(ObjectListTest, RecordAtAnIndexReplacesAppendsOrIsRefusedBeyondTheCount) {
    EXPECT_EQ(Put(kExclude, 1, {0, "/too-far"}), 0);
    EXPECT_EQ(Put(kExclude, 0, {0, "/a"}), 1);
    EXPECT_EQ(Put(kExclude, 1, {1, "/b"}), 1);
    EXPECT_EQ(Put(kExclude, 0, {3, "/c", 7}), 1);
    EXPECT_EQ(Put(kExclude, 3, {0, "/too-far"}), 0);
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kExclude, 0)),
              (std::vector<Target>{{3, "/c", 7}, {1, "/b"}}));
    EXPECT_NE(ReadFile(LiveFile()).find("record=3,7,\"/c\"\nrecord=1,1,\"/b\"\n"), std::string::npos);
}

TEST_F(ObjectListTest, SizeFieldIsAuthoritativeAndValidated) {
    const unsigned char tooShort[] = {4, 0, 0, 1};
    EXPECT_EQ(Q9CfgE_SetObjectList(kExclude, 0, tooShort), 0);
    const unsigned char noNul[] = {6, 0, 0, 1, 'a', 'b', 0};  // the NUL lies beyond the size
    EXPECT_EQ(Q9CfgE_SetObjectList(kExclude, 0, noNul), 0);
    EXPECT_EQ(Q9CfgE_SetObjectList(kExclude, 0, nullptr), 0);
    const unsigned char padded[] = {9, 0, 5, 1, 'a', 'b', 0, 'z', 'z'};
    EXPECT_EQ(Q9CfgE_SetObjectList(kExclude, 0, padded), 1);
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kExclude, 0)), (std::vector<Target>{{5, "ab"}}));
}

TEST_F(ObjectListTest, EmptyingAListAndWritingNoRecordLeavesAnEmptyList) {
    Rewrite(kExclude, {{0, "/a"}, {0, "/b"}});
    Q9CfgE_SetDWEx(kExclude, kExcludeEnable, 1);
    ASSERT_EQ(Q9CfgE_SetStrEx(kExclude, Q9CFGE_KEY_OBJECT_LIST, nullptr), 1);
    EXPECT_TRUE(Walk(Q9CfgE_GetObjectList(kExclude, 0)).empty());
    EXPECT_EQ(ReadFile(LiveFile()).find("record="), std::string::npos);
    // Only the list went; the section's keys stay.
    EXPECT_EQ(Q9CfgE_GetDWEx(kExclude, kExcludeEnable), 1u);
}

TEST_F(ObjectListTest, EmptyingAListInEditModeLeavesAnEmptyListAfterTheCommit) {
    Rewrite(kScreenSaver, {{0, "/a"}});
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    ASSERT_EQ(Q9CfgE_SetStrEx(kScreenSaver, Q9CFGE_KEY_OBJECT_LIST, nullptr), 1);
    EXPECT_TRUE(Walk(Q9CfgE_GetObjectList(kScreenSaver, 0)).empty());
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_TRUE(Walk(Q9CfgE_GetObjectList(kScreenSaver, 0)).empty());
}

TEST_F(ObjectListTest, RewritingGivesExactlyTheNewList) {
    Rewrite(kExclude, {{0, "/old1"}, {0, "/old2"}, {0, "/old3"}});
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    const std::vector<Target> fresh = {{1, "/new1"}, {0, "/new2"}};
    Rewrite(kExclude, fresh);
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kExclude, 0)), fresh);
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kExclude, 0)), fresh);
    // Outside edit mode as well.
    Rewrite(kExclude, {{2, "/third"}});
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kExclude, 0)), (std::vector<Target>{{2, "/third"}}));
}

TEST_F(ObjectListTest, ReturnedListStaysValidUntilThatListChanges) {
    Rewrite(kExclude, {{0, "/a"}});
    const void* list = Q9CfgE_GetObjectList(kExclude, 0);
    Rewrite(kScreenSaver, {{0, "/other"}});
    EXPECT_EQ(Walk(list), (std::vector<Target>{{0, "/a"}}));
    EXPECT_EQ(Q9CfgE_GetObjectList(kExclude, 0), list);
}

TEST_F(ObjectListTest, EmptyingAScheduleEntryRemovesTheWholeEntry) {
    Q9CfgE_SetDWEx(kSchedule3, kSchedOn, 1);
    Q9CfgE_SetStrEx(kSchedule3, kSchedCmdLine, "scan /all");
    Q9CfgE_SetStrEx(kSchedule3, kSchedCurDir, "/opt/q9/");
    Put(kSchedule3, 0, {0, "/home"});
    Q9CfgE_SetStrEx(kSchedule0, kSchedCurDir, "/keep/");

    ASSERT_EQ(Q9CfgE_SetStrEx(kSchedule3, Q9CFGE_KEY_OBJECT_LIST, nullptr), 1);
    const char* folder = Q9CfgE_GetStrEx(kSchedule3, kSchedCurDir);
    EXPECT_TRUE(folder == nullptr || *folder == '\0');
    EXPECT_EQ(Q9CfgE_GetStrEx(kSchedule3, kSchedCmdLine), nullptr);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSchedule3, kSchedOn), 0u);
    EXPECT_EQ(Q9CfgE_GetObjectList(kSchedule3, 0), nullptr);
    EXPECT_EQ(ReadFile(LiveFile()).find("0x10000003"), std::string::npos);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kSchedule0, kSchedCurDir), "/keep/");
}

TEST_F(ObjectListTest, RemovedScheduleEntryRebuiltInEditModeCommitsAsRebuilt) {
    Q9CfgE_SetStrEx(kSchedule3, kSchedCmdLine, "old");
    Q9CfgE_SetStrEx(kSchedule3, kSchedCurDir, "/old/");
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    Q9CfgE_SetStrEx(kSchedule3, Q9CFGE_KEY_OBJECT_LIST, nullptr);
    Q9CfgE_SetStrEx(kSchedule3, kSchedCurDir, "/new/");
    Put(kSchedule3, 0, {0, "/home"});
    Q9CfgE_UnlockEx();
    // Another writer touches the file meanwhile, so the changes are applied.
    WriteFile(LiveFile(), ReadFile(LiveFile()) + "[CES_General]\nCEK_GeneralOptions=dword:1\n");
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(Q9CfgE_GetStrEx(kSchedule3, kSchedCmdLine), nullptr);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kSchedule3, kSchedCurDir), "/new/");
    EXPECT_EQ(Walk(Q9CfgE_GetObjectList(kSchedule3, 0)), (std::vector<Target>{{0, "/home"}}));
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
}

TEST_F(ObjectListTest, ScheduleTemplateKeepsItsKeysWhenItsListIsEmptied) {
    Q9CfgE_SetDWEx(Q9CFGE_SCHEDULE_DEFAULT, kScanOptions, 5);
    Put(Q9CFGE_SCHEDULE_DEFAULT, 0, {0, "/"});
    ASSERT_EQ(Q9CfgE_SetStrEx(Q9CFGE_SCHEDULE_DEFAULT, Q9CFGE_KEY_OBJECT_LIST, nullptr), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(Q9CFGE_SCHEDULE_DEFAULT, kScanOptions), 5u);
    EXPECT_EQ(Q9CfgE_GetObjectList(Q9CFGE_SCHEDULE_DEFAULT, 0), nullptr);
}

}  // namespace
}  // namespace store_test
