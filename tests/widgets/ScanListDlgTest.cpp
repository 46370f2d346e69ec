// "Set List to Scan": the list given, the buttons, drops, and what OK and
// Cancel leave behind.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <string>
#include <vector>

#include "DriveTestSupport.h"
#include "caller/DialogDriver.h"
#include "controls/ShellTree.h"
#include "controls/TargetTree.h"
#include "pages/targets/ScanListDlg.h"
#include "targets/TargetDrag.h"
#include "targets/TargetList.h"

namespace {

using namespace std::string_literals;

class ScanListDlgTest : public DriveTest {
protected:
    // Made and shown as DoModal would, without its modal run.
    CScanListDlg& Open(const std::vector<Target>& targets) {
        return OpenList(EncodeTargetList(targets));
    }
    CScanListDlg& OpenList(std::string list) {
        m_dialog = std::make_unique<CScanListDlg>(std::move(list), nullptr);
        EXPECT_TRUE(m_dialog->Create());
        m_dialog->show();
        return *m_dialog;
    }
    CShellTree* Folders() const { return qobject_cast<CShellTree*>(m_dialog->Control(1013)); }
    CTargetTree* List() const { return qobject_cast<CTargetTree*>(m_dialog->Control(1014)); }
    void Click(int id) const { qobject_cast<QPushButton*>(m_dialog->Control(id))->click(); }
    // Selects the data drive in the folder tree.
    void SelectDataDrive() const {
        Folders()->setCurrentItem(
            ChildNamed(Folders()->topLevelItem(0), QString::fromStdString(Folder("data"))));
    }
    static std::vector<Target> TargetsOf(const std::string& list) {
        return ParseTargetList(list.data(), list.size()).targets;
    }

    std::unique_ptr<CScanListDlg> m_dialog;
};

}  // namespace

TEST_F(ScanListDlgTest, TheListStandsBesideTheMachinesFolders) {
    CScanListDlg& dialog = Open({{kTargetFolder, "/srv/b"}, {kTargetFolder, "/srv/a"}});
    EXPECT_EQ(dialog.windowTitle(), "Set List to Scan");
    ASSERT_NE(Folders(), nullptr);
    ASSERT_NE(List(), nullptr);
    EXPECT_EQ(Folders()->topLevelItem(0)->text(0), "Computer");
    EXPECT_EQ(List()->Root()->text(0), "Items to Scan");
    EXPECT_EQ(ChildTexts(List()->Root()), (std::vector<std::string>{"/srv/a", "/srv/b"}));
    EXPECT_EQ(dialog.findChild<QLabel*>("noticeText")->text(),
              "If [List to Scan] is not set, all of the local hard drives will be scanned.");
    for (int id : {1016, 1017, 1018, 1, 2}) EXPECT_NE(dialog.Control(id), nullptr) << id;
}

TEST_F(ScanListDlgTest, OkWithoutAChangeGivesANewListAllTheSame) {
    // The store keeps records without the spare byte; the new list has it.
    const std::string stored =
        "\x0B\0\0\x01/srv/a\0"s
        "\0\0"s;
    CScanListDlg& dialog = OpenList(stored);
    EXPECT_EQ(dialog.GetList(), stored);
    Click(1);
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_FALSE(dialog.IsChanged());
    EXPECT_EQ(dialog.GetList(), EncodeTargetList({{kTargetFolder, "/srv/a"}}));
}

TEST_F(ScanListDlgTest, AnEmptyListComesBackAsAllLocalHardDrives) {
    CScanListDlg& dialog = OpenList("\0\0"s);
    Click(1);
    EXPECT_FALSE(dialog.IsChanged());
    EXPECT_EQ(dialog.GetList(), EncodeTargetList({AllLocalDrivesTarget()}));
}

TEST_F(ScanListDlgTest, CancelLeavesTheListGiven) {
    const std::string given = EncodeTargetList({{kTargetFolder, "/srv/a"}});
    CScanListDlg& dialog = OpenList(given);
    SelectDataDrive();
    Click(1016);
    Click(2);
    EXPECT_EQ(dialog.result(), 2);
    EXPECT_EQ(dialog.GetList(), given);
}

