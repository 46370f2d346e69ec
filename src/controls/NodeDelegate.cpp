#include "controls/NodeDelegate.h"

#include <QApplication>
#include <QStyle>

namespace {

// Where the text of a node ends: the text's own width and the margins the
// style puts around it, not the rest of the row.
int LabelRight(const QStyleOptionViewItem& node, const QStyle* style) {
    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &node, node.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, node.widget) + 1;
    return text.left() + node.fontMetrics.horizontalAdvance(node.text) + 2 * margin;
}

}  // namespace

NodeDelegate::NodeDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

void NodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!m_checkBoxes) option->features &= ~QStyleOptionViewItem::HasCheckIndicator;
}

bool NodeDelegate::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                               const QModelIndex&) {
    return false;
}

NodePart NodeDelegate::PartAt(const QStyleOptionViewItem& option, const QModelIndex& index,
                              const QPoint& point) const {
    if (!index.isValid()) return NodePart::kNowhere;
    if (point.x() < option.rect.left()) return NodePart::kIndent;
    QStyleOptionViewItem node(option);
    initStyleOption(&node, index);
    const QStyle* style = node.widget ? node.widget->style() : QApplication::style();
    const auto holds = [&](QStyle::SubElement element) {
        return style->subElementRect(element, &node, node.widget).contains(point);
    };
    if ((node.features & QStyleOptionViewItem::HasCheckIndicator) &&
        holds(QStyle::SE_ItemViewItemCheckIndicator)) {
        return NodePart::kCheckBox;
    }
    if ((node.features & QStyleOptionViewItem::HasDecoration) &&
        holds(QStyle::SE_ItemViewItemDecoration)) {
        return NodePart::kIcon;
    }
    return point.x() <= LabelRight(node, style) ? NodePart::kLabel : NodePart::kRight;
}
