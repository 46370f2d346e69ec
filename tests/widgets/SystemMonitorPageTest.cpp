// The "System monitoring" page: infector detection, the blocking of file
// types, the restart interval that is checked whether the restart is on or
// not, the question when the monitor is turned off, and the two functions
// it switches, in their order.

#include <QLineEdit>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/scan/SystemMonitorPage.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"

namespace system_monitor_page_test {
namespace {

constexpr int kFunctionBox = 1005;
constexpr int kInfector = 1034;
constexpr int kBlockCombo = 1032;
constexpr int kBlockTypes = 1031;
constexpr int kAutoRestart = 1106;
constexpr int kInterval = 1107;
constexpr int kExecuting = 1071;
constexpr int32_t kMonitorCode = 32;
constexpr int32_t kRestartCode = 128;

const std::string kRangeText = "Please enter the values between 10 ~ 10000.";
const std::string kOffQuestion =
    "The system monitoring will be closed.\nWhen restarting the system, the system monitoring "
    "will not restart automatically.\nAre you sure you want to close?";
const std::string kOffRestartQuestion =
    "The system monitoring will be closed.\nAfter approximately 25 minutes when the system "
    "restarts, system monitoring will restart again\nDo you want to close?";

class SystemMonitorPageTest : public SwitchPageTest {
protected:
    CSystemMonitorPage* Make() { return MakePage<CSystemMonitorPage>(0); }
    static void SetInterval(CSettingsPage* page, const char* text) {
        auto* edit = qobject_cast<QLineEdit*>(ctl::Find(page, kInterval));
        edit->setText(text);
        emit edit->textEdited(text);
    }
    static uint32_t Monitor(uint32_t key) { return Word(CES_SystemMonitor, key); }
};

TEST_F(SystemMonitorPageTest, TemplateHasTheMonitorsControlsAndTheBlockingMethods) {
    CSystemMonitorPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kFunctionBox), "System Monitoring");
    EXPECT_EQ(ctl::GetText(page, kInfector), "Infector detection");
    EXPECT_EQ(ctl::GetText(page, kAutoRestart), "Auto-Restart System Monitoring");
    using Items = std::vector<std::string>;
    EXPECT_EQ(ItemsOf(page, kBlockCombo),
              (Items{"Do not block", "Change the extension to Q9F", "Delete", "Block"}));
    EXPECT_EQ(ItemsOf(page, kExecuting),
              (Items{"Leave as is", "Repair after a forced termination",
                     "Restart the system after the repair"}));
    for (int absent : {1061, 1064, 1069, 1070}) EXPECT_EQ(ctl::Find(page, absent), nullptr);
}

TEST_F(SystemMonitorPageTest, LoadShowsBothFunctionsTheExtrasAndTheInterval) {
    SetRegistered({kMonitorCode, kRestartCode});
    SetWord(CES_SystemMonitor, CEK_ScanExtra, 0x40);
    SetWord(CES_SystemMonitor, CEK_MonitorRestart, 45);
    SetWord(CES_SystemMonitor, CEK_ScanPolicy, 0x1000000 | 0x2000000);
    CSystemMonitorPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kFunctionBox));
    EXPECT_TRUE(IsChecked(page, kAutoRestart));
    EXPECT_TRUE(IsChecked(page, kInfector));
    EXPECT_EQ(ctl::GetText(page, kInterval), "45");
    // Verification is not offered: the forced termination shows.
    EXPECT_EQ(ChosenItem(page, kExecuting), 1);
}

TEST_F(SystemMonitorPageTest, TheBlockingMethodIsReadInTheOrderChangeDeleteBlock) {
    const std::pair<uint32_t, int> cases[] = {{0x0, 0},
                                              {0x20000000, 1},
                                              {0x10000000, 2},
                                              {0x40000000, 3},
                                              {0x70000000, 1},
                                              {0x50000000, 2}};
    for (const auto& [word, index] : cases) {
        SetWord(CES_SystemMonitor, CEK_MonitorOptions, word | 0x5);
        CSystemMonitorPage* page = Make();
        EXPECT_EQ(ChosenItem(page, kBlockCombo), index) << word;
        page->Save();
        constexpr uint32_t kMethodBits[] = {0x0, 0x20000000, 0x10000000, 0x40000000};
        EXPECT_EQ(Monitor(CEK_MonitorOptions) & 0x70000000U,
                  kMethodBits[static_cast<size_t>(index)]);
        EXPECT_EQ(Monitor(CEK_MonitorOptions) & 0x5U, 0x5U);
        delete page;
    }
}

TEST_F(SystemMonitorPageTest, AnIntervalOutOfRangeOrNotANumberStopsOkEvenWithTheRestartOff) {
    for (const char* text : {"9", "10001", "abc", "", "-20"}) {
        CSystemMonitorPage* page = Make();
        ASSERT_FALSE(IsChecked(page, kAutoRestart));
        SetInterval(page, text);
        m_messages.messages.clear();
        EXPECT_EQ(page->Validate(), 1) << text;
        ASSERT_EQ(m_messages.messages.size(), 1U) << text;
        EXPECT_EQ(m_messages.messages[0].text, kRangeText);
        EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
        delete page;
    }
    for (const char* text : {"10", "10000"}) {
        CSystemMonitorPage* page = Make();
        SetInterval(page, text);
        EXPECT_EQ(page->Validate(), 0) << text;
        page->Save();
        EXPECT_EQ(Monitor(CEK_MonitorRestart), static_cast<uint32_t>(std::stoi(text)));
        delete page;
    }
}

