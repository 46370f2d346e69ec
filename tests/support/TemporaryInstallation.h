#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/TemporaryRegistry.h"

// An installation directory of its own for one test: Q9_INSTALL_DIR points
// at a fresh empty directory while the object lives, and is restored after.
class TemporaryInstallation {
public:
    TemporaryInstallation() : m_directory(m_scratch.Base() + "/install/") {
        std::filesystem::create_directories(m_directory);
        if (const char* previous = std::getenv(kVariable)) {
            m_hadPrevious = true;
            m_previous = previous;
        }
        setenv(kVariable, m_directory.c_str(), 1);
    }

    ~TemporaryInstallation() {
        if (m_hadPrevious) {
            setenv(kVariable, m_previous.c_str(), 1);
        } else {
            unsetenv(kVariable);
        }
    }

    TemporaryInstallation(const TemporaryInstallation&) = delete;
    TemporaryInstallation& operator=(const TemporaryInstallation&) = delete;

    // Ends in '/'.
    const std::string& Directory() const { return m_directory; }
    std::string PathOf(const std::string& name) const { return m_directory + name; }

    void Write(const std::string& name, const std::string& text) const {
        std::ofstream(PathOf(name), std::ios::binary | std::ios::trunc) << text;
    }

    // Whole file; empty when missing.
    std::string Read(const std::string& name) const {
        return TemporaryRegistry::ReadFile(PathOf(name));
    }

    bool Exists(const std::string& name) const { return std::filesystem::exists(PathOf(name)); }

private:
    static constexpr const char* kVariable = "Q9_INSTALL_DIR";

    TemporaryRegistry m_scratch;  // used only for its temporary directory
    std::string m_directory;
    bool m_hadPrevious = false;
    std::string m_previous;
};
