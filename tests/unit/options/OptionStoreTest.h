#pragma once

// Fixture of the tests that use the configuration store: an installation
// directory of its own per test, and the store on that directory's live file,
// outside edit mode, before and after each test.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <string>

#include "support/TemporaryInstallation.h"

class OptionStoreTest : public testing::Test {
protected:
    OptionStoreTest() { ResetStore(); }
    ~OptionStoreTest() override { ResetStore(); }

    // Writes the installation's factory defaults: body holds the sections.
    void WriteDefaults(const std::string& body) const {
        m_installation.Write("Q9CfgDef.dat", "Q9 Configuration Store 1\n" + body);
    }

    // The live store file as it is now.
    std::string LiveFile() const { return m_installation.Read("Q9Cfg.dat"); }

    // The store leaves edit mode and goes back to the live file of the
    // current installation.
    static void ResetStore() {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    }

    TemporaryInstallation m_installation;
};
