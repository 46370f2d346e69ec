// The "System Scan/Monitoring" page against the built Q9SSCtrl: which rows an
// edition shows, what Load, Save, Default and Apply do with the switch word
// and the registrations, and the questions the boxes ask.

#include <QCoreApplication>
#include <array>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "options/StoreKeys.h"
#include "pages/scan/FeatureSwitchPage.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"

namespace {

constexpr int kMonitor = 1005;
constexpr int kInternet = 1006;
constexpr int kMessenger = 1007;
constexpr int kStartup = 1008;
constexpr int kOffice = 1011;
constexpr int kScreenSaver = 1033;
constexpr int kShell = 1035;
constexpr int kBar = 1036;

struct Box {
    int id;
    int32_t code;
    uint32_t bit;
};

// In the template's order.
constexpr std::array<Box, 8> kBoxes = {{
    {kMonitor, 32, 0x1},
    {kInternet, 48, 0x2},
    {kMessenger, 144, 0x40},
    {kStartup, 160, 0x80},
    {kOffice, 96, 0x4},
    {kScreenSaver, 16, 0x8},
    {kShell, 0, 0x10},
    {kBar, 1, 0x20},
}};

const std::string kOfficeQuestion =
    "If Office Guard is selected, you may have to restart the system when files related to "
    "Office Guard are patched.\nDo you want to select the Office Guard?";
const std::string kExplorerQuestion =
    "If Explorer Scan is selected, you may have to restart the system when files related to "
    "Explorer Scan are patched.\nDo you want to select the Explorer Scan?";
const std::string kMonitorOff =
    "The system monitoring will be closed.\nWhen restarting the system, the system monitoring "
    "will not restart automatically.\nAre you sure you want to close?";
const std::string kMonitorOffRestart45 =
    "The system monitoring will be closed.\nAfter approximately 45 minutes when the system "
    "restarts, system monitoring will restart again\nDo you want to close?";

constexpr uint32_t kQuestionBox = msg::kYesNo | msg::kIconQuestion;
constexpr uint32_t kInformationBox = msg::kYesNo | msg::kIconInformation;

std::string ApplicationName() { return QCoreApplication::applicationName().toStdString(); }

class FeatureSwitchPageTest : public SwitchPageTest {
protected:
    CFeatureSwitchPage* Make(uint32_t flags = 0) { return MakePage<CFeatureSwitchPage>(flags); }

    // Saves, then applies with a fresh journal; the journal's lines.
    std::vector<std::string> SaveAndApply(CFeatureSwitchPage* page) {
        page->Save();
        ClearJournal();
        page->Apply();
        return Journal();
    }
};

}  // namespace

// --- First display ---------------------------------------------------------

