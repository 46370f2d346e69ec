#pragma once

// Steps a person takes on the "Scheduled scan" page of an open dialog,
// shared by the caller tests that need a scheduled scan.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>
#include <string>
#include <utility>

#include "DialogDriver.h"

namespace schedule_steps {

constexpr int kSchedulePage = 4;
constexpr int kAddButton = 1034;
constexpr int kScheduleList = 1074;
constexpr int kAccountsButton = 1084;

inline void Click(QDialog* dialog, int id) {
    auto* button = DialogDriver::Find<QAbstractButton>(dialog, id);
    ASSERT_NE(button, nullptr) << id;
    button->click();
}

// A button of the schedule page itself: the dialog around it has a button of
// the same id ("Default").
inline void ClickOnPage(QDialog* dialog, int id) {
    auto* list = DialogDriver::Find<QTreeWidget>(dialog, kScheduleList);
    ASSERT_NE(list, nullptr);
    for (auto* button : list->parentWidget()->findChildren<QAbstractButton*>(
             QString(), Qt::FindDirectChildrenOnly)) {
        if (button->property("controlId").toInt() == id) {
            button->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << id << " on the page";
}

struct Accounts {
    std::string runUser;
    std::string runPassword;
    std::string netUser;
    std::string netPassword;
};

// Adds a scheduled scan through the wizard, entering both accounts in the
// authorization dialog, and finishes it.
inline void AddScanWithAccounts(QDialog* dialog, const Accounts& accounts) {
    QTimer::singleShot(50, [accounts] {
        auto* wizard = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(wizard, nullptr);
        QTimer::singleShot(50, [accounts] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            const std::pair<int, std::string> fields[] = {
                {1080, accounts.runUser}, {1023, accounts.runPassword},
                {1024, accounts.runPassword}, {1081, accounts.netUser},
                {1082, accounts.netPassword}, {1083, accounts.netPassword}};
            for (const auto& [id, text] : fields) {
                auto* edit = DialogDriver::Find<QLineEdit>(window, id);
                ASSERT_NE(edit, nullptr) << id;
                edit->setText(QString::fromStdString(text));
            }
            Click(window, 1);
        });
        Click(wizard, kAccountsButton);
        Click(wizard, 1);  // Finish
    });
    ClickOnPage(dialog, kAddButton);
}

}  // namespace schedule_steps
