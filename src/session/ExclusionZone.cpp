#include "session/ExclusionZone.h"

ExclusionZone ExclusionZone::Create() {
    ExclusionZone zone;
    zone.Make();
    return zone;
}

int32_t ExclusionZone::Add(const char* owner, const char* owner2, const void* records) {
    return m_handle ? m_library.Add(m_handle, owner, owner2, records) : 0;
}

int32_t ExclusionZone::Enumerate(const char* owner, const char* owner2, void* buffer,
                                 int32_t size) {
    return m_handle ? m_library.Enumerate(m_handle, owner, owner2, buffer, size) : 0;
}

int32_t ExclusionZone::Delete(const char* owner, const char* owner2) {
    return m_handle ? m_library.Delete(m_handle, owner, owner2) : 0;
}
