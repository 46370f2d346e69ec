#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>

#include "ShellTestSupport.h"
#include "controls/HeaderStatic.h"
#include "options/StoreKeys.h"
#include "platform/ProblemReport.h"
#include "q9cfgul.h"
#include "session/ProcessState.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"
#include "text/StringTable.h"

namespace {

const std::string kSignal = "Q9SSCtrl_SetCfgChanged\t32\t-\t1";

class ConfigDlgTest : public ShellTest {
protected:
    ~ConfigDlgTest() override {
        dialog.reset();
        ClearConfigWindow();
    }

    // Opens the dialog (shown, not modal) with recording pages for ids.
    CConfigDlg& Open(int start, uint32_t flags, std::set<int> ids = {}, PageSetup setup = {}) {
        dialog = std::make_unique<CConfigDlg>(start, flags, nullptr,
                                              RecordingPages(&log, std::move(ids), setup));
        EXPECT_TRUE(dialog->Create());
        dialog->show();
        return *dialog;
    }

    void Select(int page) {
        QTreeWidgetItem* item = TreeItemOf(dialog->Tree(), page);
        ASSERT_NE(item, nullptr) << "page " << page;
        dialog->Tree()->setCurrentItem(item);
    }
    void Click(int id) { qobject_cast<QPushButton*>(dialog->Control(id))->click(); }
    RecordingPage* Page(int id) { return dynamic_cast<RecordingPage*>(dialog->Pages().Find(id)); }
    int SelectedPage() const {
        const auto selected = dialog->Tree()->selectedItems();
        return selected.isEmpty() ? -1 : selected.first()->data(0, Qt::UserRole).toInt();
    }

    std::unique_ptr<CConfigDlg> dialog;
};

TEST_F(ConfigDlgTest, AStoreThatCannotBeWrittenIsSaidAndTheDialogStaysWithTheChanges) {
    Install().Write("Q9Cfg.dat", "not a store file\n");
    Open(5, 0, {5});
    QApplication::processEvents();
    ASSERT_EQ(boxes.messages.size(), 1u) << "the damaged file is told as the dialog opens";
    EXPECT_TRUE(IsUnreadableFilesNotice(boxes.messages[0], {Install().PathOf("Q9Cfg.dat")}))
        << boxes.messages[0].text;
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Click(1);
    EXPECT_TRUE(dialog->isVisible());
    ASSERT_EQ(boxes.messages.size(), 2u) << "told once";
    EXPECT_EQ(boxes.messages[1].text, LoadString(strings::kSaveFailed));
    EXPECT_EQ(Install().Read("Q9Cfg.dat"), "not a store file\n");
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u) << "the change is kept";
    Click(2);
    EXPECT_EQ(dialog->result(), 2);
    EXPECT_EQ(Install().Read("Q9Cfg.dat"), "not a store file\n");
}

// A file found unreadable while the dialog is open is told when the next
// page has been entered, and on OK before the store is saved; each once.
TEST_F(ConfigDlgTest, FilesFoundUnreadableLaterAreToldAtThePageEnteredAndOnOk) {
    Install().Write("zone.dat", "x");
    Install().Write("rules.dat", "y");
    const std::string zone = Install().PathOf("zone.dat");
    const std::string rules = Install().PathOf("rules.dat");
    Open(5, 0, {5, 7});
    QApplication::processEvents();
    ASSERT_TRUE(boxes.messages.empty());

    platform::ReportUnreadableFile(zone, "the zone is damaged");
    Select(7);
    QApplication::processEvents();
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_TRUE(IsUnreadableFilesNotice(boxes.messages[0], {zone})) << boxes.messages[0].text;

    platform::ReportUnreadableFile(rules, "the rules are damaged");
    Click(1);
    ASSERT_EQ(boxes.messages.size(), 2u);
    EXPECT_TRUE(IsUnreadableFilesNotice(boxes.messages[1], {rules})) << boxes.messages[1].text;
    EXPECT_EQ(dialog->result(), 1);
    platform::NoteReadableFile(zone);
    platform::NoteReadableFile(rules);
}

