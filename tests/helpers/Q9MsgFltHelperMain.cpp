// "The other process" of the spam filter tests: a program with no Qt
// application of its own that opens the rule editor, as a caller without Qt
// would. The editor is driven from a start-up routine that Qt runs whenever
// an application object is constructed, which here can only be the one the
// library makes. Exit code 0 when everything went as expected; the rules
// file of Q9_INSTALL_DIR then holds the rule added in the second run.

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

#include "Q9MsgFlt.h"

namespace {

int g_run = 0;  // which DoProperty call is under way
bool g_sawEditor = false;

QDialog* ActiveDialog() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

void Press(QDialog* dialog, QDialogButtonBox::StandardButton which) {
    dialog->findChild<QDialogButtonBox*>("buttons")->button(which)->click();
}

void AddRule() {
    QDialog* edit = ActiveDialog();
    edit->findChild<QLineEdit*>("nameEdit")->setText("From the helper");
    edit->findChild<QLineEdit*>("wordsEdit")->setText("helper");
    Press(edit, QDialogButtonBox::Ok);
}

void DriveEditor() {
    QDialog* editor = ActiveDialog();
    if (!editor) return;
    g_sawEditor = editor->windowTitle() == "Spam Mail Prevention Rules";
    if (g_run == 1) {
        Press(editor, QDialogButtonBox::Cancel);
        return;
    }
    QTimer::singleShot(0, AddRule);
    editor->findChild<QPushButton*>("addButton")->click();
    Press(editor, QDialogButtonBox::Ok);
}

void OnApplicationConstructed() {
    QTimer::singleShot(0, QCoreApplication::instance(), DriveEditor);
}

bool Check(bool condition, const char* what) {
    if (!condition) std::fprintf(stderr, "q9_q9msgflt_helper: %s\n", what);
    return condition;
}

}  // namespace

int main() {
    qAddPreRoutine(OnApplicationConstructed);
    bool ok = Check(Q9MsgFltAPI_InitManager() == 1, "InitManager failed");

    g_run = 1;
    ok &= Check(Q9MsgFltAPI_DoProperty() == 0, "Cancel did not answer 0");
    ok &= Check(g_sawEditor, "the first run showed no editor");
    ok &= Check(QCoreApplication::instance() == nullptr, "the application outlived the editor");

    g_run = 2;
    g_sawEditor = false;
    ok &= Check(Q9MsgFltAPI_DoProperty() == 1, "adding a rule did not answer 1");
    ok &= Check(g_sawEditor, "the second run showed no editor");
    ok &= Check(QCoreApplication::instance() == nullptr, "the application outlived the editor");
    ok &= Check(Q9MsgFltAPI_WriteRules() == 1, "WriteRules failed");
    ok &= Check(Q9MsgFltAPI_ReleaseManager() == 1, "ReleaseManager failed");
    return ok ? 0 : 1;
}
