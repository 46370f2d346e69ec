#pragma once

// A list of rows of one column, without a header, with a check box in front
// of each row. Rows are added in order and keep it. A user's click on a
// row's check box, or the space bar on the current row, toggles its check
// and reports the row by rowCheckChanged; setting a check from code reports
// nothing. A disabled list keeps its checks and takes no input.

#include <QString>
#include <QTreeWidget>
#include <vector>

class CCheckListCtrl : public QTreeWidget {
    Q_OBJECT

public:
    explicit CCheckListCtrl(QWidget* parent = nullptr);

    // Appends a row, unchecked; returns its index.
    int AddRow(const QString& text);
    // Removes every row.
    void ClearRows();
    int RowCount() const;
    QString RowText(int row) const;

    // Rows outside the list are ignored (read as unchecked).
    void SetRowChecked(int row, bool checked);
    bool IsRowChecked(int row) const;

    // The width of the column, in pixels; the rows are cut at it.
    void FitColumnTo(int width);
    // A column width for rows as wide as sample plus extra pixels (room for
    // the check box and the margins), in the list's font.
    int ColumnWidthFor(const QString& sample, int extra) const;

signals:
    void rowCheckChanged(int row);

private:
    void OnItemChanged(QTreeWidgetItem* item);

    // The check of each row as last known, so that a change of an item's
    // other data is no change of its check.
    std::vector<bool> m_checks;
};
