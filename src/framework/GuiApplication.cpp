#include "framework/GuiApplication.h"

#include <QApplication>
#include <cstdlib>

namespace {

bool HasDisplay() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(variable);
        if (value && *value) return true;
    }
    return false;
}

}  // namespace

bool EnsureGuiApplication() {
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) return true;
    if (QCoreApplication::instance() || !HasDisplay()) return false;
    static int argc = 1;
    static char name[] = "Q9CfgUL";
    static char* argv[] = {name, nullptr};
    static QApplication* application = new QApplication(argc, argv);
    return application != nullptr;
}
