#include "platform/Registry.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/HiveFile.h"
#include "platform/ModuleDirectory.h"
#include "platform/RegistryHive.h"

namespace platform {

// A handle names a key by its path, not by a pointer into a tree: every call
// looks the path up again in the hive as the file holds it now, so changes by
// other processes are seen and a deleted key is noticed.
struct RegKeyHandle {
    HiveFile* hive = nullptr;
    std::string path;  // names as stored, separated by '\'; empty for the root
    bool predefined = false;
};

namespace {

using Key = RegistryHive::Key;
using KeyPath = RegistryHive::KeyPath;

// Destroyed with the library, so that a library that is loaded and unloaded
// again leaves nothing behind.
HiveFile& LocalMachineHive() {
    static HiveFile hive("HKLM.reg", "HKEY_LOCAL_MACHINE");
    return hive;
}

HiveFile& CurrentUserHive() {
    static HiveFile hive("HKCU.reg", "HKEY_CURRENT_USER");
    return hive;
}

KeyPath PathOf(RegKey key) { return RegistryHive::SplitPath(key->path); }

KeyPath PathBelow(RegKey key, const char* subkey) {
    KeyPath path = PathOf(key);
    if (subkey) {
        const KeyPath more = RegistryHive::SplitPath(subkey);
        path.insert(path.end(), more.begin(), more.end());
    }
    return path;
}

std::string_view ValueName(const char* name) { return name ? name : ""; }

// The hive file has one line per value and per key section, so names must
// not contain line ends.
bool IsStorableName(std::string_view name) { return name.find_first_of("\r\n") == name.npos; }

bool IsStorablePath(const KeyPath& path) {
    for (const std::string& name : path) {
        if (!IsStorableName(name)) return false;
    }
    return true;
}

RegKey NewHandle(HiveFile* hive, const KeyPath& canonical) {
    return new RegKeyHandle{hive, RegistryHive::JoinPath(canonical), false};
}

// With buffer null only *size is filled; a buffer too small gets nothing and
// *size becomes the size needed.
int32_t CopyData(const std::string& data, uint8_t* buffer, uint32_t* size) {
    const auto needed = static_cast<uint32_t>(data.size());
    if (buffer) {
        if (*size < needed) {
            *size = needed;
            return kMoreData;
        }
        std::memcpy(buffer, data.data(), data.size());
    }
    if (size) *size = needed;
    return kSuccess;
}

// *size is the buffer's size on entry, the name's length on success, and
// unchanged when the name and its 0 do not fit.
int32_t CopyName(const std::string& name, char* buffer, uint32_t* size) {
    if (name.size() >= *size) return kMoreData;
    std::memcpy(buffer, name.data(), name.size());
    buffer[name.size()] = '\0';
    *size = static_cast<uint32_t>(name.size());
    return kSuccess;
}

int32_t CheckValueDeletion(const RegistryHive& hive, const KeyPath& path, std::string_view name) {
    const Key* key = hive.FindKey(path);
    if (!key) return kKeyDeleted;
    return key->FindValue(name) ? kSuccess : kFileNotFound;
}

int32_t CheckKeyDeletion(const RegistryHive& hive, const KeyPath& basePath, const KeyPath& path) {
    if (!hive.FindKey(basePath)) return kKeyDeleted;
    const Key* key = hive.FindKey(path);
    if (!key) return kFileNotFound;
    return key->subkeys.empty() ? kSuccess : kAccessDenied;
}

}  // namespace

RegKey LocalMachine() {
    static RegKeyHandle handle{&LocalMachineHive(), "", true};
    return &handle;
}

RegKey CurrentUser() {
    static RegKeyHandle handle{&CurrentUserHive(), "", true};
    return &handle;
}

int32_t RegOpenKey(RegKey root, const char* subkey, uint32_t /*access*/, RegKey* result) {
    if (!root) return kInvalidHandle;
    if (!result) return kInvalidParameter;
    *result = nullptr;
    const HiveFile::Snapshot snapshot = root->hive->Read();
    if (!snapshot.hive->FindKey(PathOf(root))) return kKeyDeleted;
    KeyPath canonical;
    if (!snapshot.hive->FindKey(PathBelow(root, subkey), &canonical)) return kFileNotFound;
    *result = NewHandle(root->hive, canonical);
    return kSuccess;
}

int32_t RegCreateKey(RegKey root, const char* subkey, uint32_t /*access*/, RegKey* result) {
    if (!root) return kInvalidHandle;
    if (!result) return kInvalidParameter;
    *result = nullptr;
    const KeyPath path = PathBelow(root, subkey);
    if (!IsStorablePath(path)) return kInvalidParameter;
    const HiveFile::Snapshot snapshot = root->hive->Read();
    if (snapshot.corrupt) return kRegistryCorrupt;
    KeyPath canonical;
    // An existing key is opened without touching the file.
    if (snapshot.hive->FindKey(path, &canonical)) {
        *result = NewHandle(root->hive, canonical);
        return kSuccess;
    }
    const KeyPath basePath = PathOf(root);
    const int32_t status = root->hive->Modify([&](RegistryHive& hive, bool* changed) {
        if (!hive.FindKey(basePath)) return int32_t{kKeyDeleted};
        hive.CreateKey(path, changed, &canonical);
        return int32_t{kSuccess};
    });
    if (status == kSuccess) *result = NewHandle(root->hive, canonical);
    return status;
}

int32_t RegCloseKey(RegKey key) {
    if (key && !key->predefined) delete key;
    return kSuccess;
}

int32_t RegQueryValue(RegKey key, const char* name, uint32_t* type, uint8_t* data, uint32_t* size) {
    if (!key) return kInvalidHandle;
    if (data && !size) return kInvalidParameter;
    const HiveFile::Snapshot snapshot = key->hive->Read();
    const Key* found = snapshot.hive->FindKey(PathOf(key));
    if (!found) return kKeyDeleted;
    const RegistryHive::Value* value = found->FindValue(ValueName(name));
    if (!value) return kFileNotFound;
    if (type) *type = value->type;
    return CopyData(value->data, data, size);
}

int32_t RegSetValue(RegKey key, const char* name, uint32_t type, const uint8_t* data,
                    uint32_t size) {
    if (!key) return kInvalidHandle;
    if (!data && size > 0) return kInvalidParameter;
    const std::string_view valueName = ValueName(name);
    if (!IsStorableName(valueName)) return kInvalidParameter;
    const std::string bytes = data ? std::string(reinterpret_cast<const char*>(data), size) : "";
    const KeyPath path = PathOf(key);
    return key->hive->Modify([&](RegistryHive& hive, bool* changed) {
        Key* found = hive.FindKey(path);
        if (!found) return int32_t{kKeyDeleted};
        found->SetValue(valueName, type, bytes);
        *changed = true;
        return int32_t{kSuccess};
    });
}

int32_t RegEnumKey(RegKey key, uint32_t index, char* name, uint32_t* nameSize) {
    if (!key) return kInvalidHandle;
    if (!name || !nameSize) return kInvalidParameter;
    const HiveFile::Snapshot snapshot = key->hive->Read();
    const Key* found = snapshot.hive->FindKey(PathOf(key));
    if (!found) return kKeyDeleted;
    if (index >= found->subkeys.size()) return kNoMoreItems;
    return CopyName(found->subkeys[index].name, name, nameSize);
}

int32_t RegEnumValue(RegKey key, uint32_t index, char* name, uint32_t* nameSize, uint32_t* type,
                     uint8_t* data, uint32_t* size) {
    if (!key) return kInvalidHandle;
    if (!name || !nameSize || (data && !size)) return kInvalidParameter;
    const HiveFile::Snapshot snapshot = key->hive->Read();
    const Key* found = snapshot.hive->FindKey(PathOf(key));
    if (!found) return kKeyDeleted;
    if (index >= found->values.size()) return kNoMoreItems;
    const RegistryHive::Value& value = found->values[index];
    const int32_t status = CopyName(value.name, name, nameSize);
    if (status != kSuccess) return status;
    if (type) *type = value.type;
    return CopyData(value.data, data, size);
}

int32_t RegDeleteValue(RegKey key, const char* name) {
    if (!key) return kInvalidHandle;
    const std::string_view valueName = ValueName(name);
    const KeyPath path = PathOf(key);
    // Checked first on the cached state, so that a value that is not there
    // costs no lock and no directory.
    const HiveFile::Snapshot snapshot = key->hive->Read();
    if (snapshot.corrupt) return kRegistryCorrupt;
    const int32_t status = CheckValueDeletion(*snapshot.hive, path, valueName);
    if (status != kSuccess) return status;
    return key->hive->Modify([&](RegistryHive& hive, bool* changed) {
        const int32_t check = CheckValueDeletion(hive, path, valueName);
        if (check != kSuccess) return check;
        hive.FindKey(path)->DeleteValue(valueName);
        *changed = true;
        return int32_t{kSuccess};
    });
}

int32_t RegDeleteKey(RegKey key, const char* subkey) {
    if (!key) return kInvalidHandle;
    const KeyPath basePath = PathOf(key);
    const KeyPath path = PathBelow(key, subkey);
    if (path.empty()) return kAccessDenied;  // a root cannot be deleted
    const HiveFile::Snapshot snapshot = key->hive->Read();
    if (snapshot.corrupt) return kRegistryCorrupt;
    const int32_t status = CheckKeyDeletion(*snapshot.hive, basePath, path);
    if (status != kSuccess) return status;
    return key->hive->Modify([&](RegistryHive& hive, bool* changed) {
        const int32_t check = CheckKeyDeletion(hive, basePath, path);
        if (check != kSuccess) return check;
        *changed = hive.RemoveKey(path);
        return int32_t{kSuccess};
    });
}

std::string RegistryDirectory() {
    const char* configured = std::getenv("Q9_REGISTRY_DIR");
    std::string directory =
        (configured && *configured) ? std::string(configured) : ModuleDirectory() + "registry/";
    if (directory.back() != '/') directory.push_back('/');
    return directory;
}

}  // namespace platform
