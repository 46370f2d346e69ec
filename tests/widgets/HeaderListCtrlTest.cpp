// The two-column list: its titles, the three-quarters split of the width,
// kept on resize, and the selected row.

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTreeWidgetItem>

#include "controls/HeaderListCtrl.h"

TEST(HeaderListCtrl, TheFirstColumnTakesThreeQuartersOfTheWidth) {
    CHeaderListCtrl list;
    list.SetColumns("Items", "Use or not");
    list.resize(403, 200);
    list.show();
    const int width = list.viewport()->width();
    EXPECT_EQ(list.columnWidth(0), width * 3 / 4);
    EXPECT_EQ(list.columnWidth(1), width / 4);
    EXPECT_EQ(list.headerItem()->text(0), "Items");
    EXPECT_EQ(list.headerItem()->text(1), "Use or not");

    list.resize(600, 200);
    EXPECT_EQ(list.columnWidth(0), list.viewport()->width() * 3 / 4);
}

TEST(HeaderListCtrl, SelectedRowIsTheIndexOrMinusOne) {
    CHeaderListCtrl list;
    EXPECT_EQ(list.SelectedRow(), -1);
    new QTreeWidgetItem(&list, QStringList{"a", "Use"});
    auto* second = new QTreeWidgetItem(&list, QStringList{"b", "Use"});
    list.setCurrentItem(second);
    EXPECT_EQ(list.SelectedRow(), 1);
    list.clearSelection();
    EXPECT_EQ(list.SelectedRow(), -1);
}

TEST(HeaderListCtrl, OneRowAtATimeIsSelected) {
    CHeaderListCtrl list;
    EXPECT_EQ(list.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_FALSE(list.rootIsDecorated());
}