TEST_F(ConfigDlgTest, NormalTree) {
    Open(-1, 0);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 24:0 25:0 16:0] 8:5[13:0 12:0 11:0 9:0 26:0] 18:6 "
              "17:3 15:7");
    EXPECT_EQ(TreeItemOf(dialog->Tree(), 0)->text(0), "System Scan/Monitoring");
    EXPECT_TRUE(TreeItemOf(dialog->Tree(), 0)->isExpanded());
    EXPECT_TRUE(TreeItemOf(dialog->Tree(), 8)->isExpanded());
}

TEST_F(ConfigDlgTest, MasterTree) {
    Open(-1, DMF_Master);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 25:0 16:0] 18:6 34:9[35:0] 32:8 17:3 15:7");
}

TEST_F(ConfigDlgTest, MasterWithLightShowsTheMasterTree) {
    Open(-1, DMF_Master | DMF_IsLight);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 25:0 16:0] 18:6 34:9[35:0] 32:8 17:3 15:7");
}

TEST_F(ConfigDlgTest, LightTree) {
    Open(-1, DMF_IsLight);
    EXPECT_EQ(TreeOutline(dialog->Tree()), "23:3 0:6[1:1 5:1] 15:3 18:11");
}

TEST_F(ConfigDlgTest, EachRemovalFlagLeavesOutItsRows) {
    Open(-1, DMF_RemoveInternetMon | DMF_RemoveNonScanSector | DMF_RemoveSecurity);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 24:0 25:0] 8:5[13:0 12:0 11:0 9:0 26:0] 18:6 15:7");
    dialog.reset();
    Open(-1, DMF_RemovePopMon);
    EXPECT_EQ(
        TreeOutline(dialog->Tree()),
        "23:1 0:4[1:0 4:0 3:0 5:0 7:0 24:0 25:0 16:0] 8:5[13:0 12:0 9:0 26:0] 18:6 17:3 15:7");
    dialog.reset();
    Open(-1, DMF_RemoveOutlookMon);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 24:0 25:0 16:0] 8:5[11:0 9:0 26:0] 18:6 17:3 15:7");
}

TEST_F(ConfigDlgTest, NoPopAndNoOutlookLeaveOutTheWholeMailGroup) {
    Open(-1, DMF_RemovePopMon | DMF_RemoveOutlookMon);
    EXPECT_EQ(TreeOutline(dialog->Tree()),
              "23:1 0:4[1:0 4:0 3:0 5:0 7:0 24:0 25:0 16:0] 18:6 17:3 15:7");
}

TEST_F(ConfigDlgTest, TheStartPageIsSelectedShownAndPlacedUnderTheBar) {
    Open(5, 0, {5});
    EXPECT_EQ(dialog->CurrentPage(), 5);
    EXPECT_EQ(SelectedPage(), 5);
    RecordingPage* page = Page(5);
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(page->isVisible());
    EXPECT_TRUE(page->isEnabled());
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 5", "SetIcons 5"}));
    EXPECT_NE(page->icons, nullptr);
    const QRect bar = dialog->Header()->geometry();
    EXPECT_EQ(page->pos(), QPoint(bar.left(), bar.top() + bar.height() + 3));
    EXPECT_EQ(dialog->Header()->Text(), "System monitoring");
    EXPECT_EQ(dialog->windowTitle(), "Configuration");
}

TEST_F(ConfigDlgTest, TheCaptionFollowsThePageWhenAsked) {
    Open(5, DMF_TitleShowsPage, {5, 3});
    EXPECT_EQ(dialog->windowTitle(), "Configuration: System monitoring");
    EXPECT_EQ(QCoreApplication::applicationName(), "Configuration: System monitoring");
    Select(3);
    EXPECT_EQ(dialog->windowTitle(), "Configuration: Screensaver Scan");
}

