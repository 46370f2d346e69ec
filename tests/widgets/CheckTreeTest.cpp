// The three-state check tree: a node's value, the change of a value through
// its descendants and ancestors, toggling, ticking again on expansion, and
// the clicks, keys and pictures of its check boxes.

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <memory>

#include "controls/CheckTree.h"

namespace {

constexpr int kNone = CCheckTree::kNoCheckBox;
constexpr int kOff = CCheckTree::kUnticked;
constexpr int kOn = CCheckTree::kTicked;
constexpr int kMixedValue = CCheckTree::kMixed;

class CheckTreeTest : public testing::Test {
protected:
    // A node under parent (null: the top level) with value, given to it
    // alone, as a tree is built before the user acts on it.
    QTreeWidgetItem* Node(QTreeWidgetItem* parent, const char* text, int value) {
        auto* node = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(&tree);
        node->setText(0, text);
        // A value given top-down to a fresh node: its own children do not
        // exist yet, its parent is counted again by the next one.
        if (value != kNone) node->setData(0, Qt::CheckStateRole, StateFor(value));
        return node;
    }

    static int StateFor(int value) {
        return value == kOn           ? Qt::Checked
               : value == kMixedValue ? Qt::PartiallyChecked
                                      : Qt::Unchecked;
    }

    // Shows the tree with its check boxes and lays it out.
    void ShowWithCheckBoxes() {
        tree.SetCheckBoxes(true);
        tree.resize(300, 200);
        tree.expandAll();
        tree.show();
        QApplication::processEvents();
    }

    // A point inside node's check box: the indicator stands at the left of
    // the node, before its text.
    QPoint CheckBoxPoint(const QTreeWidgetItem* node) const {
        const QRect rect = tree.visualItemRect(node);
        return {rect.left() + 8, rect.center().y()};
    }

    // A point on node's text, well right of the check box.
    QPoint LabelPoint(const QTreeWidgetItem* node) const {
        const QRect rect = tree.visualItemRect(node);
        return {rect.left() + 40, rect.center().y()};
    }

    void Press(const QPoint& point) {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, point);
    }

    CCheckTree tree;
};

}  // namespace

TEST_F(CheckTreeTest, ANodeHasNoCheckBoxUntilItIsGivenAValue) {
    QTreeWidgetItem* node = Node(nullptr, "a", kNone);
    EXPECT_EQ(tree.GetCheck(node), kNone);
    EXPECT_EQ(tree.GetCheck(nullptr), kNone);
    EXPECT_EQ(tree.SetCheck(node, kMixedValue), 1);
    EXPECT_EQ(tree.GetCheck(node), kMixedValue);
    EXPECT_EQ(tree.SetCheck(node, kNone), 1);
    EXPECT_EQ(tree.GetCheck(node), kNone);
}

TEST_F(CheckTreeTest, NullNodesAndValuesOutsideTheRangeChangeNothing) {
    QTreeWidgetItem* node = Node(nullptr, "a", kOff);
    EXPECT_EQ(tree.SetCheck(nullptr, kOn), 0);
    EXPECT_EQ(tree.SetCheck(node, 4), 0);
    EXPECT_EQ(tree.SetCheck(node, -1), 0);
    EXPECT_EQ(tree.GetCheck(node), kOff);
}

TEST_F(CheckTreeTest, TickingTheLastUntickedChildTicksTheMixedParentsUpward) {
    QTreeWidgetItem* top = Node(nullptr, "top", kMixedValue);
    QTreeWidgetItem* parent = Node(top, "parent", kMixedValue);
    Node(top, "ticked sibling", kOn);
    Node(parent, "ticked child", kOn);
    QTreeWidgetItem* last = Node(parent, "last", kOff);

    EXPECT_EQ(tree.SetCheck(last, kOn), 1);
    EXPECT_EQ(tree.GetCheck(last), kOn);
    EXPECT_EQ(tree.GetCheck(parent), kOn);
    EXPECT_EQ(tree.GetCheck(top), kOn);
}

TEST_F(CheckTreeTest, UntickingOneChildOfATickedParentMakesItMixed) {
    QTreeWidgetItem* top = Node(nullptr, "top", kOn);
    QTreeWidgetItem* parent = Node(top, "parent", kOn);
    QTreeWidgetItem* first = Node(parent, "first", kOn);
    Node(parent, "second", kOn);

    tree.SetCheck(first, kOff);
    EXPECT_EQ(tree.GetCheck(parent), kMixedValue);
    EXPECT_EQ(tree.GetCheck(top), kMixedValue);
}

TEST_F(CheckTreeTest, UntickingEveryChildUnticksTheParent) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kMixedValue);
    QTreeWidgetItem* child = Node(parent, "child", kOn);
    Node(parent, "other", kOff);
    tree.SetCheck(child, kOff);
    EXPECT_EQ(tree.GetCheck(parent), kOff);
}

TEST_F(CheckTreeTest, AMixedChildKeepsItsParentMixed) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kOff);
    Node(parent, "mixed", kMixedValue);
    QTreeWidgetItem* child = Node(parent, "child", kOff);
    tree.SetCheck(child, kOn);
    EXPECT_EQ(tree.GetCheck(parent), kMixedValue);
}

