// The "System scan" page, and with it the rules every page of the scan
// profile family shares: how the blocks show the profile, what a save keeps
// of the stored words, the radio pair and the three-state box, and the
// explorer scan's profile written beside this one.

#include <QCheckBox>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreKeys.h"
#include "pages/scan/SystemScanPage.h"

namespace system_scan_page_test {
namespace {

constexpr int kCompressedBox = 1064;
constexpr int kExecutableRadio = 1065;
constexpr int kAllFilesRadio = 1058;
constexpr int kCloseView = 1061;
constexpr int kAutoRepair = 1062;
constexpr int kBackup = 1038;
constexpr int kRepairable = 1067;
constexpr int kUnrepairable = 1068;
constexpr int kCompressedFiles = 1069;
constexpr int kRecompress = 1070;
constexpr int kExecuting = 1071;

constexpr uint32_t kMarkBit = 0x2000;
constexpr uint32_t kCarriedBit = 0x10000;

class SystemScanPageTest : public SwitchPageTest {
protected:
    CSystemScanPage* Make() { return MakePage<CSystemScanPage>(0); }
    static void SetOptions(uint32_t word) { SetWord(CES_SystemScan, CEK_ScanOptions, word); }
    static uint32_t Options() { return Word(CES_SystemScan, CEK_ScanOptions); }
    static void SetPolicy(uint32_t word) { SetWord(CES_SystemScan, CEK_ScanPolicy, word); }
    static uint32_t Policy() { return Word(CES_SystemScan, CEK_ScanPolicy); }
};

TEST_F(SystemScanPageTest, TemplateHasTheBlocksWithTheirCaptionsAndComboItems) {
    CSystemScanPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kCompressedBox), "Scan compressed files");
    EXPECT_EQ(ctl::GetText(page, kExecutableRadio), "Executable files");
    EXPECT_EQ(ctl::GetText(page, kAllFilesRadio), "All files");
    EXPECT_EQ(ctl::GetText(page, 1066), "Advanced...");
    EXPECT_EQ(ctl::GetText(page, kCloseView),
              "Close the Scan View window automatically if viruses are not detected");
    EXPECT_EQ(ctl::GetText(page, kAutoRepair), "Auto Repair");
    EXPECT_EQ(ctl::GetText(page, kBackup), "Backup files before repairing or deleting");
    EXPECT_EQ(ctl::GetText(page, kRecompress), "Recompress after repairing(ZIP file)");
    using Items = std::vector<std::string>;
    EXPECT_EQ(ItemsOf(page, kRepairable), (Items{"Leave as is", "Repair", "Delete"}));
    EXPECT_EQ(ItemsOf(page, kUnrepairable), (Items{"Leave as is", "Delete"}));
    EXPECT_EQ(ItemsOf(page, kCompressedFiles), (Items{"Leave as is", "Delete"}));
    EXPECT_EQ(ItemsOf(page, kExecuting),
              (Items{"Process after user verification", "Leave as is",
                     "Repair after a forced termination", "Restart the system after the repair"}));
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(SystemScanPageTest, SetIconsGivesTheScanAndRepairPictures) {
    CSystemScanPage* page = Make();
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1052))->Index(), 0);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1053))->Index(), 5);
}

TEST_F(SystemScanPageTest, LoadShowsTheWordsBits) {
    SetOptions(0x1 | 0x10 | 0x100 | 0x100000);
    CSystemScanPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kCloseView));
    EXPECT_TRUE(IsChecked(page, kCompressedBox));
    EXPECT_TRUE(IsChecked(page, kAllFilesRadio));
    EXPECT_FALSE(IsChecked(page, kExecutableRadio));
    EXPECT_TRUE(IsChecked(page, kAutoRepair));
    EXPECT_EQ(page->IsModified(), 0);
    delete page;
    SetOptions(0x680);
    page = Make();
    EXPECT_FALSE(IsChecked(page, kCloseView));
    EXPECT_FALSE(IsChecked(page, kCompressedBox));
    EXPECT_TRUE(IsChecked(page, kExecutableRadio));
}

TEST_F(SystemScanPageTest, AnyOfTheThreeBackupBitsShowsTheBox) {
    for (uint32_t bit : {0x1U, 0x100U, 0x10000U}) {
        SetPolicy(bit);
        CSystemScanPage* page = Make();
        EXPECT_TRUE(IsChecked(page, kBackup)) << bit;
        page->Save();
        EXPECT_EQ(Policy() & 0x10101U, 0x10101U) << bit;
        delete page;
    }
}

