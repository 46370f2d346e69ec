#include "helpers/crash/StoreCrashSet.h"

#include <sys/stat.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "Q9CfgE.h"
#include "unit/siblings/Q9CfgE/Generations.h"

namespace crash {
namespace {

constexpr const char* kLiveFileName = "Q9Cfg.dat";

Reading WordReading(uint32_t section, uint32_t key) {
    // The installation has no factory defaults: an absent word reads 0,
    // which no generation of the trials uses.
    const uint32_t word = Q9CfgE_GetDWEx(section, key);
    return word == 0 ? Reading::Missing() : Reading::Carried(word);
}

Reading TextReading(uint32_t section, uint32_t key) {
    const char* text = Q9CfgE_GetStrEx(section, key);
    if (!text) return Reading::Missing();
    const std::string value = text;
    if (value.rfind("gen=", 0) != 0) return Reading::Damaged();
    const auto generation = static_cast<uint32_t>(std::strtoul(value.c_str() + 4, nullptr, 10));
    if (store_test::GenerationText(generation) != value) return Reading::Damaged();
    return Reading::Carried(generation);
}

std::vector<Reading> ReadSet() {
    std::vector<Reading> readings;
    for (const uint32_t section : store_test::kGenerationSections) {
        for (uint32_t key = 0; key < store_test::kGenerationKeys; ++key) {
            readings.push_back(key % 2 == 0 ? WordReading(section, key)
                                            : TextReading(section, key));
        }
    }
    return readings;
}

bool AllMissing(const std::vector<Reading>& readings) {
    for (const Reading& reading : readings) {
        if (reading.kind != Reading::Kind::kMissing) return false;
    }
    return true;
}

// The store reads a file it cannot parse as empty (and reports it); a file
// with content of which not one value reads is such a file.
bool HasContent() {
    const char* directory = std::getenv("Q9_INSTALL_DIR");
    const std::string path = std::string(directory ? directory : ".") + "/" + kLiveFileName;
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && info.st_size > 0;
}

}  // namespace

bool WriteStoreGeneration(uint32_t generation) {
    if (Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT) != 1) return false;
    store_test::WriteGeneration(generation);
    Q9CfgE_UnlockEx();
    return Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1) == 1;
}

CrashVerdict CheckStoreGeneration(uint32_t old) {
    const std::vector<Reading> readings = ReadSet();
    if (AllMissing(readings) && HasContent()) return CrashVerdict::Unreadable();
    return CrashVerdict::Judge(readings, old, WriteUnit::kWholeSet);
}

}  // namespace crash
