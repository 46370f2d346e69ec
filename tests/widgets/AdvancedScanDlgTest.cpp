// "Advanced Scan Setting": the tabs of each variant, pages made when first
// shown, values handed on from tab to tab at OK, Default on the tab shown,
// Cancel, and validation that holds a tab.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "AdvancedScanTest.h"
#include "caller/DialogDriver.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "pages/PageRegistry.h"
#include "pages/scan/CompressTabPage.h"
#include "pages/scan/FileTypeTabPage.h"
#include "pages/scan/HarmfulTabPage.h"
#include "pages/scan/ScanMethodTabPage.h"
#include "pages/scan/ScanOptionTabPage.h"
#include "q9cfgul.h"

namespace {

using AdvancedScanDlgTest = AdvancedScanTest;

const std::string kFileTypesCaption = "File Types to Scan";
const std::string kCompressedCaption = "Compressed Files";
const std::string kMethodCaption = "Scan Method";
const std::string kHarmfulCaption = "Possible Harmful Programs";

// A caller's values: every file type but "All files", the customized ones
// with a text, compressed files without the incremental scan, local drive
// reading, and jokes among the harmful kinds.
constexpr uint32_t kGivenOptions =
    0x80000000 | kScanHarmful | kScanTypeKinds | kScanCompressed | 0x4;
constexpr uint32_t kGivenExtra = kExtraLocalRead | kExtraCloseShells | 0x100;
constexpr int32_t kGivenDepth = 3;
constexpr uint32_t kGivenKinds = 0x5;
constexpr const char* kGivenExtensions = "doc/xls";
constexpr uint32_t kGivenHarmful = kHarmfulJoke | 0x3;

void GiveValues(CAdvancedScanDlg& dialog) {
    dialog.m_dwOptions = kGivenOptions;
    dialog.m_dwExtra = kGivenExtra;
    dialog.m_nDepth = kGivenDepth;
    dialog.m_dwKinds = kGivenKinds;
    dialog.m_strExtensions = kGivenExtensions;
    dialog.m_dwHarmful = kGivenHarmful;
}

// The values of dialog are the ones given.
void ExpectGivenValues(const CAdvancedScanDlg& dialog) {
    EXPECT_EQ(dialog.m_dwOptions, kGivenOptions);
    EXPECT_EQ(dialog.m_dwExtra, kGivenExtra);
    EXPECT_EQ(dialog.m_nDepth, kGivenDepth);
    EXPECT_EQ(dialog.m_dwKinds, kGivenKinds);
    EXPECT_EQ(dialog.m_strExtensions, kGivenExtensions);
    EXPECT_EQ(dialog.m_dwHarmful, kGivenHarmful);
}

TEST_F(AdvancedScanDlgTest, EachVariantShowsItsTabsInOrder) {
    Open(kAdvancedBasic);
    EXPECT_EQ(m_dialog->windowTitle(), "Advanced Scan Setting");
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption, kCompressedCaption}));
    Open(kAdvancedSystemScan);
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption, kCompressedCaption,
                                                       kMethodCaption, kHarmfulCaption}));
    Open(kAdvancedMonitor);
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption, kMethodCaption}));
    Open(kAdvancedFileTypesOnly);
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption}));
    for (int id : {1, 2, 1034}) EXPECT_NE(m_dialog->Control(id), nullptr) << id;
}

TEST_F(AdvancedScanDlgTest, EachTabKeepsItsPageNumber) {
    Open(kAdvancedSystemScan);
    std::vector<int> pages;
    for (int i = 0; i < Tabs()->count(); ++i) pages.push_back(Tabs()->tabData(i).toInt());
    EXPECT_EQ(pages, (std::vector<int>{28, 27, 29, 31}));
    Open(kAdvancedMonitor);
    EXPECT_EQ(Tabs()->tabData(1).toInt(), 30);
}

TEST_F(AdvancedScanDlgTest, AnUnknownVariantShowsTheBasicTabs) {
    Open(7);
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption, kCompressedCaption}));
}

