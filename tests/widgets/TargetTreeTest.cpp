// The target tree: loading a list, writing it back, adding targets (network
// paths by their network path), deleting them, the change announcements and
// the drops and drags between the trees.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <memory>
#include <string>
#include <vector>

#include "DriveTestSupport.h"
#include "controls/TargetTree.h"
#include "framework/DialogControls.h"
#include "targets/TargetDrag.h"
#include "targets/TargetList.h"

namespace {

using namespace std::string_literals;

constexpr int kTreeId = 1014;

class TargetTreeTest : public DriveTest {
protected:
    TargetTreeTest() { ctl::SetId(&tree, kTreeId); }

    void Load(const std::vector<Target>& targets, uint32_t options = 0) {
        const std::string list = EncodeTargetList(targets);
        tree.Load("Items to Scan", list.data(), list.size(), options);
    }
    // The tree's list, written into a buffer of the size it asks for.
    std::string List() const {
        std::string list(static_cast<size_t>(tree.GetList(nullptr, 0)), '\x55');
        tree.GetList(list.data(), static_cast<int32_t>(list.size()));
        return list;
    }
    std::vector<Target> Targets() const {
        const std::string list = List();
        const ParsedTargetList parsed = ParseTargetList(list.data(), list.size());
        EXPECT_EQ(parsed.problem, TargetListProblem::kNone);
        return parsed.targets;
    }
    std::vector<std::string> Texts() const { return ChildTexts(tree.Root()); }

    static std::unique_ptr<QMimeData> Dragged(const std::string& text, uint8_t kind,
                                              TargetDragSource source) {
        auto data = std::make_unique<QMimeData>();
        SetTargetDrag(data.get(), {text, kind, static_cast<uint32_t>(source)});
        return data;
    }

    CTargetTree tree;
};

}  // namespace

TEST_F(TargetTreeTest, LoadShowsTheTargetsSortedUnderTheTitle) {
    Load({{kTargetFolder, "/srv/b"},
          {kTargetFile, "/srv/A.txt"},
          AllLocalDrivesTarget(),
          {kTargetFolder, "/Srv/c"}});
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(tree.Root()->text(0), "Items to Scan");
    EXPECT_EQ(tree.currentItem(), tree.Root());
    EXPECT_TRUE(tree.Root()->isExpanded());
    EXPECT_EQ(Texts(),
              (std::vector<std::string>{"/srv/A.txt", "/srv/b", "/Srv/c", "Local hard drives"}));
    EXPECT_FALSE(tree.IsChanged());
}

TEST_F(TargetTreeTest, ARecordOfABadListEndsTheList) {
    std::string list = EncodeTargetList({{kTargetFolder, "/a"}, {kTargetFolder, "/b"}});
    list[8] = '\x7F';  // the second record's length reaches past the end
    tree.Load("Items to Scan", list.data(), list.size(), 0);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/a"}));
    tree.Load("Items to Scan", nullptr, 100, 0);
    EXPECT_EQ(tree.Root()->childCount(), 0);
}

TEST_F(TargetTreeTest, TheListComesBackAsItWasLoaded) {
    const std::vector<Target> targets = {
        {kTargetFile, "/srv/A.txt"}, {kTargetFolder, "/srv/b"}, AllLocalDrivesTarget()};
    Load(targets);
    EXPECT_EQ(List(), EncodeTargetList(targets));
    EXPECT_EQ(tree.GetList(nullptr, 0), static_cast<int32_t>(EncodeTargetList(targets).size()));
}

TEST_F(TargetTreeTest, LocalHardDrivesAloneIsOneRecordOfKindFour) {
    Load({AllLocalDrivesTarget()});
    EXPECT_EQ(List(), EncodeTargetList({AllLocalDrivesTarget()}));
    // Its text is what counts: a node that reads "Local hard drives" is that
    // record whatever kind it has.
    Load({});
    tree.AddTarget("Local hard drives", kTargetFolder);
    EXPECT_EQ(Targets(), (std::vector<Target>{AllLocalDrivesTarget()}));
}

TEST_F(TargetTreeTest, AnEmptyTreeIsOnlyTheTerminatorOrAllDrivesByOption) {
    Load({});
    EXPECT_EQ(List(), "\0\0"s);
    Load({}, CTargetTree::kEmptyMeansAllDrives);
    EXPECT_EQ(List(), EncodeTargetList({AllLocalDrivesTarget()}));
}

TEST_F(TargetTreeTest, ABufferOneByteTooSmallHoldsAnEmptyList) {
    Load({{kTargetFolder, "/srv/a"}, {kTargetFolder, "/srv/b"}});
    const int32_t size = tree.GetList(nullptr, 0);
    std::string buffer(static_cast<size_t>(size - 1), '\x55');
    EXPECT_EQ(tree.GetList(buffer.data(), size - 1), size);
    const ParsedTargetList parsed = ParseTargetList(buffer.data(), buffer.size());
    EXPECT_EQ(parsed.problem, TargetListProblem::kNone);
    EXPECT_TRUE(parsed.targets.empty());
}

