#pragma once

// Shared by the spam filter tests: an installation directory per test with
// the manager released afterwards, rules files, and the driving of modal
// dialogs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string>

#include "Q9MsgFlt.h"
#include "support/TemporaryInstallation.h"

// A test with its own installation directory, that leaves no manager behind.
class MsgFltTest : public testing::Test {
protected:
    void TearDown() override {
        while (Q9MsgFltAPI_ReleaseManager() == 1) {
        }
    }

    std::string RulesPath() const { return install.PathOf("Q9MsgFlt.rules"); }
    std::string RulesText() const { return install.Read("Q9MsgFlt.rules"); }
    void WriteRules(const std::string& text) const { install.Write("Q9MsgFlt.rules", text); }

    TemporaryInstallation install;
};

// Two rules in the file's own form.
inline const std::string kTwoRules =
    "Q9MsgFlt Rules 1\n"
    "\n"
    "[Rule]\n"
    "Name=Lottery\n"
    "Field=Subject\n"
    "Words=lottery, you have won\n"
    "Action=Spam\n"
    "Enabled=Yes\n"
    "\n"
    "[Rule]\n"
    "Name=Boss\n"
    "Field=Sender\n"
    "Words=boss@example.com\n"
    "Action=Pass\n"
    "Enabled=No\n";

// Runs action on the active modal dialog as soon as the event loop of the
// next modal dialog runs. The action is to close it; if it leaves it open
// (after a failed expectation), the dialog is rejected, so that a failing
// test cannot hang.
inline void WhenModal(std::function<void(QDialog*)> action) {
    QTimer::singleShot(0, [action] {
        auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!modal) {
            ADD_FAILURE() << "no modal dialog is open";
            return;
        }
        action(modal);
        if (QApplication::activeModalWidget() == modal) {
            ADD_FAILURE() << "the dialog was left open";
            modal->reject();
        }
    });
}

template <typename T>
T* Child(QWidget* parent, const char* name) {
    T* child = parent->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(child, nullptr) << name;
    return child;
}

inline void Press(QWidget* dialog, QDialogButtonBox::StandardButton which) {
    if (auto* buttons = Child<QDialogButtonBox>(dialog, "buttons")) buttons->button(which)->click();
}
