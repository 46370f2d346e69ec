#include "BenchInstallation.h"

#include <Q9CfgE.h>
#include <dlfcn.h>
#include <stdlib.h>

#include <filesystem>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

// The folder the libraries of this build lie in: that of the store, which
// the benchmark program links.
std::string LibraryDirectory() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&Q9CfgE_GetDWEx), &info) == 0 || !info.dli_fname) return {};
    return std::filesystem::path(info.dli_fname).parent_path().string() + "/";
}

}  // namespace

BenchInstallation::BenchInstallation() : m_savedModuleDir(g_szModuleDir) {
    char pattern[] = "/tmp/q9-bench-XXXXXX";
    m_directory = mkdtemp(pattern);
    setenv("Q9_INSTALL_DIR", m_directory.c_str(), 1);
    setenv("Q9_REGISTRY_DIR", (m_directory + "/registry/").c_str(), 1);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, 0x1);
    // A restart interval the monitor page lets pass, as every installed
    // store has: leaving the page must not stop at its check.
    Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_MonitorRestart, 60);
    g_szModuleDir = LibraryDirectory();
    g_Siblings.Release();
    g_Siblings.MarkPending(0, kAllSwitchBits);
    m_ready = g_Siblings.ServiceControl(SC_Register, SSCT_SYSTEM_MONITOR, kServiceOption) == 1;
}

BenchInstallation::~BenchInstallation() {
    g_Siblings.Release();
    g_Siblings.MarkPending(0, kAllSwitchBits);
    g_szModuleDir = m_savedModuleDir;
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
    std::error_code ignored;
    std::filesystem::remove_all(m_directory, ignored);
}
