// Q9CfgUL_DoModal through the loaded library: the gates, the order of its
// steps and its results, seen in the registration journal and the store.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "BoxAnswerer.h"
#include "CallerInstallation.h"
#include "DialogDriver.h"
#include "PromptAnswerer.h"
#include "Q9CfgE.h"
#include "beacon/WindowBeacon.h"
#include "platform/SharedWord.h"
#include "q9cfgul.h"
#include "support/HelperWindow.h"
#include "support/TestPaths.h"

namespace {

using DoModalFn = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);

class DoModalTest : public testing::Test {
protected:
    void SetUp() override { Q9CfgE_SetStyleEx(257, "", 0); }
    void TearDown() override { Q9CfgE_SetStyleEx(257, "", 0); }

    // An installation with function registration present, privileged or not.
    void Install(std::initializer_list<const char*> siblings, bool privileged = true) {
        caller = std::make_unique<CallerInstallation>(siblings);
        caller->install.Write(
            "Q9SSCtrl.ini", std::string("[Privilege]\nEnough=") + (privileged ? "1" : "0") + "\n");
        ASSERT_NE(caller->Load(), nullptr) << dlerror();
        doModal = caller->Entry<DoModalFn>("Q9CfgUL_DoModal");
        ASSERT_NE(doModal, nullptr);
    }
    std::string Journal() const { return caller->install.Read("Q9SSCtrl.journal"); }
    // The product password of the installation's store.
    static void SetPassword(const char* password) {
        ASSERT_EQ(Q9CfgE_SetDWEx(3, 7, 1), 1);
        ASSERT_EQ(Q9CfgE_SetEncStrEx(3, 9, password), 1);
    }
    static bool AnyWindowShown() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible()) return true;
        }
        return false;
    }

    std::unique_ptr<CallerInstallation> caller;
    DoModalFn* doModal = nullptr;
};

constexpr const char* kPrivilegeCall = "Q9SSCtrl_HasEnoughPrivilege\t-\t-\t";

}  // namespace

TEST_F(DoModalTest, PageBeyondTheLastAnswersMinusOneBeforeThePrivilegeCheck) {
    Install({"Q9SSCtrl"});
    BoxAnswerer boxes;
    int32_t page = 41;
    EXPECT_EQ(doModal(0, DMF_ModeDialog, &page, nullptr, nullptr), -1);
    page = -1;
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage, &page, nullptr, nullptr), -1);
    EXPECT_EQ(Journal(), "");
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(DoModalTest, UnknownModeWithFullPrivilegesPassesTheGatesAndAnswersMinusOne) {
    Install({"Q9SSCtrl"});
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, 5, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "1\n");
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_FALSE(AnyWindowShown());
}

TEST_F(DoModalTest, RefusedPrivilegeSaysSoAndAnswersTwo) {
    Install({"Q9SSCtrl"}, false);
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, 5, nullptr, nullptr, nullptr), 2);
    ASSERT_EQ(boxes.boxes.size(), 1u);
    EXPECT_EQ(boxes.boxes[0].title, "Warning");
    EXPECT_TRUE(
        boxes.boxes[0].text.startsWith("Sorry, you are not authorized to execute this task. ("));
    EXPECT_TRUE(boxes.boxes[0].text.endsWith(")\nPlease ask the administrator for more details."));
}

TEST_F(DoModalTest, SilentCallWithRefusedPrivilegeShowsNothingAndAnswersTwo) {
    Install({"Q9SSCtrl"}, false);
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, DMF_Silent, nullptr, nullptr, nullptr), 2);
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "0\n");
}

