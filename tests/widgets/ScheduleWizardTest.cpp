// The schedule wizard: its two pages and their buttons, the interval and
// the date control that follows it, the targets, the accounts, the scan
// page's fixed bits on the NT family, and an entry that changes only at
// "Finish".

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/DateEdit.h"
#include "controls/DateField.h"
#include "framework/DialogControls.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "pages/schedule/ScheduleTimePage.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "q9cfgul.h"
#include "schedule/ScheduleEntry.h"
#include "session/PageContext.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"

namespace schedule_wizard_test {
namespace {

constexpr int kFinish = 1;
constexpr int kCancel = 2;
constexpr int kBack = 1003;
constexpr int kNext = 1004;
constexpr int kIntervalCombo = 1004;
constexpr int kDateLabel = 1007;
constexpr int kDateEdit = 1090;
constexpr int kTimeLabel = 1008;
constexpr int kTimeEdit = 1091;
constexpr int kDeleteAll = 1018;
constexpr int kAuthorization = 1084;

// The rows of the interval combo.
constexpr int kRowAtStartup = 0;
constexpr int kRowWeek = 2;
constexpr int kRowMonth = 3;
constexpr int kRowOnce = 4;

using WizardAction = std::function<void(CScheduleWizardDlg&)>;

void Press(QWidget* dialog, int id) {
    auto* button = qobject_cast<QAbstractButton*>(ctl::Find(dialog, id));
    ASSERT_NE(button, nullptr) << id;
    button->click();
}

CDateEdit* DateEditOf(CSettingsPage* page, int id) {
    return qobject_cast<CDateEdit*>(ctl::Find(page, id));
}

// Types text into a field of a date control, as a user who selected the
// field's text first.
void TypeInto(CDateEdit* edit, int field, const QString& text) {
    CDateField* target = edit->Field(field);
    ASSERT_NE(target, nullptr);
    target->setFocus();
    target->selectAll();
    QTest::keyClicks(target, text);
}

class ScheduleWizardTest : public SwitchPageTest {
protected:
    ScheduleWizardTest() {
        m_entry.m_targets = {{kTargetFolder, "/srv/data"}};
        m_entry.m_dwScanOptions = 0x680;
    }

    // Runs the wizard on m_entry; act works on it while it runs and ends it.
    int Run(const WizardAction& act, uint32_t flags = DMF_AssumeNT, bool isNT = true) {
        CScheduleWizardDlg wizard(&m_entry, flags, &m_parent);
        wizard.SetContext(PageContext(g_Siblings, isNT));
        QTimer::singleShot(0, [&wizard, &act] { act(wizard); });
        const int result = wizard.DoModal();
        m_changed = wizard.IsChanged();
        return result;
    }
    int Finish(const WizardAction& act = [](CScheduleWizardDlg&) {}) {
        return Run([&act](CScheduleWizardDlg& wizard) {
            act(wizard);
            Press(&wizard, kFinish);
        });
    }
    static CScheduleTimePage* TimePage(CScheduleWizardDlg& wizard) {
        return dynamic_cast<CScheduleTimePage*>(wizard.Page(0));
    }

