// The "Scheduled scan" page: the rows it lists from either home and those it
// drops, the texts of its two columns, Add, Edit and Delete through the
// wizard with the duplicate and interval refusals, the tick, and Save and
// Apply rewriting the store's sections and the scheduler's job keys.

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/DateEdit.h"
#include "controls/DateField.h"
#include "framework/DialogControls.h"
#include "pages/schedule/SchedulePage.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "q9cfgul.h"
#include "schedule/ScheduleEntry.h"
#include "schedule/ScheduleText.h"
#include "session/PageContext.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "session/SiblingLibs.h"
#include "support/TemporaryRegistry.h"

namespace schedule_page_test {
namespace {

constexpr int kAdd = 1034;
constexpr int kDelete = 1072;
constexpr int kEdit = 1073;
constexpr int kFinish = 1;
constexpr int kCancel = 2;
constexpr int kIntervalCombo = 1004;
constexpr int kTimeEdit = 1091;
constexpr int kRowAtStartup = 0;
constexpr int kRowEveryDay = 1;

using WizardAction = std::function<void(CScheduleWizardDlg&)>;

void Press(QWidget* dialog, int id) {
    auto* button = qobject_cast<QAbstractButton*>(ctl::Find(dialog, id));
    ASSERT_NE(button, nullptr) << id;
    button->click();
}

class SchedulePageTest : public SwitchPageTest {
protected:
    // A job key on disk, as the registry home holds it.
    static void SaveJob(int32_t number, int32_t style, ScheduleTime time,
                        std::vector<Target> targets = {{kTargetFolder, "/srv/data"}}) {
        ScheduleEntry entry;
        entry.m_nStyle = style;
        entry.m_time = time;
        entry.m_targets = std::move(targets);
        entry.SaveToStore(number, 1, 0);
        entry.SaveToRegistry(number, 1, 0);
    }
    static ScheduleTime At(uint16_t hour, uint16_t dayOfWeek = 1, uint16_t day = 1) {
        return {0, 0, dayOfWeek, day, hour, 0, 0, 0};
    }

    CSchedulePage* Make() {
        m_page = std::make_unique<CSchedulePage>();
        m_page->SetFlags(DMF_AssumeNT);
        m_page->SetContext(PageContext(g_Siblings, true));
        EXPECT_TRUE(m_page->Create(&m_parent));
        return m_page.get();
    }
    std::string Column(int row, int column) const {
        const QTreeWidgetItem* item = m_page->List()->topLevelItem(row);
        return item ? item->text(column).toStdString() : std::string();
    }
    int Selected() const {
        const QList<QTreeWidgetItem*> items = m_page->List()->selectedItems();
        return items.isEmpty() ? -1 : m_page->List()->indexOfTopLevelItem(items.first());
    }
    void Select(int row) const {
        m_page->List()->setCurrentItem(m_page->List()->topLevelItem(row));
    }

    // Presses a button of the page that opens the wizard; act works on the
    // wizard and ends it. Answers whether a wizard opened.
    bool WithWizard(int button, const WizardAction& act) {
        bool opened = false;
        // A timer of this call's own: when no wizard opens it goes with the
        // call instead of firing in a later test.
        QTimer timer;
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, [&opened, &act] {
            auto* wizard = dynamic_cast<CScheduleWizardDlg*>(QApplication::activeModalWidget());
            if (wizard == nullptr) return;
            opened = true;
            act(*wizard);
        });
        timer.start(0);
        Press(m_page.get(), button);
        return opened;
    }
    // The wizard's first page: interval row and, for a time, hour typed.
    static WizardAction Choosing(int row, const QString& hour = QString()) {
        return [row, hour](CScheduleWizardDlg& wizard) {
            Choose(wizard.Page(0), kIntervalCombo, row);
            if (!hour.isEmpty()) {
                auto* time = qobject_cast<CDateEdit*>(ctl::Find(wizard.Page(0), kTimeEdit));
                CDateField* field = time->Field(0);
                field->setFocus();
                field->selectAll();
                QTest::keyClicks(field, hour);
            }
            Press(&wizard, kFinish);
        };
    }
    static WizardAction Cancelling() {
        return [](CScheduleWizardDlg& wizard) { Press(&wizard, kCancel); };
    }
    std::vector<std::string> Messages() const {
        std::vector<std::string> texts;
        for (const RecordedMessage& message : m_messages.messages)
            texts.push_back(message.caption + ": " + message.text);
        return texts;
    }