TEST_F(TargetTreeTest, AddedTargetsStandSortedAndSelected) {
    Load({{kTargetFolder, "/srv/m"}});
    tree.Root()->setExpanded(false);
    QTreeWidgetItem* node = tree.AddTarget("/srv/a", kTargetFolder);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->parent(), tree.Root());
    EXPECT_EQ(tree.currentItem(), node);
    EXPECT_TRUE(tree.Root()->isExpanded());
    tree.AddTarget("/srv/z", kTargetFile);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/srv/a", "/srv/m", "/srv/z"}));
    EXPECT_EQ(Targets()[2], (Target{kTargetFile, "/srv/z"}));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(TargetTreeTest, TheSameTargetTwiceIsRefusedButNotWithAnotherKind) {
    Load({});
    ASSERT_NE(tree.AddTarget("/srv/a", kTargetFolder), nullptr);
    EXPECT_EQ(tree.AddTarget("/srv/a", kTargetFolder), nullptr);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "The items already exist.");
    EXPECT_EQ(boxes.messages[0].caption, "");
    EXPECT_NE(tree.AddTarget("/srv/a", kTargetFile), nullptr);
    EXPECT_EQ(tree.Root()->childCount(), 2);
}

TEST_F(TargetTreeTest, ContainsComparesTheTextIgnoringCaseAndTheKind) {
    Load({{kTargetFolder, "/Srv/Data"}});
    EXPECT_TRUE(tree.Contains("/srv/data", kTargetFolder));
    EXPECT_TRUE(tree.Contains("/SRV/DATA", kTargetFolder, tree.Root()));
    EXPECT_FALSE(tree.Contains("/srv/data", kTargetFile));
    EXPECT_FALSE(tree.Contains("/srv/dat", kTargetFolder));
    EXPECT_FALSE(tree.Contains("/srv/data", kTargetFolder, tree.Root()->child(0)));
    EXPECT_EQ(tree.AddTarget("/srv/DATA", kTargetFolder), nullptr);
}

TEST_F(TargetTreeTest, AnEmptyPathIsNothingSelected) {
    Load({});
    EXPECT_EQ(tree.AddTarget("", kTargetFolder), nullptr);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "You haven't selected any items.");
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.messages[0].type, msg::kOk);
}

TEST_F(TargetTreeTest, ANetworkDriveByItsMountPointIsStoredByItsNetworkPath) {
    Load({});
    QTreeWidgetItem* node = tree.AddTarget(Folder("share"), kTargetFolder);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->text(0), "//server/share");
    EXPECT_EQ(tree.AddTarget(Folder("share") + "/docs/", kTargetFolder)->text(0),
              "//server/share/docs");
    // The same share through its network path is the same target.
    EXPECT_EQ(tree.AddTarget("//server/share", kTargetFolder), nullptr);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "The items already exist.");
    EXPECT_EQ(Targets(), (std::vector<Target>{{kTargetFolder, "//server/share"},
                                              {kTargetFolder, "//server/share/docs"}}));
}

TEST_F(TargetTreeTest, ARememberedDriveThatIsNotMountedIsStoredByItsNetworkPath) {
    Remember(Folder("nas"), "//nas/volume1");
    Load({});
    QTreeWidgetItem* node = tree.AddTarget(Folder("nas") + "/photos", kTargetUnexamined);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->text(0), "//nas/volume1/photos");
    EXPECT_EQ(tree.AddTarget("//nas/volume1/photos", kTargetUnexamined), nullptr);
}

TEST_F(TargetTreeTest, LocalPathsAndNetworkFormsAreStoredAsGiven) {
    Load({});
    EXPECT_EQ(tree.AddTarget(Folder("data") + "/A/", kTargetFolder)->text(0),
              QString::fromStdString(Folder("data") + "/A/"));
    EXPECT_EQ(tree.AddTarget("//other/share/", kTargetFolder)->text(0), "//other/share/");
}

TEST_F(TargetTreeTest, NetworkTargetsAreCounted) {
    Remember(Folder("nas"), "//nas/volume1");
    Load({AllLocalDrivesTarget(), {kTargetFolder, "server:/export"}, {kTargetFolder, "/srv"}});
    tree.AddTarget(Folder("share"), kTargetFolder);
    EXPECT_EQ(tree.CountNetworkTargets(), 2);
    // Stored by a local path before the drive was remembered.
    tree.AddTarget(Folder("data"), kTargetFolder);
    EXPECT_EQ(tree.CountNetworkTargets(), 2);
    Remember(Folder("data"), "//server/data");
    EXPECT_EQ(tree.CountNetworkTargets(), 3);
}