TEST_F(ConfigDlgTest, ASecondShowLoadsThePageAgainAndHidesTheOther) {
    Open(5, 0, {3, 5});
    Select(3);
    EXPECT_FALSE(Page(5)->isVisible());
    EXPECT_TRUE(Page(3)->isVisible());
    Select(5);
    EXPECT_EQ(log.Only("Load"), (std::vector<std::string>{"Load 5", "Load 3", "Load 5"}));
    EXPECT_EQ(log.Only("SetIcons").size(), 2u);
}

TEST_F(ConfigDlgTest, SelectingTheSameNodeAgainDoesNothing) {
    Open(5, 0, {5});
    Select(5);
    dialog->Tree()->clearSelection();
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 5", "SetIcons 5", "Validate 5"}));
    Select(5);
    EXPECT_EQ(dialog->CurrentPage(), 5);
    EXPECT_EQ(log.Only("Load").size(), 1u);
}

TEST_F(ConfigDlgTest, DefaultIsDisabledAtOnceForAPageWithoutDefaults) {
    Open(5, 0, {3, 5}, [](RecordingPage& page) { page.canDefaultAnswer = 0; });
    EXPECT_FALSE(dialog->Control(CConfigDlg::kDefaultButton)->isEnabled());
}

TEST_F(ConfigDlgTest, DefaultFollowsEachPagesAnswer) {
    Open(5, 0, {3, 5}, [](RecordingPage& page) { page.canDefaultAnswer = 0; });
    Page(5)->canDefaultAnswer = 1;
    Select(3);
    EXPECT_FALSE(dialog->Control(CConfigDlg::kDefaultButton)->isEnabled());
    Select(5);
    EXPECT_TRUE(dialog->Control(CConfigDlg::kDefaultButton)->isEnabled());
    Click(CConfigDlg::kDefaultButton);
    EXPECT_EQ(log.Only("OnDefault"), (std::vector<std::string>{"OnDefault 5"}));
}

TEST_F(ConfigDlgTest, AnInvalidPageHoldsTheUserAndOkButNotCancel) {
    Open(5, 0, {3, 5}, [](RecordingPage& page) { page.validateAnswer = 1; });
    Page(5)->SetModified();
    Select(3);
    EXPECT_EQ(dialog->CurrentPage(), 5);
    EXPECT_EQ(SelectedPage(), 5);
    EXPECT_TRUE(Page(5)->isVisible());
    Click(1);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(log.Only("Save").empty());
    EXPECT_TRUE(Journal().empty());
    Click(2);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), 2);
}

TEST_F(ConfigDlgTest, OkAppliesFromTheHighestPageIdDown) {
    Open(3, 0, {3, 5, 17});
    Page(3)->SetNeedApply();
    Select(17);
    Page(17)->SetNeedApply();
    Select(5);
    Page(5)->SetNeedApply();
    Click(1);
    EXPECT_EQ(log.Only("Apply"), (std::vector<std::string>{"Apply 17", "Apply 5", "Apply 3"}));
    EXPECT_EQ(dialog->result(), 1);
}

TEST_F(ConfigDlgTest, OkSavesTheCurrentPageThenCommitsAppliesAndSignals) {
    g_nProtectLevel = 2;
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Open(5, 0, {5});
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);  // as the page's Save would
    Page(5)->SetModified();
    Page(5)->SetNeedApply();
    Click(1);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 5", "SetIcons 5", "Validate 5", "Save 5",
                                                   "Apply 5"}));
    EXPECT_EQ(g_nProtectLevel, 8u);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), 8u);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u);
    EXPECT_EQ(Journal(), std::vector<std::string>{kSignal});
}

TEST_F(ConfigDlgTest, CancelDropsEverySaveAndCallsNothing) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Open(5, 0, {3, 5});
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Page(5)->SetModified();
    Page(5)->SetNeedApply();
    Select(3);
    EXPECT_EQ(log.Only("Save"), std::vector<std::string>{"Save 5"});
    Click(2);
    EXPECT_EQ(dialog->result(), 2);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 110u);
    EXPECT_TRUE(log.Only("Apply").empty());
    EXPECT_TRUE(Journal().empty());
}

