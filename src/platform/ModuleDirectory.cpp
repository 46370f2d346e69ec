#include "platform/ModuleDirectory.h"

#include <dlfcn.h>
#include <limits.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdlib>

namespace platform {

std::string DirectoryOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return {};
    return path.substr(0, slash + 1);
}

std::string ModuleDirectory() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&ModuleDirectory), &info) == 0 || !info.dli_fname) {
        return {};
    }
    std::string path = info.dli_fname;
    // A binary started or loaded by a relative path is reported with it; the
    // directory is made absolute so that it stays right whatever the process
    // does with its working directory later.
    if (path.find('/') != std::string::npos && path[0] != '/') {
        if (char* absolute = realpath(path.c_str(), nullptr)) {
            path = absolute;
            std::free(absolute);
        }
    }
    // An executable found through PATH may be reported without a directory;
    // /proc/self/exe then gives its real location.
    if (path.find('/') == std::string::npos) {
        char buffer[4096];
        const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
        if (length <= 0) return {};
        path.assign(buffer, static_cast<size_t>(length));
    }
    return DirectoryOf(path);
}

}  // namespace platform
