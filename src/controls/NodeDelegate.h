#pragma once

// How the program's trees paint a node, and which part of a node a point is
// on, as the platform's tree control answers a hit test. A node's check
// value (Qt::CheckStateRole) is painted as the style's check box indicator
// while the tree shows check boxes, and not at all otherwise.

#include <QStyledItemDelegate>

// The part of a node under a point.
enum class NodePart {
    kNowhere,   // no node there
    kIndent,    // left of the node: its indent and branch sign
    kCheckBox,  // the check box indicator
    kIcon,
    kLabel,  // the text
    kRight,  // right of the text
};

class NodeDelegate : public QStyledItemDelegate {
public:
    explicit NodeDelegate(QObject* parent);

    void SetCheckBoxes(bool shown) { m_checkBoxes = shown; }
    bool CheckBoxes() const { return m_checkBoxes; }

    // The part of the node at index under point. option is the view's
    // option for the node, its rect the node's visual rect.
    NodePart PartAt(const QStyleOptionViewItem& option, const QModelIndex& index,
                    const QPoint& point) const;

    // The tree toggles check boxes by its own rules, never the delegate.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    bool m_checkBoxes = false;
};