TEST_F(AdvancedScanDlgTest, TheFirstTabIsShownAtOpenAndNoOtherPageIsMade) {
    Open(kAdvancedSystemScan);
    EXPECT_EQ(Tabs()->currentIndex(), 0);
    EXPECT_EQ(m_dialog->m_nCurrentTab, 0);
    ASSERT_NE(Tab<CFileTypeTabPage>(), nullptr);
    EXPECT_TRUE(Tab<CFileTypeTabPage>()->isVisible());
    EXPECT_EQ(Tab<CCompressTabPage>(), nullptr);
    EXPECT_EQ(Tab<CScanMethodTabPage>(), nullptr);
    EXPECT_EQ(Tab<CHarmfulTabPage>(), nullptr);
}

TEST_F(AdvancedScanDlgTest, APageIsMadeWhenItsTabIsFirstShownAndKeptAfter) {
    Open(kAdvancedSystemScan);
    CFileTypeTabPage* fileTypes = Tab<CFileTypeTabPage>();
    SelectTab(3);
    EXPECT_EQ(m_dialog->m_nCurrentTab, 3);
    ASSERT_NE(Tab<CHarmfulTabPage>(), nullptr);
    EXPECT_TRUE(Tab<CHarmfulTabPage>()->isVisible());
    EXPECT_FALSE(fileTypes->isVisible());
    EXPECT_EQ(Tab<CCompressTabPage>(), nullptr);
    SelectTab(0);
    EXPECT_EQ(Tab<CFileTypeTabPage>(), fileTypes);
    EXPECT_TRUE(fileTypes->isVisible());
    EXPECT_FALSE(Tab<CHarmfulTabPage>()->isVisible());
}

TEST_F(AdvancedScanDlgTest, APageStandsAtTheTopOfTheDisplayAreaCentredAcrossIt) {
    Open(kAdvancedBasic);
    const QWidget* area = m_dialog->findChild<QWidget*>("displayArea");
    ASSERT_NE(area, nullptr);
    const CSettingsPage* page = Tab<CFileTypeTabPage>();
    EXPECT_EQ(page->y(), area->y());
    EXPECT_EQ(page->x() - area->x(), area->width() - page->width() - (page->x() - area->x()));
    EXPECT_GT(page->x(), area->x());
}

TEST_F(AdvancedScanDlgTest, EachTabShowsTheValuesHandedIn) {
    GiveValues(Make(kAdvancedSystemScan, 0));
    Show();
    CFileTypeTabPage* fileTypes = Tab<CFileTypeTabPage>();
    EXPECT_FALSE(IsChecked(fileTypes, 1058));
    EXPECT_TRUE(IsChecked(fileTypes, 1049));
    EXPECT_EQ(qobject_cast<QLineEdit*>(ctl::Find(fileTypes, 1050))->text(), "doc/xls");
    SelectTab(1);
    EXPECT_EQ(qobject_cast<QComboBox*>(ctl::Find(Tab<CCompressTabPage>(), 1054))->currentIndex(),
              3);
    SelectTab(2);
    EXPECT_TRUE(IsChecked(Tab<CScanMethodTabPage>(), 1072));
    EXPECT_FALSE(IsChecked(Tab<CScanMethodTabPage>(), 1063));
    SelectTab(3);
    EXPECT_TRUE(IsChecked(Tab<CHarmfulTabPage>(), 1125));
    EXPECT_TRUE(IsChecked(Tab<CHarmfulTabPage>(), 1097));
    EXPECT_FALSE(IsChecked(Tab<CHarmfulTabPage>(), 1098));
}

TEST_F(AdvancedScanDlgTest, OkWithoutAChangeGivesEveryValueBackAsItWas) {
    // "All files" and "Customized" together: the tab would save them
    // otherwise, but a tab that was not changed saves nothing.
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    dialog.m_dwOptions |= kScanAllFiles;
    dialog.m_nDepth = 12;
    const uint32_t options = dialog.m_dwOptions;
    Show();
    for (int tab : {1, 2, 3}) SelectTab(tab);
    Press(1);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.m_bChanged, 0);
    EXPECT_EQ(dialog.m_dwOptions, options);
    EXPECT_EQ(dialog.m_nDepth, 12);
    EXPECT_EQ(dialog.m_dwKinds, kGivenKinds);
    EXPECT_EQ(dialog.m_dwExtra, kGivenExtra);
    EXPECT_EQ(dialog.m_strExtensions, kGivenExtensions);
    EXPECT_EQ(dialog.m_dwHarmful, kGivenHarmful);
}

