#include "Authentication.h"

#include <sodium.h>

#include <QApplication>
#include <QByteArray>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>

#include "ConfigStore.h"
#include "PasswordPrompt.h"
#include "PromptMarker.h"
#include "beacon/WindowBeacon.h"
#include "common/InstallDirectory.h"
#include "platform/Display.h"
#include "platform/ProblemReport.h"

namespace cfge {
namespace {

constexpr uint32_t kAuthorization = 3;
constexpr uint32_t kAuthEnabled = 7;
constexpr uint32_t kAuthPassword = 9;

bool SamePassword(const QString& typed, const std::string& password) {
    QByteArray bytes = typed.toUtf8();
    const bool same = static_cast<size_t>(bytes.size()) == password.size() &&
                      sodium_memcmp(bytes.constData(), password.data(), password.size()) == 0;
    sodium_memzero(bytes.data(), static_cast<size_t>(bytes.size()));
    return same;
}

// The owner's top-level window when owner is a widget of this process.
QWidget* OwnerWindow(uint64_t owner) {
    if (owner == 0) return nullptr;
    QWidget* widget = QWidget::find(static_cast<WId>(owner));
    return widget ? widget->window() : nullptr;
}

// The widget application to show the prompt in: the running one, or one
// made for the duration of the prompt. Null (reported) when the process runs
// a non-widget application.
QApplication* WidgetApplication(std::unique_ptr<QApplication>* own) {
    static int argc = 1;
    static char name[] = "Q9CfgE";
    static char* argv[] = {name, nullptr};
    if (!QCoreApplication::instance()) {
        if (!platform::HasGraphicalDisplay()) {
            platform::ReportProblem("no display to ask for the password on");
            return nullptr;
        }
        *own = std::make_unique<QApplication>(argc, argv);
    }
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!application) platform::ReportProblem("no widget application to ask for the password in");
    return application;
}

// What marks the open prompt for other processes: its beacon's token, which
// brings it to the front. A beacon that cannot listen (reported) leaves the
// native window id, so the prompt still counts as open.
uint64_t PromptWindow(const WindowBeacon& beacon, QWidget& prompt) {
    if (beacon.Token() != 0) return beacon.Token();
    return static_cast<uint64_t>(prompt.winId());
}

int32_t Prompt(uint64_t ownerWindow, const char* caption, const std::string& password) {
    std::unique_ptr<QApplication> ownApplication;
    if (!WidgetApplication(&ownApplication)) return 0;
    PasswordPrompt prompt(OwnerWindow(ownerWindow),
                          QString::fromUtf8(caption && *caption ? caption : "Password"),
                          [&password](const QString& typed) { return SamePassword(typed, password); });
    const WindowBeacon beacon(&prompt);
    const PromptMarker marker(sibling::InstallFile(PromptMarker::kFileName),
                              PromptWindow(beacon, prompt));
    return prompt.exec() == QDialog::Accepted ? 1 : 0;
}

}  // namespace

int32_t Authentication::Authenticate(uint64_t ownerWindow, const char* caption) {
    ConfigStore& store = ConfigStore::Instance();
    if (store.GetWord(kAuthorization, kAuthEnabled) != 1) return 1;
    bool unopenable = false;
    std::optional<std::string> password = store.GetSealed(kAuthorization, kAuthPassword, &unopenable);
    // A password that this installation cannot read can never be answered.
    if (unopenable) return 0;
    if (!password || password->empty()) return 1;
    const int32_t result = Prompt(ownerWindow, caption, *password);
    sodium_memzero(password->data(), password->size());
    return result;
}

uint64_t Authentication::OpenPrompt() {
    return PromptMarker::OpenPrompt(sibling::InstallFile(PromptMarker::kFileName));
}

}  // namespace cfge
