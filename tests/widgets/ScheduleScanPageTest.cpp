// The schedule wizard's scan page: the scan words of the entry it is handed,
// the scheduler's fixed behaviour on the NT family (three boxes ticked,
// disabled, never loaded, always saved), "Scan in the background" holding
// "Close the Scan View window..." ticked, and the family's rules for the
// radio pair, the combos and the backup box.

#include <memory>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "pages/schedule/ScheduleScanPage.h"
#include "q9cfgul.h"
#include "schedule/ScheduleEntry.h"
#include "session/PageContext.h"
#include "session/SiblingLibs.h"

namespace schedule_scan_page_test {
namespace {

constexpr int kCloseView = 1061;
constexpr int kBackground = 1039;
constexpr int kAutoRepair = 1062;
constexpr int kCompressed = 1064;
constexpr int kExecutable = 1065;
constexpr int kAllFiles = 1058;
constexpr int kBackup = 1038;
constexpr int kRepairable = 1067;
constexpr int kUnrepairable = 1068;
constexpr int kCompressedFiles = 1069;
constexpr int kRecompress = 1070;
constexpr int kExecuting = 1071;

class ScheduleScanPageTest : public SwitchPageTest {
protected:
    // The page on a host of the NT family or not, showing m_entry.
    CScheduleScanPage* Make(bool isNT, uint32_t flags) {
        m_page = std::make_unique<CScheduleScanPage>();
        m_page->SetFlags(flags);
        m_page->SetContext(PageContext(g_Siblings, isNT));
        EXPECT_TRUE(m_page->Create(&m_parent));
        m_page->LoadEntry(&m_entry);
        return m_page.get();
    }
    CScheduleScanPage* MakeUnlocked() { return Make(true, DMF_AssumeNT); }

    ScheduleEntry m_entry;
    std::unique_ptr<CScheduleScanPage> m_page;
};

TEST_F(ScheduleScanPageTest, OnTheNtFamilyTheThreeBoxesStandTickedAndDisabled) {
    m_entry.m_dwScanOptions = 0;
    CScheduleScanPage* page = Make(true, 0);
    for (int id : {kCloseView, kBackground, kAutoRepair}) {
        EXPECT_TRUE(IsChecked(page, id)) << id;
        EXPECT_FALSE(IsEnabled(page, id)) << id;
    }
}

TEST_F(ScheduleScanPageTest, OnTheNtFamilyEverySaveSetsTheThreeBits) {
    m_entry.m_dwScanOptions = 0x680;
    CScheduleScanPage* page = Make(true, 0);
    ctl::SetCheck(page, kCloseView, 0);
    ctl::SetCheck(page, kAutoRepair, 0);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x101001U, 0x101001U);
}

TEST_F(ScheduleScanPageTest, AssumingTheNtFamilyTheBoxesAreEnabledAndLoaded) {
    m_entry.m_dwScanOptions = 0x100000;  // auto repair only
    CScheduleScanPage* page = MakeUnlocked();
    for (int id : {kCloseView, kBackground, kAutoRepair}) EXPECT_TRUE(IsEnabled(page, id)) << id;
    EXPECT_FALSE(IsChecked(page, kCloseView));
    EXPECT_FALSE(IsChecked(page, kBackground));
    EXPECT_TRUE(IsChecked(page, kAutoRepair));
    Click(page, kAutoRepair);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x101001U, 0U);
}

TEST_F(ScheduleScanPageTest, AnotherHostLoadsTheBoxesWithoutTheFlag) {
    m_entry.m_dwScanOptions = 0x1;
    CScheduleScanPage* page = Make(false, 0);
    EXPECT_TRUE(IsEnabled(page, kAutoRepair));
    EXPECT_TRUE(IsChecked(page, kCloseView));
    EXPECT_FALSE(IsChecked(page, kAutoRepair));
}