    TemporaryRegistry m_registry;
    std::unique_ptr<CSchedulePage> m_page;
};

TEST_F(SchedulePageTest, TheListHasTwoHalfColumnsAndNoSorting) {
    CSchedulePage* page = Make();
    QTreeWidget* list = page->List();
    EXPECT_EQ(list->headerItem()->text(0).toStdString(), "Scheduled Interval");
    EXPECT_EQ(list->headerItem()->text(1).toStdString(), "List to Scan");
    EXPECT_EQ(list->columnWidth(0), (list->width() - 2 * list->frameWidth()) / 2);
    EXPECT_EQ(list->columnWidth(1), list->columnWidth(0));
    EXPECT_FALSE(list->isSortingEnabled());
    EXPECT_FALSE(list->header()->sectionsClickable());
    EXPECT_EQ(page->CanDefault(), 0);
}

TEST_F(SchedulePageTest, RowsComeFromTheJobKeysInTheirOrderWithTheirTicks) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleEveryDay, At(9));
    RegWriteDword(platform::LocalMachine(), ScheduleJobKey(1).c_str(), "On", 0);
    CSchedulePage* page = Make();
    ASSERT_EQ(page->RowCount(), 2);
    EXPECT_EQ(page->EntryAt(0)->m_time.wHour, 8);
    EXPECT_TRUE(page->IsTicked(0));
    EXPECT_FALSE(page->IsTicked(1));
    EXPECT_EQ(Column(0, 0), FormatInterval(kScheduleEveryDay, &page->EntryAt(0)->m_time, nullptr));
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SchedulePageTest, NoTargetsAndTheAllDrivesRecordBothReadLocalHardDrives) {
    SaveJob(0, kScheduleEveryDay, At(8), {});
    SaveJob(1, kScheduleEveryDay, At(9), {AllLocalDrivesTarget()});
    Make();
    EXPECT_EQ(Column(0, 1), "Local hard drives");
    EXPECT_EQ(Column(1, 1), "Local hard drives");
}

TEST_F(SchedulePageTest, SevenTargetsShowSixNamesAndAnEllipsis) {
    std::vector<Target> targets;
    for (char name = 'a'; name <= 'g'; ++name)
        targets.push_back({kTargetFolder, std::string("/") + name});
    SaveJob(0, kScheduleEveryDay, At(8), targets);
    Make();
    EXPECT_EQ(Column(0, 1), "/a, /b, /c, /d, /e, /f, ...");
}

TEST_F(SchedulePageTest, AWeeklyEntryWithDayOfWeek7IsDroppedSilently) {
    SaveJob(0, kScheduleEveryWeek, At(8, 7));
    SaveJob(1, kScheduleEveryWeek, At(8, 6));
    CSchedulePage* page = Make();
    ASSERT_EQ(page->RowCount(), 1);
    EXPECT_EQ(page->EntryAt(0)->m_time.wDayOfWeek, 6);
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(SchedulePageTest, Day31StandsBeforeTheWordDayWithoutABlank) {
    SaveJob(0, kScheduleEveryMonth, At(8, 0, 31));
    Make();
    EXPECT_EQ(Column(0, 0).rfind("Every month 31day ", 0), 0U) << Column(0, 0);
}

TEST_F(SchedulePageTest, StyleFiveIsListedEmptyAndASecondWithTheSameTargetsIsADuplicate) {
    SaveJob(0, kScheduleUnnamed, At(8));
    SaveJob(1, kScheduleUnnamed, At(9));
    SaveJob(2, kScheduleUnnamed, At(9), {{kTargetFolder, "/other"}});
    CSchedulePage* page = Make();
    ASSERT_EQ(page->RowCount(), 2);
    EXPECT_EQ(Column(0, 0), "");
    EXPECT_EQ(Column(1, 1), "/other");
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(SchedulePageTest, DuplicatesCompareTheTextsWithoutRegardToCase) {
    SaveJob(0, kScheduleEveryDay, At(8), {{kTargetFolder, "/srv/Data"}});
    SaveJob(1, kScheduleEveryDay, At(8), {{kTargetFolder, "/SRV/data"}});
    CSchedulePage* page = Make();
    EXPECT_EQ(page->RowCount(), 1);
}

TEST_F(SchedulePageTest, ALoadOfAFullListAsksForApplyAndIsNotModified) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    page->Load();
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SchedulePageTest, AddingThroughTheWizardAppendsAndSelectsTheRow) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    ASSERT_TRUE(WithWizard(kAdd, Choosing(kRowAtStartup)));
    ASSERT_EQ(page->RowCount(), 2);
    EXPECT_EQ(Column(1, 0), "Whenever the system starts");
    EXPECT_EQ(Selected(), 1);
    EXPECT_TRUE(page->IsTicked(1));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SchedulePageTest, ACancelledWizardAddsNothing) {
    CSchedulePage* page = Make();
    ASSERT_TRUE(WithWizard(kAdd, Cancelling()));
    EXPECT_EQ(page->RowCount(), 0);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SchedulePageTest, AddingADuplicateIsRefused) {
    SaveJob(0, kScheduleAtStartup, At(8), {});
    CSchedulePage* page = Make();
    ASSERT_TRUE(WithWizard(kAdd, Choosing(kRowAtStartup)));
    EXPECT_EQ(page->RowCount(), 1);
    EXPECT_EQ(Messages(),
              std::vector<std::string>{"Configuration Error: The items already exist."});
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SchedulePageTest, AnHourThatCannotBeShownIsRefused) {
    CSchedulePage* page = Make();
    ASSERT_TRUE(WithWizard(kAdd, Choosing(kRowEveryDay, "99")));
    EXPECT_EQ(page->RowCount(), 0);
    EXPECT_EQ(Messages(),
              std::vector<std::string>{"Configuration Error: Incorrect schedule interval"});
}

