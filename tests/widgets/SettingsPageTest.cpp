#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "RecordingPage.h"
#include "framework/Dialog.h"
#include "framework/DialogControls.h"
#include "framework/DialogTemplates.h"
#include "framework/FormDialog.h"
#include "pages/SettingsPage.h"
#include "shell/PageShellDlg.h"

namespace {

constexpr int kRowTemplate = 9002;

// A page of six check boxes with ids 100 to 105, one under the other, and a
// control with id 5 (below the range handler's ids).
class RowPage : public CSettingsPage {
public:
    RowPage() : CSettingsPage(kRowTemplate) {}
    std::vector<int> commands;

protected:
    void OnControlCommand(int id, ctl::Notification) override { commands.push_back(id); }
};

class SettingsPageTest : public testing::Test {
protected:
    SettingsPageTest() {
        RegisterDialogTemplate(kRowTemplate, [](QWidget* target) {
            target->resize(300, 300);
            for (int i = 0; i < 6; ++i) {
                auto* box = new QCheckBox(QString("Row %1").arg(i), target);
                ctl::SetId(box, 100 + i);
                box->setGeometry(10, 10 + 30 * i, 200, 24);
            }
            auto* low = new QCheckBox("Low id", target);
            ctl::SetId(low, 5);
            low->setGeometry(10, 200, 200, 24);
        });
        page = std::make_unique<RowPage>();
        EXPECT_TRUE(page->Create(nullptr));
    }

    // Which of the controls 100..105 are enabled, as "1" and "0".
    std::string Enabled() const {
        std::string states;
        for (int id = 100; id <= 105; ++id) states += ctl::IsEnabled(page.get(), id) ? '1' : '0';
        return states;
    }
    std::string Shown() const {
        std::string states;
        for (int id = 100; id <= 105; ++id) states += ctl::IsShown(page.get(), id) ? '1' : '0';
        return states;
    }

    std::unique_ptr<RowPage> page;
};

TEST_F(SettingsPageTest, TheFlagsStartCleared) {
    EXPECT_EQ(page->GetFlags(), 0u);
    EXPECT_EQ(page->NeedApply(), 0);
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->IsCovered(), 0);
    page->SetFlags(0x400);
    EXPECT_EQ(page->GetFlags(), 0x400u);
}

TEST_F(SettingsPageTest, TheDefaultsOfTheContract) {
    CSettingsPage plain(kRowTemplate);
    EXPECT_EQ(plain.Validate(), 0);
    EXPECT_EQ(plain.OnDefault(), 1);
    EXPECT_EQ(plain.CanDefault(), 1);
    EXPECT_EQ(plain.IsModified(), 0);
}

TEST_F(SettingsPageTest, AnUnknownTemplateMakesNoWindow) {
    CSettingsPage unknown(4242);
    EXPECT_FALSE(unknown.Create(nullptr));
}

TEST_F(SettingsPageTest, EnableRangeFromIdZeroBeginsAtTheFirstChild) {
    page->EnableRange(0, 102, false, true);
    EXPECT_EQ(Enabled(), "000111");
}

TEST_F(SettingsPageTest, EnableRangeLeavesTheFirstAloneUnlessIncluded) {
    page->EnableRange(101, 103, false, false);
    EXPECT_EQ(Enabled(), "110011");
    page->EnableRange(101, 103, false, true);
    EXPECT_EQ(Enabled(), "100011");
}

TEST_F(SettingsPageTest, EnableRangeWithALastIdNeverMetRunsToTheEnd) {
    page->EnableRange(102, 999, false, false);
    EXPECT_EQ(Enabled(), "111000");
    EXPECT_FALSE(ctl::IsEnabled(page.get(), 5));
}

TEST_F(SettingsPageTest, EnableRangeFromAnIdNotThereChangesNothing) {
    page->EnableRange(777, -1, false, true);
    EXPECT_EQ(Enabled(), "111111");
}

TEST_F(SettingsPageTest, ShowRangeHidesAndShows) {
    page->ShowRange(100, 101, false, true);
    EXPECT_EQ(Shown(), "001111");
    page->ShowRange(100, 101, true, false);
    EXPECT_EQ(Shown(), "011111");
}

TEST_F(SettingsPageTest, ShowCountCountsTheFirstOnlyWhenItIsChanged) {
    page->ShowCount(101, 2, false, true);
    EXPECT_EQ(Shown(), "100111");
    page->ShowAll(true);
    page->ShowCount(101, 2, false, false);
    EXPECT_EQ(Shown(), "110011");
}