TEST_F(AdvancedScanDlgTest, OkTakesBackWhatAChangedTabSavesAndMarksTheChange) {
    CAdvancedScanDlg& dialog = Make(kAdvancedBasic);
    GiveValues(dialog);
    const uint32_t options = dialog.m_dwOptions;
    Show();
    Click(Tab<CFileTypeTabPage>(), 1058);  // "All files"
    Press(1);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.m_bChanged, 1);
    EXPECT_EQ(dialog.m_dwOptions, (options & ~kScanTypeKinds) | kScanAllFiles);
    EXPECT_EQ(dialog.m_strExtensions, kGivenExtensions);
    EXPECT_EQ(dialog.m_nDepth, kGivenDepth);
}

TEST_F(AdvancedScanDlgTest, EachTabChangesOnlyItsOwnBitsOfTheWordsHandedOn) {
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    dialog.m_dwOptions = 0xFFFFFFFF & ~kScanAllFiles;
    dialog.m_dwExtra = 0xFFFFFFFF;
    dialog.m_dwHarmful = 0xFFFFFFFF;
    Show();
    Click(Tab<CFileTypeTabPage>(), 1059);  // executables off
    SelectTab(1);
    Click(Tab<CCompressTabPage>(), 1052);  // executable compressed files off
    SelectTab(2);
    Click(Tab<CScanMethodTabPage>(), 1072);  // closing shells off
    SelectTab(3);
    Click(Tab<CHarmfulTabPage>(), 1098);  // key loggers off
    Press(1);
    EXPECT_EQ(dialog.m_dwOptions,
              0xFFFFFFFF & ~kScanAllFiles & ~kScanExecutables & ~kScanExeCompressed);
    EXPECT_EQ(dialog.m_dwExtra, 0xFFFFFFFF & ~kExtraCloseShells);
    EXPECT_EQ(dialog.m_dwHarmful, 0xFFFFFFFF & ~kHarmfulKeyLogger);
    EXPECT_EQ(dialog.m_bChanged, 1);
}

TEST_F(AdvancedScanDlgTest, ALaterTabKeepsTheChangeOfAnEarlierOneToTheSameWord) {
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    Show();
    SelectTab(3);
    Click(Tab<CHarmfulTabPage>(), 1125);  // harmful programs off
    SelectTab(0);
    Click(Tab<CFileTypeTabPage>(), 1058);  // all files on
    Press(1);
    EXPECT_EQ(dialog.m_dwOptions & (kScanHarmful | kScanAllFiles), kScanAllFiles);
    EXPECT_EQ(dialog.m_dwOptions & kScanTypeKinds, 0U);
}

TEST_F(AdvancedScanDlgTest, CancelLeavesTheCallersValuesUntouched) {
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    Show();
    Click(Tab<CFileTypeTabPage>(), 1058);
    SelectTab(1);
    Press(1034);
    SelectTab(3);
    Click(Tab<CHarmfulTabPage>(), 1125);
    Press(2);
    EXPECT_EQ(dialog.result(), 2);
    ExpectGivenValues(dialog);
    EXPECT_EQ(dialog.m_bChanged, 0);
}

// --- Default ----------------------------------------------------------------

// Factory values of the sections the tabs read: the system scan's (4), the
// monitor's (7) and the product's harmful kinds (2, 6).
constexpr const char* kDefaults =
    "[CES_Macro]\nCEK_MacroOptions=dword:c0001\n"
    "[CES_SystemScan]\nCEK_ScanOptions=dword:40000658\nCEK_ScanArchive=dword:5\n"
    "CEK_ScanArchiveKinds=dword:ffffffff\nCEK_ScanExtensions=\"com/exe\"\nCEK_ScanExtra=dword:3f\n"
    "[CES_SystemMonitor]\nCEK_ScanOptions=dword:c00000\nCEK_ScanExtra=dword:5\n";

