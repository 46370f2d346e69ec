// The configuration wizard's frame: its steps by edition, the buttons that
// follow the step and the protection level, turning pages with validation
// and saving, Finish's commit and its order, and Cancel leaving the silent
// wizard's functions.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ShellTestSupport.h"
#include "options/StoreKeys.h"
#include "q9cfgul.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "session/ProtectionLevel.h"
#include "session/RegistryHelpers.h"
#include "session/StoreCommit.h"
#include "shell/WizardDlg.h"
#include "support/TemporaryRegistry.h"
#include "text/StringTable.h"

namespace wizard_dlg_test {
namespace {

constexpr int kLevelPage = 23;
constexpr int kScanPage = 19;
constexpr int kFeaturePage = 20;
constexpr int kSchedulePage = 4;
const std::string kSignal = "Q9SSCtrl_SetCfgChanged\t32\t-\t1";

class WizardDlgTest : public ShellTest {
protected:
    WizardDlgTest() { g_nProtectLevel = kProtectLevelMedium; }
    ~WizardDlgTest() override {
        dialog.reset();
        DropWorkingCopy();
    }

    CWizardDlg& Open(uint32_t flags = 0, PageSetup setup = {}) {
        dialog = std::make_unique<CWizardDlg>(
            flags, nullptr,
            RecordingPages(&log, {kLevelPage, kScanPage, kFeaturePage, kSchedulePage}, setup));
        EXPECT_TRUE(dialog->Create());
        dialog->show();
        return *dialog;
    }

    QPushButton* Button(int id) const { return qobject_cast<QPushButton*>(dialog->Control(id)); }
    void Click(int id) { Button(id)->click(); }
    QString StepNumber() const { return qobject_cast<QLabel*>(dialog->Control(1051))->text(); }
    QString StepText() const { return qobject_cast<QLabel*>(dialog->Control(1002))->text(); }
    int ShownPage() const {
        for (int id : {kLevelPage, kScanPage, kFeaturePage, kSchedulePage}) {
            CSettingsPage* page = dialog->Pages().Find(id);
            if (page && page->isVisible()) return id;
        }
        return -1;
    }
    RecordingPage* Page(int id) { return dynamic_cast<RecordingPage*>(dialog->Pages().Find(id)); }

    // Chooses the customized level as the level page would, and tells the
    // frame.
    void ChooseCustomized() {
        g_nProtectLevel = kProtectLevelCustomized;
        dialog->OnPageMessage(CSettingsPage::kLevelChangedMessage);
    }
    void GoToStep(int step) {
        ChooseCustomized();
        while (dialog->CurrentStep() < step) Click(CWizardDlg::kNextButton);
    }

    // Whether (back, next) are enabled and which of Next and Finish is the
    // default button.
    std::string Buttons() const {
        std::string text = Button(CWizardDlg::kBackButton)->isEnabled() ? "back" : "-";
        text += Button(CWizardDlg::kNextButton)->isEnabled() ? " next" : " -";
        if (Button(CWizardDlg::kNextButton)->isDefault()) text += " [next]";
        if (Button(1)->isDefault()) text += " [finish]";
        return text;
    }