TEST_F(TargetTreeTest, ChangesAreAnnouncedWithTheTreesId) {
    Load({{kTargetFolder, "/srv/a"}});
    QSignalSpy announced(&tree, &CTargetTree::targetsChanged);
    tree.AddTarget("/srv/b", kTargetFolder);
    tree.AddTarget("/srv/b", kTargetFolder);  // refused: no change
    tree.DeleteTarget(tree.Root()->child(0));
    boxes.answers = {msg::kIdYes};
    tree.DeleteAll();
    ASSERT_EQ(announced.count(), 3);
    for (const QList<QVariant>& arguments : announced) EXPECT_EQ(arguments.at(0).toInt(), kTreeId);
}

TEST_F(TargetTreeTest, DeletingATargetSelectsTheNextOrElseThePrevious) {
    Load({{kTargetFolder, "/a"}, {kTargetFolder, "/b"}, {kTargetFolder, "/c"}});
    EXPECT_TRUE(tree.DeleteTarget(tree.Root()->child(1)));
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/a", "/c"}));
    EXPECT_EQ(tree.currentItem()->text(0), "/c");
    EXPECT_TRUE(tree.DeleteTarget(tree.Root()->child(1)));
    EXPECT_EQ(tree.currentItem()->text(0), "/a");
    EXPECT_TRUE(tree.DeleteTarget(tree.Root()->child(0)));
    EXPECT_EQ(tree.currentItem(), tree.Root());
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(TargetTreeTest, DeletingNothingSaysNothingIsSelected) {
    Load({{kTargetFolder, "/a"}});
    EXPECT_FALSE(tree.DeleteTarget(nullptr));
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "You haven't selected any items.");
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(tree.Root()->childCount(), 1);
}

TEST_F(TargetTreeTest, DeleteAllAsksFirst) {
    Load({{kTargetFolder, "/a"}, {kTargetFolder, "/b"}});
    tree.setCurrentItem(tree.Root()->child(1));
    boxes.answers = {msg::kIdNo};
    EXPECT_FALSE(tree.DeleteAll());
    EXPECT_EQ(tree.Root()->childCount(), 2);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text,
              "All items will be deleted. \n Are you sure you want to delete all?");
    EXPECT_EQ(boxes.messages[0].type, msg::kYesNo | msg::kIconQuestion);

    boxes.answers = {msg::kIdYes};
    EXPECT_TRUE(tree.DeleteAll());
    EXPECT_EQ(tree.Root()->childCount(), 0);
    EXPECT_EQ(tree.currentItem(), tree.Root());
    // Nothing left: nothing is asked.
    EXPECT_FALSE(tree.DeleteAll());
    EXPECT_EQ(boxes.messages.size(), 2u);
}

TEST_F(TargetTreeTest, DeletingTheRootDeletesAll) {
    Load({{kTargetFolder, "/a"}});
    boxes.answers = {msg::kIdNo};
    EXPECT_FALSE(tree.DeleteTarget(tree.Root()));
    EXPECT_EQ(tree.Root()->childCount(), 1);
    boxes.answers = {msg::kIdYes};
    EXPECT_TRUE(tree.DeleteTarget(tree.Root()));
    EXPECT_EQ(tree.Root()->childCount(), 0);
    EXPECT_FALSE(tree.DeleteTarget(tree.Root()));
}

TEST_F(TargetTreeTest, AFolderDroppedFromTheFolderTreeIsAdded) {
    Load({});
    const auto data =
        Dragged(Folder("share") + "/docs", kTargetFolder, TargetDragSource::kShellTree);
    EXPECT_TRUE(tree.CanDrop(data.get()));
    EXPECT_TRUE(tree.Drop(data.get()));
    EXPECT_EQ(Texts(), (std::vector<std::string>{"//server/share/docs"}));
    EXPECT_TRUE(tree.IsChanged());
    // A refused drop changes nothing more.
    EXPECT_FALSE(tree.Drop(data.get()));
    EXPECT_EQ(tree.Root()->childCount(), 1);
}