TEST_F(AdvancedScanDlgTest, DefaultResetsTheTabShownAlone) {
    WriteDefaults(kDefaults);
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    const uint32_t options = dialog.m_dwOptions;
    Show();
    SelectTab(1);
    Press(1034);
    auto* depth = qobject_cast<QComboBox*>(ctl::Find(Tab<CCompressTabPage>(), 1054));
    EXPECT_EQ(depth->currentIndex(), 5);
    // The file types tab made before keeps what it showed.
    EXPECT_TRUE(IsChecked(Tab<CFileTypeTabPage>(), 1049));
    EXPECT_EQ(Tab<CFileTypeTabPage>()->IsModified(), 0);
    EXPECT_EQ(Tab<CCompressTabPage>()->IsModified(), 1);
    Press(1);
    // Compressed files, executable ones and incremental scan from the
    // defaults; the rest as given.
    const uint32_t compressBits = kScanExeCompressed | kScanCompressed | kScanIncremental;
    EXPECT_EQ(dialog.m_dwOptions, (options & ~compressBits) | (0x40000658 & compressBits));
    EXPECT_EQ(dialog.m_nDepth, 5);
    EXPECT_EQ(dialog.m_dwKinds, 0xFFFFFFFFU);
    EXPECT_EQ(dialog.m_strExtensions, kGivenExtensions);
    EXPECT_EQ(dialog.m_dwHarmful, kGivenHarmful);
    EXPECT_EQ(dialog.m_bChanged, 1);
}

TEST_F(AdvancedScanDlgTest, VariantThreeHasOneTabAndDefaultResetsOnlyItsFileTypes) {
    WriteDefaults(kDefaults);
    CAdvancedScanDlg& dialog = Make(kAdvancedFileTypesOnly);
    GiveValues(dialog);
    const uint32_t options = dialog.m_dwOptions;
    Show();
    ASSERT_EQ(Tabs()->count(), 1);
    Press(1034);
    Press(1);
    EXPECT_EQ(dialog.m_dwOptions,
              (options & ~(kScanAllFiles | kScanTypeKinds)) | (0x40000658 & kScanTypeKinds));
    EXPECT_EQ(dialog.m_strExtensions, "com/exe");
    EXPECT_EQ(dialog.m_nDepth, kGivenDepth);
    EXPECT_EQ(dialog.m_dwKinds, kGivenKinds);
    EXPECT_EQ(dialog.m_dwExtra, kGivenExtra);
    EXPECT_EQ(dialog.m_dwHarmful, kGivenHarmful);
}

TEST_F(AdvancedScanDlgTest, TheScanOptionsTabDefaultsToTheMonitorsValues) {
    WriteDefaults(kDefaults);
    CAdvancedScanDlg& dialog = Make(kAdvancedMonitor);
    GiveValues(dialog);
    const uint32_t options = dialog.m_dwOptions;
    Show();
    SelectTab(1);
    Press(1034);
    Press(1);
    const uint32_t optionBits = kScanFloppyBoot | kScanFloppyOnClose | kScanNtWarning;
    EXPECT_EQ(dialog.m_dwOptions, (options & ~optionBits) | 0xC00000U);
    EXPECT_EQ(dialog.m_dwExtra, (kGivenExtra & ~kExtraLocalRead) | 0x5U);
}

TEST_F(AdvancedScanDlgTest, TheOtherTabsDefaultToTheSystemScansValues) {
    WriteDefaults(kDefaults);
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    dialog.m_dwExtra = 0;
    Show();
    SelectTab(2);
    Press(1034);
    SelectTab(3);
    Press(1034);
    Press(1);
    EXPECT_EQ(dialog.m_dwExtra, kExtraUnshareFirst | kExtraCloseShells);
    EXPECT_EQ(dialog.m_dwHarmful, 0xC0000U | 0x3U);
    EXPECT_NE(dialog.m_dwOptions & kScanHarmful, 0U);
}

