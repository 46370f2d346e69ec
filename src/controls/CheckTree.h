#pragma once

// A tree with three-state check boxes. Each node holds a check value:
//
//   0  no check box on this node
//   1  unticked
//   2  ticked
//   3  mixed: some descendants ticked
//
// A node has no check box until it is given a value. Setting a value is the
// whole change: the node, then its descendants that have a check box, then
// its ancestors, each of which counts its children anew. The values are
// kept whether or not the tree shows check boxes; while it does, a left
// click on a node's check box and the space bar on the current node toggle
// it.

#include "controls/NodeTree.h"

class CCheckTree : public CNodeTree {
    Q_OBJECT

public:
    enum CheckValue : int {
        kNoCheckBox = 0,
        kUnticked = 1,
        kTicked = 2,
        kMixed = 3,
    };

    explicit CCheckTree(QWidget* parent = nullptr);

    // Whether the check boxes are shown and answer clicks and the space bar;
    // off for a new tree.
    void SetCheckBoxes(bool shown);
    bool HasCheckBoxes() const;

    // The node's value; 0 for a null node.
    int GetCheck(const QTreeWidgetItem* node) const;

    // Gives node value, then every descendant that has a check box the same
    // value; for 1 and 2 each ancestor with a check box then takes the count
    // of its children: none ticked and none mixed 1, all ticked and none
    // mixed 2, anything else 3 (children without a check box count too). The
    // walk up ends at an ancestor without a check box. Answers 1; 0 for a
    // null node or a value outside 0 to 3, which change nothing.
    int SetCheck(QTreeWidgetItem* node, int value);

    // 1 becomes 2, and 2 or 3 becomes 1, as SetCheck does it. A node without
    // a check box is left alone. Answers 1 (0 when SetCheck does).
    int Toggle(QTreeWidgetItem* node);

protected:
    // Called when node expands, before a ticked node's children are ticked
    // again (children may have come since the node was ticked): a tree that
    // reads its children late reads them here.
    virtual void OnExpanding(QTreeWidgetItem* node);

    // Whether a left click on part of a node toggles it as well as going on
    // to the tree. A click on the check box toggles and goes no further
    // whatever this answers.
    virtual bool ClickToggles(NodePart part) const;

    // Gives node alone its value, relatives untouched.
    static void SetNodeValue(QTreeWidgetItem* node, int value);

    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OnExpanded(QTreeWidgetItem* node);
    // Toggles the node under point if a click there does; true when the
    // click ends here (it was on the check box).
    bool ToggleOnClick(const QPoint& point, bool onlyCheckBox);
    void SetDescendants(QTreeWidgetItem* node, int value);
    void CountUpward(QTreeWidgetItem* node);
    int CountedValue(const QTreeWidgetItem* parent) const;
};
