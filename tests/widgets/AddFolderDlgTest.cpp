// "Add folders": OK takes a selected folder, and does nothing without one;
// a folder on a remembered network drive that is not mounted is taken once
// the drive comes back, and otherwise the user is told.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QPushButton>
#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "DriveTestSupport.h"
#include "caller/DialogDriver.h"
#include "controls/ShellTree.h"
#include "pages/targets/AddFolderDlg.h"
#include "platform/MountTable.h"
#include "session/ProcessState.h"

namespace {

using namespace std::chrono_literals;

// A mount table that differs from one reading to the next, as the system's
// does when touching a path makes an automounter mount a drive: a FIFO that
// hands each reader the next table in turn. A reader waits in its open until
// the table is written; a table no reader comes for is given up when the
// object goes.
class SuccessiveMountTables {
public:
    SuccessiveMountTables(std::string path, std::vector<std::string> tables)
        : m_path(std::move(path)) {
        EXPECT_EQ(mkfifo(m_path.c_str(), 0600), 0);
        m_writer = std::thread([this, tables = std::move(tables)] {
            for (const std::string& table : tables) {
                if (!WriteToNextReader(table)) return;
            }
        });
    }
    ~SuccessiveMountTables() {
        m_stop = true;
        m_writer.join();
        unlink(m_path.c_str());
    }
    SuccessiveMountTables(const SuccessiveMountTables&) = delete;
    SuccessiveMountTables& operator=(const SuccessiveMountTables&) = delete;

private:
    bool WriteToNextReader(const std::string& table) {
        int fd = -1;
        // Opening for writing without waiting works once a reader opens.
        while ((fd = open(m_path.c_str(), O_WRONLY | O_NONBLOCK)) < 0) {
            if (m_stop) return false;
            std::this_thread::sleep_for(1ms);
        }
        const bool written =
            write(fd, table.data(), table.size()) == static_cast<ssize_t>(table.size());
        close(fd);
        // The reader reads to the end and closes before the next table is
        // offered, so that it does not read that one as well.
        std::this_thread::sleep_for(50ms);
        return written;
    }

    std::string m_path;
    std::atomic<bool> m_stop = false;
    std::thread m_writer;
};

class AddFolderDlgTest : public DriveTest {
protected:
    AddFolderDlgTest() {
        EXPECT_TRUE(dialog.Create());
        dialog.show();
    }
    CShellTree* Folders() const { return qobject_cast<CShellTree*>(dialog.Control(1013)); }
    void ClickOk() const { qobject_cast<QPushButton*>(dialog.Control(1))->click(); }
    // The network drive mounted on mountPoint, under Network.
    QTreeWidgetItem* NetworkDrive(const std::string& mountPoint) const {
        QTreeWidgetItem* network = Folders()->topLevelItem(2);
        Folders()->expandItem(network);
        return ChildNamed(network, QString::fromStdString(mountPoint));
    }
    void Select(QTreeWidgetItem* node) const {
        ASSERT_NE(node, nullptr);
        Folders()->setCurrentItem(node);
    }
    std::string NasMounted() const {
        return StandardMounts() + "//nas/volume1 " + Folder("nas") + " cifs rw 0 0\n";
    }

    CAddFolderDlg dialog{nullptr};
};

}  // namespace

TEST_F(AddFolderDlgTest, TheMachinesFoldersAreShown) {
    EXPECT_EQ(dialog.windowTitle(), "Add folders");
    ASSERT_NE(Folders(), nullptr);
    EXPECT_EQ(Folders()->topLevelItemCount(), 3);
    EXPECT_EQ(Folders()->currentItem()->text(0), "Computer");
    EXPECT_EQ(dialog.GetPath(), "");
}

TEST_F(AddFolderDlgTest, OkOnANodeWithoutPathDoesNothing) {
    ClickOk();  // Computer is selected
    EXPECT_TRUE(dialog.isVisible());
    Select(Folders()->topLevelItem(2));  // Network
    ClickOk();
    EXPECT_TRUE(dialog.isVisible());
    Folders()->setCurrentItem(nullptr);
    ClickOk();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.GetPath(), "");
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AddFolderDlgTest, OkTakesTheSelectedFolder) {
    QTreeWidgetItem* data =
        ChildNamed(Folders()->topLevelItem(0), QString::fromStdString(Folder("data")));
    Folders()->expandItem(data);
    Select(ChildNamed(data, "A"));
    ClickOk();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetPath(), Folder("data/A"));
}

TEST_F(AddFolderDlgTest, AMountedNetworkDriveIsTakenByItsMountPoint) {
    Select(NetworkDrive(Folder("share")));
    ClickOk();
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetPath(), Folder("share"));
}

TEST_F(AddFolderDlgTest, ARememberedDriveThatStaysAwayIsNotConnected) {
    Remember(Folder("nas"), "//nas/volume1");
    Select(NetworkDrive(Folder("nas")));
    ClickOk();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.GetPath(), "");
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text,
              "Network drive (" + Folder("nas") +
                  ") is not connected.\nPlease check the network connection and try again.");
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.messages[0].type, msg::kOk);
}

TEST_F(AddFolderDlgTest, ARememberedDriveThatIsMountedIsTaken) {
    Remember(Folder("nas"), "//nas/volume1");
    Select(NetworkDrive(Folder("nas")));
    UseMountTable(NasMounted());
    ClickOk();
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetPath(), Folder("nas"));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AddFolderDlgTest, ARememberedDriveIsTakenOnceItComesBack) {
    Remember(Folder("nas"), "//nas/volume1");
    Select(NetworkDrive(Folder("nas")));
    {
        // Not mounted when asked, mounted once the drive was touched.
        const std::string fifo = Install().PathOf("mounts.fifo");
        SuccessiveMountTables tables(fifo, {StandardMounts(), NasMounted()});
        setenv(platform::kMountTableVariable, fifo.c_str(), 1);
        ClickOk();
        UseMountTable(StandardMounts());
    }
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetPath(), Folder("nas"));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AddFolderDlgTest, OutsideTheNtFamilyRememberedDrivesAreNotLookedAt) {
    g_bWinNT = 0;
    Remember(Folder("nas"), "//nas/volume1");
    Select(NetworkDrive(Folder("nas")));
    ClickOk();
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetPath(), Folder("nas"));
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AddFolderDlgTest, CancelTakesNothing) {
    Select(NetworkDrive(Folder("share")));
    qobject_cast<QPushButton*>(dialog.Control(2))->click();
    EXPECT_EQ(dialog.result(), 2);
    EXPECT_EQ(dialog.GetPath(), "");
}

TEST(AddFolderDlgExec, APageOpensItWithExec) {
    RecordingMessageService boxes;
    CAddFolderDlg dialog(nullptr);
    std::string home;
    DialogDriver driver([&](QDialog* shown) {
        auto* folders = DialogDriver::Find<CShellTree>(shown, 1013);
        folders->setCurrentItem(folders->topLevelItem(1));  // Home
        home = folders->GetPath(folders->topLevelItem(1), nullptr);
        DialogDriver::Find<QPushButton>(shown, 1)->click();
    });
    EXPECT_EQ(dialog.exec(), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_FALSE(home.empty());
    EXPECT_EQ(dialog.GetPath(), home);
}
