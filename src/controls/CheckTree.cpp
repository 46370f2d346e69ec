#include "controls/CheckTree.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace {

// The values as check states of the model; 0 is no check state at all.
Qt::CheckState StateOf(int value) {
    switch (value) {
        case CCheckTree::kTicked: return Qt::Checked;
        case CCheckTree::kMixed: return Qt::PartiallyChecked;
        default: return Qt::Unchecked;
    }
}

int ValueOf(Qt::CheckState state) {
    switch (state) {
        case Qt::Checked: return CCheckTree::kTicked;
        case Qt::PartiallyChecked: return CCheckTree::kMixed;
        default: return CCheckTree::kUnticked;
    }
}

bool IsCheckValue(int value) {
    return value >= CCheckTree::kNoCheckBox && value <= CCheckTree::kMixed;
}

}  // namespace

CCheckTree::CCheckTree(QWidget* parent) : CNodeTree(parent) {
    connect(this, &QTreeWidget::itemExpanded, this, &CCheckTree::OnExpanded);
}

void CCheckTree::SetCheckBoxes(bool shown) {
    Delegate()->SetCheckBoxes(shown);
    // The indicator changes the nodes' sizes as well as their pictures.
    scheduleDelayedItemsLayout();
    viewport()->update();
}

bool CCheckTree::HasCheckBoxes() const { return Delegate()->CheckBoxes(); }

int CCheckTree::GetCheck(const QTreeWidgetItem* node) const {
    if (!node) return kNoCheckBox;
    const QVariant state = node->data(0, Qt::CheckStateRole);
    if (!state.isValid()) return kNoCheckBox;
    return ValueOf(static_cast<Qt::CheckState>(state.toInt()));
}

void CCheckTree::SetNodeValue(QTreeWidgetItem* node, int value) {
    if (value == kNoCheckBox) {
        node->setData(0, Qt::CheckStateRole, QVariant());
        return;
    }
    node->setData(0, Qt::CheckStateRole, static_cast<int>(StateOf(value)));
}

int CCheckTree::SetCheck(QTreeWidgetItem* node, int value) {
    if (!node || !IsCheckValue(value)) return 0;
    SetNodeValue(node, value);
    SetDescendants(node, value);
    if (value == kUnticked || value == kTicked) CountUpward(node);
    return 1;
}

void CCheckTree::SetDescendants(QTreeWidgetItem* node, int value) {
    for (int i = 0; i < node->childCount(); ++i) {
        QTreeWidgetItem* child = node->child(i);
        if (GetCheck(child) != kNoCheckBox) SetNodeValue(child, value);
        SetDescendants(child, value);
    }
}

void CCheckTree::CountUpward(QTreeWidgetItem* node) {
    for (QTreeWidgetItem* parent = node->parent(); parent && GetCheck(parent) != kNoCheckBox;
         parent = parent->parent()) {
        SetNodeValue(parent, CountedValue(parent));
    }
}

int CCheckTree::CountedValue(const QTreeWidgetItem* parent) const {
    const int all = parent->childCount();
    int ticked = 0;
    int mixed = 0;
    for (int i = 0; i < all; ++i) {
        const int value = GetCheck(parent->child(i));
        if (value == kTicked) ++ticked;
        if (value == kMixed) ++mixed;
    }
    if (ticked == 0 && mixed == 0) return kUnticked;
    if (ticked == all && mixed == 0) return kTicked;
    return kMixed;
}

int CCheckTree::Toggle(QTreeWidgetItem* node) {
    const int value = GetCheck(node);
    if (value == kNoCheckBox) return 1;
    return SetCheck(node, value == kUnticked ? kTicked : kUnticked);
}

void CCheckTree::OnExpanding(QTreeWidgetItem*) {}

bool CCheckTree::ClickToggles(NodePart) const { return false; }

void CCheckTree::OnExpanded(QTreeWidgetItem* node) {
    OnExpanding(node);
    if (GetCheck(node) == kTicked) SetCheck(node, kTicked);
}

bool CCheckTree::ToggleOnClick(const QPoint& point, bool onlyCheckBox) {
    if (!HasCheckBoxes()) return false;
    const NodePart part = HitTest(point);
    if (part == NodePart::kCheckBox) {
        Toggle(itemAt(point));
        return true;
    }
    if (!onlyCheckBox && ClickToggles(part)) Toggle(itemAt(point));
    return false;
}

void CCheckTree::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && ToggleOnClick(event->position().toPoint(), false)) {
        return;
    }
    CNodeTree::mousePressEvent(event);
}

// A second quick click on a check box toggles again, as two clicks do; on
// the rest of the node it is the tree's double click.
void CCheckTree::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && ToggleOnClick(event->position().toPoint(), true)) {
        return;
    }
    CNodeTree::mouseDoubleClickEvent(event);
}

void CCheckTree::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && HasCheckBoxes() && currentItem()) {
        Toggle(currentItem());
        return;
    }
    CNodeTree::keyPressEvent(event);
}