TEST_F(ScanListDlgTest, AddTakesTheSelectedFolder) {
    CScanListDlg& dialog = Open({});
    SelectDataDrive();
    Click(1016);
    EXPECT_EQ(ChildTexts(List()->Root()), (std::vector<std::string>{Folder("data")}));
    Click(1);
    EXPECT_TRUE(dialog.IsChanged());
    EXPECT_EQ(TargetsOf(dialog.GetList()), (std::vector<Target>{{kTargetFolder, Folder("data")}}));
}

TEST_F(ScanListDlgTest, AddWithANodeWithoutPathDoesNothing) {
    CScanListDlg& dialog = Open({});
    Folders()->setCurrentItem(Folders()->topLevelItem(0));  // Computer
    Click(1016);
    Folders()->setCurrentItem(nullptr);
    Click(1016);
    EXPECT_EQ(List()->Root()->childCount(), 0);
    EXPECT_TRUE(boxes.messages.empty());
    Click(1);
    EXPECT_FALSE(dialog.IsChanged());
}

TEST_F(ScanListDlgTest, AddingATargetTwiceIsRefusedAndNoChange) {
    CScanListDlg& dialog = Open({{kTargetFolder, Folder("data")}});
    SelectDataDrive();
    Click(1016);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "The items already exist.");
    Click(1);
    EXPECT_FALSE(dialog.IsChanged());
}

TEST_F(ScanListDlgTest, DeleteTakesTheSelectedTarget) {
    CScanListDlg& dialog = Open({{kTargetFolder, "/srv/a"}, {kTargetFolder, "/srv/b"}});
    List()->setCurrentItem(List()->Root()->child(0));
    Click(1017);
    EXPECT_EQ(ChildTexts(List()->Root()), (std::vector<std::string>{"/srv/b"}));
    Click(1);
    EXPECT_TRUE(dialog.IsChanged());
    EXPECT_EQ(TargetsOf(dialog.GetList()), (std::vector<Target>{{kTargetFolder, "/srv/b"}}));
}

TEST_F(ScanListDlgTest, DeleteAllLeavesAllLocalHardDrives) {
    CScanListDlg& dialog = Open({{kTargetFolder, "/srv/a"}, {kTargetFolder, "/srv/b"}});
    boxes.answers = {msg::kIdNo, msg::kIdYes};
    Click(1018);
    EXPECT_EQ(List()->Root()->childCount(), 2);
    Click(1018);
    EXPECT_EQ(List()->Root()->childCount(), 0);
    Click(1);
    EXPECT_TRUE(dialog.IsChanged());
    EXPECT_EQ(dialog.GetList(), EncodeTargetList({AllLocalDrivesTarget()}));
}

TEST_F(ScanListDlgTest, DeleteAllThatIsDeclinedIsNoChange) {
    CScanListDlg& dialog = Open({{kTargetFolder, "/srv/a"}});
    boxes.answers = {msg::kIdNo};
    Click(1018);
    Click(1);
    EXPECT_FALSE(dialog.IsChanged());
}

TEST_F(ScanListDlgTest, ADropIsAChange) {
    CScanListDlg& dialog = Open({});
    QMimeData data;
    SetTargetDrag(&data, {Folder("data/A"), kTargetFolder, 0});
    ASSERT_TRUE(List()->Drop(&data));
    Click(1);
    EXPECT_TRUE(dialog.IsChanged());
    EXPECT_EQ(TargetsOf(dialog.GetList()),
              (std::vector<Target>{{kTargetFolder, Folder("data/A")}}));
}

TEST_F(ScanListDlgTest, APageOpensItWithExec) {
    CScanListDlg dialog(EncodeTargetList({}), nullptr);
    DialogDriver driver([&](QDialog* shown) {
        auto* folders = DialogDriver::Find<CShellTree>(shown, 1013);
        folders->setCurrentItem(
            ChildNamed(folders->topLevelItem(0), QString::fromStdString(Folder("data"))));
        DialogDriver::Find<QPushButton>(shown, 1016)->click();
        DialogDriver::Find<QPushButton>(shown, 1)->click();
    });
    EXPECT_EQ(dialog.exec(), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_TRUE(dialog.IsChanged());
    EXPECT_EQ(TargetsOf(dialog.GetList()), (std::vector<Target>{{kTargetFolder, Folder("data")}}));
}
