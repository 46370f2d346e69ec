#include "common/InstallDirectory.h"

#include <cstdlib>

#include "platform/ModuleDirectory.h"

namespace sibling {

std::string InstallDirectory() {
    const char* configured = std::getenv("Q9_INSTALL_DIR");
    if (!configured || !*configured) return platform::ModuleDirectory();
    std::string directory = configured;
    if (directory.back() != '/') directory += '/';
    return directory;
}

std::string InstallFile(const std::string& fileName) { return InstallDirectory() + fileName; }

}  // namespace sibling
