// The edition through the loaded library: the secure profile "Q9Sec.dat" of
// the caller's installation, read through OrvInst, chooses the rows of the
// configuration dialog's tree.
#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>
#include <string>

#include "CallerInstallation.h"
#include "DialogDriver.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"

namespace {

using DoModalFn = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);

// The page ids of the top-level rows of each tree.
constexpr const char* kNormalRows = "23 0 8 18 17 15";
constexpr const char* kMasterRows = "23 0 18 34 32 17 15";
constexpr const char* kLightRows = "23 0 15 18";

class EditionTest : public testing::Test {
protected:
    void SetUp() override { Q9CfgE_SetStyleEx(257, "", 0); }
    void TearDown() override { Q9CfgE_SetStyleEx(257, "", 0); }

    void Install(std::initializer_list<const char*> siblings) {
        caller = std::make_unique<CallerInstallation>(siblings);
        caller->install.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
        ASSERT_NE(caller->Load(), nullptr) << dlerror();
        doModal = caller->Entry<DoModalFn>("Q9CfgUL_DoModal");
        ASSERT_NE(doModal, nullptr);
    }

    // Opens the configuration dialog with flags, reads the top-level rows of
    // its tree and cancels.
    std::string TopLevelRows(uint32_t flags) {
        std::string rows;
        DialogDriver driver([&rows](QDialog* dialog) {
            const auto* tree = DialogDriver::Find<QTreeWidget>(dialog, 1000);
            for (int i = 0; tree && i < tree->topLevelItemCount(); ++i) {
                if (!rows.empty()) rows += ' ';
                rows += std::to_string(tree->topLevelItem(i)->data(0, Qt::UserRole).toInt());
            }
            DialogDriver::Find<QPushButton>(dialog, 2)->click();
        });
        EXPECT_EQ(
            doModal(0, DMF_ModeDialog | DMF_NoAuthenticate | flags, nullptr, nullptr, nullptr), 2);
        EXPECT_TRUE(driver.Done());
        return rows;
    }

    std::unique_ptr<CallerInstallation> caller;
    DoModalFn* doModal = nullptr;
};

}  // namespace

TEST_F(EditionTest, WithoutAProfileTheTreeIsTheNormalOne) {
    Install({"Q9SSCtrl", "OrvInst"});
    EXPECT_EQ(TopLevelRows(0), kNormalRows);
}

TEST_F(EditionTest, MasterTypeTwoInTheProfileShowsTheMasterTree) {
    Install({"Q9SSCtrl", "OrvInst"});
    caller->install.Write("Q9Sec.dat", "MasterType=2\n");
    EXPECT_EQ(TopLevelRows(0), kMasterRows);
    caller->install.Write("Q9Sec.dat", "MasterType=1\n");
    EXPECT_EQ(TopLevelRows(0), kNormalRows);
}

TEST_F(EditionTest, TheLightEditionAndARemovedPageComeFromTheProfile) {
    Install({"Q9SSCtrl", "OrvInst"});
    caller->install.Write("Q9Sec.dat", "IsLight=1\n");
    EXPECT_EQ(TopLevelRows(0), kLightRows);
    caller->install.Write("Q9Sec.dat", "MasterType=2\nRemoveSecurity=1\n");
    EXPECT_EQ(TopLevelRows(0), "23 0 18 34 32 15");
}

// The profile adds bits; a value of 0 does not take away the caller's.
TEST_F(EditionTest, TheProfileNeverTakesAwayTheCallersEdition) {
    Install({"Q9SSCtrl", "OrvInst"});
    caller->install.Write("Q9Sec.dat", "MasterType=0\nIsLight=0\n");
    EXPECT_EQ(TopLevelRows(DMF_Master), kMasterRows);
}

TEST_F(EditionTest, WithoutTheProfileLibraryTheProfileIsNotRead) {
    Install({"Q9SSCtrl"});
    caller->install.Write("Q9Sec.dat", "MasterType=2\n");
    EXPECT_EQ(TopLevelRows(0), kNormalRows);
}
