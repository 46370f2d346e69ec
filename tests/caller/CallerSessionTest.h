#pragma once

// Fixture of the caller tests that run a whole session: an installation of
// their own with the privilege granted, the library loaded as the product's
// programs load it, and its Q9CfgUL_DoModal at hand. The store is put back on
// the test's live file before and after.

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "CallerInstallation.h"
#include "Q9CfgE.h"

using DoModalEntry = int32_t(uint64_t, uint32_t, int32_t*, const char*, const char*);

class CallerSessionTest : public testing::Test {
protected:
    // Makes the installation with siblings and loads the library.
    void StartCaller(std::initializer_list<const char*> siblings) {
        Q9CfgE_SetStyleEx(257, "", 0);
        caller = std::make_unique<CallerInstallation>(siblings);
        caller->install.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
        ASSERT_NE(caller->Load(), nullptr) << dlerror();
        doModal = caller->Entry<DoModalEntry>("Q9CfgUL_DoModal");
        ASSERT_NE(doModal, nullptr);
    }
    void TearDown() override { Q9CfgE_SetStyleEx(257, "", 0); }

    // The journal lines of the registration calls that change something.
    std::vector<std::string> RegistrationChanges() const {
        std::vector<std::string> changes;
        std::istringstream text(caller->install.Read("Q9SSCtrl.journal"));
        for (std::string line; std::getline(text, line);) {
            if (line.rfind("Q9SSCtrl_IsRegistered", 0) != 0 &&
                line.rfind("Q9SSCtrl_CanBeRegister", 0) != 0 &&
                line.rfind("Q9SSCtrl_HasEnoughPrivilege", 0) != 0)
                changes.push_back(line);
        }
        return changes;
    }

    std::unique_ptr<CallerInstallation> caller;
    DoModalEntry* doModal = nullptr;
};
