#pragma once

#include <string>

namespace sibling {

// The installation directory the reference libraries keep their files in,
// ending in '/': Q9_INSTALL_DIR when set and not empty, otherwise the
// directory of the library itself (all libraries of an installation lie side
// by side). Read at every call, so that tests can point it elsewhere.
std::string InstallDirectory();

// InstallDirectory() followed by fileName.
std::string InstallFile(const std::string& fileName);

}  // namespace sibling
