#pragma once

// The registry stand-in: two hives, HKLM.reg and HKCU.reg, kept as text
// files in the ".reg" format in the registry directory (Q9_REGISTRY_DIR, or
// "registry/" beside the library). The calls below keep the shape of the
// platform registry API the rest of the program is written against: open
// handles, typed values, enumeration by index, and the platform's numeric
// status codes, so that loops such as "delete index 0 until 259" work as
// designed.
//
// Key and value names compare without regard to case and keep the case they
// were created with. Every change replaces the whole hive file atomically
// under an exclusive lock, after re-reading it, so that several processes can
// write and no reader ever sees a torn file. A hive that cannot be parsed is
// reported, never overwritten: reads see it as empty and writes fail with
// kRegistryCorrupt.

#include <cstdint>
#include <string>

namespace platform {

// Status codes, numerically those of the original platform.
enum RegStatus : int32_t {
    kSuccess = 0,
    kFileNotFound = 2,
    kAccessDenied = 5,
    kInvalidHandle = 6,
    kWriteFault = 29,
    kDiskFull = 112,
    kInvalidParameter = 87,
    kMoreData = 234,
    kNoMoreItems = 259,
    kRegistryCorrupt = 1015,
    kKeyDeleted = 1018,
};

// Value types, numerically those of the original platform.
enum RegType : uint32_t {
    kRegNone = 0,
    kRegSz = 1,
    kRegBinary = 3,
    kRegDword = 4,
};

// Access masks the callers pass; the stand-in accepts every mask (file
// permissions decide whether a write succeeds).
constexpr uint32_t kKeyRead = 0x20019;
constexpr uint32_t kKeyWrite = 0x20006;
constexpr uint32_t kKeyAllAccess = 0xF003F;

struct RegKeyHandle;
using RegKey = RegKeyHandle*;

// The two predefined roots. They never need closing.
RegKey LocalMachine();
RegKey CurrentUser();

// Opens an existing key below root (or below another open key). An empty or
// null subkey opens root itself again. kFileNotFound when it does not exist.
// In subkey, a backslash separates names; empty names (from leading,
// trailing or doubled backslashes) are ignored.
int32_t RegOpenKey(RegKey root, const char* subkey, uint32_t access, RegKey* result);

// Opens a key, creating it and any missing parents first.
int32_t RegCreateKey(RegKey root, const char* subkey, uint32_t access, RegKey* result);

// Closes a key opened by RegOpenKey or RegCreateKey. Predefined roots and null
// are accepted and ignored.
int32_t RegCloseKey(RegKey key);

// Reads a value. With data null, only *type and *size are filled. With a
// buffer smaller than the value, *size becomes the value's size and the
// result is kMoreData. A null or empty name is the key's default value.
int32_t RegQueryValue(RegKey key, const char* name, uint32_t* type, uint8_t* data, uint32_t* size);

// Writes a value of the given type (kRegSz data includes its terminating 0).
// The bytes are kept exactly as given. Names with a line end are refused
// with kInvalidParameter: the hive file could not hold them.
int32_t RegSetValue(RegKey key, const char* name, uint32_t type, const uint8_t* data,
                    uint32_t size);

// The name of the subkey at index (subkeys ordered by name, ignoring case).
// kNoMoreItems past the end. *nameSize is the buffer's size on entry and the
// name's length (without its 0) on success; kMoreData if it does not fit,
// with *nameSize unchanged.
int32_t RegEnumKey(RegKey key, uint32_t index, char* name, uint32_t* nameSize);

// The value at index, in the order the values were created. kNoMoreItems past
// the end. name and nameSize work as in RegEnumKey; type, data and size as in
// RegQueryValue, and any of them may be null (data needs size).
int32_t RegEnumValue(RegKey key, uint32_t index, char* name, uint32_t* nameSize, uint32_t* type,
                     uint8_t* data, uint32_t* size);

// Deletes one value; kFileNotFound when there is none of that name.
int32_t RegDeleteValue(RegKey key, const char* name);

// Deletes a key that has no subkeys; kAccessDenied when it has some, as on
// the original platform, and for a root. An empty or null subkey deletes the
// key itself.
int32_t RegDeleteKey(RegKey key, const char* subkey);

// The directory holding the hives: Q9_REGISTRY_DIR when set and not empty,
// otherwise "registry/" in the library's directory; always ends in '/'. Read
// at every call, so that tests can point it elsewhere.
std::string RegistryDirectory();

}  // namespace platform
