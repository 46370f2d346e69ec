#pragma once

// An installation directory of its own for a caller test: libQ9CfgUL.so and
// the libraries it is linked against (the store, the problem reports) are
// copied in, plus whichever sibling
// libraries the test wants present; then the library is loaded with dlopen
// exactly as the product's programs load it.

#include <dlfcn.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "support/TemporaryInstallation.h"
#include "support/TestPaths.h"

class CallerInstallation {
public:
    explicit CallerInstallation(std::initializer_list<const char*> siblings = {})
        : CallerInstallation(std::vector<const char*>(siblings)) {}
    explicit CallerInstallation(const std::vector<const char*>& siblings) {
        Copy("Q9CfgUL");
        Copy("Q9CfgE");
        Copy("Q9Problems");
        for (const char* sibling : siblings) Copy(sibling);
    }
    ~CallerInstallation() {
        if (m_library) dlclose(m_library);
    }
    CallerInstallation(const CallerInstallation&) = delete;
    CallerInstallation& operator=(const CallerInstallation&) = delete;

    // Loads the library; null with the loader's message on failure.
    void* Load() {
        m_library = dlopen(install.PathOf("libQ9CfgUL.so").c_str(), RTLD_NOW | RTLD_LOCAL);
        return m_library;
    }

    template <typename Fn>
    Fn* Entry(const char* name) const {
        return reinterpret_cast<Fn*>(dlsym(m_library, name));
    }

    TemporaryInstallation install;

private:
    void Copy(const std::string& name) {
        const std::string file = "lib" + name + ".so";
        std::filesystem::copy_file(TestPath("library") + "/" + file, install.PathOf(file));
    }

    void* m_library = nullptr;
};
