#include "RuleEditor.h"

#include <QApplication>
#include <QThread>
#include <memory>

#include "RuleListDialog.h"

namespace q9msgflt {
namespace {

// QApplication keeps references to its arguments for its whole life.
int g_argc = 1;
char g_programName[] = "Q9MsgFlt";
char* g_argv[] = {g_programName, nullptr};

}  // namespace

std::optional<std::vector<SpamRule>> RuleEditor::Run(const std::vector<SpamRule>& rules) {
    std::unique_ptr<QApplication> ownApplication;
    if (!QCoreApplication::instance())
        ownApplication = std::make_unique<QApplication>(g_argc, g_argv);
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()) ||
        QThread::currentThread() != QCoreApplication::instance()->thread())
        return std::nullopt;
    RuleListDialog dialog(rules, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.Rules();
}

}  // namespace q9msgflt