TEST_F(SchedulePageTest, EditingARowSoThatItEqualsItselfIsAllowed) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    Select(0);
    const ScheduleEntry* before = page->EntryAt(0);
    ASSERT_TRUE(WithWizard(kEdit, [](CScheduleWizardDlg& wizard) { Press(&wizard, kFinish); }));
    EXPECT_TRUE(m_messages.messages.empty());
    EXPECT_NE(page->EntryAt(0), before);  // the edited copy took the row
    // Nothing was changed in the wizard.
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SchedulePageTest, EditingARowSoThatItEqualsAnotherIsRefused) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleAtStartup, At(9));
    CSchedulePage* page = Make();
    Select(0);
    const ScheduleEntry* before = page->EntryAt(0);
    ASSERT_TRUE(WithWizard(kEdit, Choosing(kRowAtStartup)));
    EXPECT_EQ(Messages(),
              std::vector<std::string>{"Configuration Error: The items already exist."});
    EXPECT_EQ(page->EntryAt(0), before);
    EXPECT_EQ(page->EntryAt(0)->m_nStyle, kScheduleEveryDay);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SchedulePageTest, AnEditReplacesTheTextsAndKeepsTheTick) {
    SaveJob(0, kScheduleEveryDay, At(8));
    RegWriteDword(platform::LocalMachine(), ScheduleJobKey(0).c_str(), "On", 0);
    CSchedulePage* page = Make();
    Select(0);
    ASSERT_TRUE(WithWizard(kEdit, Choosing(kRowAtStartup)));
    EXPECT_EQ(Column(0, 0), "Whenever the system starts");
    EXPECT_EQ(page->EntryAt(0)->m_nStyle, kScheduleAtStartup);
    EXPECT_FALSE(page->IsTicked(0));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SchedulePageTest, EditWithoutASelectionOpensNothing) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    page->List()->clearSelection();
    EXPECT_FALSE(WithWizard(kEdit, Cancelling()));
}

TEST_F(SchedulePageTest, EnterAndADoubleClickEditTheSelectedRow) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    Select(0);
    bool opened = false;
    const auto cancel = [&opened] {
        auto* wizard = dynamic_cast<CScheduleWizardDlg*>(QApplication::activeModalWidget());
        if (wizard == nullptr) return;
        opened = true;
        Press(wizard, kCancel);
    };
    QTimer::singleShot(0, cancel);
    QTest::keyClick(page->List(), Qt::Key_Return);
    EXPECT_TRUE(opened);
    opened = false;
    QTimer::singleShot(0, cancel);
    emit page->List()->itemDoubleClicked(page->List()->topLevelItem(0), 0);
    EXPECT_TRUE(opened);
}

