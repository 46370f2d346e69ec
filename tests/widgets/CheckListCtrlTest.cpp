// The check list: rows in order with a check box each, checks set by code
// without a report, a user's click or space bar reported by row, the column
// width, and a disabled list that keeps its checks.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidgetItem>

#include "controls/CheckListCtrl.h"

namespace {

class CheckListCtrlTest : public testing::Test {
protected:
    CheckListCtrlTest() : spy(&list, &CCheckListCtrl::rowCheckChanged) {
        for (const char* text : {"Ace", "Alz", "Arc"}) list.AddRow(text);
        list.resize(200, 150);
        list.show();
        QApplication::processEvents();
    }

    // A point inside the row's check box, which stands at the row's left.
    QPoint CheckBoxPoint(int row) const {
        const QRect rect = list.visualItemRect(list.topLevelItem(row));
        return {rect.left() + 8, rect.center().y()};
    }
    // A point on the row's text, right of its check box.
    QPoint TextPoint(int row) const {
        const QRect rect = list.visualItemRect(list.topLevelItem(row));
        return {rect.left() + 40, rect.center().y()};
    }
    void ClickCheckBox(int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, CheckBoxPoint(row));
    }
    // The rows that were reported, in order.
    std::vector<int> Reported() const {
        std::vector<int> rows;
        for (const QList<QVariant>& call : spy) rows.push_back(call.at(0).toInt());
        return rows;
    }

    CCheckListCtrl list;
    QSignalSpy spy;
};

TEST_F(CheckListCtrlTest, RowsStandInTheOrderAddedUncheckedInOneColumnWithoutHeader) {
    EXPECT_EQ(list.RowCount(), 3);
    EXPECT_EQ(list.RowText(0), "Ace");
    EXPECT_EQ(list.RowText(2), "Arc");
    EXPECT_EQ(list.RowText(3), "");
    EXPECT_EQ(list.AddRow("Arj"), 3);
    for (int row = 0; row < list.RowCount(); ++row) EXPECT_FALSE(list.IsRowChecked(row)) << row;
    EXPECT_EQ(list.columnCount(), 1);
    EXPECT_TRUE(list.isHeaderHidden());
    EXPECT_FALSE(list.rootIsDecorated());
}

TEST_F(CheckListCtrlTest, ChecksSetByCodeAreKeptAndNotReported) {
    list.SetRowChecked(1, true);
    list.SetRowChecked(2, true);
    list.SetRowChecked(2, false);
    EXPECT_FALSE(list.IsRowChecked(0));
    EXPECT_TRUE(list.IsRowChecked(1));
    EXPECT_FALSE(list.IsRowChecked(2));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(CheckListCtrlTest, RowsOutsideTheListAreIgnored) {
    list.SetRowChecked(-1, true);
    list.SetRowChecked(3, true);
    EXPECT_FALSE(list.IsRowChecked(-1));
    EXPECT_FALSE(list.IsRowChecked(3));
    EXPECT_EQ(list.RowCount(), 3);
}

TEST_F(CheckListCtrlTest, AClickOnACheckBoxTogglesItsRowAndReportsIt) {
    ClickCheckBox(1);
    EXPECT_TRUE(list.IsRowChecked(1));
    ClickCheckBox(1);
    EXPECT_FALSE(list.IsRowChecked(1));
    ClickCheckBox(2);
    EXPECT_EQ(Reported(), (std::vector<int>{1, 1, 2}));
}

TEST_F(CheckListCtrlTest, AClickOnTheTextSelectsWithoutToggling) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, TextPoint(0));
    EXPECT_FALSE(list.IsRowChecked(0));
    EXPECT_EQ(list.currentItem(), list.topLevelItem(0));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(CheckListCtrlTest, TheSpaceBarTogglesTheCurrentRow) {
    list.setFocus();
    list.setCurrentItem(list.topLevelItem(2));
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_TRUE(list.IsRowChecked(2));
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(list.IsRowChecked(2));
    EXPECT_EQ(Reported(), (std::vector<int>{2, 2}));
}

TEST_F(CheckListCtrlTest, AChangeOfARowsTextIsNoChangeOfItsCheck) {
    list.SetRowChecked(0, true);
    list.topLevelItem(0)->setText(0, "ACE");
    EXPECT_TRUE(list.IsRowChecked(0));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(CheckListCtrlTest, ADisabledListKeepsItsChecksAndTakesNoClick) {
    list.SetRowChecked(0, true);
    list.setEnabled(false);
    EXPECT_TRUE(list.IsRowChecked(0));
    ClickCheckBox(0);
    ClickCheckBox(1);
    EXPECT_TRUE(list.IsRowChecked(0));
    EXPECT_FALSE(list.IsRowChecked(1));
    list.setEnabled(true);
    EXPECT_TRUE(list.IsRowChecked(0));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(CheckListCtrlTest, TheColumnIsAsWideAsAskedAndASampleTextMeasuresIt) {
    const int width = list.ColumnWidthFor("WWWW", 22);
    EXPECT_EQ(width, list.fontMetrics().horizontalAdvance("WWWW") + 22);
    EXPECT_GT(width, list.ColumnWidthFor("W", 22));
    list.FitColumnTo(width);
    EXPECT_EQ(list.columnWidth(0), width);
}

TEST_F(CheckListCtrlTest, ClearedRowsStartAnewUnchecked) {
    list.SetRowChecked(0, true);
    list.ClearRows();
    EXPECT_EQ(list.RowCount(), 0);
    list.AddRow("Zip");
    EXPECT_FALSE(list.IsRowChecked(0));
    ClickCheckBox(0);
    EXPECT_EQ(Reported(), (std::vector<int>{0}));
}

}  // namespace
