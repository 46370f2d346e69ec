// The folder tree: its top level, children read on first expansion, folders
// only, paths and kinds, the nodes without a path, check boxes on folders,
// and the data a folder drags with.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileIconProvider>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <memory>

#include "DriveTestSupport.h"
#include "controls/ShellTree.h"
#include "targets/TargetDrag.h"
#include "targets/TargetList.h"

namespace {

class ShellTreeTest : public DriveTest {
protected:
    QTreeWidgetItem* Top(const char* text) const {
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            if (tree.topLevelItem(i)->text(0) == text) return tree.topLevelItem(i);
        }
        return nullptr;
    }
    QTreeWidgetItem* Computer() const { return Top("Computer"); }
    QTreeWidgetItem* Network() const { return Top("Network"); }
    QTreeWidgetItem* DataDrive() const {
        return ChildNamed(Computer(), QString::fromStdString(Folder("data")));
    }
    // The data drive's child folder, read by expanding the drive.
    QTreeWidgetItem* DataFolder(const char* name) {
        tree.expandItem(DataDrive());
        return ChildNamed(DataDrive(), name);
    }
    // Builds the tree, shown, and answers a point on the data drive's text.
    QPoint ShowAndPointAtDataDrive() {
        tree.Build(0);
        tree.resize(400, 300);
        tree.show();
        QApplication::processEvents();
        const QRect rect = tree.visualItemRect(DataDrive());
        return {rect.left() + 60, rect.center().y()};
    }
    static bool SameIcon(const QTreeWidgetItem* node, QAbstractFileIconProvider::IconType type) {
        const QIcon wanted = QFileIconProvider().icon(type);
        return node->icon(0).pixmap(16).toImage() == wanted.pixmap(16).toImage();
    }

    CShellTree tree;
};

}  // namespace

TEST_F(ShellTreeTest, TheTopLevelIsComputerHomeAndNetwork) {
    tree.Build(0);
    ASSERT_EQ(tree.topLevelItemCount(), 3);
    EXPECT_EQ(tree.topLevelItem(0)->text(0), "Computer");
    EXPECT_EQ(tree.topLevelItem(1)->text(0), "Home Folder");
    EXPECT_EQ(tree.topLevelItem(2)->text(0), "Network");
    EXPECT_EQ(tree.GetPath(tree.topLevelItem(1), nullptr), QDir::homePath().toStdString());
    EXPECT_TRUE(SameIcon(Computer(), QAbstractFileIconProvider::Computer));
    EXPECT_TRUE(SameIcon(Network(), QAbstractFileIconProvider::Network));
}

TEST_F(ShellTreeTest, ComputerIsReadExpandedAndSelected) {
    tree.Build(0);
    EXPECT_TRUE(Computer()->isExpanded());
    EXPECT_EQ(tree.currentItem(), Computer());
    // The root file system first, then the local drives of the mount table;
    // the network drive is no local drive.
    EXPECT_EQ(ChildTexts(Computer()), (std::vector<std::string>{"/", Folder("data")}));
    EXPECT_TRUE(SameIcon(DataDrive(), QAbstractFileIconProvider::Drive));
    EXPECT_EQ(tree.GetPath(DataDrive(), nullptr), Folder("data"));
}

TEST_F(ShellTreeTest, ModeBitZeroHidesTheNetwork) {
    tree.Build(CShellTree::kHideNetwork);
    EXPECT_EQ(tree.topLevelItemCount(), 2);
    EXPECT_EQ(Network(), nullptr);
    EXPECT_NE(Computer(), nullptr);
}

TEST_F(ShellTreeTest, ADisabledTreeStaysEmptyUntilBuiltEnabled) {
    tree.Build(0);
    tree.setEnabled(false);
    tree.Build(0);
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    tree.setEnabled(true);
    tree.Build(0);
    EXPECT_EQ(tree.topLevelItemCount(), 3);
}

TEST_F(ShellTreeTest, AFolderIsReadOnItsFirstExpansionWithHiddenFoldersAndNoFiles) {
    tree.Build(0);
    EXPECT_EQ(DataDrive()->childCount(), 0);
    EXPECT_EQ(DataDrive()->childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);
    tree.expandItem(DataDrive());
    EXPECT_EQ(ChildTexts(DataDrive()), (std::vector<std::string>{".hidden", "A", "b", "empty"}));
    EXPECT_TRUE(SameIcon(ChildNamed(DataDrive(), "A"), QAbstractFileIconProvider::Folder));

    // Read once: a folder made later is not seen by expanding again.
    std::filesystem::create_directories(Folder("data/later"));
    tree.collapseItem(DataDrive());
    tree.expandItem(DataDrive());
    EXPECT_EQ(DataDrive()->childCount(), 4);
}

TEST_F(ShellTreeTest, AFolderFoundEmptyLosesItsPlusSignButTheTopLevelKeepsIt) {
    UseMountTable("/dev/q9root / ext4 rw 0 0\n");
    tree.Build(0);
    tree.expandItem(Network());
    EXPECT_EQ(Network()->childCount(), 0);
    EXPECT_EQ(Network()->childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);

    UseMountTable(StandardMounts());
    tree.Build(0);
    QTreeWidgetItem* empty = DataFolder("empty");
    ASSERT_NE(empty, nullptr);
    tree.expandItem(empty);
    EXPECT_EQ(empty->childIndicatorPolicy(), QTreeWidgetItem::DontShowIndicatorWhenChildless);
    QTreeWidgetItem* full = DataFolder("A");
    EXPECT_EQ(full->childIndicatorPolicy(), QTreeWidgetItem::ShowIndicator);
}