TEST_F(DoModalTest, MissingRegistrationLibraryCountsAsNoPrivilege) {
    Install({});
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, DMF_Silent, nullptr, nullptr, nullptr), 2);
    EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(DoModalTest, SilentDialogModeWritesTheProtectionLevelBackAndAnswersOne) {
    Install({"Q9SSCtrl"});
    caller->install.Write(
        "Q9CfgDef.dat",
        "Q9 Configuration Store 1\n[CES_General]\nCEK_ProtectLevel=dword:00000004\n");
    EXPECT_FALSE(caller->install.Exists("Q9Cfg.dat"));
    EXPECT_EQ(doModal(0, DMF_Silent, nullptr, nullptr, nullptr), 1);
    EXPECT_NE(caller->install.Read("Q9Cfg.dat").find("CEK_ProtectLevel=dword:00000004"),
              std::string::npos);
}

TEST_F(DoModalTest, NamedStoreFileIsSelectedBeforeAnythingIsRead) {
    Install({"Q9SSCtrl"});
    const std::string named = caller->install.PathOf("Other.dat");
    caller->install.Write(
        "Other.dat", "Q9 Configuration Store 1\n[CES_General]\nCEK_ProtectLevel=dword:00000001\n");
    EXPECT_EQ(doModal(0, DMF_Silent, nullptr, named.c_str(), nullptr), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(0, 59), 1u);
    EXPECT_FALSE(caller->install.Exists("Q9Cfg.dat"));
}

TEST_F(DoModalTest, ProductPasswordRefusedAnswersTwo) {
    Install({"Q9SSCtrl"});
    ASSERT_EQ(Q9CfgE_SetDWEx(3, 7, 1), 1);
    ASSERT_EQ(Q9CfgE_SetEncStrEx(3, 9, "right"), 1);
    // The prompt is answered with Cancel.
    QTimer cancel;
    int prompts = 0;
    QObject::connect(&cancel, &QTimer::timeout, [&prompts] {
        if (QWidget* prompt = QApplication::activeModalWidget()) {
            ++prompts;
            prompt->close();
        }
    });
    cancel.start(10);
    EXPECT_EQ(doModal(0, 5, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(prompts, 1);
    // Skipping authentication lets the same call through to the unknown mode.
    EXPECT_EQ(doModal(0, 5 | DMF_NoAuthenticate, nullptr, nullptr, nullptr), -1);
}

TEST_F(DoModalTest, OpenConfigurationWindowElsewhereIsBroughtForwardAndAnswersTwo) {
    Install({"Q9SSCtrl"});
    QWidget openWindow;
    WindowBeacon beacon(&openWindow);
    int forwarded = 0;
    QObject::connect(&beacon, &WindowBeacon::broughtForward, [&forwarded] { ++forwarded; });
    platform::SharedWord word(std::getenv("Q9_CONFIG_WINDOW_WORD"));
    const uint32_t previous = word.Exchange(beacon.Token());
    EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(forwarded, 2);
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "1\n" + kPrivilegeCall + "1\n");
    EXPECT_EQ(word.Load(), beacon.Token());
    word.Exchange(previous);
}

TEST_F(DoModalTest, ADialogOpenInAnotherProcessIsBroughtForwardAfterAuthentication) {
    Install({"Q9SSCtrl"});
    SetPassword("right");
    HelperWindow other(TestPath("helpers") + "/q9_window_helper");
    const uint32_t token = other.WaitForToken();
    ASSERT_NE(token, 0u);
    platform::SharedWord word(std::getenv("Q9_CONFIG_WINDOW_WORD"));
    word.Exchange(token);
    BoxAnswerer boxes;
    std::vector<size_t> linesAtPrompt;
    PromptAnswerer answerer("right", [&] { linesAtPrompt.push_back(other.Lines().size()); });
    EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
    // The prompt came while the other window had not been brought forward.
    EXPECT_EQ(linesAtPrompt, std::vector<size_t>{1});
    EXPECT_TRUE(WaitFor([&other] { return other.Lines().size() == 2; }));
    EXPECT_EQ(other.Lines().back(), "forward");
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "1\n");
    EXPECT_TRUE(boxes.boxes.empty());
    word.Exchange(0);
}