TEST_F(FeatureSwitchPageTest, TemplateHasEveryBoxWithItsCaptionAndADescriptionAfterIt) {
    const std::array<const char*, 8> captions = {"System Monitoring",
                                                 "Internet Monitoring",
                                                 "Instant Messenger Monitoring",
                                                 "Startup Program Monitoring",
                                                 "Office Guard",
                                                 "Screen Saver Scan",
                                                 "Short cut menus",
                                                 "Toolbars"};
    CFeatureSwitchPage* page = Make();
    for (size_t i = 0; i < kBoxes.size(); ++i) {
        EXPECT_EQ(ctl::GetText(page, kBoxes[i].id), captions[i]);
        QWidget* description = ControlAfter(page, kBoxes[i].id);
        ASSERT_NE(description, nullptr) << kBoxes[i].id;
        EXPECT_EQ(ctl::IdOf(description), ctl::kNoId) << kBoxes[i].id;
        EXPECT_GT(description->pos().y(), PositionOf(page, kBoxes[i].id).y()) << kBoxes[i].id;
    }
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(FeatureSwitchPageTest, NormalEditionShowsEveryRowEnabled) {
    CFeatureSwitchPage* page = Make();
    for (const Box& box : kBoxes) {
        EXPECT_TRUE(IsShown(page, box.id)) << box.id;
        EXPECT_TRUE(IsEnabled(page, box.id)) << box.id;
        EXPECT_FALSE(ControlAfter(page, box.id)->isHidden()) << box.id;
    }
}

TEST_F(FeatureSwitchPageTest, NormalEditionAsksEveryFunctionInOrder) {
    Make();
    const std::vector<std::string> expected = {"32\t-\t1", "144\t-\t1", "160\t-\t1", "96\t-\t1",
                                               "16\t-\t1", "0\t-\t1",   "1\t-\t1",   "48\t-\t1"};
    EXPECT_EQ(CallsOf("Q9SSCtrl_CanBeRegister"), expected);
}

TEST_F(FeatureSwitchPageTest, BoxOfAFunctionThatCannotRunIsDisabled) {
    for (const Box& box : kBoxes) {
        SetUnregistrable({box.code});
        CFeatureSwitchPage* page = Make();
        for (const Box& other : kBoxes) {
            EXPECT_EQ(IsEnabled(page, other.id), other.id != box.id) << box.id << " " << other.id;
            EXPECT_TRUE(IsShown(page, other.id)) << box.id << " " << other.id;
        }
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, WithoutInternetMonitoringItsRowIsHiddenAndNotAsked) {
    CFeatureSwitchPage* page = Make(DMF_RemoveInternetMon);
    EXPECT_FALSE(IsShown(page, kInternet));
    EXPECT_TRUE(ControlAfter(page, kInternet)->isHidden());
    EXPECT_TRUE(IsShown(page, kMessenger));
    EXPECT_TRUE(IsShown(page, kMonitor));
    EXPECT_FALSE(ControlAfter(page, kMonitor)->isHidden());
    for (const std::string& call : CallsOf("Q9SSCtrl_CanBeRegister")) {
        EXPECT_NE(call.rfind("48\t", 0), 0U) << call;
    }
}

TEST_F(FeatureSwitchPageTest, LightEditionHidesEveryControlAfterSystemMonitoring) {
    CFeatureSwitchPage* page = Make(DMF_IsLight);
    EXPECT_TRUE(IsShown(page, kMonitor));
    EXPECT_TRUE(IsEnabled(page, kMonitor));
    EXPECT_FALSE(ControlAfter(page, kMonitor)->isHidden());
    bool after = false;
    for (QWidget* control : ctl::Children(page)) {
        if (ctl::IdOf(control) == kInternet) after = true;
        if (after) {
            EXPECT_TRUE(control->isHidden()) << ctl::IdOf(control);
        }
    }
    EXPECT_TRUE(after);
    const std::vector<std::string> expected = {"32\t-\t1"};
    EXPECT_EQ(CallsOf("Q9SSCtrl_CanBeRegister"), expected);
}

TEST_F(FeatureSwitchPageTest, SystemMonitoringIsDisabledInEveryEditionWhenItCannotRun) {
    for (uint32_t flags : {0U, DMF_IsLight, DMF_Master, DMF_RemoveInternetMon}) {
        SetUnregistrable({32});
        CFeatureSwitchPage* page = Make(flags);
        EXPECT_FALSE(IsEnabled(page, kMonitor)) << flags;
        EXPECT_TRUE(IsShown(page, kMonitor)) << flags;
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, MasterEditionHidesTheMessengerRowAndLeavesInternetAlone) {
    SetUnregistrable({48, 144});
    CFeatureSwitchPage* page = Make(DMF_Master | DMF_RemoveInternetMon);
    EXPECT_FALSE(IsShown(page, kMessenger));
    EXPECT_TRUE(ControlAfter(page, kMessenger)->isHidden());
    EXPECT_TRUE(IsShown(page, kStartup));
    EXPECT_TRUE(IsShown(page, kInternet));
    EXPECT_TRUE(IsEnabled(page, kInternet));
    const std::vector<std::string> expected = {"32\t-\t1", "160\t-\t1", "96\t-\t1",
                                               "16\t-\t1", "0\t-\t1",   "1\t-\t1"};
    EXPECT_EQ(CallsOf("Q9SSCtrl_CanBeRegister"), expected);
}

TEST_F(FeatureSwitchPageTest, MasterEditionDisablesTheRowsThatCannotRun) {
    for (const Box& box : kBoxes) {
        if (box.id == kMessenger || box.id == kInternet) continue;
        SetUnregistrable({box.code});
        CFeatureSwitchPage* page = Make(DMF_Master);
        EXPECT_FALSE(IsEnabled(page, box.id)) << box.id;
        EXPECT_TRUE(IsEnabled(page, kInternet)) << box.id;
        delete page;
    }
}

// --- Load -------------------------------------------------------------------

TEST_F(FeatureSwitchPageTest, LoadChecksTheRegisteredFunctions) {
    SetRegistered({32, 144, 16, 1});
    CFeatureSwitchPage* page = Make();
    for (const Box& box : kBoxes) {
        const bool registered =
            box.code == 32 || box.code == 144 || box.code == 16 || box.code == 1;
        EXPECT_EQ(IsChecked(page, box.id), registered) << box.id;
    }
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(FeatureSwitchPageTest, LoadLeavesDisabledAndHiddenBoxesAlone) {
    SetUnregistrable({96});
    CFeatureSwitchPage* page = Make(DMF_RemoveInternetMon);
    ctl::SetCheck(page, kOffice, 1);
    ctl::SetCheck(page, kInternet, 1);
    ctl::SetCheck(page, kStartup, 1);
    SetRegistered({});
    page->Load();
    EXPECT_TRUE(IsChecked(page, kOffice));
    EXPECT_TRUE(IsChecked(page, kInternet));
    EXPECT_FALSE(IsChecked(page, kStartup));
}

TEST_F(FeatureSwitchPageTest, LightEditionLoadsOnlySystemMonitoring) {
    SetRegistered({32, 48, 96, 16});
    CFeatureSwitchPage* page = Make(DMF_IsLight);
    EXPECT_TRUE(IsChecked(page, kMonitor));
    for (const Box& box : kBoxes) {
        if (box.id != kMonitor) {
            EXPECT_FALSE(IsChecked(page, box.id)) << box.id;
        }
    }
}

TEST_F(FeatureSwitchPageTest, LoadClearsModified) {
    CFeatureSwitchPage* page = Make();
    Click(page, kScreenSaver);
    ASSERT_EQ(page->IsModified(), 1);
    page->Load();
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->NeedApply(), 1);
}

// --- Clicks -----------------------------------------------------------------

TEST_F(FeatureSwitchPageTest, ClickSetsModifiedAndNeedApply) {
    for (const Box& box : kBoxes) {
        CFeatureSwitchPage* page = Make();
        ASSERT_EQ(page->IsModified(), 0);
        ASSERT_EQ(page->NeedApply(), 0);
        Click(page, box.id);
        EXPECT_EQ(page->IsModified(), 1) << box.id;
        EXPECT_EQ(page->NeedApply(), 1) << box.id;
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, ApplySwitchesOnlyTheClickedFunctionAndTheScreenSaver) {
    for (const Box& box : kBoxes) {
        if (box.id == kScreenSaver) continue;
        CFeatureSwitchPage* page = Make();
        Click(page, box.id);
        ASSERT_TRUE(IsChecked(page, box.id)) << box.id;
        const std::vector<std::string> expected = {Registered(box.code), Unregistered(16)};
        EXPECT_EQ(SaveAndApply(page), expected) << box.id;
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, ApplyRegistersInItsOwnOrderByTheStoredWord) {
    SetRegistered({32, 48, 144, 160, 96, 16, 0, 1});
    CFeatureSwitchPage* page = Make();
    for (const Box& box : kBoxes) Click(page, box.id);
    page->Save();
    // Apply goes by the word as stored, whatever the boxes show by then.
    SetWord(CES_Switch, CEK_Switch_Scan, 0x10 | 0x1 | 0x40 | 0x4);
    ClearJournal();
    page->Apply();
    const std::vector<std::string> expected = {Registered(0),    Unregistered(1), Registered(32),
                                               Unregistered(48), Registered(144), Unregistered(160),
                                               Registered(96),   Unregistered(16)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(FeatureSwitchPageTest, ScreenSaverIsSwitchedAtEveryApplyEvenUntouched) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x8);
    CFeatureSwitchPage* page = Make();
    ClearJournal();
    page->Apply();
    EXPECT_EQ(Journal(), std::vector<std::string>{Registered(16)});
    SetWord(CES_Switch, CEK_Switch_Scan, 0xF7);
    ClearJournal();
    page->Apply();
    EXPECT_EQ(Journal(), std::vector<std::string>{Unregistered(16)});
}

TEST_F(FeatureSwitchPageTest, TurningOnOfficeGuardAsksFirst) {
    CFeatureSwitchPage* page = Make();
    m_messages.answers = {msg::kIdYes};
    Click(page, kOffice);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kOfficeQuestion);
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
    EXPECT_EQ(m_messages.messages[0].type, kInformationBox);
    EXPECT_EQ(m_messages.messages[0].owner, page);
    EXPECT_TRUE(IsChecked(page, kOffice));
}

TEST_F(FeatureSwitchPageTest, TurningOnAShellFunctionAsksFirst) {
    for (int id : {kShell, kBar}) {
        RecordingMessageService messages;
        CFeatureSwitchPage* page = Make();
        messages.answers = {msg::kIdYes};
        Click(page, id);
        ASSERT_EQ(messages.messages.size(), 1U) << id;
        EXPECT_EQ(messages.messages[0].text, kExplorerQuestion) << id;
        EXPECT_EQ(messages.messages[0].caption, "Information") << id;
        EXPECT_EQ(messages.messages[0].type, kInformationBox) << id;
        EXPECT_TRUE(IsChecked(page, id)) << id;
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, QuestionAnsweredNoLeavesTheBoxOffAndApplyUnregisters) {
    const std::array<Box, 3> asking = {{{kOffice, 96, 0x4}, {kShell, 0, 0x10}, {kBar, 1, 0x20}}};
    for (const Box& box : asking) {
        CFeatureSwitchPage* page = Make();
        m_messages.answers = {msg::kIdNo};
        Click(page, box.id);
        EXPECT_FALSE(IsChecked(page, box.id)) << box.id;
        EXPECT_EQ(page->IsModified(), 1) << box.id;
        EXPECT_EQ(page->NeedApply(), 1) << box.id;
        const std::vector<std::string> expected = {Unregistered(box.code), Unregistered(16)};
        EXPECT_EQ(SaveAndApply(page), expected) << box.id;
        delete page;
    }
}

TEST_F(FeatureSwitchPageTest, TurningABoxOffAsksNothing) {
    SetRegistered({96, 0, 1});
    CFeatureSwitchPage* page = Make();
    for (int id : {kOffice, kShell, kBar}) {
        ASSERT_TRUE(IsChecked(page, id)) << id;
        Click(page, id);
        EXPECT_FALSE(IsChecked(page, id)) << id;
    }
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(FeatureSwitchPageTest, TurningOffSystemMonitoringAsksForConfirmation) {
    SetRegistered({32});
    CFeatureSwitchPage* page = Make();
    ASSERT_TRUE(IsChecked(page, kMonitor));
    m_messages.answers = {msg::kIdYes};
    Click(page, kMonitor);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kMonitorOff);
    EXPECT_EQ(m_messages.messages[0].caption, ApplicationName());
    EXPECT_EQ(m_messages.messages[0].type, kQuestionBox);
    EXPECT_FALSE(IsChecked(page, kMonitor));
    const std::vector<std::string> expected = {Unregistered(32), Unregistered(16)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

TEST_F(FeatureSwitchPageTest, ConfirmationTellsTheRestartIntervalWhenAutoRestartIsRegistered) {
    SetRegistered({32, 128});
    SetWord(CES_SystemMonitor, CEK_MonitorRestart, 45);
    CFeatureSwitchPage* page = Make();
    Click(page, kMonitor);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kMonitorOffRestart45);
    EXPECT_EQ(m_messages.messages[0].type, kQuestionBox);
}

TEST_F(FeatureSwitchPageTest, ConfirmationAnsweredNoChecksSystemMonitoringAgain) {
    SetRegistered({32});
    CFeatureSwitchPage* page = Make();
    m_messages.answers = {msg::kIdNo};
    Click(page, kMonitor);
    EXPECT_TRUE(IsChecked(page, kMonitor));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    const std::vector<std::string> expected = {Registered(32), Unregistered(16)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

TEST_F(FeatureSwitchPageTest, TurningOnSystemMonitoringAsksNothing) {
    CFeatureSwitchPage* page = Make();
    Click(page, kMonitor);
    EXPECT_TRUE(IsChecked(page, kMonitor));
    EXPECT_TRUE(m_messages.messages.empty());
}

// --- Save -------------------------------------------------------------------

TEST_F(FeatureSwitchPageTest, SaveWritesTheBoxesIntoTheWordAndKeepsItsOtherBits) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0xABCD0000 | 0x3C);
    SetRegistered({32, 160, 16, 1});
    CFeatureSwitchPage* page = Make();
    page->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xABCD0000 | 0x1 | 0x80 | 0x8 | 0x20);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0xFFFFFFFFU);
    EXPECT_EQ(g_Siblings.GetPending(), 0xFFU);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(FeatureSwitchPageTest, SaveWritesTheMaskOfTheEdition) {
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x77);
    SetWord(CES_Switch, CEK_Switch_ScanMailMask, 0x77);
    CFeatureSwitchPage* light = Make(DMF_IsLight);
    light->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 1U);
    for (uint32_t flags : {DMF_Master, DMF_RemoveInternetMon, DMF_RemovePopMon}) {
        SetWord(CES_Switch, CEK_Switch_ScanMask, 0x77);
        CFeatureSwitchPage* page = Make(flags);
        page->Save();
        EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0xFFFFFFFFU) << flags;
        delete page;
    }
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0x77U);
}

TEST_F(FeatureSwitchPageTest, SwitchingOnTheMessengerWithNoneChosenTurnsOnAutoRecognition) {
    SetWord(CES_Messenger, CEK_ScanExtra, 0x80000001);
    SetWord(CES_Messenger, CEK_MessengerSelect, 0x10);
    CFeatureSwitchPage* page = Make();
    Click(page, kMessenger);
    page->Save();
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect), 0x11U);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanExtra), 0x80014701U);
}

