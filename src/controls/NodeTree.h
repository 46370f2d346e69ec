#pragma once

// The base of the program's trees: a node answers a hit test by part (check
// box, icon, label, indent, right of it), as the platform's tree control
// does, and a drag starts only from a node's check box, icon or label, with
// the data the tree gives for that node.

#include <QTreeWidget>

#include "controls/NodeDelegate.h"

class QMimeData;

class CNodeTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit CNodeTree(QWidget* parent = nullptr);

    // The part of the node under point (viewport coordinates).
    NodePart HitTest(const QPoint& point) const;

    // The data a drag of node carries; null when node does not drag. None
    // here.
    virtual QMimeData* DragData(const QTreeWidgetItem* node) const;

protected:
    NodeDelegate* Delegate() const { return m_delegate; }

    // What a drop may do with the data of a drag; copy here.
    virtual Qt::DropActions DragActions() const;
    // After a drag of node ended with action; nothing here.
    virtual void OnDragEnded(QTreeWidgetItem* node, Qt::DropAction action);

    void mousePressEvent(QMouseEvent* event) override;
    // Drags the node the last left press was on, when the press was on its
    // check box, icon or label and the node drags: it is selected and
    // dragged with a picture of it, held at (7, 7).
    void startDrag(Qt::DropActions supportedActions) override;

private:
    QTreeWidgetItem* DragStartNode() const;

    NodeDelegate* m_delegate;
    QPoint m_pressPoint;
};
