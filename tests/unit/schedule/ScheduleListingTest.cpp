// Which home the schedule list reads (the store while it is ahead of the
// registry, else the job keys), the day of the week of a date, and the
// entry's scan words as the values that the scan controls show and change.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "options/StoreKeys.h"
#include "schedule/EntryScanValues.h"
#include "schedule/ScheduleEntry.h"
#include "session/ProcessState.h"
#include "support/SiblingTest.h"
#include "support/TemporaryRegistry.h"

namespace {

class ScheduleListingTest : public SiblingTest {
protected:
    // One entry in each home: hour 7 in the store, hour 9 in the registry.
    static void SaveOneInEachHome() {
        ScheduleEntry stored;
        stored.m_nStyle = kScheduleEveryDay;
        stored.m_time.wHour = 7;
        stored.SaveToStore(0, 1, 0);
        ScheduleEntry registered;
        registered.m_nStyle = kScheduleEveryDay;
        registered.m_time.wHour = 9;
        registered.SaveToRegistry(0, 1, 0);
    }
    static uint16_t OnlyHour() {
        const std::vector<std::unique_ptr<ScheduleEntry>> entries = ListScheduleEntries();
        EXPECT_EQ(entries.size(), 1U);
        return entries.empty() ? 0 : entries[0]->m_time.wHour;
    }

    TemporaryRegistry m_registry;
};

TEST_F(ScheduleListingTest, WithBothFlagsClearTheJobKeysAreTheTruth) {
    SaveOneInEachHome();
    EXPECT_EQ(OnlyHour(), 9);
}

TEST_F(ScheduleListingTest, AfterTheListWasSavedTheStoreIsTheTruth) {
    SaveOneInEachHome();
    g_bScheduleDirty = 1;
    EXPECT_EQ(OnlyHour(), 7);
}

TEST_F(ScheduleListingTest, AfterAProtectionLevelWasLoadedTheStoreIsTheTruth) {
    SaveOneInEachHome();
    g_bLevelPending = 1;
    EXPECT_EQ(OnlyHour(), 7);
}

TEST(DayOfWeekTest, KnownDatesFallOnTheirWeekdays) {
    EXPECT_EQ(DayOfWeekOf(1999, 8, 1), 0);   // a Sunday
    EXPECT_EQ(DayOfWeekOf(1999, 8, 7), 6);   // a Saturday
    EXPECT_EQ(DayOfWeekOf(2000, 2, 29), 2);  // a Tuesday, in a leap year
    EXPECT_EQ(DayOfWeekOf(2026, 11, 23), 1);
    EXPECT_EQ(DayOfWeekOf(2026, 1, 1), 4);
    EXPECT_EQ(DayOfWeekOf(1601, 1, 1), 1);
}

TEST(DayOfWeekTest, AnyNumbersGiveADayFromSundayToSaturday) {
    for (int year : {0, 1, 99, 1601, 2999, 65535}) {
        for (int month = 0; month <= 13; ++month) {
            for (int day : {0, 1, 31, 65535}) {
                const int weekday = DayOfWeekOf(year, month, day);
                EXPECT_GE(weekday, 0);
                EXPECT_LE(weekday, 6);
            }
        }
    }
}

TEST(EntryScanValuesTest, TheScanKeysOfAnySectionAreTheEntrysWords) {
    ScheduleEntry entry;
    EntryScanValues values;
    values.SetEntry(&entry);
    values.Write({CES_ScheduleDefault, CEK_ScanOptions}, 0x1680);
    values.Write({CES_SystemScan, CEK_ScanArchive}, 4);
    values.Write({CES_SystemScan, CEK_ScanArchiveKinds}, 0x30);
    values.Write({CES_SystemScan, CEK_ScanPolicy}, 0x10101);
    values.WriteText({CES_SystemScan, CEK_ScanExtensions}, "exe/vbs");
    EXPECT_EQ(entry.m_dwScanOptions, 0x1680U);
    EXPECT_EQ(entry.m_dwArchive, 4U);
    EXPECT_EQ(entry.m_dwArchiveKinds, 0x30U);
    EXPECT_EQ(entry.m_dwScanPolicy, 0x10101U);
    EXPECT_EQ(entry.m_strExtensions, "exe/vbs");
    EXPECT_EQ(values.Word({CES_SystemScan, CEK_ScanPolicy}), 0x10101U);
    EXPECT_EQ(values.Text({CES_SystemScan, CEK_ScanExtensions}), "exe/vbs");
}

TEST(EntryScanValuesTest, OtherAddressesReadAsNothingAndKeepNothing) {
    ScheduleEntry entry;
    entry.m_dwScanOptions = 0x5;
    EntryScanValues values;
    values.SetEntry(&entry);
    values.Write({CES_SystemScan, CEK_ScanExtra}, 0xFF);
    EXPECT_EQ(values.Word({CES_SystemScan, CEK_ScanExtra}), 0U);
    EXPECT_EQ(values.Text({CES_SystemScan, CEK_ScanOptions}), "");
    EXPECT_EQ(entry.m_dwScanOptions, 0x5U);
}

TEST(EntryScanValuesTest, WithoutAnEntryNothingIsReadOrWritten) {
    EntryScanValues values;
    values.Write({CES_SystemScan, CEK_ScanOptions}, 0x1);
    values.WriteText({CES_SystemScan, CEK_ScanExtensions}, "exe");
    EXPECT_EQ(values.Word({CES_SystemScan, CEK_ScanOptions}), 0U);
    EXPECT_EQ(values.Text({CES_SystemScan, CEK_ScanExtensions}), "");
}

}  // namespace