TEST_F(AdvancedScanDlgTest, NeitherDefaultNorOkWritesTheStore) {
    WriteDefaults(kDefaults);
    SetWord(CES_SystemScan, CEK_ScanOptions, 0x1);
    SetWord(CES_SystemMonitor, CEK_ScanExtra, 0x2);
    SetWord(CES_Macro, CEK_MacroOptions, 0x4);
    Open(kAdvancedSystemScan);
    for (int tab = 0; tab < Tabs()->count(); ++tab) {
        SelectTab(tab);
        Press(1034);
    }
    Press(1);
    EXPECT_EQ(m_dialog->m_bChanged, 1);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanOptions), 0x1U);
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanExtra), 0x2U);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x4U);
}

// --- Validation ---------------------------------------------------------------

TEST_F(AdvancedScanDlgTest, SwitchingTabsWithAnInvalidTextIsRefused) {
    CAdvancedScanDlg& dialog = Make(kAdvancedBasic);
    GiveValues(dialog);
    Show();
    CFileTypeTabPage* fileTypes = Tab<CFileTypeTabPage>();
    QLineEdit* edit = qobject_cast<QLineEdit*>(ctl::Find(fileTypes, 1050));
    edit->setText("doc//xls");
    SelectTab(1);
    EXPECT_EQ(OnlyMessage(),
              "Configuration Error: You cannot leave this blank. Please type in a valid format. ");
    EXPECT_EQ(Tabs()->currentIndex(), 0);
    EXPECT_EQ(dialog.m_nCurrentTab, 0);
    EXPECT_TRUE(fileTypes->isVisible());
    EXPECT_EQ(Tab<CCompressTabPage>(), nullptr);
    EXPECT_EQ(edit->text(), "doc//xls");
    // Mended, the tab may be left.
    edit->setText("doc/xls");
    SelectTab(1);
    EXPECT_EQ(Tabs()->currentIndex(), 1);
    EXPECT_NE(Tab<CCompressTabPage>(), nullptr);
}

TEST_F(AdvancedScanDlgTest, OkWithAnInvalidTabKeepsTheDialogOpenOnIt) {
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    GiveValues(dialog);
    Show();
    Click(Tab<CFileTypeTabPage>(), 1059);
    SelectTab(3);
    CHarmfulTabPage* harmful = Tab<CHarmfulTabPage>();
    Click(harmful, 1097);  // no kind left, harmful programs still scanned
    Press(1);
    EXPECT_NE(OnlyMessage(), "");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), 0);
    EXPECT_EQ(dialog.m_nCurrentTab, 3);
    EXPECT_TRUE(harmful->isVisible());
    EXPECT_EQ(dialog.m_bChanged, 0);
    EXPECT_NE(dialog.m_dwOptions & kScanExecutables, 0U);
    Click(harmful, 1100);
    Press(1);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.m_dwOptions & kScanExecutables, 0U);
    EXPECT_EQ(dialog.m_dwHarmful, kHarmfulOther | 0x3U);
}

TEST_F(AdvancedScanDlgTest, EnterInAPageActsAsOk) {
    CAdvancedScanDlg& dialog = Make(kAdvancedBasic);
    GiveValues(dialog);
    Show();
    Click(Tab<CFileTypeTabPage>(), 1060);
    QLineEdit* edit = qobject_cast<QLineEdit*>(ctl::Find(Tab<CFileTypeTabPage>(), 1050));
    QTest::keyClick(edit, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.m_dwOptions & kScanMacros, 0U);
}

TEST_F(AdvancedScanDlgTest, TheSessionFlagsReachEachTab) {
    CAdvancedScanDlg& dialog = Make(kAdvancedSystemScan);
    dialog.m_dwFlags = DMF_Master;
    dialog.m_dwHarmful = kHarmfulAdware;
    Show();
    SelectTab(3);
    EXPECT_EQ(Tab<CHarmfulTabPage>()->GetFlags(), uint32_t{DMF_Master});
    EXPECT_FALSE(IsChecked(Tab<CHarmfulTabPage>(), 1099));
}

