// The exclusions page through the loaded library, end to end: a person
// opens the configuration dialog on it, adds a folder and extensions and
// presses OK or Cancel; the store, the zone file of the zone library and the
// monitors' scan words show what followed.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <filesystem>
#include <memory>
#include <string>

#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"
#include "support/ScopedVariable.h"

namespace {

constexpr int32_t kExclusionsPage = 16;
constexpr uint32_t kExcludeSection = 1;
constexpr uint32_t kExcludeEnableKey = 5;
constexpr uint32_t kScanOptionsKey = 10;
constexpr uint32_t kSystemMonitorSection = 7;
constexpr uint32_t kInternetSection = 9;
constexpr uint32_t kExclusionsBit = 0x8000000;

class ExclusionsCallerTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl", "OrvDMZ"});
        // The Home node of the folder tree is this folder.
        m_home = caller->install.PathOf("home");
        std::filesystem::create_directory(m_home);
        m_homeVariable = std::make_unique<ScopedVariable>("HOME", m_home.c_str());
    }

    // The next dialog: selects the Home node of the folder tree and presses OK.
    static void ChooseHome(QDialog* dialog) {
        auto* tree = DialogDriver::Find<QTreeWidget>(dialog, 1013);
        ASSERT_NE(tree, nullptr);
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            if (tree->topLevelItem(i)->text(0) == "Home Folder")
                tree->setCurrentItem(tree->topLevelItem(i));
        }
        DialogDriver::Find<QPushButton>(dialog, 1)->click();
    }

    static void TypeExtensions(QDialog* dialog) {
        DialogDriver::Find<QLineEdit>(dialog, 1092)->setText("dmp/tmp");
        DialogDriver::Find<QPushButton>(dialog, 1)->click();
    }

    // Opens mode 0 on the exclusions page, turns the list on, adds the home
    // folder and two extensions and presses button; returns DoModal's result.
    int32_t AddAndPress(int button) {
        std::unique_ptr<DialogDriver> inner;
        DialogDriver outer([&inner, button](QDialog* dialog) {
            DialogDriver::Find<QCheckBox>(dialog, 1015)->click();
            inner = std::make_unique<DialogDriver>(ChooseHome);
            DialogDriver::Find<QPushButton>(dialog, 1016)->click();
            EXPECT_TRUE(inner->Done());
            inner = std::make_unique<DialogDriver>(TypeExtensions);
            DialogDriver::Find<QPushButton>(dialog, 1020)->click();
            EXPECT_TRUE(inner->Done());
            DialogDriver::Find<QPushButton>(dialog, button)->click();
        });
        int32_t page = kExclusionsPage;
        const int32_t result =
            doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr);
        EXPECT_TRUE(outer.Done());
        EXPECT_EQ(page, kExclusionsPage);
        return result;
    }

    std::string m_home;
    std::unique_ptr<ScopedVariable> m_homeVariable;
};

}  // namespace

TEST_F(ExclusionsCallerTest, OkKeepsTheFolderAndExtensionsInTheStoreTheZoneAndTheMonitorsWords) {
    EXPECT_EQ(AddAndPress(1), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kExcludeSection, kExcludeEnableKey), 1u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemMonitorSection, kScanOptionsKey) & kExclusionsBit,
              kExclusionsBit);
    EXPECT_EQ(Q9CfgE_GetDWEx(kInternetSection, kScanOptionsKey) & kExclusionsBit, kExclusionsBit);
    const std::string store = caller->install.Read("Q9Cfg.dat");
    EXPECT_NE(store.find("record=0,1,\"" + m_home + "\""), std::string::npos) << store;
    EXPECT_NE(store.find("CEK_ExcludeText=\"dmp/tmp\""), std::string::npos) << store;
    EXPECT_EQ(caller->install.Read("OrvDMZ.zone"),
              "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x00000102,\"" + m_home + "\"\n");
}

TEST_F(ExclusionsCallerTest, CancelChangesNoByteOfTheStoreOrTheZone) {
    caller->install.Write("OrvDMZ.zone",
                          "OrvDMZ Zone 1\n[OtherProduct]\nrecord=1,0x00000002,\"/opt/other\"\n");
    const std::string store = caller->install.Read("Q9Cfg.dat");
    const std::string zone = caller->install.Read("OrvDMZ.zone");
    EXPECT_EQ(AddAndPress(2), 2);
    EXPECT_EQ(caller->install.Read("Q9Cfg.dat"), store);
    EXPECT_EQ(caller->install.Read("OrvDMZ.zone"), zone);
}
