// The configuration dialog through the loaded library, end to end: a person
// turns a function on and presses OK or Cancel; the store and the
// registration journal show what followed.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QPushButton>
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"

namespace {

constexpr uint32_t kSwitchSection = 14;
constexpr uint32_t kScanSwitchKey = 42;
constexpr int kSystemMonitorBox = 1005;
constexpr uint32_t kSystemMonitorBit = 0x1;

class ConfigDialogTest : public CallerSessionTest {
protected:
    void SetUp() override {
        StartCaller({"Q9SSCtrl"});
        ASSERT_EQ(Q9CfgE_SetDWEx(kSwitchSection, kScanSwitchKey, 0), 1);
    }

    // Opens mode 0 on page 0, turns the system monitor on and presses the
    // button; returns DoModal's result.
    int32_t TurnOnSystemMonitorAndPress(int button, int32_t* page) {
        DialogDriver driver([button](QDialog* dialog) {
            auto* box = DialogDriver::Find<QCheckBox>(dialog, kSystemMonitorBox);
            ASSERT_NE(box, nullptr);
            ASSERT_FALSE(box->isChecked());
            box->click();
            DialogDriver::Find<QPushButton>(dialog, button)->click();
        });
        const int32_t result =
            doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, page, nullptr, nullptr);
        EXPECT_TRUE(driver.Done());
        return result;
    }
};

TEST_F(ConfigDialogTest, OkRegistersTheFunctionThenSignalsOnce) {
    int32_t page = 0;
    EXPECT_EQ(TurnOnSystemMonitorAndPress(1, &page), 1);
    EXPECT_EQ(page, 0);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSwitchSection, kScanSwitchKey) & kSystemMonitorBit,
              kSystemMonitorBit);
    // The screen saver scan is brought into line at every apply, touched or
    // not; the signal comes once, last.
    const std::vector<std::string> changes = RegistrationChanges();
    ASSERT_EQ(changes.size(), 3u);
    EXPECT_EQ(changes[0].rfind("Q9SSCtrl_Register\t32\t", 0), 0u) << changes[0];
    EXPECT_EQ(changes[1].rfind("Q9SSCtrl_Unregister\t16\t", 0), 0u) << changes[1];
    EXPECT_EQ(changes[2], "Q9SSCtrl_SetCfgChanged\t32\t-\t1");
}

TEST_F(ConfigDialogTest, CancelWritesNothingAndCallsNothing) {
    const std::string before = caller->install.Read("Q9Cfg.dat");
    int32_t page = 0;
    EXPECT_EQ(TurnOnSystemMonitorAndPress(2, &page), 2);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSwitchSection, kScanSwitchKey) & kSystemMonitorBit, 0u);
    EXPECT_EQ(caller->install.Read("Q9Cfg.dat"), before);
    EXPECT_TRUE(RegistrationChanges().empty());
}

TEST_F(ConfigDialogTest, AStartPageOutsideTheTreeComesBackAsMinusOne) {
    DialogDriver driver(
        [](QDialog* dialog) { DialogDriver::Find<QPushButton>(dialog, 1)->click(); });
    int32_t page = 6;
    EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
    EXPECT_EQ(page, -1);
    EXPECT_EQ(RegistrationChanges(), std::vector<std::string>{"Q9SSCtrl_SetCfgChanged\t32\t-\t1"});
}

TEST_F(ConfigDialogTest, SinglePageModeShowsThePageAlone) {
    DialogDriver driver([](QDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "E-mail Scan/Monitoring");
        EXPECT_NE(DialogDriver::Find<QCheckBox>(dialog, 1009), nullptr);
        DialogDriver::Find<QPushButton>(dialog, 2)->click();
    });
    int32_t page = 8;
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage | DMF_NoAuthenticate, &page, nullptr, nullptr), 2);
    EXPECT_TRUE(driver.Done());
}

}  // namespace
