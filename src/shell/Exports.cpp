// The exported entry points of libQ9CfgUL.so (declared in include/q9cfgul.h).
// No exception crosses this border: a failure inside becomes the result the
// caller would get for a request that could not be carried out.
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <exception>
#include <limits>

#include "Q9CfgE.h"
#include "beacon/WindowBeacon.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "policy/PolicyPlan.h"
#include "policy/PolicyReport.h"
#include "policy/RecordedApply.h"
#include "policy/WizardDefaults.h"
#include "portblock/RuleFile.h"
#include "q9cfgul.h"
#include "session/DiagLog.h"
#include "session/EditionFlags.h"
#include "session/PageId.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "shell/CfgApp.h"
#include "shell/ConfigWindow.h"
#include "shell/ModeRunners.h"
#include "shell/Session.h"
#include "text/MessageKinds.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

namespace {

template <typename Body>
int32_t Guarded(int32_t failure, Body body) {
    try {
        return body();
    } catch (const std::exception& error) {
        g_Log.Write("unexpected failure: %s", error.what());
    } catch (...) {
        g_Log.Write("unexpected failure");
    }
    return failure;
}

constexpr uint32_t kStyleNamedFile = 257;

// Whether the user may change the product's registrations. When not, the
// refusal is shown (unless the call is silent) and the answer is false.
bool PassesPrivilegeGate(uint32_t flags) {
    errno = 0;
    if (g_Siblings.HasEnoughPrivilege() != 0) return true;
    const int error = errno;
    if (!(flags & DMF_Silent)) {
        ShowMessage(nullptr, FormatResource(LoadString(strings::kNotAuthorized).c_str(), error),
                    LoadString(strings::kWarningCaption), msg::kOk | msg::kIconWarning);
    }
    return false;
}

// The open prompt's word is its window beacon's token. A prompt whose beacon
// could not listen gave its native window id instead: no beacon answers
// that, and nothing is raised.
void BringPromptForward(uint64_t openPrompt) {
    if (openPrompt <= std::numeric_limits<uint32_t>::max()) {
        BringWindowForward(static_cast<uint32_t>(openPrompt));
    }
}

// Asks for the product password, unless the caller skips it. A prompt open
// already, in this or another process, is not asked again: it is brought to
// the front, and the answer is false.
bool PassesAuthentication(uint64_t parent, uint32_t flags) {
    if (flags & (DMF_NoAuthenticate | DMF_Silent)) return true;
    if (const uint64_t openPrompt = Q9CfgE_GetAuthenticateDlg(0)) {
        BringPromptForward(openPrompt);
        return false;
    }
    const std::string caption = LoadString(strings::kApplicationName);
    return Q9CfgE_AuthenticateEx(parent, 0, caption.c_str()) != 0;
}

// The values a session starts from: the stored protection level and POP3
// port, no level or schedule change yet, and an empty pending mask (no
// function waits for its registration to be refreshed).
void StartSessionState() {
    g_nProtectLevel = Q9CfgE_GetDWEx(CES_General, CEK_ProtectLevel);
    g_nPop3Port = Q9CfgE_GetDWEx(CES_Pop3, CEK_Pop3Port);
    g_bLevelApplied = 0;
    g_bLevelPending = 0;
    g_bScheduleDirty = 0;
    g_Siblings.MarkPending(0, kAllSwitchBits);
}

// A configuration window open in some process is brought to the front. A
// word that no window answers for was left by a process that ended: it is
// cleared, so that a crash does not lock the user out of the dialog.
bool ConfigWindowIsOpen() {
    const uint32_t window = OpenConfigWindow();
    if (window == 0) return false;
    if (BringConfigWindowForward(window)) return true;
    ClearConfigWindow();
    return false;
}

int32_t RunDialogMode(uint64_t parent, uint32_t flags, int32_t page, int32_t* pageInOut,
                      const char* path1, const char* path2) {
    g_bInWizard = 0;
    if (flags & DMF_Silent) {
        ApplyPolicyRecorded(path1, path2, (flags & DMF_PolicyKeepMonitor) ? 0 : 1);
        Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, g_nProtectLevel);
        return 1;
    }
    if (ConfigWindowIsOpen()) return 2;
    int32_t lastPage = page;
    const int32_t result = RunConfigDialog(parent, flags, page, &lastPage);
    ClearConfigWindow();
    if (pageInOut) *pageInOut = lastPage;
    return result;
}

