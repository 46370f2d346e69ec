// The scan method tabs of the system scan and of the system monitoring, and
// the harmful programs tab: their bits, the local drive rule, the rules of
// the NT series' warning box, and the hidden adware row.

#include "AdvancedScanTest.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/scan/HarmfulTabPage.h"
#include "pages/scan/ScanMethodTabPage.h"
#include "pages/scan/ScanOptionTabPage.h"
#include "q9cfgul.h"
#include "session/ProcessState.h"

namespace {

using ScanTabsTest = AdvancedScanTest;

AdvancedScanValues WithWords(uint32_t options, uint32_t extra, uint32_t harmful = 0) {
    AdvancedScanValues values;
    values.options = options;
    values.extra = extra;
    values.harmful = harmful;
    return values;
}

// --- Scan method of the system scan ----------------------------------------

TEST_F(ScanTabsTest, TheScanMethodTabOwnsBitsFourAndFiveOfTheExtraWord) {
    auto page = MakeTab<CScanMethodTabPage>(WithWords(0, kExtraUnshareFirst | 0x1));
    EXPECT_TRUE(IsChecked(page.get(), 1063));
    EXPECT_FALSE(IsChecked(page.get(), 1072));
    Click(page.get(), 1063);
    Click(page.get(), 1072);
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(page->Values().extra, kExtraCloseShells | 0x1U);
}

// --- Scan options of the system monitoring -----------------------------------

constexpr int kLocalRead = 1063;
constexpr int kLocalWrite = 1028;
constexpr int kWarning = 1025;

TEST_F(ScanTabsTest, TheScanOptionsTabShowsAndSavesItsBitsOfBothWords) {
    auto page = MakeTab<CScanOptionTabPage>(
        WithWords(kScanFloppyBoot | kScanNtWarning | 0x1, kExtraLocalWrite | kExtraNetworkRead));
    EXPECT_TRUE(IsChecked(page.get(), 1026));
    EXPECT_FALSE(IsChecked(page.get(), 1027));
    EXPECT_FALSE(IsChecked(page.get(), kLocalRead));
    EXPECT_TRUE(IsChecked(page.get(), kLocalWrite));
    EXPECT_TRUE(IsChecked(page.get(), 1029));
    EXPECT_FALSE(IsChecked(page.get(), 1030));
    EXPECT_TRUE(IsChecked(page.get(), kWarning));
    Click(page.get(), 1027);
    Click(page.get(), 1030);
    Click(page.get(), kWarning);
    page->Save();
    EXPECT_EQ(page->Values().options, kScanFloppyBoot | kScanFloppyOnClose | 0x1U);
    EXPECT_EQ(page->Values().extra, kExtraLocalWrite | kExtraNetworkRead | kExtraNetworkWrite);
}

TEST_F(ScanTabsTest, NeitherLocalDriveScanIsRefused) {
    auto page = MakeTab<CScanOptionTabPage>(WithWords(0, kExtraNetworkRead | kExtraNetworkWrite));
    EXPECT_EQ(page->Validate(), 1);
    EXPECT_EQ(OnlyMessage(),
              "Configuration Error: Either \"Scan Local Drive Reading\" or \"Scan Local Drive "
              "Writing\" must be selected.");
    Click(page.get(), kLocalWrite);
    EXPECT_EQ(page->Validate(), 0);
    Click(page.get(), kLocalWrite);
    Click(page.get(), kLocalRead);
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(ScanTabsTest, OffTheNtSeriesTheWarningBoxIsDisabledAndNotSetFromTheWord) {
    g_bWinNT = 0;
    auto page = MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead));
    EXPECT_FALSE(IsEnabled(page.get(), kWarning));
    EXPECT_FALSE(IsChecked(page.get(), kWarning));
}

TEST_F(ScanTabsTest, AssumingTheNtSeriesKeepsTheWarningBoxOnAnyHost) {
    g_bWinNT = 0;
    auto page =
        MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead), DMF_AssumeNT);
    EXPECT_TRUE(IsEnabled(page.get(), kWarning));
    EXPECT_TRUE(IsChecked(page.get(), kWarning));
}

TEST_F(ScanTabsTest, OnTheNtSeriesTheWarningBoxFollowsTheWord) {
    g_bWinNT = 1;
    auto page = MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead));
    EXPECT_TRUE(IsEnabled(page.get(), kWarning));
    EXPECT_TRUE(IsChecked(page.get(), kWarning));
}

TEST_F(ScanTabsTest, TheMasterEditionOffersTheWarningBoxOnlyWithTheTrayIcon) {
    g_bWinNT = 1;
    SetWord(CES_Switch, CEK_Switch_General, ~SwitchBitOf(SSCT_TRAY));
    auto page = MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead), DMF_Master);
    EXPECT_FALSE(IsEnabled(page.get(), kWarning));
    EXPECT_FALSE(IsChecked(page.get(), kWarning));
    SetWord(CES_Switch, CEK_Switch_General, SwitchBitOf(SSCT_TRAY));
    page = MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead), DMF_Master);
    EXPECT_TRUE(IsEnabled(page.get(), kWarning));
    EXPECT_TRUE(IsChecked(page.get(), kWarning));
    // The normal edition needs no tray icon.
    SetWord(CES_Switch, CEK_Switch_General, 0);
    page = MakeTab<CScanOptionTabPage>(WithWords(kScanNtWarning, kExtraLocalRead));
    EXPECT_TRUE(IsEnabled(page.get(), kWarning));
}

