// The configuration wizard's scan step: it shows the system scan's profile,
// its Save hands the profile to every scanning function, and leaving the
// step makes it the template of new schedule entries.

#include <Q9CfgE.h>

#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/easy/WizardScanPage.h"
#include "session/StoreCommit.h"

namespace wizard_scan_page_test {
namespace {

constexpr int kCompressedBox = 1064;
constexpr int kExecutableRadio = 1065;
constexpr int kAllFilesRadio = 1058;
constexpr int kCloseView = 1061;
constexpr int kAutoRepair = 1062;
constexpr int kRepairable = 1067;
constexpr int kExecuting = 1071;

constexpr uint32_t kCompressedBit = 0x10;
constexpr uint32_t kAllFilesBit = 0x100;
constexpr uint32_t kDefaultKinds = 0x680;
constexpr uint32_t kCustomizedBit = 0x800;
constexpr uint32_t kMarkBit = 0x2000;
constexpr uint32_t kCarriedBit = 0x10000;

// Every section the profile goes to.
const std::vector<uint32_t> kProfileSections = {
    CES_SystemScan, CES_ExplorerScan, CES_ScreenSaver,    CES_SystemMonitor, CES_Pop3,
    CES_Internet,   CES_OutlookScan,  CES_OutlookMonitor, CES_Messenger,     CES_Startup};

class WizardScanPageTest : public SwitchPageTest {
protected:
    WizardScanPageTest() { BeginStoreEdit(); }
    ~WizardScanPageTest() override { DropWorkingCopy(); }

    CWizardScanPage* Make() { return MakePage<CWizardScanPage>(0); }

    static void SetOptions(uint32_t word) { SetWord(CES_SystemScan, CEK_ScanOptions, word); }
    static uint32_t Options(uint32_t section = CES_SystemScan) {
        return Word(section, CEK_ScanOptions);
    }
    static uint32_t Policy(uint32_t section = CES_SystemScan) {
        return Word(section, CEK_ScanPolicy);
    }

    // A value in every section the profile goes to and in the schedule
    // template, so that a test sees which of them were written.
    static void MarkEverySection(uint32_t word) {
        for (const uint32_t section : kProfileSections) SetWord(section, CEK_ScanOptions, word);
        SetWord(CES_ScheduleDefault, CEK_ScanOptions, word);
    }
};

TEST_F(WizardScanPageTest, TheFormHasTheBlocksOfTheSystemScan) {
    CWizardScanPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kCompressedBox), "Scan compressed files");
    EXPECT_EQ(ctl::GetText(page, kExecutableRadio), "Executable files");
    EXPECT_EQ(ctl::GetText(page, kAllFilesRadio), "All files");
    EXPECT_EQ(ctl::GetText(page, 1066), "Advanced...");
    EXPECT_EQ(ctl::GetText(page, kAutoRepair), "Auto Repair");
    using Items = std::vector<std::string>;
    EXPECT_EQ(ItemsOf(page, kRepairable), (Items{"Leave as is", "Repair", "Delete"}));
    EXPECT_EQ(ItemsOf(page, 1068), (Items{"Leave as is", "Delete"}));
    EXPECT_EQ(ItemsOf(page, 1069), (Items{"Leave as is", "Delete"}));
    EXPECT_EQ(ItemsOf(page, kExecuting),
              (Items{"Process after user verification", "Leave as is",
                     "Repair after a forced termination", "Restart the system after the repair"}));
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1052))->Index(), 0);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1053))->Index(), 5);
}

TEST_F(WizardScanPageTest, LoadShowsTheSystemScansProfile) {
    SetOptions(0x1 | kCompressedBit | kAllFilesBit | 0x100000);
    SetWord(CES_SystemScan, CEK_ScanPolicy, 0x2 | 0x2000000);
    SetWord(CES_ScreenSaver, CEK_ScanOptions, 0);
    CWizardScanPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kCloseView));
    EXPECT_TRUE(IsChecked(page, kCompressedBox));
    EXPECT_TRUE(IsChecked(page, kAllFilesRadio));
    EXPECT_TRUE(IsChecked(page, kAutoRepair));
    EXPECT_EQ(ChosenItem(page, kRepairable), 1);
    EXPECT_EQ(ChosenItem(page, kExecuting), 2);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(WizardScanPageTest, SaveHandsTheProfileToEveryScanningFunction) {
    MarkEverySection(0);
    SetOptions(kDefaultKinds | kCarriedBit);
    SetWord(CES_SystemScan, CEK_ScanArchive, 4);
    SetWord(CES_SystemScan, CEK_ScanPolicy, 0x1000000);
    CWizardScanPage* page = Make();
    Click(page, kAllFilesRadio);
    Click(page, kAutoRepair);
    page->Save();

    const uint32_t saved = kAllFilesBit | 0x100000 | kMarkBit;
    EXPECT_EQ(Options(CES_SystemScan), saved) << "the system scan loses the carried bit";
    EXPECT_EQ(Options(CES_ScreenSaver), saved);
    EXPECT_EQ(Options(CES_ScheduleDefault), saved);
    EXPECT_EQ(Options(CES_Pop3), saved);
    EXPECT_EQ(Options(CES_OutlookScan), saved | 0x4000);
    EXPECT_EQ(Options(CES_OutlookMonitor), saved | kCarriedBit);
    EXPECT_EQ(Options(CES_SystemMonitor), saved | 0x3400000);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanArchive), 4u);
    EXPECT_EQ(Policy(CES_SystemScan), 0x1000000u);
    EXPECT_EQ(Policy(CES_Messenger), 0x2000000u) << "no user to verify for a monitor";
    EXPECT_EQ(Policy(CES_Internet), 0u);
    EXPECT_EQ(Policy(CES_Pop3), 0x40400u);
}

