#include "shell/Session.h"

#include <QCoreApplication>

#include "framework/GuiApplication.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "shell/CfgApp.h"
#include "text/StringTable.h"

CSession::CSession(Kind kind) {
    CCfgApp::InitInstance();
    if (kind == kWithUserInterface) EnsureGuiApplication();
    m_language.Load(g_szModuleDir);
    m_previousName = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(
        QString::fromStdString(LoadString(strings::kApplicationName)));
}

CSession::~CSession() {
    m_language.Release();
    g_Siblings.Release();
    QCoreApplication::setApplicationName(m_previousName);
}
