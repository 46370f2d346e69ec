// The general pages through the loaded library, end to end: a person sets
// the product's password on the security page alone and the next call asks
// for it; a person turns the tray icon off in the configuration dialog and
// the registration journal shows it stopped before the one signal.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <sstream>
#include <string>
#include <vector>

#include "CallerSessionTest.h"
#include "DialogDriver.h"
#include "PromptAnswerer.h"
#include "Q9CfgE.h"
#include "q9cfgul.h"

namespace general_pages_test {
namespace {

constexpr int32_t kSecurityPage = 17;
constexpr int32_t kOtherConfigPage = 15;
constexpr uint32_t kAuthorization = 3;
constexpr uint32_t kAuthEnabled = 7;
constexpr uint32_t kAuthPassword = 9;
constexpr const char* kPassword = "Blue-Heron 42";

class GeneralPagesTest : public CallerSessionTest {
protected:
    void SetUp() override { StartCaller({"Q9SSCtrl"}); }


    static std::string StoredPassword() {
        uint32_t length = 0;
        Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length);
        std::string text(length, '\0');
        Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, text.data(), &length);
        return text.c_str();
    }
};

TEST_F(GeneralPagesTest, APasswordSetOnTheSecurityPageIsKeptEncipheredAndAskedNextTime) {
    DialogDriver driver([](QDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Security configuration");
        auto* box = DialogDriver::Find<QCheckBox>(dialog, 1002);
        ASSERT_NE(box, nullptr);
        ASSERT_FALSE(box->isChecked());
        box->click();
        QTest::keyClicks(DialogDriver::Find<QLineEdit>(dialog, 1021), kPassword);
        QTest::keyClicks(DialogDriver::Find<QLineEdit>(dialog, 1022), kPassword);
        DialogDriver::Find<QPushButton>(dialog, 1)->click();
    });
    int32_t page = kSecurityPage;
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
    EXPECT_TRUE(driver.Done());

    EXPECT_EQ(Q9CfgE_GetDWEx(kAuthorization, kAuthEnabled), 1u);
    EXPECT_EQ(StoredPassword(), kPassword);
    EXPECT_EQ(Q9CfgE_GetStrEx(kAuthorization, kAuthPassword), nullptr);
    const std::string file = caller->install.Read("Q9Cfg.dat");
    EXPECT_NE(file.find("CEK_AuthPassword=enc:"), std::string::npos);
    EXPECT_EQ(file.find(kPassword), std::string::npos);

    // The next call asks for it; the right answer opens the dialog.
    int prompts = 0;
    PromptAnswerer answerer(kPassword, [&prompts] { ++prompts; });
    DialogDriver cancel(
        [](QDialog* dialog) { DialogDriver::Find<QPushButton>(dialog, 2)->click(); });
    EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(prompts, 1);
    EXPECT_TRUE(cancel.Done());
}

TEST_F(GeneralPagesTest, TurningTheTrayIconOffStopsItThenSignalsOnce) {
    caller->install.Write("Q9SSCtrl.state", "[Registered]\n112=1\n");
    DialogDriver driver([](QDialog* dialog) {
        auto* tray = DialogDriver::Find<QCheckBox>(dialog, 1076);
        ASSERT_NE(tray, nullptr);
        ASSERT_TRUE(tray->isChecked());
        tray->click();
        DialogDriver::Find<QPushButton>(dialog, 1)->click();
    });
    int32_t page = kOtherConfigPage;
    EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, &page, nullptr, nullptr), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(page, kOtherConfigPage);
    const std::vector<std::string> expected = {"Q9SSCtrl_Unregister\t112\t5000 2\t1",
                                               "Q9SSCtrl_SetCfgChanged\t32\t-\t1"};
    EXPECT_EQ(RegistrationChanges(), expected);
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 46) & 0x100000u, 0u);
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 47), 0xFFFFFFFFu);
}

}  // namespace
}  // namespace general_pages_test
