// "Compressed Files": the depth combo, the kinds list under its two radios,
// the controls that "Scan compressed files" enables, the incremental scan
// some callers do without, and what each user change marks.

#include <QComboBox>
#include <QHeaderView>

#include "AdvancedScanTest.h"
#include "controls/CheckListCtrl.h"
#include "options/ArchiveKinds.h"
#include "options/ScanBits.h"
#include "pages/scan/CompressTabPage.h"

namespace {

constexpr int kCompressed = 1051;
constexpr int kDepth = 1054;
constexpr int kExeCompressed = 1052;
constexpr int kIncremental = 1055;
constexpr int kAllKinds = 1056;
constexpr int kListedKinds = 1057;
constexpr int kKindsList = 1047;

class CompressTabTest : public AdvancedScanTest {
protected:
    CCompressTabPage& Make(uint32_t options, uint32_t depth, uint32_t kinds,
                           bool noIncremental = false) {
        AdvancedScanValues values;
        values.options = options;
        values.depth = depth;
        values.kinds = kinds;
        values.noIncremental = noIncremental;
        m_page = MakeTab<CCompressTabPage>(values);
        return *m_page;
    }
    QComboBox* Depth() const { return qobject_cast<QComboBox*>(ctl::Find(m_page.get(), kDepth)); }
    CCheckListCtrl* Kinds() const {
        return qobject_cast<CCheckListCtrl*>(ctl::Find(m_page.get(), kKindsList));
    }
    uint32_t CheckedRows() const {
        uint32_t rows = 0;
        for (int row = 0; row < Kinds()->RowCount(); ++row) {
            if (Kinds()->IsRowChecked(row)) rows |= uint32_t{1} << row;
        }
        return rows;
    }
    const AdvancedScanValues& Saved() const {
        m_page->Save();
        return m_page->Values();
    }

