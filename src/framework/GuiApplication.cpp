#include "framework/GuiApplication.h"

#include <QApplication>

#include "platform/Display.h"

bool EnsureGuiApplication() {
    if (qobject_cast<QApplication*>(QCoreApplication::instance())) return true;
    if (QCoreApplication::instance() || !platform::HasGraphicalDisplay()) return false;
    static int argc = 1;
    static char name[] = "Q9CfgUL";
    static char* argv[] = {name, nullptr};
    static QApplication* application = new QApplication(argc, argv);
    return application != nullptr;
}