TEST_F(CheckTreeTest, ANodeWithoutCheckBoxIsLeftAloneButCounted) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kOff);
    QTreeWidgetItem* plain = Node(parent, "plain", kNone);
    QTreeWidgetItem* grandchild = Node(plain, "below plain", kOff);
    QTreeWidgetItem* child = Node(parent, "child", kOff);

    tree.SetCheck(parent, kOn);
    EXPECT_EQ(tree.GetCheck(plain), kNone);
    EXPECT_EQ(tree.GetCheck(child), kOn);
    // The walk down goes on below a node without a check box.
    EXPECT_EQ(tree.GetCheck(grandchild), kOn);

    // Every child with a check box is ticked, but the plain one counts: the
    // parent is mixed, not ticked.
    tree.SetCheck(child, kOn);
    EXPECT_EQ(tree.GetCheck(parent), kMixedValue);
}

TEST_F(CheckTreeTest, TheWalkUpEndsAtAParentWithoutCheckBox) {
    QTreeWidgetItem* above = Node(nullptr, "above", kOff);
    QTreeWidgetItem* plain = Node(above, "plain", kNone);
    QTreeWidgetItem* parent = Node(plain, "parent", kOff);
    QTreeWidgetItem* child = Node(parent, "child", kOff);

    tree.SetCheck(child, kOn);
    EXPECT_EQ(tree.GetCheck(parent), kOn);
    EXPECT_EQ(tree.GetCheck(plain), kNone);
    EXPECT_EQ(tree.GetCheck(above), kOff);
}

TEST_F(CheckTreeTest, OnlyTickingAndUntickingCountTheAncestorsAgain) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kOff);
    QTreeWidgetItem* child = Node(parent, "child", kOff);
    QTreeWidgetItem* grandchild = Node(child, "grandchild", kOff);
    Node(parent, "other", kOff);

    tree.SetCheck(child, kMixedValue);
    EXPECT_EQ(tree.GetCheck(child), kMixedValue);
    EXPECT_EQ(tree.GetCheck(grandchild), kMixedValue);
    EXPECT_EQ(tree.GetCheck(parent), kOff);
}

TEST_F(CheckTreeTest, ToggleTicksAnUntickedNodeAndUnticksTheOthers) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kOff);
    QTreeWidgetItem* child = Node(parent, "child", kOff);

    EXPECT_EQ(tree.Toggle(parent), 1);
    EXPECT_EQ(tree.GetCheck(parent), kOn);
    EXPECT_EQ(tree.GetCheck(child), kOn);
    EXPECT_EQ(tree.Toggle(parent), 1);
    EXPECT_EQ(tree.GetCheck(parent), kOff);
    EXPECT_EQ(tree.GetCheck(child), kOff);
}

TEST_F(CheckTreeTest, ToggleOnAMixedNodeUnticksIt) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kMixedValue);
    QTreeWidgetItem* ticked = Node(parent, "ticked", kOn);
    Node(parent, "unticked", kOff);

    EXPECT_EQ(tree.Toggle(parent), 1);
    EXPECT_EQ(tree.GetCheck(parent), kOff);
    EXPECT_EQ(tree.GetCheck(ticked), kOff);
}

TEST_F(CheckTreeTest, ToggleLeavesANodeWithoutCheckBoxAlone) {
    QTreeWidgetItem* plain = Node(nullptr, "plain", kNone);
    QTreeWidgetItem* child = Node(plain, "child", kOff);
    EXPECT_EQ(tree.Toggle(plain), 1);
    EXPECT_EQ(tree.GetCheck(plain), kNone);
    EXPECT_EQ(tree.GetCheck(child), kOff);
}

TEST_F(CheckTreeTest, ExpandingATickedNodeTicksItsChildrenAgain) {
    QTreeWidgetItem* ticked = Node(nullptr, "ticked", kOff);
    tree.SetCheck(ticked, kOn);
    // A child that came after the node was ticked.
    QTreeWidgetItem* late = Node(ticked, "late", kOff);
    QTreeWidgetItem* plain = Node(ticked, "plain", kNone);
    QTreeWidgetItem* unticked = Node(nullptr, "unticked", kOff);
    QTreeWidgetItem* other = Node(unticked, "other", kOff);

    tree.expandItem(ticked);
    tree.expandItem(unticked);
    EXPECT_EQ(tree.GetCheck(late), kOn);
    EXPECT_EQ(tree.GetCheck(plain), kNone);
    EXPECT_EQ(tree.GetCheck(other), kOff);
}

TEST_F(CheckTreeTest, AClickOnTheCheckBoxTogglesAndSelectsNothing) {
    QTreeWidgetItem* first = Node(nullptr, "first node", kOff);
    QTreeWidgetItem* second = Node(nullptr, "second node", kOff);
    ShowWithCheckBoxes();
    tree.setCurrentItem(first);

    EXPECT_EQ(tree.HitTest(CheckBoxPoint(second)), NodePart::kCheckBox);
    Press(CheckBoxPoint(second));
    EXPECT_EQ(tree.GetCheck(second), kOn);
    EXPECT_EQ(tree.currentItem(), first);
    Press(CheckBoxPoint(second));
    EXPECT_EQ(tree.GetCheck(second), kOff);
}