TEST_F(ConfigDlgTest, AStartPageOutsideTheTreeShowsNoPageAndOkOnlyCommitsAndSignals) {
    Open(6, 0, {6, 7});
    EXPECT_EQ(dialog->CurrentPage(), -1);
    EXPECT_EQ(SelectedPage(), -1);
    EXPECT_EQ(dialog->Pages().Find(6), nullptr);
    dialog->Tree()->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(dialog->CurrentPage(), -1);
    Click(1);
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_TRUE(log.calls.empty());
    EXPECT_EQ(Journal(), std::vector<std::string>{kSignal});
}

TEST_F(ConfigDlgTest, APageThatCannotBeMadeLeavesTheAreaEmpty) {
    Open(5, 0, {5});
    Select(3);
    EXPECT_EQ(dialog->CurrentPage(), 3);
    EXPECT_FALSE(Page(5)->isVisible());
    EXPECT_EQ(dialog->Pages().Find(3), nullptr);
    EXPECT_EQ(dialog->Header()->Text(), "Screensaver Scan");
    Click(1);
    EXPECT_EQ(dialog->result(), 1);
}

TEST_F(ConfigDlgTest, SavingAnyPageButEasyConfigurationMakesTheLevelCustomized) {
    g_nProtectLevel = 2;
    Open(5, 0, {5, 23});
    Select(23);
    EXPECT_EQ(g_nProtectLevel, 2u);  // page 5 was not modified
    Page(23)->SetModified();
    Select(5);
    EXPECT_EQ(log.Only("Save"), std::vector<std::string>{"Save 23"});
    EXPECT_EQ(g_nProtectLevel, 2u);
    Page(5)->SetModified();
    Select(23);
    EXPECT_EQ(g_nProtectLevel, 8u);
}

TEST_F(ConfigDlgTest, LeavingEasyConfigurationWithALevelTellsOfTheCustomizedSetting) {
    g_nProtectLevel = 4;
    Open(23, 0, {5, 23});
    Select(5);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text,
              "Switch to customized setting.\nProtection level set in easy configuration will no "
              "longer have an effect.");
    EXPECT_EQ(boxes.messages[0].caption, "Information");
    EXPECT_EQ(boxes.messages[0].type, 0u);
    EXPECT_EQ(dialog->CurrentPage(), 5);
    Select(23);
    Select(5);
    EXPECT_EQ(boxes.messages.size(), 2u);  // each time, changed or not
    g_nProtectLevel = 8;
    Select(23);
    Select(5);
    EXPECT_EQ(boxes.messages.size(), 2u);
}

TEST_F(ConfigDlgTest, TheOpenWindowIsKnownToOtherCallers) {
    ClearConfigWindow();
    Open(-1, 0);
    EXPECT_NE(OpenConfigWindow(), 0u);
    EXPECT_TRUE(BringConfigWindowForward(OpenConfigWindow()));
}

TEST_F(ConfigDlgTest, DestroyPagesRequestSparesEasyConfiguration) {
    Open(23, 0, {5, 23});
    Select(5);
    Select(23);
    dialog->DestroyPagesOnRequest();
    EXPECT_NE(dialog->Pages().Find(5), nullptr);
    Select(5);
    dialog->DestroyPagesOnRequest();
    EXPECT_EQ(dialog->Pages().Find(5), nullptr);
    EXPECT_EQ(dialog->Pages().Find(23), nullptr);
}

TEST_F(ConfigDlgTest, PowerEventsAnswerOneAndALowBatteryIsTold) {
    Open(-1, 0);
    EXPECT_EQ(dialog->OnPowerBroadcast(0), 1);
    EXPECT_EQ(dialog->OnPowerBroadcast(4), 1);
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(dialog->OnPowerBroadcast(9), 1);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "Not enough batteries.");
    EXPECT_EQ(boxes.messages[0].caption, "Information");
    EXPECT_EQ(boxes.messages[0].type, 0x40u);
}

}  // namespace