    ScheduleEntry m_entry;
    int32_t m_changed = -1;
};

TEST_F(ScheduleWizardTest, TheFirstPageOffersNextAndTheSecondBack) {
    Run([](CScheduleWizardDlg& wizard) {
        EXPECT_EQ(wizard.CurrentPage(), 0);
        EXPECT_FALSE(ctl::IsEnabled(&wizard, kBack));
        EXPECT_TRUE(ctl::IsEnabled(&wizard, kNext));
        EXPECT_EQ(wizard.DefaultButtonId(), kNext);
        EXPECT_TRUE(wizard.Page(0)->isVisibleTo(&wizard));
        Press(&wizard, kNext);
        EXPECT_EQ(wizard.CurrentPage(), 1);
        EXPECT_TRUE(ctl::IsEnabled(&wizard, kBack));
        EXPECT_FALSE(ctl::IsEnabled(&wizard, kNext));
        EXPECT_TRUE(ctl::IsEnabled(&wizard, kFinish));
        EXPECT_EQ(wizard.DefaultButtonId(), kFinish);
        EXPECT_FALSE(wizard.Page(0)->isVisibleTo(&wizard));
        Press(&wizard, kBack);
        EXPECT_EQ(wizard.CurrentPage(), 0);
        Press(&wizard, kCancel);
    });
}

TEST_F(ScheduleWizardTest, FinishOnAnUntouchedWeeklyEntryKeepsItsDayOfWeek) {
    m_entry.m_nStyle = kScheduleEveryWeek;
    m_entry.m_time = {2026, 11, 4, 18, 21, 15, 0, 0};
    ASSERT_EQ(Finish(), 1);
    EXPECT_EQ(m_entry.m_nStyle, kScheduleEveryWeek);
    EXPECT_EQ(m_entry.m_time.wDayOfWeek, 4);
    EXPECT_EQ(m_entry.m_time.wHour, 21);
    EXPECT_EQ(m_entry.m_time.wMinute, 15);
    // A weekly entry keeps no date.
    EXPECT_EQ(m_entry.m_time.wYear, 0);
    EXPECT_EQ(m_entry.m_time.wDay, 0);
    EXPECT_EQ(m_changed, 0);
}

TEST_F(ScheduleWizardTest, TheWeekdayShowsAsItsNameForEveryDay) {
    for (uint16_t weekday = 0; weekday <= 6; ++weekday) {
        m_entry.m_nStyle = kScheduleEveryWeek;
        m_entry.m_time.wDayOfWeek = weekday;
        QString shown;
        ASSERT_EQ(Finish([&shown](CScheduleWizardDlg& wizard) {
                      shown = DateEditOf(wizard.Page(0), kDateEdit)->GetDisplayText();
                  }),
                  1);
        EXPECT_EQ(shown, QLocale().dayName(weekday == 0 ? 7 : weekday, QLocale::LongFormat));
        EXPECT_EQ(m_entry.m_time.wDayOfWeek, weekday);
    }
}

TEST_F(ScheduleWizardTest, SwitchingFromOnceToWeeklyAndBackShowsTheDateThatWasThere) {
    m_entry.m_nStyle = kScheduleOnce;
    m_entry.m_time = {2027, 3, 1, 15, 8, 0, 0, 0};
    Run([this](CScheduleWizardDlg& wizard) {
        CSettingsPage* page = wizard.Page(0);
        CDateEdit* date = DateEditOf(page, kDateEdit);
        const QString before = date->GetDisplayText();
        EXPECT_TRUE(before.contains("2027")) << before.toStdString();
        Choose(page, kIntervalCombo, kRowWeek);
        EXPECT_NE(date->GetDisplayText(), before);
        Choose(page, kIntervalCombo, kRowOnce);
        EXPECT_EQ(date->GetDisplayText(), before);
        Press(&wizard, kCancel);
    });
}

TEST_F(ScheduleWizardTest, TheDateLabelAndFormatFollowTheInterval) {
    m_entry.m_nStyle = kScheduleEveryDay;
    Run([](CScheduleWizardDlg& wizard) {
        CSettingsPage* page = wizard.Page(0);
        EXPECT_FALSE(IsShown(page, kDateEdit));
        EXPECT_FALSE(IsShown(page, kDateLabel));
        EXPECT_TRUE(IsShown(page, kTimeEdit));
        Choose(page, kIntervalCombo, kRowWeek);
        EXPECT_TRUE(IsShown(page, kDateEdit));
        EXPECT_EQ(ctl::GetText(page, kDateLabel), "Day of the week :");
        EXPECT_EQ(DateEditOf(page, kDateEdit)->GetWindowText(), "%a");
        Choose(page, kIntervalCombo, kRowMonth);
        EXPECT_EQ(ctl::GetText(page, kDateLabel), "Day :");
        EXPECT_EQ(DateEditOf(page, kDateEdit)->GetWindowText(), "%dDay");
        Choose(page, kIntervalCombo, kRowOnce);
        EXPECT_EQ(ctl::GetText(page, kDateLabel), "Date :");
        EXPECT_EQ(DateEditOf(page, kDateEdit)->GetWindowText(), "%YYear %mMonth %dDay");
        EXPECT_EQ(wizard.Page(0)->IsModified(), 1);
        Press(&wizard, kCancel);
    });
}

TEST_F(ScheduleWizardTest, AtStartupHidesDateAndTimeAndStillTakesTheHiddenTime) {
    m_entry.m_nStyle = kScheduleEveryWeek;
    m_entry.m_time = {0, 0, 2, 0, 10, 30, 0, 0};
    ASSERT_EQ(Finish([](CScheduleWizardDlg& wizard) {
                  CSettingsPage* page = wizard.Page(0);
                  Choose(page, kIntervalCombo, kRowAtStartup);
                  for (int id : {kDateLabel, kDateEdit, kTimeLabel, kTimeEdit})
                      EXPECT_FALSE(IsShown(page, id)) << id;
                  EXPECT_EQ(TimePage(wizard)->Interval(), kScheduleAtStartup);
              }),
              1);
    EXPECT_EQ(m_entry.m_nStyle, kScheduleAtStartup);
    EXPECT_EQ(m_entry.m_time.wHour, 10);
    EXPECT_EQ(m_entry.m_time.wMinute, 30);
    EXPECT_EQ(m_changed, 1);
}

TEST_F(ScheduleWizardTest, EveryMonthOffersDay31WhateverTheMonthOfToday) {
    m_entry.m_nStyle = kScheduleEveryMonth;
    m_entry.m_time = {0, 0, 0, 5, 9, 0, 0, 0};
    ASSERT_EQ(Finish([](CScheduleWizardDlg& wizard) {
                  TypeInto(DateEditOf(wizard.Page(0), kDateEdit), 0, "31");
              }),
              1);
    EXPECT_EQ(m_entry.m_nStyle, kScheduleEveryMonth);
    EXPECT_EQ(m_entry.m_time.wDay, 31);
    EXPECT_EQ(m_entry.m_time.wMonth, 0);
    EXPECT_EQ(m_changed, 1);
}

TEST_F(ScheduleWizardTest, OnceKeepsTheDateWithItsWeekday) {
    m_entry.m_nStyle = kScheduleOnce;
    m_entry.m_time = {2027, 3, 0, 15, 8, 5, 0, 0};
    ASSERT_EQ(Finish(), 1);
    EXPECT_EQ(m_entry.m_time.wYear, 2027);
    EXPECT_EQ(m_entry.m_time.wMonth, 3);
    EXPECT_EQ(m_entry.m_time.wDay, 15);
    EXPECT_EQ(m_entry.m_time.wDayOfWeek, 1);  // a Monday
    EXPECT_EQ(m_entry.m_time.wHour, 8);
    EXPECT_EQ(m_entry.m_time.wMinute, 5);
}

TEST_F(ScheduleWizardTest, OnTheNtFamilyAScheduledScanAlwaysHasTheFixedBits) {
    m_entry.m_dwScanOptions = 0x680;
    ASSERT_EQ(Run([](CScheduleWizardDlg& wizard) { Press(&wizard, kFinish); }, 0, true), 1);
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x101001U, 0x101001U);
}

TEST_F(ScheduleWizardTest, AssumingTheNtFamilyTheFixedBitsAreTheUsersChoice) {
    m_entry.m_dwScanOptions = 0x680;
    ASSERT_EQ(Finish(), 1);
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x101001U, 0U);
    EXPECT_EQ(m_entry.m_dwScanOptions & 0x2000U, 0x2000U);
}

