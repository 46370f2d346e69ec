#include "shell/CfgApp.h"

#include <mutex>

#include "framework/QtMessageService.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "shell/PageShellDlg.h"

namespace {

QtMessageService g_qtMessages;

}  // namespace

void CCfgApp::InitInstance() {
    static std::once_flag started;
    std::call_once(started, [] {
        InitProcessState();
        g_Log.Open(CDiagLog::kDefaultPath);
        MessageService::Install(&g_qtMessages);
        CPageShellDlg::ServeNestedPages();
    });
}