TEST_F(FeatureSwitchPageTest, ChosenMessengersStayWithoutAutoRecognition) {
    SetWord(CES_Messenger, CEK_ScanExtra, 0x200);
    SetWord(CES_Messenger, CEK_MessengerSelect, 0);
    CFeatureSwitchPage* page = Make();
    Click(page, kMessenger);
    page->Save();
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect), 0U);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanExtra), 0x200U);
}

TEST_F(FeatureSwitchPageTest, AutoRecognitionMeansEveryMessenger) {
    SetWord(CES_Messenger, CEK_ScanExtra, 0x200);
    SetWord(CES_Messenger, CEK_MessengerSelect, 1);
    CFeatureSwitchPage* page = Make();
    Click(page, kMessenger);
    page->Save();
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect), 1U);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanExtra), 0x14700U);
}

TEST_F(FeatureSwitchPageTest, MessengerAndStartupWordsStayWhenTheirBoxesAreOff) {
    SetWord(CES_Messenger, CEK_ScanExtra, 0);
    SetWord(CES_Messenger, CEK_MessengerSelect, 0);
    SetWord(CES_Startup, CEK_ScanExtra, 0);
    CFeatureSwitchPage* page = Make();
    page->Save();
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanExtra), 0U);
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect), 0U);
    EXPECT_EQ(Word(CES_Startup, CEK_ScanExtra), 0U);
}

