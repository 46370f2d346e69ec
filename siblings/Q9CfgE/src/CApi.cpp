// The exported C functions: each catches everything at the border and
// answers 0 or null instead, since no exception may reach a C caller.
#include <sodium.h>

#include <cstring>
#include <memory>

#include "Authentication.h"
#include "ConfigStore.h"
#include "Q9CfgE.h"
#include "SeparateFile.h"

struct Q9CfgEFile final : cfge::SeparateFile {
    using SeparateFile::SeparateFile;
};

namespace {

cfge::ConfigStore& Store() { return cfge::ConfigStore::Instance(); }

template <typename Result, typename Call>
Result Guarded(Result failure, Call call) noexcept {
    try {
        return call();
    } catch (...) {
        return failure;
    }
}

// Hands the deciphered text to the caller and wipes our copy.
int32_t CopySealed(std::string& plain, char* buffer, uint32_t* length) {
    const auto needed = static_cast<uint32_t>(plain.size() + 1);
    const bool fits = !buffer || *length >= needed;
    if (buffer && fits) std::memcpy(buffer, plain.c_str(), needed);
    *length = needed;
    sodium_memzero(plain.data(), plain.size());
    return fits ? 1 : 0;
}

}  // namespace

extern "C" {

uint32_t Q9CfgE_GetDWEx(uint32_t section, uint32_t key) {
    return Guarded(0u, [&] { return Store().GetWord(section, key); });
}

int32_t Q9CfgE_SetDWEx(uint32_t section, uint32_t key, uint32_t value) {
    return Guarded(0, [&] { return Store().SetWord(section, key, value) ? 1 : 0; });
}

const char* Q9CfgE_GetStrEx(uint32_t section, uint32_t key) {
    return Guarded<const char*>(nullptr, [&] { return Store().GetText(section, key); });
}

int32_t Q9CfgE_SetStrEx(uint32_t section, uint32_t key, const char* text) {
    return Guarded(0, [&] { return Store().SetText(section, key, text) ? 1 : 0; });
}

int32_t Q9CfgE_GetEncStrEx(uint32_t section, uint32_t key, char* buffer, uint32_t* length) {
    return Guarded(0, [&] {
        if (!length) return 0;
        bool unopenable = false;
        std::optional<std::string> plain = Store().GetSealed(section, key, &unopenable);
        if (!plain) {
            *length = 0;
            return 0;
        }
        return CopySealed(*plain, buffer, length);
    });
}

int32_t Q9CfgE_SetEncStrEx(uint32_t section, uint32_t key, const char* text) {
    return Guarded(0, [&] { return Store().SetSealed(section, key, text) ? 1 : 0; });
}

uint32_t Q9CfgE_GetDefaultDW(uint32_t section, uint32_t key) {
    return Guarded(0u, [&] { return Store().DefaultWord(section, key); });
}

const char* Q9CfgE_GetDefaultStr(uint32_t section, uint32_t key) {
    return Guarded<const char*>(nullptr, [&] { return Store().DefaultText(section, key); });
}

const void* Q9CfgE_GetObjectList(uint32_t section, uint32_t /*reserved*/) {
    return Guarded<const void*>(nullptr, [&] { return Store().ObjectList(section); });
}

int32_t Q9CfgE_SetObjectList(uint32_t section, uint16_t index, const void* record) {
    return Guarded(0, [&] { return Store().SetRecord(section, index, record) ? 1 : 0; });
}

int32_t Q9CfgE_SetStyleEx(uint32_t style, const char* path, uint32_t mode) {
    return Guarded(0, [&] { return Store().SetStyle(style, path, mode); });
}

int32_t Q9CfgE_UnlockEx(void) {
    return Guarded(0, [&] { return Store().Unlock() ? 1 : 0; });
}

int32_t Q9CfgE_FlushEx(uint32_t section, uint32_t commit) {
    return Guarded(0, [&] { return Store().Flush(section, commit) ? 1 : 0; });
}

int32_t Q9CfgE_SetModified(void) {
    return Guarded(0, [&] { return Store().MarkModified() ? 1 : 0; });
}

uint64_t Q9CfgE_GetAuthenticateDlg(uint32_t /*reserved*/) {
    return Guarded<uint64_t>(0, [&] { return cfge::Authentication::OpenPrompt(); });
}

int32_t Q9CfgE_AuthenticateEx(uint64_t ownerWindow, uint32_t /*reserved*/, const char* caption) {
    return Guarded(0, [&] { return cfge::Authentication::Authenticate(ownerWindow, caption); });
}

Q9CfgEHandle Q9CfgE_Create(uint32_t style, const char* path, uint32_t /*reserved*/) {
    return Guarded<Q9CfgEHandle>(nullptr, [&]() -> Q9CfgEHandle {
        if (style != Q9CFGE_STYLE_FILE || !path || !*path) return nullptr;
        auto file = std::make_unique<Q9CfgEFile>(path);
        return file->Load() ? file.release() : nullptr;
    });
}

int32_t Q9CfgE_Close(Q9CfgEHandle file) {
    return Guarded(0, [&] {
        const std::unique_ptr<Q9CfgEFile> owned(file);
        return owned && owned->Close() ? 1 : 0;
    });
}

uint32_t Q9CfgE_Enum(Q9CfgEHandle file, uint32_t section, uint16_t index) {
    return Guarded(0u, [&] { return file ? file->Enum(section, index) : 0u; });
}

const void* Q9CfgE_GetStr(Q9CfgEHandle file, uint32_t section, uint32_t key, uint32_t* scratch) {
    return Guarded<const void*>(nullptr, [&]() -> const void* {
        const cfge::ExportedValue* value = file ? file->Get(section, key) : nullptr;
        if (scratch) *scratch = value ? value->type : 0;
        return value;
    });
}

int32_t Q9CfgE_SetStr(Q9CfgEHandle file, uint32_t section, uint32_t key, const void* value) {
    return Guarded(0, [&] { return file && file->Set(section, key, value) ? 1 : 0; });
}

}  // extern "C"
