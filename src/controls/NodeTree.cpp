#include "controls/NodeTree.h"

#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPersistentModelIndex>

namespace {

constexpr QPoint kDragHotSpot(7, 7);

bool StartsDrag(NodePart part) {
    return part == NodePart::kCheckBox || part == NodePart::kIcon || part == NodePart::kLabel;
}

}  // namespace

CNodeTree::CNodeTree(QWidget* parent) : QTreeWidget(parent), m_delegate(new NodeDelegate(this)) {
    setItemDelegate(m_delegate);
    setHeaderHidden(true);
}

NodePart CNodeTree::HitTest(const QPoint& point) const {
    const QTreeWidgetItem* node = itemAt(point);
    if (!node) return NodePart::kNowhere;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualItemRect(node);
    return m_delegate->PartAt(option, indexFromItem(node), point);
}

QTreeWidgetItem* CNodeTree::DragStartNode() const {
    return StartsDrag(HitTest(m_pressPoint)) ? itemAt(m_pressPoint) : nullptr;
}

QMimeData* CNodeTree::DragData(const QTreeWidgetItem*) const { return nullptr; }

Qt::DropActions CNodeTree::DragActions() const { return Qt::CopyAction; }

void CNodeTree::OnDragEnded(QTreeWidgetItem*, Qt::DropAction) {}

void CNodeTree::startDrag(Qt::DropActions) {
    QTreeWidgetItem* node = DragStartNode();
    QMimeData* mime = node ? DragData(node) : nullptr;
    if (!mime) return;
    setCurrentItem(node);
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    drag->setPixmap(viewport()->grab(visualItemRect(node)));
    drag->setHotSpot(kDragHotSpot);
    // The drag runs an event loop of its own: the node may be gone after it.
    const QPersistentModelIndex dragged(indexFromItem(node));
    const Qt::DropAction action = drag->exec(DragActions());
    if (dragged.isValid()) OnDragEnded(itemFromIndex(dragged), action);
}

void CNodeTree::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) m_pressPoint = event->position().toPoint();
    QTreeWidget::mousePressEvent(event);
}