TEST_F(ScheduleWizardTest, DeletingEveryTargetScansAllLocalHardDrives) {
    m_messages.answers.push_back(msg::kIdYes);
    ASSERT_EQ(Finish([](CScheduleWizardDlg& wizard) { Press(wizard.Page(0), kDeleteAll); }), 1);
    ASSERT_EQ(m_entry.m_targets.size(), 1U);
    EXPECT_EQ(m_entry.m_targets[0], AllLocalDrivesTarget());
    EXPECT_EQ(m_changed, 1);
}

TEST_F(ScheduleWizardTest, TheTargetsComeBackAsTheyWere) {
    m_entry.m_targets = {{kTargetFolder, "/srv/data"}, {kTargetFile, "/srv/b.bin"}};
    const std::vector<Target> given = m_entry.m_targets;
    ASSERT_EQ(Finish(), 1);
    // In the target tree's order.
    EXPECT_THAT(m_entry.m_targets, testing::UnorderedElementsAreArray(given));
}

TEST_F(ScheduleWizardTest, CancelLeavesTheEntryAsItWas) {
    m_entry.m_nStyle = kScheduleEveryWeek;
    m_entry.m_time = {0, 0, 2, 0, 10, 30, 0, 0};
    m_messages.answers.push_back(msg::kIdYes);
    ASSERT_NE(Run([](CScheduleWizardDlg& wizard) {
                  Choose(wizard.Page(0), kIntervalCombo, kRowAtStartup);
                  Press(wizard.Page(0), kDeleteAll);
                  Press(&wizard, kNext);
                  Press(&wizard, kCancel);
              }),
              1);
    EXPECT_EQ(m_entry.m_nStyle, kScheduleEveryWeek);
    EXPECT_EQ(m_entry.m_time.wDayOfWeek, 2);
    EXPECT_EQ(m_entry.m_targets.size(), 1U);
    EXPECT_EQ(m_entry.m_targets[0].text, "/srv/data");
}