    std::unique_ptr<CWizardDlg> dialog;
};

TEST_F(WizardDlgTest, AFullEditionHasFourStepsAndTheLightEditionThree) {
    Open();
    EXPECT_EQ(dialog->StepCount(), 4);
    Open(DMF_IsLight);
    EXPECT_EQ(dialog->StepCount(), 3);
}

TEST_F(WizardDlgTest, TheFirstStepShowsTheLevelPageWithItsFactoryDefault) {
    Open();
    EXPECT_EQ(ShownPage(), kLevelPage);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 23", "SetIcons 23", "OnDefault 23"}));
    EXPECT_EQ(StepNumber(), "1.");
    EXPECT_EQ(StepText().toStdString(), LoadString(205));
}

TEST_F(WizardDlgTest, TheStepNumberCountsFromOne) {
    Open();
    GoToStep(1);
    EXPECT_EQ(StepNumber(), "2.");
    EXPECT_EQ(StepText().toStdString(), LoadString(200));
    Click(CWizardDlg::kNextButton);
    EXPECT_EQ(StepNumber(), "3.");
    EXPECT_EQ(StepText().toStdString(), LoadString(201));
    Click(CWizardDlg::kNextButton);
    EXPECT_EQ(StepNumber(), "4.");
    EXPECT_EQ(StepText().toStdString(), LoadString(202));
    EXPECT_EQ(ShownPage(), kSchedulePage);
}

TEST_F(WizardDlgTest, AFixedLevelCanOnlyFinishAndCustomizedLeadsOn) {
    Open();
    EXPECT_EQ(Buttons(), "- - [finish]");
    ChooseCustomized();
    EXPECT_EQ(Buttons(), "- next [next]");
    g_nProtectLevel = kProtectLevelHigh;
    dialog->OnPageMessage(CSettingsPage::kLevelChangedMessage);
    EXPECT_EQ(Buttons(), "- - [finish]");
}

TEST_F(WizardDlgTest, OtherMessagesLeaveTheButtonsAlone) {
    Open();
    g_nProtectLevel = kProtectLevelCustomized;
    dialog->OnPageMessage(CSettingsPage::kLevelChangedMessage + 1);
    EXPECT_EQ(Buttons(), "- - [finish]");
}

TEST_F(WizardDlgTest, LaterStepsLeadOnUntilTheLastWhichOnlyFinishes) {
    Open();
    GoToStep(1);
    EXPECT_EQ(Buttons(), "back next [next]");
    GoToStep(3);
    EXPECT_EQ(Buttons(), "back - [finish]");
    EXPECT_TRUE(Button(1)->isEnabled()) << "a finish is always possible";
}

TEST_F(WizardDlgTest, NextValidatesSavesAndHandsTheScheduleDefaultsOn) {
    Open();
    ChooseCustomized();
    log.calls.clear();
    Click(CWizardDlg::kNextButton);
    EXPECT_EQ(log.calls,
              (std::vector<std::string>{"Validate 23", "Save 23", "SaveScheduleDefaults 23",
                                        "Load 19", "SetIcons 19"}));
    EXPECT_EQ(dialog->CurrentStep(), 1);
    EXPECT_EQ(ShownPage(), kScanPage);
}

TEST_F(WizardDlgTest, APageThatIsNotValidHoldsNextBackAndFinish) {
    Open(0, [](RecordingPage& page) { page.validateAnswer = 1; });
    ChooseCustomized();
    Click(CWizardDlg::kNextButton);
    EXPECT_EQ(dialog->CurrentStep(), 0);
    EXPECT_TRUE(log.Only("Save").empty());

    Page(kLevelPage)->validateAnswer = 0;
    Click(CWizardDlg::kNextButton);
    ASSERT_EQ(dialog->CurrentStep(), 1);
    log.calls.clear();
    Click(CWizardDlg::kBackButton);
    EXPECT_EQ(dialog->CurrentStep(), 1);
    Click(1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Validate 19", "Validate 19"}));
}

TEST_F(WizardDlgTest, BackOnTheFirstStepDoesNothingAndValidatesNothing) {
    Open();
    log.calls.clear();
    dialog->OnCommand(CWizardDlg::kBackButton);
    EXPECT_TRUE(log.calls.empty());
    EXPECT_EQ(dialog->CurrentStep(), 0);
}

TEST_F(WizardDlgTest, BackValidatesAndSavesTooAndLoadsThePageAgain) {
    Open();
    GoToStep(2);
    log.calls.clear();
    Click(CWizardDlg::kBackButton);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Validate 20", "Save 20",
                                                   "SaveScheduleDefaults 20", "Load 19"}));
    EXPECT_EQ(dialog->CurrentStep(), 1);
    EXPECT_EQ(ShownPage(), kScanPage);
}

TEST_F(WizardDlgTest, NextOnTheLastStepDoesNothing) {
    Open();
    GoToStep(3);
    log.calls.clear();
    dialog->OnCommand(CWizardDlg::kNextButton);
    EXPECT_TRUE(log.calls.empty());
    EXPECT_EQ(dialog->CurrentStep(), 3);
}

TEST_F(WizardDlgTest, InTheLightEditionFinishOnTheThirdStepEndsTheWizard) {
    Open(DMF_IsLight);
    GoToStep(2);
    EXPECT_EQ(Buttons(), "back - [finish]");
    Click(1);
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(WizardDlgTest, FinishSavesTheCurrentPageCommitsAppliesAndWritesTheLevel) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Open();
    GoToStep(2);
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    log.calls.clear();
    Click(1);

    EXPECT_EQ(log.calls, (std::vector<std::string>{"Validate 20", "Save 20"}));
    EXPECT_TRUE(log.Only("Apply").empty()) << "applying the store does every page's work";
    EXPECT_EQ(dialog->result(), 1);
    DropWorkingCopy();
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelCustomized);
    const std::vector<std::string> journal = Journal();
    ASSERT_GE(journal.size(), 2u);
    EXPECT_EQ(journal[journal.size() - 2], kSignal) << "applying tells the services";
    EXPECT_EQ(journal.back(), kSignal) << "and the wizard tells them once more";
}