TEST_F(TargetTreeTest, ATargetDroppedOnItsOwnTreeDoesNothing) {
    Load({{kTargetFolder, "/a"}});
    const auto data = Dragged("/b", kTargetFolder, TargetDragSource::kTargetTree);
    EXPECT_FALSE(tree.CanDrop(data.get()));
    EXPECT_FALSE(tree.Drop(data.get()));
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/a"}));
    EXPECT_FALSE(tree.IsChanged());
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(TargetTreeTest, ABlockTooShortOrPlainTextIsRefused) {
    Load({});
    const std::string block = EncodeTargetDrag({"/a", kTargetFolder, 0});
    QMimeData cut;
    cut.setData(kTargetDragMimeType,
                QByteArray(block.data(), static_cast<qsizetype>(block.size() - 1)));
    EXPECT_FALSE(tree.CanDrop(&cut));
    EXPECT_FALSE(tree.Drop(&cut));
    QMimeData text;
    text.setText("/a");
    EXPECT_FALSE(tree.Drop(&text));
    EXPECT_EQ(tree.Root()->childCount(), 0);
}

TEST_F(TargetTreeTest, TheDragEventsAcceptOnlyFoldersFromTheFolderTree) {
    Load({});
    tree.resize(300, 200);
    tree.show();
    QApplication::processEvents();
    const QPoint inside(50, 50);
    const auto fromShell = Dragged("/srv/new", kTargetFolder, TargetDragSource::kShellTree);
    const auto fromSelf = Dragged("/srv/old", kTargetFolder, TargetDragSource::kTargetTree);

    QDragEnterEvent enterSelf(inside, Qt::CopyAction | Qt::MoveAction, fromSelf.get(),
                              Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &enterSelf);
    EXPECT_FALSE(enterSelf.isAccepted());
    QDragEnterEvent enterShell(inside, Qt::CopyAction, fromShell.get(), Qt::LeftButton,
                               Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &enterShell);
    EXPECT_TRUE(enterShell.isAccepted());
    EXPECT_EQ(enterShell.dropAction(), Qt::CopyAction);

    // A drop goes to the widget whose enter was accepted, and only once.
    QDropEvent dropSelf(inside, Qt::CopyAction | Qt::MoveAction, fromSelf.get(), Qt::LeftButton,
                        Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &dropSelf);
    EXPECT_FALSE(dropSelf.isAccepted());
    EXPECT_EQ(tree.Root()->childCount(), 0);
    QApplication::sendEvent(tree.viewport(), &enterShell);
    QDropEvent dropShell(inside, Qt::CopyAction, fromShell.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.viewport(), &dropShell);
    EXPECT_TRUE(dropShell.isAccepted());
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/srv/new"}));
    EXPECT_TRUE(tree.IsChanged());
}

TEST_F(TargetTreeTest, ATargetDragsWithItsTextAndKindFromThisTree) {
    Load({{kTargetFile, "/srv/a.txt"}});
    const std::unique_ptr<QMimeData> data(tree.DragData(tree.Root()->child(0)));
    ASSERT_NE(data, nullptr);
    const TargetDrag expected = {"/srv/a.txt", kTargetFile,
                                 static_cast<uint32_t>(TargetDragSource::kTargetTree)};
    EXPECT_EQ(GetTargetDrag(data.get()), expected);
}

TEST_F(TargetTreeTest, ATargetDraggedOutIsRemoved) {
    Load({{kTargetFolder, "/a"},
          {kTargetFolder, "/b"},
          {kTargetFolder, "/c"},
          {kTargetFolder, "/d"}});
    // Taken by a drop elsewhere.
    tree.EndDragOut(tree.Root()->child(0), Qt::MoveAction, false);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/b", "/c", "/d"}));
    EXPECT_TRUE(tree.IsChanged());
    // Let go outside the tree.
    tree.EndDragOut(tree.Root()->child(0), Qt::IgnoreAction, true);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/c", "/d"}));
    // Let go over the tree, or copied elsewhere: it stays.
    tree.EndDragOut(tree.Root()->child(0), Qt::IgnoreAction, false);
    tree.EndDragOut(tree.Root()->child(0), Qt::CopyAction, true);
    EXPECT_EQ(Texts(), (std::vector<std::string>{"/c", "/d"}));
}

TEST_F(TargetTreeTest, AStayingDragOutLeavesTheTreeUnchanged) {
    Load({{kTargetFolder, "/a"}});
    tree.EndDragOut(tree.Root()->child(0), Qt::CopyAction, true);
    EXPECT_FALSE(tree.IsChanged());
    // The root dragged out asks to delete all; No keeps them all.
    boxes.answers = {msg::kIdNo};
    tree.EndDragOut(tree.Root(), Qt::MoveAction, true);
    EXPECT_EQ(tree.Root()->childCount(), 1);
    EXPECT_FALSE(tree.IsChanged());
    EXPECT_EQ(boxes.messages.size(), 1u);
}

TEST_F(TargetTreeTest, LoadStartsUnchanged) {
    Load({{kTargetFolder, "/a"}});
    tree.EndDragOut(tree.Root()->child(0), Qt::MoveAction, false);
    ASSERT_TRUE(tree.IsChanged());
    Load({{kTargetFolder, "/a"}});
    EXPECT_FALSE(tree.IsChanged());
}