TEST_F(WizardScanPageTest, SaveKeepsTheCustomizedKindAndTheBitsNoControlShows) {
    SetOptions(kCustomizedBit | 0x2 | 0x40000000);
    ASSERT_EQ(Q9CfgE_SetStrEx(CES_SystemScan, CEK_ScanExtensions, "abc/def"), 1);
    CWizardScanPage* page = Make();
    Click(page, kAllFilesRadio);
    page->Save();
    EXPECT_EQ(Options() & 0xF80u, kAllFilesBit | kCustomizedBit);
    EXPECT_EQ(Options() & (0x2u | 0x40000000u), 0x2u | 0x40000000u);
    EXPECT_EQ(ReadStoreText(CES_ScreenSaver, CEK_ScanExtensions), "abc/def");
}

TEST_F(WizardScanPageTest, SaveScheduleDefaultsWritesTheScheduleTemplateAlone) {
    MarkEverySection(0x1);
    SetWord(CES_SystemScan, CEK_ScanPolicy, 0x402);
    SetWord(CES_ScheduleDefault, CEK_ScanPolicy, 0);
    CWizardScanPage* page = Make();
    Click(page, kAllFilesRadio);
    Click(page, kCompressedBox);
    page->SaveScheduleDefaults();

    EXPECT_EQ(Options(CES_ScheduleDefault), 0x1u | kAllFilesBit | kCompressedBit | kMarkBit);
    EXPECT_EQ(Policy(CES_ScheduleDefault), 0x402u);
    for (const uint32_t section : kProfileSections) EXPECT_EQ(Options(section), 0x1u) << section;
}

TEST_F(WizardScanPageTest, SaveScheduleDefaultsTakesTheBitsNoControlShowsFromTheStoreNow) {
    SetOptions(0);
    CWizardScanPage* page = Make();
    SetOptions(0x2);
    page->SaveScheduleDefaults();
    EXPECT_EQ(Options(CES_ScheduleDefault), 0x2u | kDefaultKinds | kMarkBit);
}

TEST_F(WizardScanPageTest, TheCompressedBoxRefusesItsMiddleState) {
    SetOptions(kCompressedBit);
    CWizardScanPage* page = Make();
    ASSERT_EQ(ctl::GetCheck(page, kCompressedBox), 1);
    Click(page, kCompressedBox);
    EXPECT_EQ(ctl::GetCheck(page, kCompressedBox), 0);
    page->Save();
    EXPECT_EQ(Options() & kCompressedBit, 0u);
    Click(page, kCompressedBox);
    EXPECT_EQ(ctl::GetCheck(page, kCompressedBox), 1);
    page->Save();
    EXPECT_EQ(Options() & kCompressedBit, kCompressedBit);
}

TEST_F(WizardScanPageTest, AllFilesSetsItsBitAndClearsTheKindsButCustomized) {
    SetOptions(kDefaultKinds | kCustomizedBit);
    CWizardScanPage* page = Make();
    Click(page, kAllFilesRadio);
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(Options() & 0xF80u, kAllFilesBit | kCustomizedBit);
}

TEST_F(WizardScanPageTest, ExecutableFilesClearsAllFilesAndGivesTheDefaultKindsWhenNoneIsLeft) {
    SetOptions(kAllFilesBit);
    CWizardScanPage* page = Make();
    Click(page, kExecutableRadio);
    page->Save();
    EXPECT_EQ(Options() & 0xF80u, kDefaultKinds);
}

TEST_F(WizardScanPageTest, ExecutableFilesKeepsTheKindsThatAreSet) {
    SetOptions(kAllFilesBit | kCustomizedBit);
    CWizardScanPage* page = Make();
    Click(page, kExecutableRadio);
    page->Save();
    EXPECT_EQ(Options() & 0xF80u, kCustomizedBit);
}

TEST_F(WizardScanPageTest, ARadioClickOnTheChoiceShownChangesNothing) {
    SetOptions(kAllFilesBit);
    CWizardScanPage* page = Make();
    Click(page, kAllFilesRadio);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(WizardScanPageTest, DefaultShowsTheSystemScansDefaultsAndWritesNothing) {
    WriteDefaults("[CES_SystemScan]\nCEK_ScanOptions=dword:00100110\n");
    SetOptions(0);
    MarkEverySection(0x1);
    CWizardScanPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kAllFilesRadio));
    EXPECT_TRUE(IsChecked(page, kCompressedBox));
    EXPECT_TRUE(IsChecked(page, kAutoRepair));
    EXPECT_EQ(page->IsModified(), 1);
    for (const uint32_t section : kProfileSections) EXPECT_EQ(Options(section), 0x1u) << section;
}

}  // namespace
}  // namespace wizard_scan_page_test