// The password is asked before an open window is looked for: a caller who
// does not give it gets 2, and the open window is left where it is.
TEST_F(DoModalTest, ARefusedPasswordAnswersTwoWithoutBringingAnOpenWindowForward) {
    Install({"Q9SSCtrl"});
    SetPassword("right");
    QWidget openWindow;
    WindowBeacon beacon(&openWindow);
    std::vector<std::string> events;
    QObject::connect(&beacon, &WindowBeacon::broughtForward,
                     [&events] { events.push_back("forward"); });
    platform::SharedWord word(std::getenv("Q9_CONFIG_WINDOW_WORD"));
    const uint32_t previous = word.Exchange(beacon.Token());
    {
        PromptAnswerer cancel(nullptr, [&events] { events.push_back("prompt"); });
        EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
        EXPECT_EQ(doModal(0, DMF_ModeSinglePage, nullptr, nullptr, nullptr), 2);
    }
    EXPECT_EQ(events, (std::vector<std::string>{"prompt", "prompt"}));
    EXPECT_EQ(word.Load(), beacon.Token());
    // With the right password the same calls go on to the open window.
    events.clear();
    {
        PromptAnswerer right("right", [&events] { events.push_back("prompt"); });
        EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
        EXPECT_EQ(doModal(0, DMF_ModeSinglePage, nullptr, nullptr, nullptr), 2);
    }
    EXPECT_EQ(events, (std::vector<std::string>{"prompt", "forward", "prompt", "forward"}));
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "1\n" + kPrivilegeCall + "1\n" +
                             kPrivilegeCall + "1\n" + kPrivilegeCall + "1\n");
    word.Exchange(previous);
}

// A password prompt open in another process of the installation is not
// opened a second time: each call brings that prompt to the front and
// answers 2 without a prompt of its own, leaving the other prompt open.
TEST_F(DoModalTest, APasswordPromptOpenInAnotherProcessIsBroughtForwardAndAnswersTwo) {
    Install({"Q9SSCtrl"});
    SetPassword("right");
    const std::string stop = caller->install.PathOf("stop");
    const std::string events = caller->install.PathOf("prompt-events");
    ChildProcess other(TestPath("helpers") + "/q9_store_helper",
                       {"prompt", caller->install.Directory(), stop, events});
    ASSERT_TRUE(WaitFor([&] { return caller->install.Read("prompt-events") == "shown\n"; }));
    const uint64_t otherPrompt = Q9CfgE_GetAuthenticateDlg(0);
    ASSERT_NE(otherPrompt, 0u);
    int prompts = 0;
    PromptAnswerer cancel(nullptr, [&prompts] { ++prompts; });
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(caller->install.Read("prompt-events"), "shown\nraised\n");
    EXPECT_EQ(doModal(0, DMF_ModeSinglePage, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(caller->install.Read("prompt-events"), "shown\nraised\nraised\n");
    EXPECT_EQ(prompts, 0);
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_FALSE(other.HasExited());
    EXPECT_EQ(Q9CfgE_GetAuthenticateDlg(0), otherPrompt);
    EXPECT_EQ(Journal(), std::string(kPrivilegeCall) + "1\n" + kPrivilegeCall + "1\n");
    // Once the other prompt is closed, the call asks for the password itself.
    caller->install.Write("stop", "\n");
    EXPECT_EQ(other.Wait(), 0);
    EXPECT_EQ(doModal(0, DMF_ModeDialog, nullptr, nullptr, nullptr), 2);
    EXPECT_EQ(prompts, 1);
}

TEST_F(DoModalTest, WithoutAPageIdBothDialogModesOpenPageZero) {
    Install({"Q9SSCtrl"});
    QString header;
    QString caption;
    {
        DialogDriver driver([&header](QDialog* dialog) {
            const auto selected = DialogDriver::Find<QTreeWidget>(dialog, 1000)->selectedItems();
            if (!selected.isEmpty()) header = selected.first()->text(0);
            DialogDriver::Find<QPushButton>(dialog, 2)->click();
        });
        EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, nullptr, nullptr, nullptr), 2);
    }
    {
        DialogDriver driver([&caption](QDialog* dialog) {
            caption = dialog->windowTitle();
            DialogDriver::Find<QPushButton>(dialog, 2)->click();
        });
        EXPECT_EQ(doModal(0, DMF_ModeSinglePage | DMF_NoAuthenticate, nullptr, nullptr, nullptr),
                  2);
    }
    EXPECT_EQ(header, "System Scan/Monitoring");
    EXPECT_EQ(caption, "System Scan/Monitoring");
}