    std::unique_ptr<CCompressTabPage> m_page;
};

TEST_F(CompressTabTest, TheDepthComboOffersUnlimitedAndOneToTen) {
    Make(kScanCompressed, 4, kAllArchiveKinds);
    ASSERT_EQ(Depth()->count(), 11);
    EXPECT_EQ(Depth()->itemText(0), "Unlimited");
    for (int level = 1; level <= 10; ++level)
        EXPECT_EQ(Depth()->itemText(level), QString::number(level));
    EXPECT_EQ(Depth()->currentIndex(), 4);
}

TEST_F(CompressTabTest, ADepthAboveTenShowsUnlimitedAndIsStoredZeroAtTheNextOk) {
    CAdvancedScanDlg& dialog = AdvancedScanTest::Make(kAdvancedBasic);
    dialog.m_dwOptions = kScanCompressed;
    dialog.m_nDepth = 11;
    dialog.m_dwKinds = kAllArchiveKinds;
    Show();
    SelectTab(1);
    CCompressTabPage* page = Tab<CCompressTabPage>();
    EXPECT_EQ(qobject_cast<QComboBox*>(ctl::Find(page, kDepth))->currentText(), "Unlimited");
    Click(page, kExeCompressed);
    Press(1);
    EXPECT_EQ(dialog.m_nDepth, 0);
}

TEST_F(CompressTabTest, TheKindsListHasARowForEachKindInAColumnFitForFourWs) {
    Make(kScanCompressed, 0, 0);
    ASSERT_EQ(Kinds()->RowCount(), kArchiveKindRows);
    EXPECT_EQ(Kinds()->RowText(0), "Ace");
    EXPECT_EQ(Kinds()->RowText(19), "Rar");
    EXPECT_EQ(Kinds()->RowText(26), "SFX");
    EXPECT_EQ(Kinds()->columnWidth(0), Kinds()->fontMetrics().horizontalAdvance("WWWW") + 22);
}

TEST_F(CompressTabTest, AllKindsShowEveryRowCheckedUnderAllCompressedFileTypes) {
    Make(kScanCompressed, 0, kAllArchiveKinds);
    EXPECT_TRUE(IsChecked(m_page.get(), kAllKinds));
    EXPECT_FALSE(IsChecked(m_page.get(), kListedKinds));
    EXPECT_EQ(CheckedRows(), kArchiveKindRowBits);
    EXPECT_FALSE(Kinds()->isEnabled());
}

TEST_F(CompressTabTest, AnyOtherKindsChooseTheListAndCheckTheRowsByTheirBits) {
    for (uint32_t kinds : {0U, 0x5U, 0x7FFFFFFU, 0x80000001U}) {
        Make(kScanCompressed, 0, kinds);
        EXPECT_FALSE(IsChecked(m_page.get(), kAllKinds)) << kinds;
        EXPECT_TRUE(IsChecked(m_page.get(), kListedKinds)) << kinds;
        EXPECT_EQ(CheckedRows(), kinds & kArchiveKindRowBits) << kinds;
        EXPECT_TRUE(Kinds()->isEnabled()) << kinds;
    }
}

TEST_F(CompressTabTest, CollectingUnderAllCompressedFileTypesGivesAllKindsWhateverTheRows) {
    Make(kScanCompressed, 0, 0x5);
    Click(m_page.get(), kAllKinds);
    EXPECT_FALSE(Kinds()->isEnabled());
    EXPECT_EQ(Saved().kinds, kAllArchiveKinds);
}

TEST_F(CompressTabTest, TheListRadioSavesTheCheckedRows) {
    Make(kScanCompressed, 0, kAllArchiveKinds);
    Click(m_page.get(), kListedKinds);
    EXPECT_TRUE(Kinds()->isEnabled());
    for (int row = 0; row < kArchiveKindRows; ++row) Kinds()->SetRowChecked(row, row % 2 == 1);
    EXPECT_EQ(Saved().kinds, 0x2AAAAAAU);
}

TEST_F(CompressTabTest, ScanCompressedFilesEnablesTheControlsUpToTheList) {
    Make(0, 0, 0x1);
    for (int id : {kDepth, kExeCompressed, kIncremental, kAllKinds, kListedKinds, kKindsList})
        EXPECT_FALSE(IsEnabled(m_page.get(), id)) << id;
    Click(m_page.get(), kCompressed);
    for (int id : {kDepth, kExeCompressed, kIncremental, kAllKinds, kListedKinds, kKindsList})
        EXPECT_TRUE(IsEnabled(m_page.get(), id)) << id;
    // A disabled list keeps its rows.
    Click(m_page.get(), kCompressed);
    EXPECT_EQ(CheckedRows(), 0x1U);
}

TEST_F(CompressTabTest, SaveWritesItsBitsDepthAndKindsAndKeepsTheRest) {
    Make(~kScanExeCompressed, 2, kAllArchiveKinds);
    Click(m_page.get(), kExeCompressed);
    Depth()->setCurrentIndex(7);
    const AdvancedScanValues& saved = Saved();
    EXPECT_EQ(saved.options, 0xFFFFFFFFU);
    EXPECT_EQ(saved.depth, 7U);
    EXPECT_EQ(saved.kinds, kAllArchiveKinds);
}

TEST_F(CompressTabTest, WithoutIncrementalScanTheBoxIsHiddenAndItsBitSavedClear) {
    Make(kScanCompressed | kScanIncremental, 0, kAllArchiveKinds, true);
    EXPECT_FALSE(IsShown(m_page.get(), kIncremental));
    Click(m_page.get(), kExeCompressed);
    EXPECT_EQ(Saved().options, kScanCompressed | kScanExeCompressed);
}

TEST_F(CompressTabTest, WithIncrementalScanTheBoxShowsAndKeepsItsBit) {
    Make(kScanCompressed | kScanIncremental, 0, kAllArchiveKinds);
    EXPECT_TRUE(IsShown(m_page.get(), kIncremental));
    EXPECT_TRUE(IsChecked(m_page.get(), kIncremental));
    EXPECT_EQ(Saved().options, kScanCompressed | kScanIncremental);
}

TEST_F(CompressTabTest, TheDialogHidesIncrementalScanForItsCaller) {
    CAdvancedScanDlg& dialog = AdvancedScanTest::Make(kAdvancedBasic, 1);
    dialog.m_dwOptions = kScanCompressed | kScanIncremental;
    Show();
    SelectTab(1);
    EXPECT_FALSE(IsShown(Tab<CCompressTabPage>(), kIncremental));
    Click(Tab<CCompressTabPage>(), kExeCompressed);
    Press(1);
    EXPECT_EQ(dialog.m_dwOptions, kScanCompressed | kScanExeCompressed);
}

TEST_F(CompressTabTest, EachUserChangeMarksTheTab) {
    for (int id : {kCompressed, kExeCompressed, kIncremental}) {
        Make(kScanCompressed, 0, 0x1);
        Click(m_page.get(), id);
        EXPECT_EQ(m_page->IsModified(), 1) << id;
    }
    Make(kScanCompressed, 0, 0x1);
    emit Depth()->activated(3);
    EXPECT_EQ(m_page->IsModified(), 1);
    Make(kScanCompressed, 0, 0x1);
    Click(m_page.get(), kListedKinds);  // on already
    EXPECT_EQ(m_page->IsModified(), 0);
    Click(m_page.get(), kAllKinds);
    EXPECT_EQ(m_page->IsModified(), 1);
    Make(kScanCompressed, 0, 0x1);
    Kinds()->SetRowChecked(2, true);
    EXPECT_EQ(m_page->IsModified(), 0);
    emit Kinds()->rowCheckChanged(2);
    EXPECT_EQ(m_page->IsModified(), 1);
}

}  // namespace
