// The writer and the reader of the crash trials (scripts/crash-trials.sh).
//
//   q9_crash_writer write store|hive <dir> <generation>
//       Loads the live store (store) or the HKLM hive (hive) of the folder
//       and writes the generation into every value of the trials' set
//       through the product's own write path. Exit 0 when every write
//       succeeded. The trials kill it at random moments.
//
//   q9_crash_writer check store|hive <dir> <old generation>
//       Reads the set back and prints one line:
//           <state> missing <n> damaged <n>
//       state is old, new (old + 1), part-way (hive only: the first values
//       new, the rest old), mixed (torn), empty or unreadable. Exit 0 when
//       the folder is sound: state old, new or part-way and nothing missing
//       or damaged.
//
// The folder is the installation directory (Q9_INSTALL_DIR) for the store,
// the registry directory (Q9_REGISTRY_DIR) for the hive.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "helpers/crash/HiveCrashSet.h"
#include "helpers/crash/StoreCrashSet.h"

namespace {

int Fail(const std::string& why) {
    std::fprintf(stderr, "q9_crash_writer: %s\n", why.c_str());
    return 2;
}

uint32_t Number(const char* text) { return static_cast<uint32_t>(std::strtoul(text, nullptr, 10)); }

int Write(bool store, uint32_t generation) {
    if (generation == 0) return Fail("generations start at 1");
    const bool written =
        store ? crash::WriteStoreGeneration(generation) : crash::WriteHiveGeneration(generation);
    return written ? 0 : Fail("a write failed");
}

int Check(bool store, uint32_t old) {
    const crash::CrashVerdict verdict =
        store ? crash::CheckStoreGeneration(old) : crash::CheckHiveGeneration(old);
    std::printf("%s\n", verdict.Line().c_str());
    return verdict.Sound() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) return Fail("usage: write|check store|hive <dir> <generation>");
    const std::string action = argv[1];
    const std::string kind = argv[2];
    if (kind != "store" && kind != "hive") return Fail("unknown set " + kind);
    const bool store = kind == "store";
    setenv(store ? "Q9_INSTALL_DIR" : "Q9_REGISTRY_DIR", argv[3], 1);
    if (action == "write") return Write(store, Number(argv[4]));
    if (action == "check") return Check(store, Number(argv[4]));
    return Fail("unknown action " + action);
}
