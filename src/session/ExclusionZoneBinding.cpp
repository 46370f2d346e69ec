#include "session/ExclusionZoneBinding.h"

#include "session/ProcessState.h"

int32_t ExclusionZoneBinding::Load() { return m_library.Load(g_szModuleDir, "OrvDMZ") ? 1 : 0; }

void ExclusionZoneBinding::Release() { m_library.Release(); }

void* ExclusionZoneBinding::Create() {
    Load();
    return m_library.CallOr<void*()>(nullptr, "OrvDMZ_Create");
}

void ExclusionZoneBinding::Destroy(void* zone) {
    Load();
    m_library.CallIfPresent<void(void*)>("OrvDMZ_Destroy", zone);
}

int32_t ExclusionZoneBinding::Add(void* zone, const char* owner, const char* owner2,
                                  const void* records) {
    Load();
    return m_library.CallOr<int32_t(void*, const char*, const char*, const void*)>(
        0, "OrvDMZ_AddDMZA", zone, owner, owner2, records);
}

int32_t ExclusionZoneBinding::Enumerate(void* zone, const char* owner, const char* owner2,
                                        void* buffer, int32_t size) {
    Load();
    return m_library.CallOr<int32_t(void*, const char*, const char*, void*, int32_t)>(
        0, "OrvDMZ_EnumDMZA", zone, owner, owner2, buffer, size);
}

int32_t ExclusionZoneBinding::Delete(void* zone, const char* owner, const char* owner2) {
    Load();
    return m_library.CallOr<int32_t(void*, const char*, const char*, int32_t)>(
        0, "OrvDMZ_DeleteDMZA", zone, owner, owner2, 0);
}