int32_t RunWizardMode(uint64_t parent, uint32_t flags) {
    g_bInWizard = 1;
    if (flags & DMF_Silent) {
        ApplyWizardDefaults(flags);
        return 1;
    }
    return RunWizard(parent, flags);
}

int32_t RunSinglePageMode(uint64_t parent, uint32_t flags, int32_t page) {
    g_bInWizard = 0;
    if (ConfigWindowIsOpen()) return 2;
    const int32_t result = RunSinglePage(parent, flags, page);
    ClearConfigWindow();
    return result;
}

// The session proper, once the privilege and the password were passed: the
// start values and the mail accounts, then the mode the flags ask for. An
// unknown mode answers -1.
int32_t RunMode(uint64_t parent, uint32_t flags, int32_t page, int32_t* pageInOut,
                const char* path1, const char* path2) {
    StartSessionState();
    g_Pop3Accounts = g_Siblings.CreateMailAccounts();
    g_Pop3Accounts.Read();

    int32_t result = -1;
    switch (flags & DMF_ModeMask) {
        case DMF_ModeDialog:
            result = RunDialogMode(parent, flags, page, pageInOut, path1, path2);
            break;
        case DMF_ModeWizard: result = RunWizardMode(parent, flags); break;
        case DMF_ModeSinglePage: result = RunSinglePageMode(parent, flags, page); break;
        default: break;
    }
    // The account object goes with the session.
    g_Pop3Accounts = MailAccounts();
    return result;
}

// The gates in their order: the page id, the privilege, the password. Only a
// call that passed them all looks for a configuration window open elsewhere
// (in the mode runners), so a call refused the password never brings that
// window forward.
int32_t DoModal(uint64_t parent, uint32_t flags, int32_t* pageInOut, const char* path1,
                const char* path2) {
    const CSession session((flags & DMF_Silent) ? CSession::kSilent : CSession::kWithUserInterface);
    const int32_t page = pageInOut ? *pageInOut : 0;
    if (page < 0 || page >= kPageCount) return -1;
    if (!PassesPrivilegeGate(flags)) return 2;
    flags = AddEditionFlags(flags);
    if (path1 && *path1) Q9CfgE_SetStyleEx(kStyleNamedFile, path1, 0);
    if (!PassesAuthentication(parent, flags)) return 2;
    return RunMode(parent, flags, page, pageInOut, path1, path2);
}

// The report and its NUL into buffer when it fits; *size becomes the bytes
// needed.
void CopyReport(const std::string& report, char* buffer, uint32_t* size) {
    const std::size_t needed = report.size() + 1;
    if (buffer && needed <= *size) std::memcpy(buffer, report.c_str(), needed);
    *size = static_cast<uint32_t>(std::min<std::size_t>(needed, UINT32_MAX));
}

}  // namespace

extern "C" {

Q9CFGUL_API int32_t Q9CfgUL_DoModal(uint64_t parent, uint32_t flags, int32_t* pageInOut,
                                    const char* path1, const char* path2) {
    return Guarded(-1, [&] { return DoModal(parent, flags, pageInOut, path1, path2); });
}

Q9CFGUL_API int32_t Q9CfgUL_MsgBox(int32_t kind, uint32_t value) {
    return Guarded(1, [&] {
        const CSession session(CSession::kWithUserInterface);
        const FixedMessage message = FixedMessageFor(kind, value);
        ShowMessage(nullptr, message.text, message.caption, msg::kOk);
        return int32_t{1};
    });
}

Q9CFGUL_API int32_t Q9CfgUL_Report(void) { return 1; }

Q9CFGUL_API int32_t Q9CfgUL_PolicyDiff(uint32_t flags, const char* basePath, const char* policyPath,
                                       char* buffer, uint32_t* size) {
    return Guarded(-1, [&] {
        if (!size) return int32_t{-1};
        const CSession session(CSession::kSilent);
        if (basePath && *basePath) Q9CfgE_SetStyleEx(kStyleNamedFile, basePath, 0);
        const PolicyPlan plan = PlanConfiguration(basePath, policyPath);
        const std::string policy = policyPath ? policyPath : "";
        const std::string report =
            (flags & PDF_Json) ? PlanJson(plan, policy) : PlanText(plan, policy);
        CopyReport(report, buffer, size);
        return int32_t{plan.ChangesSomething() ? 1 : 0};
    });
}

Q9CFGUL_API int32_t WriteGeneralRuleFile(const void* records, int32_t count) {
    return Guarded(0, [&] {
        CCfgApp::InitInstance();
        return CRuleFile(g_szModuleDir).WriteUserRules(records, count);
    });
}

}  // extern "C"
