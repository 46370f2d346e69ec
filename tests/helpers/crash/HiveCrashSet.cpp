#include "helpers/crash/HiveCrashSet.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/HiveFile.h"
#include "platform/Registry.h"
#include "unit/siblings/Q9CfgE/Generations.h"

namespace crash {
namespace {

constexpr const char* kKeyPath = "Software\\Q9CrashTrials";
constexpr int kValues = 24;

std::string ValueName(int index) {
    char name[16];
    std::snprintf(name, sizeof name, "Value%02d", index);
    return name;
}

// A DWORD, or a string with its terminating 0.
std::string DataOf(int index, uint32_t generation) {
    if (index % 2 == 0) {
        std::string word;
        for (int shift = 0; shift < 32; shift += 8) {
            word.push_back(static_cast<char>(generation >> shift));
        }
        return word;
    }
    return store_test::GenerationText(generation) + '\0';
}

bool SetValue(platform::RegKey key, int index, uint32_t generation) {
    const std::string data = DataOf(index, generation);
    const uint32_t type = index % 2 == 0 ? platform::kRegDword : platform::kRegSz;
    return platform::RegSetValue(key, ValueName(index).c_str(), type,
                                 reinterpret_cast<const uint8_t*>(data.data()),
                                 static_cast<uint32_t>(data.size())) == platform::kSuccess;
}

uint32_t WordOf(const std::string& data) {
    uint32_t word = 0;
    for (size_t i = data.size(); i-- > 0;) word = word << 8 | static_cast<unsigned char>(data[i]);
    return word;
}

// The generation the data carries when it is exactly what the writer writes
// for it.
Reading ReadingOf(int index, uint32_t type, const std::string& data) {
    uint32_t generation = 0;
    if (index % 2 == 0 && type == platform::kRegDword && data.size() == 4) {
        generation = WordOf(data);
    } else if (index % 2 == 1 && type == platform::kRegSz && data.rfind("gen=", 0) == 0) {
        generation = static_cast<uint32_t>(std::strtoul(data.c_str() + 4, nullptr, 10));
    }
    if (generation == 0 || DataOf(index, generation) != data) return Reading::Damaged();
    return Reading::Carried(generation);
}

Reading ReadValue(platform::RegKey key, int index) {
    uint32_t type = 0;
    uint32_t size = 0;
    const std::string name = ValueName(index);
    if (platform::RegQueryValue(key, name.c_str(), &type, nullptr, &size) != platform::kSuccess) {
        return Reading::Missing();
    }
    std::string data(size, '\0');
    if (platform::RegQueryValue(key, name.c_str(), &type, reinterpret_cast<uint8_t*>(data.data()),
                                &size) != platform::kSuccess) {
        return Reading::Damaged();
    }
    data.resize(size);
    return ReadingOf(index, type, data);
}

// A hive that cannot be read or parsed reads as empty through the calls;
// the file itself tells.
bool Readable() {
    platform::HiveFile file("HKLM.reg", "HKEY_LOCAL_MACHINE");
    const platform::HiveFile::Snapshot snapshot = file.Read();
    return !snapshot.corrupt && snapshot.readError == 0;
}

}  // namespace

bool WriteHiveGeneration(uint32_t generation) {
    platform::RegKey key = nullptr;
    if (platform::RegCreateKey(platform::LocalMachine(), kKeyPath, platform::kKeyAllAccess, &key) !=
        platform::kSuccess) {
        return false;
    }
    bool written = true;
    for (int index = 0; index < kValues && written; ++index) {
        written = SetValue(key, index, generation);
    }
    platform::RegCloseKey(key);
    return written;
}

CrashVerdict CheckHiveGeneration(uint32_t old) {
    if (!Readable()) return CrashVerdict::Unreadable();
    platform::RegKey key = nullptr;
    const bool opened = platform::RegOpenKey(platform::LocalMachine(), kKeyPath, platform::kKeyRead,
                                             &key) == platform::kSuccess;
    std::vector<Reading> readings;
    for (int index = 0; index < kValues; ++index) {
        readings.push_back(opened ? ReadValue(key, index) : Reading::Missing());
    }
    platform::RegCloseKey(key);
    return CrashVerdict::Judge(readings, old, WriteUnit::kEachValue);
}

}  // namespace crash
