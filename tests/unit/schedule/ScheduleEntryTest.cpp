// A schedule entry in its store home: the section's keys, the round trip of
// every interval style, the tick that is saved instead of the field, the
// network account kept enciphered and the run-as account not kept at all,
// the wipe and the listing that stop at the first empty section, and the
// numbering by row after a deletion.

#include "schedule/ScheduleEntry.h"

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "support/SiblingTest.h"

namespace {

class ScheduleEntryTest : public SiblingTest {
protected:
    static std::unique_ptr<ScheduleEntry> MakeEntry(int32_t style, uint16_t hour) {
        auto entry = std::make_unique<ScheduleEntry>();
        entry->m_nStyle = style;
        entry->m_time = {2026, 11, 1, 23, hour, 45, 0, 0};
        entry->m_targets = {{kTargetFolder, "/srv/data"}, {kTargetFile, "/srv/a.bin"}};
        entry->m_dwScanOptions = 0x1680;
        entry->m_dwArchive = 3;
        entry->m_dwArchiveKinds = 0x5;
        entry->m_strExtensions = "exe/doc";
        entry->m_dwScanPolicy = 0x10103;
        entry->m_strUser = "runner";
        entry->m_strPassword = "run-secret";
        entry->m_strNetUser = "share";
        entry->m_strNetPassword = "net-secret";
        return entry;
    }
    static std::string Directory(uint32_t index) {
        return ReadStoreText(ScheduleSection(index), CEK_SchedCurDir);
    }
};

TEST_F(ScheduleEntryTest, ANewEntryTakesTheTemplateSection) {
    Q9CfgE_SetDWEx(CES_ScheduleDefault, CEK_ScanOptions, 0x680);
    Q9CfgE_SetDWEx(CES_ScheduleDefault, CEK_ScanPolicy, 0x2);
    Q9CfgE_SetStrEx(CES_ScheduleDefault, CEK_ScanExtensions, "vbs");
    WriteObjectList(CES_ScheduleDefault, {{kTargetAllLocalDrives, kAllLocalDrivesText}});
    const ScheduleEntry entry;
    EXPECT_EQ(entry.m_bOn, 1);
    EXPECT_EQ(entry.m_nStyle, kScheduleEveryWeek);
    EXPECT_EQ(entry.m_dwScanOptions, 0x680U);
    EXPECT_EQ(entry.m_dwScanPolicy, 0x2U);
    EXPECT_EQ(entry.m_strExtensions, "vbs");
    ASSERT_EQ(entry.m_targets.size(), 1U);
    EXPECT_EQ(entry.m_targets[0].kind, kTargetAllLocalDrives);
    EXPECT_TRUE(entry.m_strUser.empty() && entry.m_strNetPassword.empty());
    EXPECT_GE(entry.m_time.wYear, 2024);
}

TEST_F(ScheduleEntryTest, SaveWritesTheSectionsKeysAndTheCommandLineNamesTheSection) {
    MakeEntry(kScheduleEveryDay, 7)->SaveToStore(2, 1, 0);
    const uint32_t section = ScheduleSection(2);
    EXPECT_EQ(Q9CfgE_GetDWEx(section, CEK_SchedStyle), 1U);
    EXPECT_EQ(Q9CfgE_GetDWEx(section, CEK_SchedHour), 7U);
    EXPECT_EQ(Q9CfgE_GetDWEx(section, CEK_SchedMinute), 45U);
    EXPECT_EQ(ReadStoreText(section, CEK_SchedCmdLine), "\"%Q9%/q9medic\" /o:10000002");
    EXPECT_EQ(Directory(2), "%Q9%");
    EXPECT_EQ(ReadObjectList(section).size(), 2U);
}

TEST_F(ScheduleEntryTest, EveryStyleComesBackFromTheStoreWithoutTheRunAsAccount) {
    for (int32_t style = kScheduleEveryDay; style <= kScheduleAtStartup; ++style) {
        const auto saved = MakeEntry(style, static_cast<uint16_t>(style));
        saved->SaveToStore(0, 1, 0);
        ScheduleEntry loaded;
        loaded.Load(nullptr, 0);
        EXPECT_EQ(loaded.m_nStyle, style);
        EXPECT_EQ(loaded.m_time.wHour, style);
        EXPECT_EQ(loaded.m_time.wDayOfWeek, 1);
        EXPECT_EQ(loaded.m_time.wDay, 23);
        EXPECT_EQ(loaded.m_time.wMonth, 11);
        EXPECT_EQ(loaded.m_time.wYear, 2026);
        EXPECT_EQ(loaded.m_targets, saved->m_targets);
        EXPECT_EQ(loaded.m_dwScanOptions, saved->m_dwScanOptions);
        EXPECT_EQ(loaded.m_dwArchive, 3U);
        EXPECT_EQ(loaded.m_dwArchiveKinds, 0x5U);
        EXPECT_EQ(loaded.m_strExtensions, "exe/doc");
        EXPECT_EQ(loaded.m_dwScanPolicy, 0x10103U);
        EXPECT_EQ(loaded.m_strNetUser, "share");
        EXPECT_EQ(loaded.m_strNetPassword, "net-secret");
        EXPECT_TRUE(loaded.m_strUser.empty()) << style;
        EXPECT_TRUE(loaded.m_strPassword.empty()) << style;
    }
}

TEST_F(ScheduleEntryTest, TheTickIsSavedNotTheField) {
    auto entry = MakeEntry(kScheduleEveryWeek, 1);
    entry->m_bOn = 1;
    entry->SaveToStore(0, 0, 0);
    entry->m_bOn = 0;
    entry->SaveToStore(1, 1, 0);
    EXPECT_EQ(Q9CfgE_GetDWEx(ScheduleSection(0), CEK_SchedOn), 0U);
    EXPECT_EQ(Q9CfgE_GetDWEx(ScheduleSection(1), CEK_SchedOn), 1U);
}

TEST_F(ScheduleEntryTest, TheNetworkPasswordIsEncipheredInTheStoreFile) {
    MakeEntry(kScheduleOnce, 1)->SaveToStore(0, 1, 0);
    Q9CfgE_FlushEx(0xFFFFFFFF, 1);
    const std::string file = Install().Read("Q9Cfg.dat");
    EXPECT_EQ(file.find("net-secret"), std::string::npos);
    EXPECT_EQ(file.find("run-secret"), std::string::npos);
    EXPECT_NE(file.find("CEK_SchedulePassword=enc:"), std::string::npos);
}

TEST_F(ScheduleEntryTest, AnEmptySectionEndsTheWipeAndTheListing) {
    for (int32_t number : {0, 1, 3}) MakeEntry(kScheduleEveryDay, 2)->SaveToStore(number, 1, 0);
    EXPECT_EQ(LoadStoreEntries().size(), 2U);
    WipeStoreEntries();
    EXPECT_TRUE(Directory(0).empty());
    EXPECT_TRUE(Directory(1).empty());
    EXPECT_EQ(Directory(3), "%Q9%");  // beyond the gap: left alone
    EXPECT_TRUE(LoadStoreEntries().empty());
}

TEST_F(ScheduleEntryTest, DeletingTheMiddleOfThreeGivesTheThirdNumberOne) {
    std::vector<std::unique_ptr<ScheduleEntry>> rows;
    for (const uint16_t hour : {uint16_t{1}, uint16_t{2}, uint16_t{3}})
        rows.push_back(MakeEntry(kScheduleEveryDay, hour));
    for (size_t i = 0; i < rows.size(); ++i) rows[i]->SaveToStore(static_cast<int32_t>(i), 1, 0);
    rows.erase(rows.begin() + 1);
    WipeStoreEntries();
    for (size_t i = 0; i < rows.size(); ++i) rows[i]->SaveToStore(static_cast<int32_t>(i), 1, 0);
    const auto listed = LoadStoreEntries();
    ASSERT_EQ(listed.size(), 2U);
    EXPECT_EQ(listed[1]->m_time.wHour, 3);
    EXPECT_EQ(ReadStoreText(ScheduleSection(1), CEK_SchedCmdLine), "\"%Q9%/q9medic\" /o:10000001");
}

TEST_F(ScheduleEntryTest, AHundredEntriesSaveAndLoad) {
    for (int32_t number = 0; number < 100; ++number)
        MakeEntry(kScheduleEveryMonth, static_cast<uint16_t>(number % 24))
            ->SaveToStore(number, number % 2, 0);
    const auto listed = LoadStoreEntries();
    ASSERT_EQ(listed.size(), 100U);
    EXPECT_EQ(listed[99]->m_time.wHour, 99 % 24);
    EXPECT_EQ(listed[99]->m_bOn, 1);
    EXPECT_EQ(listed[98]->m_bOn, 0);
}

TEST_F(ScheduleEntryTest, CopyFromCopiesEveryFieldAndNullDoesNothing) {
    const auto source = MakeEntry(kScheduleOnce, 9);
    ScheduleEntry copy;
    copy.CopyFrom(source.get());
    EXPECT_EQ(copy.m_nStyle, kScheduleOnce);
    EXPECT_EQ(copy.m_time, source->m_time);
    EXPECT_EQ(copy.m_targets, source->m_targets);
    EXPECT_EQ(copy.m_strUser, "runner");
    EXPECT_EQ(copy.m_strPassword, "run-secret");
    EXPECT_EQ(copy.m_strNetUser, "share");
    EXPECT_EQ(copy.m_dwScanPolicy, 0x10103U);
    copy.CopyFrom(nullptr);
    EXPECT_EQ(copy.m_strUser, "runner");
}

}  // namespace
