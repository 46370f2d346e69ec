// A hive file as the registry calls read it: the bytes are HKCU.reg of a
// registry folder of the process's own. Every key and value is walked with
// the enumeration and query calls, with buffers too small as well as large
// enough. A file that cannot be parsed reads as empty and refuses changes
// without being touched; one that can be parsed shows exactly the keys and
// values its text holds.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "platform/AtomicFile.h"
#include "platform/Registry.h"
#include "platform/RegistryHive.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

namespace {

using platform::RegistryHive;

constexpr uint32_t kNameCapacity = 256;
constexpr int kMaxDepth = 64;

// The calls take names as C strings: a name that holds a 0 byte, or is too
// long for the caller's buffer, is listed but cannot be asked for by name.
bool IsAddressable(const std::string& name) {
    return name.size() < kNameCapacity && name.find('\0') == std::string::npos;
}

bool IsAddressable(int32_t status, const char* name, uint32_t nameSize) {
    return status == platform::kSuccess && std::strlen(name) == nameSize;
}

// Reads every value of key by index, first asking for the size only, then
// into a buffer one byte short, then into one that fits. Returns the count.
size_t WalkValues(platform::RegKey key) {
    size_t count = 0;
    for (uint32_t index = 0;; ++index) {
        char name[kNameCapacity];
        uint32_t nameSize = sizeof name;
        uint32_t type = 0;
        uint32_t size = 0;
        const int32_t status =
            platform::RegEnumValue(key, index, name, &nameSize, &type, nullptr, &size);
        if (status == platform::kNoMoreItems) return count;
        ++count;
        if (!IsAddressable(status, name, nameSize)) continue;
        std::vector<uint8_t> bytes(size + 1);
        uint32_t shortSize = size == 0 ? 0 : size - 1;
        if (size > 0) {
            fuzz::Check(platform::RegQueryValue(key, name, &type, bytes.data(), &shortSize) ==
                            platform::kMoreData,
                        "a buffer one byte short is refused");
            fuzz::Check(shortSize == size, "a refused buffer learns the size needed");
        }
        uint32_t fullSize = size;
        fuzz::Check(platform::RegQueryValue(key, name, &type, bytes.data(), &fullSize) ==
                            platform::kSuccess &&
                        fullSize == size,
                    "an enumerated value can be queried by its name");
    }
}

// Walks the keys below key depth first; returns the number of keys and
// values seen.
size_t WalkKeys(platform::RegKey key, int depth) {
    size_t count = WalkValues(key);
    for (uint32_t index = 0;; ++index) {
        char name[kNameCapacity];
        uint32_t nameSize = sizeof name;
        const int32_t status = platform::RegEnumKey(key, index, name, &nameSize);
        if (status == platform::kNoMoreItems) return count;
        ++count;
        if (!IsAddressable(status, name, nameSize) || depth == kMaxDepth) continue;
        platform::RegKey subkey = nullptr;
        fuzz::Check(
            platform::RegOpenKey(key, name, platform::kKeyRead, &subkey) == platform::kSuccess,
            "an enumerated key can be opened by its name");
        count += WalkKeys(subkey, depth + 1);
        platform::RegCloseKey(subkey);
    }
}

size_t CountEntries(const RegistryHive::Key& key, int depth) {
    size_t count = key.values.size() + key.subkeys.size();
    if (depth == kMaxDepth) return count;
    for (const RegistryHive::Key& subkey : key.subkeys) {
        if (IsAddressable(subkey.name)) count += CountEntries(subkey, depth + 1);
    }
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    setenv("Q9_REGISTRY_DIR", fuzz::ScratchDirectory::Path().c_str(), 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text = fuzz::AsText(data, size);
    const std::string path = fuzz::ScratchDirectory::Write("HKCU.reg", text);
    RegistryHive hive("HKEY_CURRENT_USER");
    RegistryHive::ParseError error;
    const bool parsed = hive.Parse(text, &error);

    const size_t seen = WalkKeys(platform::CurrentUser(), 0);
    fuzz::Check(seen == CountEntries(hive.Root(), 0), "the calls show what the text holds");

    if (!parsed) {
        platform::RegKey created = nullptr;
        fuzz::Check(platform::RegCreateKey(platform::CurrentUser(), "New", platform::kKeyWrite,
                                           &created) == platform::kRegistryCorrupt,
                    "a file that cannot be parsed refuses changes");
        std::string after;
        fuzz::Check(platform::ReadWholeFile(path, &after) == 0 && after == text,
                    "a file that cannot be parsed is left as it is");
    }
    return 0;
}
