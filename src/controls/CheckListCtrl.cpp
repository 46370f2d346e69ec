#include "controls/CheckListCtrl.h"

#include <QFontMetrics>
#include <QHeaderView>

namespace {

Qt::CheckState StateOf(bool checked) { return checked ? Qt::Checked : Qt::Unchecked; }

}  // namespace

CCheckListCtrl::CCheckListCtrl(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(1);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setSortingEnabled(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemChanged, this, &CCheckListCtrl::OnItemChanged);
}

int CCheckListCtrl::AddRow(const QString& text) {
    // Known before the item exists, so that making it is no change.
    m_checks.push_back(false);
    auto* item = new QTreeWidgetItem(QStringList{text});
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(0, Qt::Unchecked);
    addTopLevelItem(item);
    return RowCount() - 1;
}

void CCheckListCtrl::ClearRows() {
    clear();
    m_checks.clear();
}

int CCheckListCtrl::RowCount() const { return topLevelItemCount(); }

QString CCheckListCtrl::RowText(int row) const {
    const QTreeWidgetItem* item = topLevelItem(row);
    return item ? item->text(0) : QString();
}

void CCheckListCtrl::SetRowChecked(int row, bool checked) {
    QTreeWidgetItem* item = topLevelItem(row);
    if (!item) return;
    m_checks[static_cast<size_t>(row)] = checked;
    item->setCheckState(0, StateOf(checked));
}

bool CCheckListCtrl::IsRowChecked(int row) const {
    const QTreeWidgetItem* item = topLevelItem(row);
    return item && item->checkState(0) == Qt::Checked;
}

void CCheckListCtrl::FitColumnTo(int width) { setColumnWidth(0, width); }

int CCheckListCtrl::ColumnWidthFor(const QString& sample, int extra) const {
    return fontMetrics().horizontalAdvance(sample) + extra;
}

void CCheckListCtrl::OnItemChanged(QTreeWidgetItem* item) {
    const int row = indexOfTopLevelItem(item);
    if (row < 0 || static_cast<size_t>(row) >= m_checks.size()) return;
    const bool checked = item->checkState(0) == Qt::Checked;
    if (checked == m_checks[static_cast<size_t>(row)]) return;
    // Only the view changes a check without SetRowChecked: the user did.
    m_checks[static_cast<size_t>(row)] = checked;
    emit rowCheckChanged(row);
}