TEST_F(SystemMonitorPageTest, EditingTheIntervalNeedsApply) {
    CSystemMonitorPage* page = Make();
    SetInterval(page, "30");
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SystemMonitorPageTest, DoNotBlockDisablesTheTypesAndKeepsAndSavesTheirText) {
    SetRegistered({kMonitorCode});
    SetWord(CES_SystemMonitor, CEK_MonitorOptions, 0x20000000);
    CSystemMonitorPage* page = Make();
    ctl::SetText(page, kBlockTypes, "vbs/scr");
    EXPECT_TRUE(IsEnabled(page, kBlockTypes));
    Choose(page, kBlockCombo, 0);
    EXPECT_FALSE(IsEnabled(page, kBlockTypes));
    EXPECT_EQ(ctl::GetText(page, kBlockTypes), "vbs/scr");
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(ReadStoreText(CES_SystemMonitor, CEK_MonitorText), "vbs/scr");
    EXPECT_EQ(Monitor(CEK_MonitorOptions) & 0x70000000U, 0U);
}

TEST_F(SystemMonitorPageTest, BlockTypesLongerThan255AreRefusedWithTheLengthMessage) {
    CSystemMonitorPage* page = Make();
    ctl::SetText(page, kBlockTypes, std::string(256, 'a'));
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text,
              "The number of words exceeds allowable length.\nPlease enter less than 255 words.");
}

TEST_F(SystemMonitorPageTest, NoToTheClosingQuestionLeavesTheMonitorOnButThePageModified) {
    SetRegistered({kMonitorCode});
    CSystemMonitorPage* page = Make();
    m_messages.answers = {msg::kIdNo};
    Click(page, kFunctionBox);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kOffQuestion);
    EXPECT_EQ(m_messages.messages[0].type, msg::kYesNo | msg::kIconQuestion);
    EXPECT_TRUE(IsChecked(page, kFunctionBox));
    EXPECT_TRUE(IsEnabled(page, kInfector));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SystemMonitorPageTest, TheClosingQuestionNamesTheIntervalWhenTheRestartIsOn) {
    SetRegistered({kMonitorCode, kRestartCode});
    CSystemMonitorPage* page = Make();
    SetInterval(page, "25");
    m_messages.answers = {msg::kIdYes};
    Click(page, kFunctionBox);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kOffRestartQuestion);
    EXPECT_FALSE(IsChecked(page, kFunctionBox));
    EXPECT_FALSE(IsEnabled(page, kInfector));
    // The restart and its interval stay usable with the monitor off.
    EXPECT_TRUE(IsEnabled(page, kAutoRestart));
    EXPECT_TRUE(IsEnabled(page, kInterval));
    Click(page, kAutoRestart);
    EXPECT_FALSE(IsEnabled(page, kInterval));
}

TEST_F(SystemMonitorPageTest, VerificationBeforeProcessingIsClearedByAnySave) {
    SetWord(CES_SystemMonitor, CEK_ScanPolicy, 0x1000000 | 0x8);
    CSystemMonitorPage* page = Make();
    page->Save();
    EXPECT_EQ(Monitor(CEK_ScanPolicy), 0x8U);
}

TEST_F(SystemMonitorPageTest, SaveForcesBits24And25AndNotTheScanSettingMark) {
    SetWord(CES_SystemMonitor, CEK_ScanOptions, 0x100);
    CSystemMonitorPage* page = Make();
    page->Save();
    EXPECT_EQ(Monitor(CEK_ScanOptions), 0x100U | 0x3000000U);
}

TEST_F(SystemMonitorPageTest, SaveMarksBothFunctionsAndApplySwitchesTheRestartFirst) {
    SetRegistered({kMonitorCode, kRestartCode});
    CSystemMonitorPage* page = Make();
    m_messages.answers = {msg::kIdYes};
    Click(page, kFunctionBox);
    Click(page, kAutoRestart);
    page->Save();
    EXPECT_EQ(g_Siblings.GetPending() & 0x200001U, 0x200001U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan) & 0x1U, 0U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General) & 0x200000U, 0U);
    ClearJournal();
    page->Apply();
    const std::vector<std::string> journal = Journal();
    ASSERT_EQ(journal.size(), 2U);
    EXPECT_EQ(journal[0], Unregistered(kRestartCode));
    EXPECT_EQ(journal[1], Unregistered(kMonitorCode));
}

TEST_F(SystemMonitorPageTest, DefaultShowsTheDefaultSwitchesAndTheUsualInterval) {
    WriteDefaults(
        "[CES_Switch]\nCEK_Switch_Scan=dword:00000001\nCEK_Switch_General=dword:00200000\n");
    SetWord(CES_SystemMonitor, CEK_MonitorRestart, 45);
    CSystemMonitorPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kFunctionBox));
    EXPECT_TRUE(IsChecked(page, kAutoRestart));
    EXPECT_EQ(ctl::GetText(page, kInterval), "60");
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(SystemMonitorPageTest, AMonitorThatCannotRunDisablesItsBoxAndThePageStaysUsable) {
    SetUnregistrable({kMonitorCode});
    CSystemMonitorPage* page = Make();
    EXPECT_FALSE(IsEnabled(page, kFunctionBox));
    EXPECT_TRUE(IsEnabled(page, kAutoRestart));
    EXPECT_EQ(page->IsCovered(), 0);
}

}  // namespace
}  // namespace system_monitor_page_test
