#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <memory>
#include <utility>

#include "ShellTestSupport.h"
#include "options/StoreKeys.h"
#include "pages/NestedPageShell.h"
#include "session/ProcessState.h"
#include "shell/ConfigWindow.h"
#include "shell/PageShellDlg.h"
#include "text/StringTable.h"

namespace {

const std::string kSignal = "Q9SSCtrl_SetCfgChanged\t32\t-\t1";

class PageShellDlgTest : public ShellTest {
protected:
    ~PageShellDlgTest() override {
        shell.reset();
        ClearConfigWindow();
    }

    CPageShellDlg& Open(int page, std::set<int> ids, PageSetup setup = {}, bool nested = false) {
        shell = std::make_unique<CPageShellDlg>(page, 0, nullptr,
                                                RecordingPages(&log, std::move(ids), setup));
        if (nested) shell->SetOwnsStore(0);
        EXPECT_TRUE(shell->Create());
        shell->show();
        return *shell;
    }
    void Click(int id) { qobject_cast<QPushButton*>(shell->Control(id))->click(); }
    RecordingPage* Page() { return dynamic_cast<RecordingPage*>(shell->Page()); }
    QWidget* Button(int id) { return shell->Control(id); }

    std::unique_ptr<CPageShellDlg> shell;
};

TEST_F(PageShellDlgTest, ThePageIsCentredAtTheTopWithItsTitleAsCaption) {
    Open(5, {5});
    ASSERT_NE(Page(), nullptr);
    EXPECT_TRUE(Page()->isVisible());
    EXPECT_EQ(Page()->y(), 5);
    EXPECT_EQ(Page()->x(), (shell->width() - Page()->width()) / 2);
    EXPECT_EQ(shell->windowTitle(), "System monitoring");
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 5", "SetIcons 5"}));
    EXPECT_NE(OpenConfigWindow(), 0u);
}

TEST_F(PageShellDlgTest, ThreeButtonsInARowUnderThePage) {
    Open(5, {5});
    const int top = Page()->y() + Page()->height();
    for (int id : {1, 2, 1034}) {
        EXPECT_TRUE(Button(id)->isVisible()) << id;
        EXPECT_GT(Button(id)->y(), top) << id;
        EXPECT_EQ(Button(id)->y(), Button(1)->y()) << id;
    }
    EXPECT_LT(Button(1)->x(), Button(2)->x());
    EXPECT_LT(Button(2)->x(), Button(1034)->x());
    EXPECT_LE(Button(1034)->geometry().right(), shell->width());
    EXPECT_GE(shell->height(), Button(1)->geometry().bottom());
}

TEST_F(PageShellDlgTest, WithoutDefaultsOkAndCancelTakeThePlacesAtTheRight) {
    Open(5, {5});
    const QPoint cancelPlace = Button(2)->pos();
    const QPoint defaultPlace = Button(1034)->pos();
    shell.reset();
    ClearConfigWindow();
    Open(5, {5}, [](RecordingPage& page) { page.canDefaultAnswer = 0; });
    EXPECT_FALSE(Button(1034)->isVisible());
    EXPECT_EQ(Button(1)->pos(), cancelPlace);
    EXPECT_EQ(Button(2)->pos(), defaultPlace);
}

TEST_F(PageShellDlgTest, APageThatCannotBeMadeOpensAnEmptyDialog) {
    Open(33, {});
    EXPECT_EQ(shell->Page(), nullptr);
    Click(1);
    EXPECT_EQ(shell->result(), 1);
    EXPECT_EQ(Journal(), std::vector<std::string>{kSignal});
}

TEST_F(PageShellDlgTest, OkSavesCommitsAppliesAndSignalsButKeepsTheLevel) {
    g_nProtectLevel = 2;
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Open(5, {5});
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Page()->SetModified();
    Page()->SetNeedApply();
    Click(1);
    EXPECT_EQ(log.calls, (std::vector<std::string>{"Load 5", "SetIcons 5", "Validate 5", "Save 5",
                                                   "Apply 5"}));
    EXPECT_EQ(shell->Saved(), 1);
    EXPECT_EQ(shell->ApplyPending(), 1);
    EXPECT_EQ(g_nProtectLevel, 2u);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), 2u);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u);
    EXPECT_EQ(Journal(), std::vector<std::string>{kSignal});
}