TEST_F(DoModalTest, TheWizardModeHasNoSingleInstanceCheck) {
    Install({"Q9SSCtrl"});
    QWidget openWindow;
    WindowBeacon beacon(&openWindow);
    int forwarded = 0;
    QObject::connect(&beacon, &WindowBeacon::broughtForward, [&forwarded] { ++forwarded; });
    platform::SharedWord word(std::getenv("Q9_CONFIG_WINDOW_WORD"));
    word.Exchange(beacon.Token());
    bool opened = false;
    DialogDriver cancel([&opened](QDialog* dialog) {
        opened = true;
        dialog->reject();
    });
    EXPECT_EQ(doModal(0, DMF_ModeWizard | DMF_NoAuthenticate, nullptr, nullptr, nullptr), 2);
    EXPECT_TRUE(opened) << "the wizard is not turned away by the open window";
    EXPECT_EQ(forwarded, 0);
    EXPECT_EQ(word.Load(), beacon.Token());
    word.Exchange(0);
}

TEST_F(DoModalTest, AWindowWordNobodyAnswersForIsClearedAndTheDialogOpens) {
    Install({"Q9SSCtrl"});
    platform::SharedWord word(std::getenv("Q9_CONFIG_WINDOW_WORD"));
    word.Exchange(0x4242);  // left by a process that ended
    bool opened = false;
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, [&opened, &word] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            opened = word.Load() != 0 && word.Load() != 0x4242;
            dialog->reject();
        }
    });
    cancel.start(10);
    EXPECT_EQ(doModal(0, DMF_ModeDialog | DMF_NoAuthenticate, nullptr, nullptr, nullptr), 2);
    EXPECT_TRUE(opened);
    EXPECT_EQ(word.Load(), 0u);
}

TEST_F(DoModalTest, TheSilentWizardRegistersTheDefaultFunctionsWithoutAWindow) {
    Install({"Q9SSCtrl"});
    BoxAnswerer boxes;
    EXPECT_EQ(doModal(0, DMF_ModeWizard | DMF_Silent, nullptr, nullptr, nullptr), 1);
    EXPECT_TRUE(boxes.boxes.empty());
    EXPECT_FALSE(AnyWindowShown());
    const std::string journal = Journal();
    for (const char* item : {"0", "1", "32", "64", "112", "128", "144", "160", "176", "192"}) {
        EXPECT_NE(journal.find(std::string("Q9SSCtrl_Register\t") + item + "\t-\t1\n"),
                  std::string::npos)
            << item;
    }
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 42), 0xF3u) << "the scan switches";
    EXPECT_EQ(Q9CfgE_GetDWEx(14, 44), 0xD000u) << "the mail switches";
}

TEST_F(DoModalTest, TheWizardsFinishCommitsAndTellsTheServices) {
    Install({"Q9SSCtrl"});
    DialogDriver finish(
        [](QDialog* dialog) { DialogDriver::Find<QPushButton>(dialog, 1)->click(); });
    EXPECT_EQ(doModal(0, DMF_ModeWizard | DMF_NoAuthenticate, nullptr, nullptr, nullptr), 1);
    EXPECT_TRUE(finish.Done());
    EXPECT_NE(Journal().find("Q9SSCtrl_SetCfgChanged\t32\t-\t1\n"), std::string::npos);
}
