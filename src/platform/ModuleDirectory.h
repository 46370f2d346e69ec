#pragma once

#include <string>

namespace platform {

// The directory of the binary that holds this code (libQ9CfgUL.so when the
// library is loaded, the executable when the code is linked statically),
// ending in '/'. Empty when it cannot be found or the path has no '/'.
std::string ModuleDirectory();

// The part of path up to and including its last '/'; empty with no '/'.
std::string DirectoryOf(const std::string& path);

}  // namespace platform