TEST_F(ScheduleWizardTest, TheAccountsGoThroughTheAuthorizationDialog) {
    m_entry.m_strNetUser = "share";
    ASSERT_EQ(Finish([](CScheduleWizardDlg& wizard) {
                  QTimer::singleShot(0, [] {
                      auto* dialog =
                          dynamic_cast<CAuthorizationDlg*>(QApplication::activeModalWidget());
                      ASSERT_NE(dialog, nullptr);
                      ctl::SetText(dialog, 1080, "runner");
                      ctl::SetText(dialog, 1023, "run-secret");
                      ctl::SetText(dialog, 1024, "run-secret");
                      // The edits report a user's change only when typed.
                      QTest::keyClicks(ctl::Find(dialog, 1080), "2");
                      Press(dialog, 1);
                  });
                  Press(wizard.Page(0), kAuthorization);
              }),
              1);
    EXPECT_EQ(m_entry.m_strUser, "runner2");
    EXPECT_EQ(m_entry.m_strPassword, "run-secret");
    EXPECT_EQ(m_entry.m_strNetUser, "share");
    EXPECT_EQ(m_changed, 1);
}

TEST_F(ScheduleWizardTest, AnUntouchedAuthorizationDialogChangesNothing) {
    ASSERT_EQ(Finish([](CScheduleWizardDlg& wizard) {
                  QTimer::singleShot(0, [] { Press(QApplication::activeModalWidget(), 1); });
                  Press(wizard.Page(0), kAuthorization);
              }),
              1);
    EXPECT_EQ(m_changed, 0);
}

TEST_F(ScheduleWizardTest, WithoutTheNtFamilyTheAccountsCannotBeSet) {
    m_entry.m_strUser = "kept";
    ASSERT_EQ(Run(
                  [](CScheduleWizardDlg& wizard) {
                      EXPECT_FALSE(IsEnabled(wizard.Page(0), kAuthorization));
                      Press(&wizard, kFinish);
                  },
                  0, false),
              1);
    EXPECT_EQ(m_entry.m_strUser, "kept");
}

}  // namespace
}  // namespace schedule_wizard_test
