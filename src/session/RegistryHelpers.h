#pragma once

// Small helpers over the registry stand-in. Each opens what it needs, closes
// every key it opened, and answers a plain value instead of a status where
// the callers only need the value.

#include <cstdint>
#include <string>

#include "platform/Registry.h"

using platform::RegKey;

// The value's text (read in two steps: size, then data); def on any failure.
std::string RegReadString(RegKey root, const char* subkey, const char* value, const char* def);

// The value; def on any failure.
uint32_t RegReadDword(RegKey root, const char* subkey, const char* value, uint32_t def);

// Bytes read into buffer. When the value is larger than size, its size is
// returned and nothing is read. 0 on failure.
uint32_t RegReadBinary(RegKey root, const char* subkey, const char* value, void* buffer,
                       uint32_t size);

// Create the key and store the value; the platform's status. A null text or
// null data answers 87 without creating anything.
int32_t RegWriteString(RegKey root, const char* subkey, const char* value, const char* text);
int32_t RegWriteDword(RegKey root, const char* subkey, const char* value, uint32_t number);
int32_t RegWriteBinary(RegKey root, const char* subkey, const char* value, const void* data,
                       uint32_t size);

// 1 when the key can be opened, else 0.
int32_t RegKeyExists(RegKey root, const char* subkey);

// Deletes the value at index 0 again and again until none is left.
void RegDeleteAllValues(RegKey root, const char* subkey);

// The name of the subkey at index of an open key; empty text on failure, with
// the platform's status in *status when status is not null.
std::string RegEnumSubkey(RegKey key, uint32_t index, int32_t* status);

// The same, opening root\subkey itself.
std::string RegSubkeyName(RegKey root, const char* subkey, uint32_t index);

// Deletes all subkeys of path, depth first, always taking index 0.
void RegDeleteSubkeys(RegKey root, const std::string& path);

// Deletes parent\name with everything below it; the status of the last delete.
int32_t RegDeleteTree(RegKey root, const std::string& parent, const std::string& name);

// parent and child joined by a backslash, unless parent ends in one already.
std::string RegJoinPath(const std::string& parent, const std::string& child);
