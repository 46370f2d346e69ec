#include "support/SiblingTest.h"

#include <Q9CfgE.h>

#include <filesystem>
#include <sstream>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "platform/SharedLibrary.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "support/TestPaths.h"

namespace fs = std::filesystem;

SiblingTest::SiblingTest()
    : m_savedModuleDir(g_szModuleDir),
      m_savedProtectLevel(g_nProtectLevel),
      m_savedLevelApplied(g_bLevelApplied),
      m_savedLevelPending(g_bLevelPending),
      m_savedInWizard(g_bInWizard),
      m_savedScheduleDirty(g_bScheduleDirty) {
    g_Siblings.Release();
    g_Siblings.MarkPending(0, kAllSwitchBits);
    g_szModuleDir = m_install.Directory();
    g_bLevelPending = 0;
    g_bScheduleDirty = 0;
    ResetStore();
}

SiblingTest::~SiblingTest() {
    g_Siblings.Release();
    g_Siblings.MarkPending(0, kAllSwitchBits);
    ResetStore();
    g_szModuleDir = m_savedModuleDir;
    g_nProtectLevel = m_savedProtectLevel;
    g_bLevelApplied = m_savedLevelApplied;
    g_bLevelPending = m_savedLevelPending;
    g_bInWizard = m_savedInWizard;
    g_bScheduleDirty = m_savedScheduleDirty;
}

void SiblingTest::ResetStore() {
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
}

void SiblingTest::AddSibling(const std::string& name) const {
    const fs::path built = fs::path(TestPath("library")) / platform::LibraryFileName(name);
    ASSERT_TRUE(fs::exists(built)) << built;
    fs::create_symlink(built, m_install.PathOf(platform::LibraryFileName(name)));
}

void SiblingTest::RemoveLibrary(const std::string& name) const {
    fs::remove(m_install.PathOf(platform::LibraryFileName(name)));
}

std::vector<std::string> SiblingTest::Journal() const {
    return LinesOf(m_install.Read("Q9SSCtrl.journal"));
}

std::string SiblingTest::JournalLine(const std::string& entryPoint, int32_t item,
                                     const std::string& arguments, int32_t result) {
    return entryPoint + '\t' + (item < 0 ? "-" : std::to_string(item)) + '\t' +
           (arguments.empty() ? "-" : arguments) + '\t' + std::to_string(result);
}

void SiblingTest::SetWord(uint32_t section, uint32_t key, uint32_t value) {
    ASSERT_EQ(Q9CfgE_SetDWEx(section, key, value), 1);
}

uint32_t SiblingTest::Word(uint32_t section, uint32_t key) { return Q9CfgE_GetDWEx(section, key); }

void SiblingTest::SetAllSwitchWords(uint32_t value) {
    for (uint32_t key = CEK_Switch_Scan; key <= CEK_Switch_GeneralMask; ++key) {
        SetWord(CES_Switch, key, value);
    }
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}
