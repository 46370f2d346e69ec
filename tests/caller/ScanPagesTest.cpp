// The scan pages through the loaded library, end to end: a person changes the
// file types of the system scan in its advanced dialog and the store holds
// the new profile and the explorer scan's beside it, nothing else; a person
// turns system monitoring off on its page alone and both of its functions
// stop, in their order, before the one signal.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTimer>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "BoxAnswerer.h"
#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"

namespace scan_pages_test {
namespace {

constexpr int32_t kSystemScanPage = 1;
constexpr int32_t kSystemMonitorPage = 5;
constexpr uint32_t kSystemScan = 4;
constexpr uint32_t kExplorerScan = 5;

// The store file's lines by section name, without the protection level.
std::map<std::string, std::vector<std::string>> Sections(const std::string& file) {
    std::map<std::string, std::vector<std::string>> sections;
    std::istringstream text(file);
    std::string section;
    for (std::string line; std::getline(text, line);) {
        // The session writes the protection level back at every OK.
        if (line.empty() || line.rfind("CEK_ProtectLevel=", 0) == 0) continue;
        if (!line.empty() && line.front() == '[') section = line;
        else sections[section].push_back(line);
    }
    return sections;
}

void Click(QDialog* dialog, int id) {
    auto* button = DialogDriver::Find<QAbstractButton>(dialog, id);
    ASSERT_NE(button, nullptr) << id;
    button->click();
}

class ScanPagesTest : public CallerSessionTest {
protected:
    void SetUp() override { StartCaller({"Q9SSCtrl"}); }
};

TEST_F(ScanPagesTest, FileTypesChangedInTheAdvancedDialogReachSectionsFourAndFiveOnly) {
    Q9CfgE_SetDWEx(kSystemScan, 10, 0x680 | 0x10);
    const std::string before = caller->install.Read("Q9Cfg.dat");
    DialogDriver driver([](QDialog* dialog) {
        // The advanced dialog opens over the configuration dialog: act on it
        // from within its own modal run.
        QTimer::singleShot(50, [] {
            auto* advanced = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(advanced, nullptr);
            Click(advanced, 1058);  // "All files"
            Click(advanced, 1);
        });
        Click(dialog, 1066);
        Click(dialog, 1);
    });
    int32_t page = kSystemScanPage;
    EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
    EXPECT_TRUE(driver.Done());

    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, 10) & 0xF80u, 0x100u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, 10) & 0x2010u, 0x2010u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kExplorerScan, 11), 0u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kExplorerScan, 12), 0xFFFFFFFFu);
    EXPECT_EQ(Q9CfgE_GetDWEx(kExplorerScan, 16), Q9CfgE_GetDWEx(kSystemScan, 16));
    auto after = Sections(caller->install.Read("Q9Cfg.dat"));
    auto previous = Sections(before);
    for (const char* changed : {"[CES_SystemScan]", "[CES_ExplorerScan]", "[CES_Macro]"}) {
        after.erase(changed);
        previous.erase(changed);
    }
    EXPECT_EQ(after, previous);
}

TEST_F(ScanPagesTest, TurningSystemMonitoringOffStopsBothFunctionsInTheirOrder) {
    caller->install.Write("Q9SSCtrl.state", "[Registered]\n32=1\n128=1\n");
    Q9CfgE_SetDWEx(7, 52, 30);  // a restart interval the page accepts
    BoxAnswerer boxes;
    DialogDriver driver([](QDialog* dialog) {
        auto* monitor = DialogDriver::Find<QCheckBox>(dialog, 1005);
        ASSERT_NE(monitor, nullptr);
        ASSERT_TRUE(monitor->isChecked());
        monitor->click();  // Yes to the closing question
        DialogDriver::Find<QCheckBox>(dialog, 1106)->click();
        Click(dialog, 1);
    });
    int32_t page = kSystemMonitorPage;
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
    EXPECT_TRUE(driver.Done());
    ASSERT_EQ(boxes.boxes.size(), 1u);
    const std::vector<std::string> expected = {"Q9SSCtrl_Unregister\t128\t5000 2\t1",
                                               "Q9SSCtrl_Unregister\t32\t5000 2\t1",
                                               "Q9SSCtrl_SetCfgChanged\t32\t-\t1"};
    EXPECT_EQ(RegistrationChanges(), expected);
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 42) & 0x1u, 0u);
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 46) & 0x200000u, 0u);
}

}  // namespace
}  // namespace scan_pages_test
