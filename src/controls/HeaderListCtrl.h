#pragma once

// A list of rows with two columns and a small icon in front of each row: the
// first column takes three quarters of the width, the second the rest
// (integer division, kept when the list is resized). One row is selected at
// a time; rows are not sorted by the view, the caller gives them in order.

#include <QTreeWidget>
#include <string>

class CHeaderListCtrl : public QTreeWidget {
public:
    explicit CHeaderListCtrl(QWidget* parent = nullptr);

    // The two column titles.
    void SetColumns(const std::string& first, const std::string& second);

    // The index of the selected row; -1 when none is.
    int SelectedRow() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitColumns();
};
