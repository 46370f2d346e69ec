// A stand-in that the binding tests copy into an installation under the
// name of a real sibling library (libQ9SSCtrl.so, libOrvInst.so, ...).
//
// It exports none of the siblings' entry points but one, so that every other
// binding meets a library without its entry point. When it is unloaded it
// appends the file name it was loaded as to "unloads.log" in the
// installation directory (Q9_INSTALL_DIR), so that a test can see which
// copies were freed, and in which order.

#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#define Q9_PROBE_EXPORT extern "C" __attribute__((visibility("default")))

// The rule editor "changed the rules", without showing anything.
Q9_PROBE_EXPORT int32_t Q9MsgFltAPI_DoProperty() { return 1; }

namespace {

__attribute__((destructor)) void RecordUnload() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&RecordUnload), &info) == 0 || !info.dli_fname) return;
    const char* directory = std::getenv("Q9_INSTALL_DIR");
    if (!directory || !*directory) return;
    const char* slash = std::strrchr(info.dli_fname, '/');
    const std::string name = slash ? slash + 1 : info.dli_fname;
    const std::string log = std::string(directory) + "/unloads.log";
    if (std::FILE* file = std::fopen(log.c_str(), "a")) {
        std::fprintf(file, "%s\n", name.c_str());
        std::fclose(file);
    }
}

}  // namespace