TEST_F(SchedulePageTest, DeletingTheLastRowSelectsTheNewLastRow) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleEveryDay, At(9));
    SaveJob(2, kScheduleEveryDay, At(10));
    CSchedulePage* page = Make();
    Select(2);
    Press(page, kDelete);
    ASSERT_EQ(page->RowCount(), 2);
    EXPECT_EQ(Selected(), 1);
    Select(0);
    Press(page, kDelete);
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(page->EntryAt(0)->m_time.wHour, 9);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(SchedulePageTest, DeletingTheOnlyRowLeavesNoSelectionAndNoError) {
    SaveJob(0, kScheduleEveryDay, At(8));
    CSchedulePage* page = Make();
    Select(0);
    Press(page, kDelete);
    EXPECT_EQ(page->RowCount(), 0);
    EXPECT_EQ(Selected(), -1);
    EXPECT_TRUE(m_messages.messages.empty());
    Press(page, kDelete);
    EXPECT_EQ(page->RowCount(), 0);
}

TEST_F(SchedulePageTest, ATickChangeMarksThePageAndASelectionDoesNot) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleEveryDay, At(9));
    CSchedulePage* page = Make();
    page->Load();
    Select(1);
    EXPECT_EQ(page->IsModified(), 0);
    page->List()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_FALSE(page->IsTicked(0));
}

TEST_F(SchedulePageTest, SaveRewritesTheStoreSectionsWithTheTicksShown) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleEveryDay, At(9));
    SaveJob(2, kScheduleEveryDay, At(10));
    CSchedulePage* page = Make();
    Select(0);
    Press(page, kDelete);
    page->List()->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
    page->Save();
    EXPECT_EQ(g_bScheduleDirty, 1);
    const std::vector<std::unique_ptr<ScheduleEntry>> stored = LoadStoreEntries();
    ASSERT_EQ(stored.size(), 2U);
    EXPECT_EQ(stored[0]->m_time.wHour, 9);
    EXPECT_EQ(stored[0]->m_bOn, 1);
    EXPECT_EQ(stored[1]->m_time.wHour, 10);
    EXPECT_EQ(stored[1]->m_bOn, 0);
}

TEST_F(SchedulePageTest, ApplyRewritesTheJobKeysAndLeavesOtherJobs) {
    SaveJob(0, kScheduleEveryDay, At(8));
    SaveJob(1, kScheduleEveryDay, At(9));
    RegWriteDword(platform::LocalMachine(), RegJoinPath(kScheduleKey, "OtherJob").c_str(), "On", 1);
    CSchedulePage* page = Make();
    Select(0);
    Press(page, kDelete);
    page->Save();
    page->Apply();
    const std::vector<std::unique_ptr<ScheduleEntry>> jobs = LoadRegistryEntries();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0]->m_time.wHour, 9);
    EXPECT_EQ(RegReadDword(platform::LocalMachine(), RegJoinPath(kScheduleKey, "OtherJob").c_str(),
                           "On", 0),
              1U);
    EXPECT_EQ(RegSubkeyName(platform::LocalMachine(), kScheduleKey, 2), "");
}

TEST_F(SchedulePageTest, ComingBackAfterASaveEmptiesTheRunAsAccountAndKeepsTheNetworkOne) {
    ScheduleEntry entry;
    entry.m_nStyle = kScheduleEveryDay;
    entry.m_time = At(8);
    entry.m_strUser = "runner";
    entry.m_strPassword = "run-secret";
    entry.m_strNetUser = "share";
    entry.m_strNetPassword = "net-secret";
    entry.SaveToStore(0, 1, 0);
    entry.SaveToRegistry(0, 1, 0);
    CSchedulePage* page = Make();
    ASSERT_EQ(page->RowCount(), 1);
    EXPECT_EQ(page->EntryAt(0)->m_strUser, "runner");
    page->List()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    page->Save();
    page->Load();
    ASSERT_EQ(page->RowCount(), 1);
    EXPECT_EQ(page->EntryAt(0)->m_strUser, "");
    EXPECT_EQ(page->EntryAt(0)->m_strPassword, "");
    EXPECT_EQ(page->EntryAt(0)->m_strNetUser, "share");
    EXPECT_EQ(page->EntryAt(0)->m_strNetPassword, "net-secret");
    page->Apply();
    std::string user = "unread";
    std::string password;
    EXPECT_EQ(ScheduleEntry::ReadAccountValue(0, user, password, 0), 1);
    EXPECT_EQ(user, "");
}

}  // namespace
}  // namespace schedule_page_test