TEST_F(FeatureSwitchPageTest, SwitchingOnStartupWithNoItemChosenChoosesThemAll) {
    SetWord(CES_Startup, CEK_ScanExtra, 0x40000000);
    CFeatureSwitchPage* page = Make();
    Click(page, kStartup);
    page->Save();
    EXPECT_EQ(Word(CES_Startup, CEK_ScanExtra), 0x40003800U);
}

TEST_F(FeatureSwitchPageTest, StartupItemsChosenStay) {
    SetWord(CES_Startup, CEK_ScanExtra, 0x1000);
    SetRegistered({160});
    CFeatureSwitchPage* page = Make();
    page->Save();
    EXPECT_EQ(Word(CES_Startup, CEK_ScanExtra), 0x1000U);
}

TEST_F(FeatureSwitchPageTest, CoveredPagePassesValidationAndSavesNothing) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x5A);
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x77);
    CFeatureSwitchPage* page = Make();
    page->CoverWithNotice("notice");
    EXPECT_EQ(page->Validate(), 0);
    page->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0x5AU);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0x77U);
    EXPECT_EQ(g_Siblings.GetPending(), 0U);
}

// --- Default ----------------------------------------------------------------

TEST_F(FeatureSwitchPageTest, DefaultShowsTheDefaultWordWithoutWritingIt) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:000000b6\n");
    SetWord(CES_Switch, CEK_Switch_Scan, 0x49);
    CFeatureSwitchPage* page = Make();
    page->OnDefault();
    for (const Box& box : kBoxes) {
        EXPECT_EQ(IsChecked(page, box.id), (0xB6 & box.bit) != 0) << box.id;
    }
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0x49U);
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(FeatureSwitchPageTest, DefaultUnchecksOfficeGuardWithoutItsQuestion) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:000000fb\n");
    SetRegistered({96});
    CFeatureSwitchPage* page = Make();
    ASSERT_TRUE(IsChecked(page, kOffice));
    page->OnDefault();
    EXPECT_FALSE(IsChecked(page, kOffice));
    EXPECT_TRUE(m_messages.messages.empty());
    // The four monitors and Office Guard count as clicked.
    const std::vector<std::string> expected = {Registered(32),  Registered(48),   Registered(144),
                                               Registered(160), Unregistered(96), Registered(16)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

TEST_F(FeatureSwitchPageTest, DefaultWithOfficeGuardChecksItWithoutQuestionOrClick) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:00000004\n");
    CFeatureSwitchPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kOffice));
    EXPECT_TRUE(m_messages.messages.empty());
    const std::vector<std::string> expected = {
        Unregistered(32), Unregistered(48), Unregistered(144), Unregistered(160), Unregistered(16)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

TEST_F(FeatureSwitchPageTest, MasterDefaultTurnsTheShellFunctionsOff) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:000000ff\n");
    CFeatureSwitchPage* page = Make(DMF_Master);
    page->OnDefault();
    EXPECT_FALSE(IsChecked(page, kShell));
    EXPECT_FALSE(IsChecked(page, kBar));
    EXPECT_TRUE(IsChecked(page, kOffice));
    EXPECT_TRUE(m_messages.messages.empty());
    const std::vector<std::string> expected = {Unregistered(0), Unregistered(1),   Registered(32),
                                               Registered(48),  Unregistered(144), Registered(160),
                                               Registered(16)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

// --- Light edition ----------------------------------------------------------

TEST_F(FeatureSwitchPageTest, LightEditionAppliesNothingAfterClicks) {
    CFeatureSwitchPage* page = Make(DMF_IsLight);
    Click(page, kMonitor);
    EXPECT_EQ(page->NeedApply(), 1);
    EXPECT_TRUE(SaveAndApply(page).empty());
}

TEST_F(FeatureSwitchPageTest, LightEditionSwitchesTheMonitorAfterADefaultWithoutOfficeGuard) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:00000001\n");
    CFeatureSwitchPage* page = Make(DMF_IsLight);
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kMonitor));
    EXPECT_EQ(SaveAndApply(page), std::vector<std::string>{Registered(32)});
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 1U);
}

TEST_F(FeatureSwitchPageTest, LightEditionKeepsTheMonitorAfterADefaultWithOfficeGuard) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_Scan=dword:00000005\n");
    CFeatureSwitchPage* page = Make(DMF_IsLight);
    page->OnDefault();
    EXPECT_TRUE(SaveAndApply(page).empty());
}
