// Scheduled scans through the loaded library, end to end: a person adds a
// weekly scan of one folder through the wizard on the "Scheduled scan" page
// and presses OK; the store file and the registry hive hold the entry, and
// q9admin shows it in both homes. Deleted again, both homes are empty and
// another program's job stays.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "BoxAnswerer.h"
#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "ScheduleSteps.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"
#include "support/TemporaryRegistry.h"
#include "support/TestPaths.h"

namespace schedule_caller_test {
namespace {

using schedule_steps::Click;
using schedule_steps::ClickOnPage;
using schedule_steps::kAddButton;
using schedule_steps::kSchedulePage;
using schedule_steps::kScheduleList;
constexpr int kDeleteButton = 1072;
constexpr int kFolderTree = 1013;
constexpr int kAddTarget = 1016;
// The registry directory of the test's installation (its scratch
// directory's), relative to the installation, and the machine's hive in it.
constexpr const char* kHives = "../hives";
constexpr const char* kHive = "../hives/HKLM.reg";
// The diagnostic log's file, which the library writes wherever it lies.
constexpr const char* kDiagLog = "/tmp/q9cfgul.log";

class ScheduleCallerTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl"});
        // Another program's job under the scheduler's key.
        std::filesystem::create_directories(caller->install.PathOf(kHives));
        caller->install.Write(kHive,
                              "Windows Registry Editor Version 5.00\n\n"
                              "[HKEY_LOCAL_MACHINE\\Software\\ORVTEK\\OrvSD\\Schedule\\Backup]\n"
                              "\"On\"=dword:00000001\n");
    }
    std::string Hive() const { return caller->install.Read(kHive); }
    std::string Store() const { return caller->install.Read("Q9Cfg.dat"); }

    std::string Admin(const QString& verb) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("Q9_INSTALL_DIR", QString::fromStdString(caller->install.Directory()));
        environment.insert("Q9_REGISTRY_DIR",
                           QString::fromStdString(caller->install.PathOf(kHives)));
        process.setProcessEnvironment(environment);
        process.start(QString::fromStdString(TestPath("admin")), {verb});
        EXPECT_TRUE(process.waitForFinished(30000));
        return process.readAllStandardOutput().toStdString();
    }

    // One session on the schedule page: steps act on the dialog, then OK.
    void Session(const std::function<void(QDialog*)>& steps) {
        BoxAnswerer boxes;
        DialogDriver driver([&steps](QDialog* dialog) {
            steps(dialog);
            Click(dialog, 1);
        });
        int32_t page = kSchedulePage;
        EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
        EXPECT_TRUE(driver.Done());
        EXPECT_TRUE(boxes.boxes.empty());
    }
};

TEST_F(ScheduleCallerTest, AWeeklyScanAddedThroughTheWizardStandsInBothHomes) {
    const std::string home = QDir::homePath().toStdString();
    Session([](QDialog* dialog) {
        QTimer::singleShot(50, [] {
            auto* wizard = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(wizard, nullptr);
            auto* folders = DialogDriver::Find<QTreeWidget>(wizard, kFolderTree);
            ASSERT_NE(folders, nullptr);
            folders->setCurrentItem(folders->topLevelItem(1));  // Home
            Click(wizard, kAddTarget);
            Click(wizard, 1);  // Finish
        });
        ClickOnPage(dialog, kAddButton);
        auto* list = DialogDriver::Find<QTreeWidget>(dialog, kScheduleList);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->topLevelItemCount(), 1);
    });

    const std::string store = Store();
    EXPECT_NE(store.find("[0x10000000]"), std::string::npos) << store;
    EXPECT_NE(store.find("CEK_SchedStyle=dword:00000002"), std::string::npos);
    EXPECT_NE(store.find("CEK_SchedCurDir=\"%Q9%\""), std::string::npos);
    EXPECT_NE(store.find("record=0,1,\"" + home + "\""), std::string::npos);
    const std::string hive = Hive();
    EXPECT_NE(hive.find("[HKEY_LOCAL_MACHINE\\Software\\ORVTEK\\OrvSD\\Schedule\\Q9SScan0]"),
              std::string::npos)
        << hive;
    EXPECT_NE(hive.find("\"Style\"=dword:00000002"), std::string::npos);
    EXPECT_NE(hive.find("Schedule\\Backup]"), std::string::npos);

    const std::string shown = Admin("schedule");
    EXPECT_NE(shown.find("section 0x10000000: on, Every week"), std::string::npos) << shown;
    EXPECT_NE(shown.find("Q9SScan0: on, Every week"), std::string::npos) << shown;
    EXPECT_NE(shown.find(home), std::string::npos);

    // The second session deletes it again.
    Session([](QDialog* dialog) {
        auto* list = DialogDriver::Find<QTreeWidget>(dialog, kScheduleList);
        ASSERT_NE(list, nullptr);
        ASSERT_EQ(list->topLevelItemCount(), 1);
        list->setCurrentItem(list->topLevelItem(0));
        ClickOnPage(dialog, kDeleteButton);
    });
    EXPECT_EQ(Store().find("[0x10000000]"), std::string::npos);
    EXPECT_EQ(Hive().find("Q9SScan"), std::string::npos);
    EXPECT_NE(Hive().find("Schedule\\Backup]"), std::string::npos);
    EXPECT_EQ(Admin("schedule"), "store: none\nregistry: none\n");
}

// The accounts of a scheduled scan entered through the authorization dialog:
// neither password stands in clear in the hive or the store file, both
// files are their owner's only, and the diagnostic log, switched on for the
// session, never holds them (a silent apply afterwards shows it was on).
TEST_F(ScheduleCallerTest, PasswordsStandInTheirFilesOnlyScrambledOrEnciphered) {
    const std::string runPassword = "Run-Pw-7q3x";
    const std::string netPassword = "Net-Pw-9k2v";
    caller->install.Write(kHive, Hive() +
                                     "\n[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9CfgUL]\n"
                                     "\"Debug\"=dword:00000001\n");
    const std::string logBefore = TemporaryRegistry::ReadFile(kDiagLog);
    Session([&runPassword, &netPassword](QDialog* dialog) {
        schedule_steps::AddScanWithAccounts(dialog, {"runner", runPassword, "share", netPassword});
    });
    const std::string hive = Hive();
    const std::string store = Store();
    ASSERT_NE(hive.find("Q9SScan0"), std::string::npos) << hive;
    EXPECT_NE(hive.find("\"AI\""), std::string::npos);
    EXPECT_NE(store.find("CEK_ScheduleUser"), std::string::npos);
    for (const std::string& secret : {runPassword, netPassword}) {
        EXPECT_EQ(hive.find(secret), std::string::npos) << secret;
        EXPECT_EQ(store.find(secret), std::string::npos) << secret;
    }
    for (const char* file : {kHive, "Q9Cfg.dat"}) {
        struct stat status {};
        ASSERT_EQ(stat(caller->install.PathOf(file).c_str(), &status), 0) << file;
        EXPECT_EQ(status.st_mode & 0777, 0600U) << file;
    }
    EXPECT_EQ(doModal(0, DMF_Silent, nullptr, nullptr, nullptr), 1);
    const std::string log = TemporaryRegistry::ReadFile(kDiagLog);
    ASSERT_GT(log.size(), logBefore.size());
    const std::string written = log.substr(logBefore.size());
    EXPECT_NE(written.find("After DMZ"), std::string::npos) << written;
    for (const std::string& secret : {runPassword, netPassword}) {
        EXPECT_EQ(written.find(secret), std::string::npos) << secret;
    }
}

}  // namespace
}  // namespace schedule_caller_test
