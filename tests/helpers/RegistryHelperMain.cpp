// The "other process" of the registry tests.
//
//   q9_registry_helper read-loop <dir> <generations>
//       Reads HKLM in <dir> over and over until it has seen <generations>
//       different generations written by the test. Every read must find a
//       complete hive in which value A (a long string) and value B (a dword)
//       carry the same generation; generations never go back. Exit 0 when
//       every read was whole and consistent, 1 otherwise.
//
//   q9_registry_helper increment <dir> <value> <count>
//       Adds 1 to the dword <value> in HKLM\Software\Q9Test\Counters <count>
//       times, each as a read followed by a write. Exit 0 when every call
//       succeeded.
//
//   q9_registry_helper lock <lock file>
//       Writes the line "about to lock" to standard output, then takes the
//       lock (waiting as long as another holder keeps it) and exits 0 once it
//       has it.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "platform/FileLock.h"
#include "platform/HiveFile.h"
#include "platform/ProblemReport.h"
#include "platform/Registry.h"

namespace {

constexpr size_t kGenerationTextSize = 300000;
constexpr auto kTimeLimit = std::chrono::seconds(25);

int g_problems = 0;

void CountProblem(const char* /*line*/) { ++g_problems; }

// The same text the test writes: "gen=<n>;" then letters that depend on n,
// then the terminating 0 of a string value.
std::string GenerationText(uint32_t generation) {
    std::string text = "gen=" + std::to_string(generation) + ";";
    while (text.size() < kGenerationTextSize) {
        text.push_back(static_cast<char>('a' + (generation + text.size()) % 26));
    }
    text.push_back('\0');
    return text;
}

uint32_t GenerationOf(const std::string& text) {
    return static_cast<uint32_t>(std::strtoul(text.c_str() + 4, nullptr, 10));
}

uint32_t DwordOf(const std::string& data) {
    uint32_t value = 0;
    for (size_t i = data.size(); i-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(data[i]);
    }
    return value;
}

int Fail(const std::string& why) {
    std::fprintf(stderr, "q9_registry_helper: %s\n", why.c_str());
    return 1;
}

// One whole-file snapshot: A and B must belong to the same generation.
bool CheckSnapshot(platform::HiveFile& file, uint32_t* generation, std::string* why) {
    const platform::HiveFile::Snapshot snapshot = file.Read();
    if (snapshot.corrupt || snapshot.readError != 0) {
        *why = "the hive could not be read whole";
        return false;
    }
    const platform::RegistryHive::Key* key = snapshot.hive->FindKey({"Software", "Q9Test"});
    const platform::RegistryHive::Value* a = key ? key->FindValue("A") : nullptr;
    const platform::RegistryHive::Value* b = key ? key->FindValue("B") : nullptr;
    if (!a || !b || b->data.size() != 4) {
        *why = "values A and B are missing";
        return false;
    }
    *generation = DwordOf(b->data);
    if (a->data != GenerationText(*generation)) {
        *why = "A does not belong to generation " + std::to_string(*generation);
        return false;
    }
    return true;
}

// The same through the public calls: the string read must be whole.
bool CheckThroughApi(std::string* why) {
    platform::RegKey key = nullptr;
    if (platform::RegOpenKey(platform::LocalMachine(), "Software\\Q9Test", platform::kKeyRead,
                             &key) != platform::kSuccess) {
        *why = "RegOpenKey failed";
        return false;
    }
    std::vector<uint8_t> buffer(kGenerationTextSize + 64);
    auto size = static_cast<uint32_t>(buffer.size());
    const int32_t status = platform::RegQueryValue(key, "A", nullptr, buffer.data(), &size);
    platform::RegCloseKey(key);
    const std::string text(reinterpret_cast<const char*>(buffer.data()), size);
    if (status != platform::kSuccess || text != GenerationText(GenerationOf(text))) {
        *why = "RegQueryValue gave an incomplete value";
        return false;
    }
    return true;
}

int ReadLoop(int wanted) {
    platform::HiveFile file("HKLM.reg", "HKEY_LOCAL_MACHINE");
    const auto deadline = std::chrono::steady_clock::now() + kTimeLimit;
    uint32_t last = 0;
    int seen = 0;
    long reads = 0;
    while (seen < wanted) {
        uint32_t generation = 0;
        std::string why;
        if (!CheckSnapshot(file, &generation, &why) || !CheckThroughApi(&why)) return Fail(why);
        if (g_problems > 0) return Fail("a problem was reported");
        if (generation < last) return Fail("a generation went back");
        if (generation > last) ++seen;
        last = generation;
        ++reads;
        if (std::chrono::steady_clock::now() > deadline) return Fail("the writer was too slow");
    }
    std::printf("read-loop: %ld reads, %d generations, last %u\n", reads, seen, last);
    return 0;
}

int Increment(const char* name, int count) {
    platform::RegKey key = nullptr;
    if (platform::RegCreateKey(platform::LocalMachine(), "Software\\Q9Test\\Counters",
                               platform::kKeyAllAccess, &key) != platform::kSuccess) {
        return Fail("RegCreateKey failed");
    }
    int failures = 0;
    for (int i = 0; i < count; ++i) {
        uint32_t value = 0;
        uint32_t size = sizeof value;
        const int32_t status =
            platform::RegQueryValue(key, name, nullptr, reinterpret_cast<uint8_t*>(&value), &size);
        if (status == platform::kFileNotFound) value = 0;
        if (status != platform::kSuccess && status != platform::kFileNotFound) ++failures;
        ++value;
        if (platform::RegSetValue(key, name, platform::kRegDword,
                                  reinterpret_cast<const uint8_t*>(&value),
                                  sizeof value) != platform::kSuccess) {
            ++failures;
        }
    }
    platform::RegCloseKey(key);
    if (failures > 0 || g_problems > 0) return Fail("increment: calls failed");
    return 0;
}

// The line comes first, so that a test that holds the lock knows this
// process is at the lock and not still starting.
int Lock(const char* path) {
    std::printf("about to lock\n");
    std::fflush(stdout);
    return platform::FileLock(path).IsLocked() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return Fail(
            "usage: read-loop <dir> <count> | increment <dir> <value> <count> | lock <file>");
    }
    setenv("Q9_REGISTRY_DIR", argv[2], 1);
    platform::SetProblemSink(&CountProblem);
    const std::string mode = argv[1];
    if (mode == "read-loop" && argc == 4) return ReadLoop(std::atoi(argv[3]));
    if (mode == "increment" && argc == 5) return Increment(argv[3], std::atoi(argv[4]));
    if (mode == "lock" && argc == 3) return Lock(argv[2]);
    return Fail("unknown command " + mode);
}
