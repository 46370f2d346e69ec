#pragma once

// Fixture of tests that run the library against the sibling libraries: an
// installation directory of its own per test, which is also g_szModuleDir,
// so that each test chooses which sibling libraries exist there. The
// bindings are released, the pending mask and the session's flags cleared
// and the store put back on the test's live file before and after each test;
// the protection level, the level flags and the wizard flag are restored
// after it.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/TemporaryInstallation.h"

class SiblingTest : public testing::Test {
protected:
    SiblingTest();
    ~SiblingTest() override;

    // Links the built library lib<name>.so into the installation.
    void AddSibling(const std::string& name) const;
    // Removes lib<name>.so from the installation.
    void RemoveLibrary(const std::string& name) const;

    // The lines of Q9SSCtrl's journal; none when there is no journal.
    std::vector<std::string> Journal() const;
    // A journal line as Q9SSCtrl writes it; item < 0 stands for none.
    static std::string JournalLine(const std::string& entryPoint, int32_t item,
                                   const std::string& arguments, int32_t result);

    // Values of the store's live file.
    static void SetWord(uint32_t section, uint32_t key, uint32_t value);
    static uint32_t Word(uint32_t section, uint32_t key);
    // All three switch words, and their masks, to value.
    static void SetAllSwitchWords(uint32_t value);

    const TemporaryInstallation& Install() const { return m_install; }

private:
    static void ResetStore();

    TemporaryInstallation m_install;
    std::string m_savedModuleDir;
    uint32_t m_savedProtectLevel = 0;
    int32_t m_savedLevelApplied = 0;
    int32_t m_savedLevelPending = 0;
    int32_t m_savedInWizard = 0;
    int32_t m_savedScheduleDirty = 0;
};

// The lines of text, without their line ends.
std::vector<std::string> LinesOf(const std::string& text);