TEST_F(SettingsPageTest, ShowAllTakesEveryChild) {
    page->ShowAll(false);
    EXPECT_EQ(Shown(), "000000");
    EXPECT_FALSE(ctl::IsShown(page.get(), 5));
}

TEST_F(SettingsPageTest, MoveRangeMovesTheFirstToo) {
    page->MoveRange(101, 102, 7, -3);
    EXPECT_EQ(page->findChildren<QCheckBox*>()[0]->pos(), QPoint(10, 10));
    EXPECT_EQ(ctl::Find(page.get(), 101)->pos(), QPoint(17, 37));
    EXPECT_EQ(ctl::Find(page.get(), 102)->pos(), QPoint(17, 67));
    EXPECT_EQ(ctl::Find(page.get(), 103)->pos(), QPoint(10, 100));
    EXPECT_EQ(ctl::Find(page.get(), 101)->size(), QSize(200, 24));
}

TEST_F(SettingsPageTest, CoverWithNoticeHidesEverythingUnderATextOfItsOwn) {
    page->CoverWithNotice("This function is not installed.");
    EXPECT_EQ(page->IsCovered(), 1);
    EXPECT_EQ(Shown(), "000000");
    auto* notice = qobject_cast<QLabel*>(ctl::Find(page.get(), CSettingsPage::kCoverNoticeId));
    ASSERT_NE(notice, nullptr);
    EXPECT_FALSE(notice->isHidden());
    EXPECT_EQ(notice->text(), "This function is not installed.");
    EXPECT_EQ(notice->y(), 10);
    EXPECT_EQ(notice->width(), page->width());
    EXPECT_EQ(notice->font(), page->font());
}

TEST_F(SettingsPageTest, IsEnabledAndVisibleNeedsBoth) {
    EXPECT_EQ(page->IsEnabledAndVisible(100), 1);
    ctl::Enable(page.get(), 100, false);
    EXPECT_EQ(page->IsEnabledAndVisible(100), 0);
    ctl::Show(page.get(), 101, false);
    EXPECT_EQ(page->IsEnabledAndVisible(101), 0);
    EXPECT_EQ(page->IsEnabledAndVisible(4242), 0);
}

TEST_F(SettingsPageTest, TheRangeHandlerHearsIdsFromTen) {
    page->show();
    qobject_cast<QCheckBox*>(ctl::Find(page.get(), 5))->click();
    qobject_cast<QCheckBox*>(ctl::Find(page.get(), 103))->click();
    EXPECT_EQ(page->commands, std::vector<int>{103});
}

// A shell with an OK that is its default button, holding a recording page.
// A dialog with the single-page shell's buttons and nothing else.
class ButtonsDialog : public CFormDialog<Ui::Dialog1001> {
public:
    ButtonsDialog() : CFormDialog(CPageShellDlg::kTemplateId, nullptr) {}
};

class PageKeysTest : public testing::Test {
protected:
    PageKeysTest() : page(3, &log) {
        RecordingPage::RegisterTemplate();
        EXPECT_TRUE(shell.Create());
        EXPECT_TRUE(page.Create(&shell));
        shell.show();
        page.show();
    }

    PageLog log;
    ButtonsDialog shell;
    RecordingPage page;
};

TEST_F(PageKeysTest, EnterInAnEditActsAsTheShellsDefaultButton) {
    ASSERT_EQ(shell.DefaultButtonId(), 1);
    QWidget* edit = ctl::Find(&page, RecordingPage::kEdit);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(shell.isVisible());  // posted, not yet handled
    QApplication::processEvents();
    EXPECT_FALSE(shell.isVisible());
    EXPECT_EQ(shell.result(), 1);
}

TEST_F(PageKeysTest, EnterGoesToCommandOneWhenTheShellHasNoDefault) {
    qobject_cast<QPushButton*>(shell.Control(1))->setDefault(false);
    EXPECT_EQ(shell.DefaultButtonId(), 0);
    QTest::keyClick(ctl::Find(&page, RecordingPage::kEdit), Qt::Key_Enter);
    QApplication::processEvents();
    EXPECT_EQ(shell.result(), 1);
}

TEST_F(PageKeysTest, EscapeInAPageActsAsCancel) {
    QTest::keyClick(ctl::Find(&page, RecordingPage::kEdit), Qt::Key_Escape);
    QApplication::processEvents();
    EXPECT_FALSE(shell.isVisible());
    EXPECT_EQ(shell.result(), 2);
}

}  // namespace
