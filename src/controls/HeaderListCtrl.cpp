#include "controls/HeaderListCtrl.h"

#include <QHeaderView>

CHeaderListCtrl::CHeaderListCtrl(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(2);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSortingEnabled(false);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
}

void CHeaderListCtrl::SetColumns(const std::string& first, const std::string& second) {
    setHeaderLabels({QString::fromStdString(first), QString::fromStdString(second)});
    FitColumns();
}

int CHeaderListCtrl::SelectedRow() const {
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected.first());
}

void CHeaderListCtrl::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    FitColumns();
}

void CHeaderListCtrl::FitColumns() {
    const int width = viewport()->width();
    setColumnWidth(0, width * 3 / 4);
    setColumnWidth(1, width / 4);
}