TEST_F(SystemScanPageTest, TheCombosShowThePolicyByPosition) {
    struct Case {
        uint32_t policy;
        int repairable, unrepairable, compressed, executing;
    };
    const Case cases[] = {
        {0x0, 0, 0, 0, 1},                          // nothing: leave as is everywhere
        {0x2 | 0x400 | 0x40000 | 0x1000000, 1, 1, 1, 0},
        {0x4 | 0x2000000, 2, 0, 0, 2},
        {0x4000000, 0, 0, 0, 3},
        {0x1000000 | 0x2000000, 0, 0, 0, 0},  // verification is tested first
    };
    for (const Case& c : cases) {
        SetPolicy(c.policy);
        CSystemScanPage* page = Make();
        EXPECT_EQ(ChosenItem(page, kRepairable), c.repairable) << c.policy;
        EXPECT_EQ(ChosenItem(page, kUnrepairable), c.unrepairable) << c.policy;
        EXPECT_EQ(ChosenItem(page, kCompressedFiles), c.compressed) << c.policy;
        EXPECT_EQ(ChosenItem(page, kExecuting), c.executing) << c.policy;
        delete page;
    }
}

TEST_F(SystemScanPageTest, EachComboItemSavesItsBitsAndClearsItsAlternatives) {
    struct Case {
        int id, index;
        uint32_t set, cleared;
    };
    const Case cases[] = {
        {kRepairable, 0, 0x0, 0x6},           {kRepairable, 1, 0x2, 0x4},
        {kRepairable, 2, 0x4, 0x2},           {kUnrepairable, 1, 0x400, 0x0},
        {kUnrepairable, 0, 0x0, 0x400},       {kCompressedFiles, 1, 0x40000, 0x0},
        {kCompressedFiles, 0, 0x0, 0x40000},  {kExecuting, 0, 0x1000000, 0x6000000},
        {kExecuting, 1, 0x0, 0x7000000},      {kExecuting, 2, 0x2000000, 0x5000000},
        {kExecuting, 3, 0x4000000, 0x3000000},
    };
    for (const Case& c : cases) {
        // Bits without a control on the page stay as stored.
        SetPolicy(0x8 | 0x800 | 0x80000000 | (c.cleared & ~c.set));
        CSystemScanPage* page = Make();
        Choose(page, c.id, c.index);
        EXPECT_EQ(page->IsModified(), 1) << c.id << " " << c.index;
        page->Save();
        EXPECT_EQ(Policy() & (c.set | c.cleared), c.set) << c.id << " " << c.index;
        EXPECT_EQ(Policy() & (0x8 | 0x800 | 0x80000000), 0x8U | 0x800U | 0x80000000U);
        delete page;
    }
}

TEST_F(SystemScanPageTest, RepairAndDeleteTogetherLoadAsRepairAndSaveAsRepairAlone) {
    SetPolicy(0x2 | 0x4);
    CSystemScanPage* page = Make();
    EXPECT_EQ(ChosenItem(page, kRepairable), 1);
    page->Save();
    EXPECT_EQ(Policy() & 0x6U, 0x2U);
}

TEST_F(SystemScanPageTest, AWordWithoutFileTypesComesBackWithExecutablesMacrosAndScripts) {
    SetOptions(0x0);
    CSystemScanPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kExecutableRadio));
    page->Save();
    EXPECT_EQ(Options() & 0xF80U, 0x680U);
}

TEST_F(SystemScanPageTest, AllFilesWithCustomizedKeepsBothThroughTheRadio) {
    SetOptions(0x100 | 0x800);
    CSystemScanPage* page = Make();
    page->Save();
    EXPECT_EQ(Options() & 0xF80U, 0x900U);
}

TEST_F(SystemScanPageTest, ChoosingAllFilesClearsTheKindsButNotCustomized) {
    SetOptions(0x80 | 0x200 | 0x800);
    CSystemScanPage* page = Make();
    Click(page, kAllFilesRadio);
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(Options() & 0xF80U, 0x900U);
}