TEST_F(CheckTreeTest, AClickOnTheTextGoesOnToTheTree) {
    Node(nullptr, "first node", kOff);
    QTreeWidgetItem* second = Node(nullptr, "second node", kOff);
    ShowWithCheckBoxes();

    EXPECT_EQ(tree.HitTest(LabelPoint(second)), NodePart::kLabel);
    Press(LabelPoint(second));
    EXPECT_EQ(tree.GetCheck(second), kOff);
    EXPECT_EQ(tree.currentItem(), second);
}

TEST_F(CheckTreeTest, ADoubleClickOnTheCheckBoxTogglesAgain) {
    QTreeWidgetItem* node = Node(nullptr, "node", kOff);
    Node(node, "child", kOff);
    ShowWithCheckBoxes();
    Press(CheckBoxPoint(node));
    ASSERT_EQ(tree.GetCheck(node), kOn);

    const QPoint point = CheckBoxPoint(node);
    QMouseEvent doubleClick(QEvent::MouseButtonDblClick, point, tree.viewport()->mapToGlobal(point),
                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &doubleClick);
    EXPECT_EQ(tree.GetCheck(node), kOff);
    EXPECT_TRUE(node->isExpanded());  // the tree's double click did not run
}

TEST_F(CheckTreeTest, WithoutCheckBoxesClicksDoNotToggle) {
    QTreeWidgetItem* node = Node(nullptr, "node", kOff);
    ShowWithCheckBoxes();
    tree.SetCheckBoxes(false);
    QApplication::processEvents();
    EXPECT_NE(tree.HitTest(CheckBoxPoint(node)), NodePart::kCheckBox);
    Press(CheckBoxPoint(node));
    EXPECT_EQ(tree.GetCheck(node), kOff);
}

TEST_F(CheckTreeTest, ANodeWithoutCheckBoxHasNoneToHit) {
    QTreeWidgetItem* plain = Node(nullptr, "plain node", kNone);
    ShowWithCheckBoxes();
    EXPECT_NE(tree.HitTest(CheckBoxPoint(plain)), NodePart::kCheckBox);
    Press(CheckBoxPoint(plain));
    EXPECT_EQ(tree.GetCheck(plain), kNone);
}

TEST_F(CheckTreeTest, TheHitTestKnowsTheIndentAndTheRightOfTheText) {
    QTreeWidgetItem* parent = Node(nullptr, "parent", kOff);
    QTreeWidgetItem* child = Node(parent, "child", kOff);
    ShowWithCheckBoxes();
    const QRect rect = tree.visualItemRect(child);
    EXPECT_EQ(tree.HitTest({rect.left() - 2, rect.center().y()}), NodePart::kIndent);
    EXPECT_EQ(tree.HitTest({rect.right() - 2, rect.center().y()}), NodePart::kRight);
    EXPECT_EQ(tree.HitTest({rect.left() + 2, rect.bottom() + 40}), NodePart::kNowhere);
}

TEST_F(CheckTreeTest, TheSpaceBarTogglesTheCurrentNode) {
    QTreeWidgetItem* first = Node(nullptr, "first", kOff);
    QTreeWidgetItem* second = Node(nullptr, "second", kOff);
    ShowWithCheckBoxes();
    tree.setCurrentItem(first);

    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(tree.GetCheck(first), kOn);
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(tree.GetCheck(first), kOff);
    // Other keys go on to the tree.
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_EQ(tree.currentItem(), second);
    EXPECT_EQ(tree.GetCheck(second), kOff);
}

TEST_F(CheckTreeTest, WithoutCheckBoxesTheSpaceBarDoesNotToggle) {
    QTreeWidgetItem* node = Node(nullptr, "node", kOff);
    tree.show();
    tree.setCurrentItem(node);
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_EQ(tree.GetCheck(node), kOff);
}

TEST_F(CheckTreeTest, CheckBoxesShowTheValueOnlyWhileShown) {
    QTreeWidgetItem* node = Node(nullptr, "node", kOff);
    ShowWithCheckBoxes();
    const QRect box(CheckBoxPoint(node) - QPoint(6, 6), QSize(12, 12));
    const auto picture = [&] { return tree.viewport()->grab(box).toImage(); };

    const QImage unticked = picture();
    tree.SetCheck(node, kOn);
    const QImage ticked = picture();
    tree.SetCheck(node, kMixedValue);
    const QImage mixed = picture();
    tree.SetCheck(node, kNone);
    const QImage none = picture();
    EXPECT_NE(unticked, ticked);
    EXPECT_NE(ticked, mixed);
    EXPECT_NE(unticked, mixed);
    EXPECT_NE(none, unticked);

    tree.SetCheckBoxes(false);
    tree.SetCheck(node, kOn);
    QApplication::processEvents();
    const QImage hiddenTicked = picture();
    tree.SetCheck(node, kOff);
    EXPECT_EQ(picture(), hiddenTicked);
}
