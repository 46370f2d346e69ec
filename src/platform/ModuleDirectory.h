#pragma once

#include <string>

namespace platform {

// The directory of the binary that holds this code (libQ9CfgUL.so when the
// library is loaded, the executable when the code is linked statically),
// ending in '/'. A library's directory is the one it was loaded from; an
// executable's is where the program really lies (/proc/self/exe), even when
// it was started through a symbolic link. Empty when it cannot be found or
// the path has no '/'.
std::string ModuleDirectory();

// The part of path up to and including its last '/'; empty with no '/'.
std::string DirectoryOf(const std::string& path);

}  // namespace platform