TEST_F(SystemScanPageTest, AClickOnTheRadioAlreadyChosenLeavesThePageUnmodified) {
    SetOptions(0x100);
    CSystemScanPage* page = Make();
    Click(page, kAllFilesRadio);
    EXPECT_EQ(page->IsModified(), 0);
    Click(page, kExecutableRadio);
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(SystemScanPageTest, TheMiddleStateOfTheCompressedBoxIsNeverReachedNorStored) {
    SetOptions(0x10);
    CSystemScanPage* page = Make();
    auto* box = qobject_cast<QCheckBox*>(ctl::Find(page, kCompressedBox));
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->isTristate());
    Click(page, kCompressedBox);  // on: the next state is the middle one
    EXPECT_EQ(ctl::GetCheck(page, kCompressedBox), 0);
    page->Save();
    EXPECT_EQ(Options() & 0x10U, 0U);
    Click(page, kCompressedBox);
    EXPECT_EQ(ctl::GetCheck(page, kCompressedBox), 1);
    page->Save();
    EXPECT_EQ(Options() & 0x10U, 0x10U);
}

TEST_F(SystemScanPageTest, EveryBoxAndComboMarksThePageWithoutNeedingApply) {
    for (int id : {kCloseView, kAutoRepair, kCompressedBox, kBackup, kRecompress}) {
        CSystemScanPage* page = Make();
        Click(page, id);
        EXPECT_EQ(page->IsModified(), 1) << id;
        EXPECT_EQ(page->NeedApply(), 0) << id;
        delete page;
    }
    for (int id : {kRepairable, kUnrepairable, kCompressedFiles, kExecuting}) {
        CSystemScanPage* page = Make();
        Choose(page, id, 1);
        EXPECT_EQ(page->IsModified(), 1) << id;
        delete page;
    }
}

TEST_F(SystemScanPageTest, SaveMarksTheScanSettingAndTakesBit16FromTheStore) {
    SetOptions(0x680);
    CSystemScanPage* page = Make();
    SetOptions(0x680 | kCarriedBit);  // written meanwhile by another program
    page->Save();
    EXPECT_EQ(Options(), 0x680U | kMarkBit | kCarriedBit);
    SetOptions(0x680);
    page->Save();
    EXPECT_EQ(Options() & kCarriedBit, 0U);
}

TEST_F(SystemScanPageTest, SaveWritesTheExplorerScanBesideThisProfile) {
    WriteDefaults("[CES_ExplorerScan]\nCEK_ScanOptions=dword:00000ff0\n");
    SetWord(CES_ExplorerScan, CEK_ScanOptions, 0x30000 | 0x1 | 0x100000);
    SetWord(CES_ExplorerScan, CEK_ScanArchive, 7);
    SetOptions(0x680 | 0x40000000);
    SetPolicy(0x2 | 0x400);
    CSystemScanPage* page = Make();
    Click(page, kCloseView);
    page->Save();
    // The default word, the page's close-view and auto-repair choices, the
    // harmful programs bit of section 4 and the carried bits of section 5.
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions), 0xFF0U | 0x1U | 0x40000000U | 0x30000U);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchive), 0U);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchiveKinds), 0xFFFFFFFFU);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanPolicy), Policy());
}

TEST_F(SystemScanPageTest, DefaultShowsTheFactoryProfileAndMarksThePage) {
    WriteDefaults(
        "[CES_SystemScan]\nCEK_ScanOptions=dword:00100111\nCEK_ScanPolicy=dword:04000402\n");
    SetOptions(0x680);
    SetPolicy(0x0);
    CSystemScanPage* page = Make();
    page->OnDefault();
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_TRUE(IsChecked(page, kCloseView));
    EXPECT_TRUE(IsChecked(page, kCompressedBox));
    EXPECT_TRUE(IsChecked(page, kAllFilesRadio));
    EXPECT_TRUE(IsChecked(page, kAutoRepair));
    EXPECT_EQ(ChosenItem(page, kRepairable), 1);
    EXPECT_EQ(ChosenItem(page, kUnrepairable), 1);
    EXPECT_EQ(ChosenItem(page, kExecuting), 3);
    // Nothing is written until the page is saved.
    EXPECT_EQ(Options(), 0x680U);
}

TEST_F(SystemScanPageTest, DefaultLeavesTheHarmfulProgramKindsAsTheyAre) {
    WriteDefaults("[CES_Macro]\nCEK_MacroOptions=dword:000f0000\n");
    SetWord(CES_Macro, CEK_MacroOptions, 0x20001);
    CSystemScanPage* page = Make();
    page->OnDefault();
    page->Save();
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x20001U);
}

}  // namespace
}  // namespace system_scan_page_test