TEST_F(ScheduleScanPageTest, TheBackgroundBoxHoldsTheCloseBoxTicked) {
    m_entry.m_dwScanOptions = 0;
    CScheduleScanPage* page = MakeUnlocked();
    ASSERT_TRUE(IsEnabled(page, kCloseView));
    Click(page, kBackground);
    EXPECT_TRUE(IsChecked(page, kCloseView));
    EXPECT_FALSE(IsEnabled(page, kCloseView));
    EXPECT_EQ(page->IsModified(), 1);
    Click(page, kBackground);
    EXPECT_TRUE(IsEnabled(page, kCloseView));
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x1001U, 0x1U);
}

TEST_F(ScheduleScanPageTest, EverySaveSetsTheScheduledScanBit) {
    m_entry.m_dwScanOptions = 0;
    CScheduleScanPage* page = MakeUnlocked();
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x2000U, 0x2000U);
}

TEST_F(ScheduleScanPageTest, TheRadioPairWritesTheFileKinds) {
    m_entry.m_dwScanOptions = 0x100;
    CScheduleScanPage* page = MakeUnlocked();
    EXPECT_TRUE(IsChecked(page, kAllFiles));
    Click(page, kExecutable);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0xF80U, 0x680U);
    Click(page, kAllFiles);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0xF80U, 0x100U);
}

TEST_F(ScheduleScanPageTest, ARadioClickOnTheRowShownChangesNothing) {
    m_entry.m_dwScanOptions = 0x680;
    CScheduleScanPage* page = MakeUnlocked();
    Click(page, kExecutable);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(ScheduleScanPageTest, TheCompressedBoxNeverStaysInTheMiddle) {
    m_entry.m_dwScanOptions = 0x10;
    CScheduleScanPage* page = MakeUnlocked();
    ASSERT_EQ(ctl::GetCheck(page, kCompressed), 1);
    Click(page, kCompressed);
    EXPECT_EQ(ctl::GetCheck(page, kCompressed), 0);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x10U, 0U);
}

TEST_F(ScheduleScanPageTest, TheCombosReadTheFirstOfTwoBitsAndWriteTheirOwn) {
    m_entry.m_dwScanPolicy = 0x2 | 0x4 | 0x2000000 | 0x4000000;
    CScheduleScanPage* page = MakeUnlocked();
    EXPECT_EQ(ItemsOf(page, kExecuting).size(), 3U);
    EXPECT_EQ(ChosenItem(page, kRepairable), 1);
    EXPECT_EQ(ChosenItem(page, kExecuting), 1);
    Choose(page, kRepairable, 2);
    Choose(page, kExecuting, 2);
    Choose(page, kUnrepairable, 1);
    Choose(page, kCompressedFiles, 1);
    Click(page, kRecompress);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x6U, 0x4U);
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x7000000U, 0x4000000U);
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x400U, 0x400U);
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x40000U, 0x40000U);
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x80000U, 0x80000U);
    Choose(page, kExecuting, 1);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x7000000U, 0x2000000U);
    Choose(page, kExecuting, 0);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x7000000U, 0U);
}

TEST_F(ScheduleScanPageTest, BackupShowsAnyOfItsBitsAndSavesAllThree) {
    m_entry.m_dwScanPolicy = 0x100;
    CScheduleScanPage* page = MakeUnlocked();
    EXPECT_TRUE(IsChecked(page, kBackup));
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x10101U, 0x10101U);
    Click(page, kBackup);
    page->Save();
    EXPECT_EQ(m_entry.m_dwScanPolicy & 0x10101U, 0U);
}

TEST_F(ScheduleScanPageTest, LoadingTheEntryLeavesThePageUnmodified) {
    m_entry.m_dwScanPolicy = 0x2;
    CScheduleScanPage* page = MakeUnlocked();
    EXPECT_EQ(page->IsModified(), 0);
    Choose(page, kRepairable, 0);
    EXPECT_EQ(page->IsModified(), 1);
}

}  // namespace
}  // namespace schedule_scan_page_test
