#include "platform/ModuleDirectory.h"

#include <dlfcn.h>
#include <limits.h>
#include <link.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdlib>

namespace platform {

namespace {

// The real path of the running executable, as the loader sees it for $ORIGIN.
std::string ExecutablePath() {
    char buffer[4096];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (length <= 0) return {};
    return std::string(buffer, static_cast<size_t>(length));
}

}  // namespace

std::string DirectoryOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return {};
    return path.substr(0, slash + 1);
}

std::string ModuleDirectory() {
    Dl_info info{};
    link_map* map = nullptr;
    if (dladdr1(reinterpret_cast<void*>(&ModuleDirectory), &info, reinterpret_cast<void**>(&map),
                RTLD_DL_LINKMAP) == 0 ||
        !info.dli_fname) {
        return {};
    }
    // Code linked into the executable: the loader names it by the program's
    // argv[0], which for a program started through a symbolic link (such as
    // <prefix>/bin/q9admin) is the link's directory, not the installation's.
    // The executable's real location is used instead, as the loader does for
    // $ORIGIN, so that the program and the libraries it loads agree.
    if (map && map->l_name && map->l_name[0] == '\0') {
        return DirectoryOf(ExecutablePath());
    }
    std::string path = info.dli_fname;
    // A library loaded by a relative path is reported with it; the directory
    // is made absolute so that it stays right whatever the process does with
    // its working directory later.
    if (path.find('/') != std::string::npos && path[0] != '/') {
        if (char* absolute = realpath(path.c_str(), nullptr)) {
            path = absolute;
            std::free(absolute);
        }
    }
    // A library reported without a directory: the executable's directory is
    // the best guess left.
    if (path.find('/') == std::string::npos) path = ExecutablePath();
    return DirectoryOf(path);
}

}  // namespace platform
