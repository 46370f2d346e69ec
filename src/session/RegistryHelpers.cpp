#include "session/RegistryHelpers.h"

#include <vector>

using namespace platform;

namespace {

constexpr uint32_t kReadAccess = 0x20019;
constexpr uint32_t kWriteAccess = 0x20006;
constexpr uint32_t kDeleteAccess = 0x2001F;
constexpr uint32_t kNameCapacity = 256;

// Opens root\subkey for the life of the object.
class OpenedKey {
public:
    OpenedKey(RegKey root, const char* subkey, uint32_t access, bool create) {
        m_status = create ? RegCreateKey(root, subkey, access, &m_key)
                          : RegOpenKey(root, subkey, access, &m_key);
        if (m_status != kSuccess) m_key = nullptr;
    }
    ~OpenedKey() { RegCloseKey(m_key); }
    OpenedKey(const OpenedKey&) = delete;
    OpenedKey& operator=(const OpenedKey&) = delete;

    RegKey get() const { return m_key; }
    int32_t status() const { return m_status; }
    explicit operator bool() const { return m_key != nullptr; }

private:
    RegKey m_key = nullptr;
    int32_t m_status = kSuccess;
};

int32_t WriteValue(RegKey root, const char* subkey, const char* value, uint32_t type,
                   const void* data, uint32_t size) {
    OpenedKey key(root, subkey, kWriteAccess, true);
    if (!key) return key.status();
    return RegSetValue(key.get(), value, type, static_cast<const uint8_t*>(data), size);
}

}  // namespace

std::string RegReadString(RegKey root, const char* subkey, const char* value, const char* def) {
    const std::string fallback = def ? def : "";
    OpenedKey key(root, subkey, kReadAccess, false);
    if (!key) return fallback;
    uint32_t type = 0;
    uint32_t size = 0;
    if (RegQueryValue(key.get(), value, &type, nullptr, &size) != kSuccess || type != kRegSz) {
        return fallback;
    }
    std::vector<uint8_t> data(size + 1u, 0);
    if (RegQueryValue(key.get(), value, &type, data.data(), &size) != kSuccess) return fallback;
    // The text ends at its first 0, which a well-formed value has at its end.
    return std::string(reinterpret_cast<const char*>(data.data()));
}

uint32_t RegReadDword(RegKey root, const char* subkey, const char* value, uint32_t def) {
    OpenedKey key(root, subkey, kReadAccess, false);
    if (!key) return def;
    uint32_t type = 0;
    uint32_t number = 0;
    uint32_t size = sizeof number;
    if (RegQueryValue(key.get(), value, &type, reinterpret_cast<uint8_t*>(&number), &size) !=
            kSuccess ||
        type != kRegDword || size != sizeof number) {
        return def;
    }
    return number;
}

uint32_t RegReadBinary(RegKey root, const char* subkey, const char* value, void* buffer,
                       uint32_t size) {
    OpenedKey key(root, subkey, kReadAccess, false);
    if (!key) return 0;
    uint32_t needed = 0;
    if (RegQueryValue(key.get(), value, nullptr, nullptr, &needed) != kSuccess) return 0;
    if (needed > size) return needed;
    uint32_t read = size;
    if (RegQueryValue(key.get(), value, nullptr, static_cast<uint8_t*>(buffer), &read) != kSuccess) {
        return 0;
    }
    return read;
}

int32_t RegWriteString(RegKey root, const char* subkey, const char* value, const char* text) {
    if (!text) return kInvalidParameter;
    const auto size = static_cast<uint32_t>(std::char_traits<char>::length(text) + 1);
    return WriteValue(root, subkey, value, kRegSz, text, size);
}

int32_t RegWriteDword(RegKey root, const char* subkey, const char* value, uint32_t number) {
    return WriteValue(root, subkey, value, kRegDword, &number, sizeof number);
}

int32_t RegWriteBinary(RegKey root, const char* subkey, const char* value, const void* data,
                       uint32_t size) {
    if (!data) return kInvalidParameter;
    return WriteValue(root, subkey, value, kRegBinary, data, size);
}

int32_t RegKeyExists(RegKey root, const char* subkey) {
    OpenedKey key(root, subkey, kReadAccess, false);
    return key ? 1 : 0;
}

void RegDeleteAllValues(RegKey root, const char* subkey) {
    OpenedKey key(root, subkey, kDeleteAccess, false);
    if (!key) return;
    for (;;) {
        char name[kNameCapacity + 1];
        uint32_t nameSize = sizeof name;
        if (RegEnumValue(key.get(), 0, name, &nameSize, nullptr, nullptr, nullptr) != kSuccess) {
            return;  // 259 when the key is empty; any other answer ends it too
        }
        if (RegDeleteValue(key.get(), name) != kSuccess) return;
    }
}

std::string RegEnumSubkey(RegKey key, uint32_t index, int32_t* status) {
    char name[kNameCapacity + 1];
    uint32_t nameSize = sizeof name;
    const int32_t result = RegEnumKey(key, index, name, &nameSize);
    if (status) *status = result;
    return result == kSuccess ? std::string(name, nameSize) : std::string();
}

std::string RegSubkeyName(RegKey root, const char* subkey, uint32_t index) {
    OpenedKey key(root, subkey, kReadAccess, false);
    if (!key) return {};
    return RegEnumSubkey(key.get(), index, nullptr);
}

std::string RegJoinPath(const std::string& parent, const std::string& child) {
    if (parent.empty() || parent.back() == '\\') return parent + child;
    return parent + "\\" + child;
}

void RegDeleteSubkeys(RegKey root, const std::string& path) {
    OpenedKey key(root, path.c_str(), kDeleteAccess, false);
    if (!key) return;
    for (;;) {
        const std::string child = RegEnumSubkey(key.get(), 0, nullptr);
        if (child.empty()) return;
        RegDeleteSubkeys(root, RegJoinPath(path, child));
        // A child that cannot go would come back at index 0 for ever.
        if (RegDeleteKey(key.get(), child.c_str()) != kSuccess) return;
    }
}

int32_t RegDeleteTree(RegKey root, const std::string& parent, const std::string& name) {
    RegDeleteSubkeys(root, RegJoinPath(parent, name));
    OpenedKey key(root, parent.c_str(), kDeleteAccess, false);
    if (!key) return key.status();
    return RegDeleteKey(key.get(), name.c_str());
}