TEST_F(PageShellDlgTest, AStoreThatCannotBeWrittenIsSaidAndTheDialogStaysWithTheChanges) {
    Install().Write("Q9Cfg.dat", "not a store file\n");
    Open(5, {5});
    QApplication::processEvents();
    ASSERT_EQ(boxes.messages.size(), 1u) << "the damaged file is told as the dialog opens";
    EXPECT_TRUE(IsUnreadableFilesNotice(boxes.messages[0], {Install().PathOf("Q9Cfg.dat")}))
        << boxes.messages[0].text;
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Page()->SetModified();
    Click(1);
    EXPECT_TRUE(shell->isVisible());
    ASSERT_EQ(boxes.messages.size(), 2u) << "told once";
    EXPECT_EQ(boxes.messages[1].text, LoadString(strings::kSaveFailed));
    EXPECT_EQ(boxes.messages[1].caption, LoadString(strings::kError));
    EXPECT_EQ(Install().Read("Q9Cfg.dat"), "not a store file\n");
    EXPECT_TRUE(Journal().empty()) << "nothing was announced";
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 4110u) << "the change is kept";

    // Once the file can be written, OK saves what was kept.
    Install().Write("Q9Cfg.dat", "Q9 Configuration Store 1\n");
    Click(1);
    EXPECT_EQ(shell->result(), 1);
    EXPECT_NE(Install().Read("Q9Cfg.dat").find("CEK_Pop3Port=dword:0000100e"), std::string::npos);
    EXPECT_EQ(Journal(), std::vector<std::string>{kSignal});
}

TEST_F(PageShellDlgTest, AnInvalidPageHoldsOk) {
    Open(5, {5}, [](RecordingPage& page) { page.validateAnswer = 1; });
    Click(1);
    EXPECT_TRUE(shell->isVisible());
    EXPECT_TRUE(Journal().empty());
}

TEST_F(PageShellDlgTest, CancelDropsTheWorkingCopy) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Open(5, {5});
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Click(2);
    EXPECT_EQ(shell->result(), 2);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 110u);
    EXPECT_TRUE(Journal().empty());
}

TEST_F(PageShellDlgTest, DefaultGoesToThePage) {
    Open(5, {5});
    Click(1034);
    EXPECT_EQ(log.Only("OnDefault"), std::vector<std::string>{"OnDefault 5"});
}

TEST_F(PageShellDlgTest, ANestedShellLeavesStoreAndCommitToItsOpener) {
    SetWord(CES_Pop3, CEK_Pop3Port, 110);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);  // the opener's session
    ClearConfigWindow();
    Open(33, {33}, {}, true);
    EXPECT_EQ(OpenConfigWindow(), 0u);
    Q9CfgE_SetDWEx(CES_Pop3, CEK_Pop3Port, 4110);
    Page()->SetModified();
    Page()->SetNeedApply();
    Click(1);
    EXPECT_EQ(shell->Saved(), 1);
    EXPECT_EQ(shell->ApplyPending(), 1);
    EXPECT_TRUE(log.Only("Apply").empty());
    EXPECT_TRUE(Journal().empty());
    // Still the opener's working copy: Cancel of the session drops it.
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
    EXPECT_EQ(Word(CES_Pop3, CEK_Pop3Port), 110u);
}

TEST_F(PageShellDlgTest, ANestedShellKeepsItsPageBetweenOpenings) {
    Open(33, {33}, {}, true);
    RecordingPage* first = Page();
    first->SetModified();
    Click(1);
    ASSERT_TRUE(shell->Create());
    EXPECT_EQ(Page(), first);
    EXPECT_EQ(log.Only("Load"), (std::vector<std::string>{"Load 33", "Load 33"}));
    EXPECT_EQ(shell->Saved(), 1);
}

TEST_F(PageShellDlgTest, TheOpenerForwardsSaveAndApply) {
    Open(33, {33}, {}, true);
    shell->SavePage();
    shell->ApplyPage();
    EXPECT_TRUE(log.Only("Save").empty());
    EXPECT_TRUE(log.Only("Apply").empty());
    Page()->SetModified();
    Page()->SetNeedApply();
    shell->SavePage();
    shell->ApplyPage();
    EXPECT_EQ(log.Only("Save"), std::vector<std::string>{"Save 33"});
    EXPECT_EQ(log.Only("Apply"), std::vector<std::string>{"Apply 33"});
}

TEST_F(PageShellDlgTest, PagesOpenThisShellNestedForPagesOfTheirOwn) {
    NestedPageShell::Maker previous = NestedPageShell::Install(nullptr);
    EXPECT_EQ(NestedPageShell::Make(PageId::kSystemMonitor, 0, nullptr), nullptr);
    CPageShellDlg::ServeNestedPages();
    QWidget opener;
    std::unique_ptr<NestedPageShell> nested =
        NestedPageShell::Make(PageId::kSystemMonitor, 0x40, &opener);
    NestedPageShell::Install(std::move(previous));
    auto* made = dynamic_cast<CPageShellDlg*>(nested.get());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->OwnsStore(), 0);
    EXPECT_EQ(made->parentWidget(), &opener);
    ASSERT_TRUE(made->Create());
    EXPECT_EQ(made->windowTitle(), "System monitoring");
    EXPECT_EQ(made->Page()->GetFlags(), 0x40u);
}

}  // namespace