// --- Possible harmful programs -----------------------------------------------

constexpr int kHarmful = 1125;
constexpr int kJoke = 1097;
constexpr int kKeyLogger = 1098;
constexpr int kAdware = 1099;
constexpr int kOther = 1100;

TEST_F(ScanTabsTest, TheAdwareRowIsHiddenAndTheOtherRowTakesItsPlace) {
    // Where the form puts them, before the tab is made.
    QWidget formHolder;
    Ui::Dialog1040 layout;
    layout.setupUi(&formHolder);
    const QPoint adware = layout.adwareBox->pos();
    const QPoint adwareText = layout.adwareText->pos();
    ASSERT_EQ(layout.otherBox->pos(), adware + QPoint(0, 45));

    auto page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulJoke));
    EXPECT_FALSE(IsShown(page.get(), kAdware));
    EXPECT_FALSE(ControlAfter(page.get(), kAdware)->isVisibleTo(page.get()));
    EXPECT_EQ(PositionOf(page.get(), kOther), adware);
    EXPECT_EQ(ControlAfter(page.get(), kOther)->pos(), adwareText);
    EXPECT_TRUE(IsShown(page.get(), kOther));
}

TEST_F(ScanTabsTest, DefaultNeitherHidesNorMovesTheRowsAgain) {
    auto page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulJoke));
    const QPoint other = PositionOf(page.get(), kOther);
    page->OnDefault();
    EXPECT_EQ(PositionOf(page.get(), kOther), other);
    EXPECT_FALSE(IsShown(page.get(), kAdware));
    EXPECT_TRUE(IsShown(page.get(), kJoke));
}

TEST_F(ScanTabsTest, TheHiddenAdwareBoxKeepsItsBit) {
    auto page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulAdware | 0x3));
    EXPECT_TRUE(IsChecked(page.get(), kAdware));
    Click(page.get(), kJoke);
    page->Save();
    EXPECT_EQ(page->Values().harmful, kHarmfulJoke | kHarmfulAdware | 0x3U);
    page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulJoke));
    Click(page.get(), kOther);
    page->Save();
    EXPECT_EQ(page->Values().harmful, kHarmfulJoke | kHarmfulOther);
}

TEST_F(ScanTabsTest, TheMasterEditionLoadsAdwareUncheckedAndSavesItClear) {
    auto page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulAdware | kHarmfulJoke),
                                         DMF_Master);
    EXPECT_FALSE(IsChecked(page.get(), kAdware));
    Click(page.get(), kKeyLogger);
    page->Save();
    EXPECT_EQ(page->Values().harmful, kHarmfulJoke | kHarmfulKeyLogger);
}

TEST_F(ScanTabsTest, TheHarmfulBoxEnablesTheRowsAndSavesBitThirty) {
    auto page = MakeTab<CHarmfulTabPage>(WithWords(0x1, 0, kHarmfulJoke));
    for (int id : {kJoke, kKeyLogger, kOther}) EXPECT_FALSE(IsEnabled(page.get(), id)) << id;
    EXPECT_FALSE(ControlAfter(page.get(), kJoke)->isEnabled());
    Click(page.get(), kHarmful);
    for (int id : {kJoke, kKeyLogger, kOther}) EXPECT_TRUE(IsEnabled(page.get(), id)) << id;
    EXPECT_TRUE(ControlAfter(page.get(), kJoke)->isEnabled());
    page->Save();
    EXPECT_EQ(page->Values().options, kScanHarmful | 0x1U);
}

TEST_F(ScanTabsTest, ScanningHarmfulProgramsNeedsAKind) {
    auto page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, 0));
    EXPECT_EQ(page->Validate(), 1);
    EXPECT_EQ(OnlyMessage(),
              "Configuration Error: You have not selected possible harmful programs.\n"
              "Please select possibly harmful programs to scan or deselect \"Scan possible "
              "harmful programs\" option.");
    Click(page.get(), kHarmful);
    EXPECT_EQ(page->Validate(), 0);
    // The hidden adware row counts as a kind.
    page = MakeTab<CHarmfulTabPage>(WithWords(kScanHarmful, 0, kHarmfulAdware));
    EXPECT_EQ(page->Validate(), 0);
}

// --- A tab on its own ----------------------------------------------------------

TEST_F(ScanTabsTest, ATabMadeOnItsOwnShowsZerosAndNeverTouchesTheStore) {
    SetWord(CES_SystemScan, CEK_ScanExtra, kExtraUnshareFirst);
    auto page = MakeTab<CScanMethodTabPage>({});
    EXPECT_FALSE(IsChecked(page.get(), 1063));
    Click(page.get(), 1072);
    page->Save();
    EXPECT_EQ(page->Values().extra, kExtraCloseShells);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanExtra), kExtraUnshareFirst);
}

}  // namespace
