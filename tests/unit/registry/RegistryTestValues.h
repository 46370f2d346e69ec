#pragma once

// Small wrappers over the registry calls for readable tests.

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace registry_test {

// The first line of a hive file and the blank line after it.
inline const std::string kHiveHeader = "Windows Registry Editor Version 5.00\n\n";

// The names of the files in directory.
inline std::set<std::string> FilesIn(const std::string& directory) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

// REG_SZ data: the text and its terminating 0.
inline std::string StringData(std::string_view text) {
    std::string data(text);
    data.push_back('\0');
    return data;
}

inline std::string DwordData(uint32_t value) {
    std::string data;
    for (int i = 0; i < 4; ++i) data.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
    return data;
}

inline std::string AllByteValues() {
    std::string data;
    for (int i = 0; i < 256; ++i) data.push_back(static_cast<char>(i));
    return data;
}

inline int32_t SetBytes(platform::RegKey key, const char* name, uint32_t type,
                        const std::string& data) {
    return platform::RegSetValue(key, name, type, reinterpret_cast<const uint8_t*>(data.data()),
                                 static_cast<uint32_t>(data.size()));
}

struct Queried {
    int32_t status = -1;
    uint32_t type = 0;
    std::string data;
};

// Asks for the size first, then reads into a buffer of exactly that size.
inline Queried Query(platform::RegKey key, const char* name) {
    Queried result;
    uint32_t size = 0;
    result.status = platform::RegQueryValue(key, name, &result.type, nullptr, &size);
    if (result.status != platform::kSuccess) return result;
    std::vector<uint8_t> buffer(size + 1);
    result.status = platform::RegQueryValue(key, name, &result.type, buffer.data(), &size);
    result.data.assign(reinterpret_cast<const char*>(buffer.data()), size);
    return result;
}

inline std::vector<std::string> SubkeyNames(platform::RegKey key) {
    std::vector<std::string> names;
    char name[256];
    uint32_t size = sizeof name;
    for (uint32_t i = 0; platform::RegEnumKey(key, i, name, &size) == platform::kSuccess; ++i) {
        names.emplace_back(name, size);
        size = sizeof name;
    }
    return names;
}

inline std::vector<std::string> ValueNames(platform::RegKey key) {
    std::vector<std::string> names;
    char name[256];
    uint32_t size = sizeof name;
    for (uint32_t i = 0; platform::RegEnumValue(key, i, name, &size, nullptr, nullptr, nullptr) ==
                         platform::kSuccess;
         ++i) {
        names.emplace_back(name, size);
        size = sizeof name;
    }
    return names;
}

// Creates (or opens) a key and closes it again.
inline int32_t CreateKey(platform::RegKey root, const char* path) {
    platform::RegKey key = nullptr;
    const int32_t status = platform::RegCreateKey(root, path, platform::kKeyAllAccess, &key);
    platform::RegCloseKey(key);
    return status;
}

}  // namespace registry_test
