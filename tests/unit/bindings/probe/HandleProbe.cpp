// A stand-in for the sibling libraries that hand out objects: the binding
// tests copy it into an installation as libQ9P3ATHL.so or libOrvDMZ.so.
//
// It exports only their create and free entry points, and writes every call,
// and its own unloading, as one line into "handles.log" in the installation
// directory (Q9_INSTALL_DIR):
//
//   Q9P3ATHL_Create 1
//   Q9P3ATHL_Free 1
//   unload libQ9P3ATHL.so
//
// Objects are numbered from 1 in the order they were made; a pointer that is
// none of them is written as 0. Every free call is written, so a test sees an
// object freed twice, or one freed by a library that did not make it.

#include <dlfcn.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#define Q9_PROBE_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr size_t kObjectCount = 64;

// The objects handed out: slot n - 1 holds object n.
int32_t g_objects[kObjectCount];
size_t g_made = 0;

void Record(const std::string& line) {
    const char* directory = std::getenv("Q9_INSTALL_DIR");
    if (!directory || !*directory) return;
    const std::string log = std::string(directory) + "/handles.log";
    if (std::FILE* file = std::fopen(log.c_str(), "a")) {
        std::fprintf(file, "%s\n", line.c_str());
        std::fclose(file);
    }
}

void* Make(const char* entryPoint) {
    if (g_made == kObjectCount) return nullptr;
    ++g_made;
    g_objects[g_made - 1] = static_cast<int32_t>(g_made);
    Record(std::string(entryPoint) + ' ' + std::to_string(g_made));
    return &g_objects[g_made - 1];
}

// The number of object, or 0 when it is none of ours.
size_t NumberOf(const void* object) {
    for (size_t i = 0; i < g_made; ++i) {
        if (object == &g_objects[i]) return i + 1;
    }
    return 0;
}

void Free(const char* entryPoint, const void* object) {
    Record(std::string(entryPoint) + ' ' + std::to_string(NumberOf(object)));
}

__attribute__((destructor)) void RecordUnload() {
    Dl_info info{};
    if (dladdr(reinterpret_cast<void*>(&RecordUnload), &info) == 0 || !info.dli_fname) return;
    const char* slash = std::strrchr(info.dli_fname, '/');
    Record(std::string("unload ") + (slash ? slash + 1 : info.dli_fname));
}

}  // namespace

Q9_PROBE_EXPORT void* Q9P3ATHL_Create() { return Make("Q9P3ATHL_Create"); }
Q9_PROBE_EXPORT void Q9P3ATHL_Free(void* accounts) { Free("Q9P3ATHL_Free", accounts); }
Q9_PROBE_EXPORT void* OrvDMZ_Create() { return Make("OrvDMZ_Create"); }
Q9_PROBE_EXPORT void OrvDMZ_Destroy(void* zone) { Free("OrvDMZ_Destroy", zone); }
