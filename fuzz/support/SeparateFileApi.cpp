// The store's calls on files opened apart (Q9CfgE_Create, _Close, _Enum,
// _GetStr, _SetStr) over cfge::SeparateFile, the way the store library
// exports them, for targets whose code under test makes these calls: the
// rest of the store library needs widgets (its password prompt), which the
// fuzz tree does not build.

#include <memory>

#include "Q9CfgE.h"
#include "Q9CfgE/src/SeparateFile.h"

struct Q9CfgEFile final : cfge::SeparateFile {
    using SeparateFile::SeparateFile;
};

extern "C" {

Q9CfgEHandle Q9CfgE_Create(uint32_t style, const char* path, uint32_t /*reserved*/) {
    if (style != Q9CFGE_STYLE_FILE || !path || !*path) return nullptr;
    auto file = std::make_unique<Q9CfgEFile>(path);
    return file->Load() ? file.release() : nullptr;
}

int32_t Q9CfgE_Close(Q9CfgEHandle file) {
    const std::unique_ptr<Q9CfgEFile> owned(file);
    return owned && owned->Close() ? 1 : 0;
}

uint32_t Q9CfgE_Enum(Q9CfgEHandle file, uint32_t section, uint16_t index) {
    return file ? file->Enum(section, index) : 0u;
}

const void* Q9CfgE_GetStr(Q9CfgEHandle file, uint32_t section, uint32_t key, uint32_t* scratch) {
    const cfge::ExportedValue* value = file ? file->Get(section, key) : nullptr;
    if (scratch) *scratch = value ? value->type : 0;
    return value;
}

int32_t Q9CfgE_SetStr(Q9CfgEHandle file, uint32_t section, uint32_t key, const void* value) {
    return file && file->Set(section, key, value) ? 1 : 0;
}

}  // extern "C"