TEST_F(ShellTreeTest, NetworkHoldsTheNetworkDrivesByMountPoint) {
    Remember(Folder("nas"), "//nas/volume1");
    Remember(Folder("share"), "//server/share");  // mounted as well: shown once
    tree.Build(0);
    tree.expandItem(Network());
    EXPECT_EQ(ChildTexts(Network()), (std::vector<std::string>{Folder("share"), Folder("nas")}));
    QTreeWidgetItem* share = Network()->child(0);
    EXPECT_TRUE(tree.IsFileSystemNode(share));
    EXPECT_EQ(tree.GetPath(share, nullptr), Folder("share"));
    EXPECT_TRUE(SameIcon(share, QAbstractFileIconProvider::Network));
    tree.expandItem(share);
    EXPECT_EQ(ChildTexts(share), (std::vector<std::string>{"docs"}));
}

TEST_F(ShellTreeTest, ComputerAndNetworkHaveNoPathAndNoCheckBox) {
    tree.SetCheckBoxes(true);
    tree.Build(0);
    uint8_t kind = 0;
    for (QTreeWidgetItem* node : {Computer(), Network()}) {
        EXPECT_FALSE(tree.IsFileSystemNode(node)) << node->text(0).toStdString();
        EXPECT_EQ(tree.GetPath(node, &kind), "");
        EXPECT_EQ(kind, kTargetUnexamined);
        EXPECT_EQ(tree.GetCheck(node), CCheckTree::kNoCheckBox);
    }
    EXPECT_FALSE(tree.IsFileSystemNode(nullptr));
    EXPECT_TRUE(tree.IsFileSystemNode(DataDrive()));
    EXPECT_EQ(tree.GetCheck(DataDrive()), CCheckTree::kUnticked);
    EXPECT_EQ(tree.GetCheck(Top("Home Folder")), CCheckTree::kUnticked);
}

TEST_F(ShellTreeTest, APathIsAFolderAFileOrCannotBeExamined) {
    tree.Build(0);
    QTreeWidgetItem* folder = DataFolder("A");
    QTreeWidgetItem* gone = DataFolder("b");
    QTreeWidgetItem* nowAFile = DataFolder("empty");
    std::filesystem::remove(Folder("data/b"));
    std::filesystem::remove(Folder("data/empty"));
    std::ofstream(Folder("data/empty")) << "a file now";

    uint8_t kind = 99;
    EXPECT_EQ(tree.GetPath(folder, &kind), Folder("data/A"));
    EXPECT_EQ(kind, kTargetFolder);
    EXPECT_EQ(tree.GetPath(nowAFile, &kind), Folder("data/empty"));
    EXPECT_EQ(kind, kTargetFile);
    EXPECT_EQ(tree.GetPath(gone, &kind), Folder("data/b"));
    EXPECT_EQ(kind, kTargetUnexamined);
}

TEST_F(ShellTreeTest, FoldersReadUnderATickedFolderAreTicked) {
    tree.SetCheckBoxes(true);
    tree.Build(0);
    tree.SetCheck(DataDrive(), CCheckTree::kTicked);
    tree.expandItem(DataDrive());
    ASSERT_EQ(DataDrive()->childCount(), 4);
    for (int i = 0; i < DataDrive()->childCount(); ++i) {
        EXPECT_EQ(tree.GetCheck(DataDrive()->child(i)), CCheckTree::kTicked) << i;
    }
    EXPECT_EQ(tree.GetCheck(DataDrive()), CCheckTree::kTicked);
}

TEST_F(ShellTreeTest, WithCheckBoxesAClickOnTheIconOrTextTogglesAndSelects) {
    tree.SetCheckBoxes(true);
    const QPoint label = ShowAndPointAtDataDrive();
    ASSERT_EQ(tree.HitTest(label), NodePart::kLabel);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, label);
    EXPECT_EQ(tree.GetCheck(DataDrive()), CCheckTree::kTicked);
    EXPECT_EQ(tree.currentItem(), DataDrive());

    // A click on Computer's text changes nothing: it has no check box.
    const QRect computer = tree.visualItemRect(Computer());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier,
                      {computer.left() + 40, computer.center().y()});
    EXPECT_EQ(tree.GetCheck(Computer()), CCheckTree::kNoCheckBox);
    EXPECT_EQ(tree.currentItem(), Computer());
}

TEST_F(ShellTreeTest, WithoutCheckBoxesAClickOnTheTextOnlySelects) {
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, ShowAndPointAtDataDrive());
    EXPECT_EQ(tree.GetCheck(DataDrive()), CCheckTree::kUnticked);
    EXPECT_EQ(tree.currentItem(), DataDrive());
}

TEST_F(ShellTreeTest, AFolderDragsAsANewTargetAndComputerDoesNotDrag) {
    tree.Build(0);
    const std::unique_ptr<QMimeData> data(tree.DragData(DataFolder("A")));
    ASSERT_NE(data, nullptr);
    const TargetDrag expected = {Folder("data/A"), kTargetFolder,
                                 static_cast<uint32_t>(TargetDragSource::kShellTree)};
    EXPECT_EQ(GetTargetDrag(data.get()), expected);
    EXPECT_EQ(tree.DragData(Computer()), nullptr);
    EXPECT_EQ(tree.DragData(Network()), nullptr);
}