TEST_F(AdvancedScanDlgTest, ItRunsModallyAndGivesTheValuesBackAfterOk) {
    CAdvancedScanDlg& dialog = Make(kAdvancedBasic);
    GiveValues(dialog);
    DialogDriver driver([](QDialog* shown) {
        DialogDriver::Find<QAbstractButton>(shown, 1058)->click();
        DialogDriver::Find<QPushButton>(shown, 1)->click();
    });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(dialog.m_bChanged, 1);
    EXPECT_NE(dialog.m_dwOptions & kScanAllFiles, 0U);
}

TEST_F(AdvancedScanDlgTest, ARunAgainStartsWithItsTabsMadeAnew) {
    CAdvancedScanDlg& dialog = Open(kAdvancedBasic);
    SelectTab(1);
    Press(2);
    dialog.m_nVariant = kAdvancedFileTypesOnly;
    Show();
    EXPECT_EQ(TabCaptions(), (std::vector<std::string>{kFileTypesCaption}));
    EXPECT_EQ(dialog.m_nCurrentTab, 0);
    EXPECT_EQ(Tab<CCompressTabPage>(), nullptr);
}

// --- The share of each variant ------------------------------------------------

TEST(AdvancedScanShare, EachVariantSharesTheBitsOfItsTabs) {
    const uint32_t fileTypes = kScanAllFiles | kScanTypeKinds;
    const uint32_t compressed = kScanExeCompressed | kScanCompressed | kScanIncremental;
    EXPECT_EQ(AdvancedScanShareOf(kAdvancedBasic),
              (AdvancedScanShare{fileTypes | compressed, 0, true, true, 0}));
    EXPECT_EQ(
        AdvancedScanShareOf(kAdvancedSystemScan),
        (AdvancedScanShare{fileTypes | compressed | kScanHarmful,
                           kExtraUnshareFirst | kExtraCloseShells, true, true, kHarmfulKinds}));
    EXPECT_EQ(AdvancedScanShareOf(kAdvancedMonitor),
              (AdvancedScanShare{fileTypes | kScanFloppyBoot | kScanFloppyOnClose | kScanNtWarning,
                                 0xF, false, true, 0}));
    EXPECT_EQ(AdvancedScanShareOf(kAdvancedFileTypesOnly),
              (AdvancedScanShare{fileTypes, 0, false, true, 0}));
}

// Each tab's declared share is what its controls are bound to.
class AdvancedTabShareTest : public AdvancedScanTest {
protected:
    template <typename Page>
    AdvancedScanShare BoundShare() {
        const std::unique_ptr<Page> page = MakeTab<Page>({});
        AdvancedScanShare share;
        for (const auto& [address, bits] : page->Binder().OwnedWords()) {
            switch (address.key) {
                case CEK_ScanOptions: share.options |= bits; break;
                case CEK_ScanExtra: share.extra |= bits; break;
                case CEK_ScanArchive:
                case CEK_ScanArchiveKinds: share.archive = bits == kWholeWord; break;
                case CEK_MacroOptions: share.harmful |= bits; break;
                default: ADD_FAILURE() << "unexpected key " << address.key;
            }
        }
        share.extensions = !page->Binder().OwnedTexts().empty();
        return share;
    }
};

TEST_F(AdvancedTabShareTest, EachTabsShareIsWhatItsControlsAreBoundTo) {
    EXPECT_EQ(BoundShare<CCompressTabPage>(), CCompressTabPage::kShare);
    EXPECT_EQ(BoundShare<CFileTypeTabPage>(), CFileTypeTabPage::kShare);
    EXPECT_EQ(BoundShare<CScanMethodTabPage>(), CScanMethodTabPage::kShare);
    EXPECT_EQ(BoundShare<CScanOptionTabPage>(), CScanOptionTabPage::kShare);
    EXPECT_EQ(BoundShare<CHarmfulTabPage>(), CHarmfulTabPage::kShare);
}

}  // namespace