TEST_F(WizardDlgTest, FinishLeavesItsStepsInTheDiagnosticLog) {
    TemporaryRegistry registry;
    const std::string logPath = registry.Base() + "/q9cfgul.log";
    const std::string savedPath = g_Log.path();
    ASSERT_EQ(
        RegWriteDword(platform::LocalMachine(), CDiagLog::kSettingKey, CDiagLog::kSettingValue, 1),
        0);
    g_Log.Open(logPath);
    Open();
    Click(1);
    RegDeleteTree(platform::LocalMachine(), "Software\\Orvtek", "Q9CfgUL");
    g_Log.Open(savedPath);

    std::vector<std::string> lines = LinesOf(TemporaryRegistry::ReadFile(logPath));
    // Applying the store writes its own lines between the commit and the
    // level; they are checked where applying is tested.
    std::erase_if(lines, [](const std::string& line) {
        return line.starts_with("CES_Switch") || line.starts_with("SSCT_") ||
               line.starts_with("After ");
    });
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "OnOK Start", "pDlg->OnApply() Start", "pDlg->OnApply() End",
                         "Q9CfgE_UnlockEx() Start", "Q9CfgE_UnlockEx() End", "Q9CfgE_FlushEx() End",
                         "_On_NORMAL_SILENCE() End", "Q9CfgE_SetDWEx() End"}));
}

TEST_F(WizardDlgTest, CancelDropsTheEditsAndLeavesTheDefaultFunctions) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    SetAllSwitchWords(0);
    Open();
    GoToStep(1);
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Click(2);

    EXPECT_EQ(dialog->result(), 2);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 110u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xF3u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0x300000u);
    const std::vector<std::string> journal = Journal();
    EXPECT_NE(std::find(journal.begin(), journal.end(), "Q9SSCtrl_Register\t112\t-\t1"),
              journal.end());
    EXPECT_EQ(journal.back(), kSignal);
}

TEST_F(WizardDlgTest, CancelOnTheFirstPageRegistersTheDefaultFunctionsAllTheSame) {
    Open();
    Click(2);
    const std::vector<std::string> journal = Journal();
    for (const char* item : {"0", "1", "32", "112", "128", "144", "160"}) {
        EXPECT_NE(std::find(journal.begin(), journal.end(),
                            std::string("Q9SSCtrl_Register\t") + item + "\t-\t1"),
                  journal.end())
            << item;
    }
}

TEST_F(WizardDlgTest, TheEditionFlagsReachThePagesAndTheSilentDefaults) {
    Open(DMF_IsLight);
    EXPECT_EQ(dialog->CurrentPage()->GetFlags(), static_cast<uint32_t>(DMF_IsLight));
    Click(2);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 1u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0u);
}

TEST_F(WizardDlgTest, TheWizardPictureIsShownAndAMissingOneLeavesTheSpaceEmpty) {
    Open();
    EXPECT_TRUE(qobject_cast<QLabel*>(dialog->Control(1011))->pixmap().isNull());
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    std::filesystem::create_directories(Install().PathOf("Resource"));
    ASSERT_TRUE(
        picture.save(QString::fromStdString(Install().PathOf("Resource/Wizard.bmp")), "BMP"));
    Open();
    EXPECT_EQ(qobject_cast<QLabel*>(dialog->Control(1011))->pixmap().size(), QSize(16, 16));
}

TEST_F(WizardDlgTest, AStoreThatCannotBeReadIsToldAndFinishKeepsTheWizardOpen) {
    Install().Write("Q9Cfg.dat", "not a store file\n");
    Open();
    QApplication::processEvents();
    ASSERT_EQ(boxes.messages.size(), 1u) << "the damaged file is told as the wizard opens";
    EXPECT_TRUE(IsUnreadableFilesNotice(boxes.messages[0], {Install().PathOf("Q9Cfg.dat")}))
        << boxes.messages[0].text;
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Click(1);
    EXPECT_TRUE(dialog->isVisible());
    ASSERT_EQ(boxes.messages.size(), 2u) << "told once";
    EXPECT_EQ(boxes.messages[1].text, LoadString(strings::kSaveFailed));
    EXPECT_EQ(Install().Read("Q9Cfg.dat"), "not a store file\n");
    const std::vector<std::string> journal = Journal();
    EXPECT_EQ(std::count(journal.begin(), journal.end(), kSignal), 0)
        << "nothing is applied while the store cannot be saved";
}

}  // namespace
}  // namespace wizard_dlg_test
