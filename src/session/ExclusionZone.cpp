#include "session/ExclusionZone.h"

#include <utility>

ExclusionZone::~ExclusionZone() { Destroy(); }

ExclusionZone::ExclusionZone(ExclusionZone&& other) noexcept
    : m_library(std::move(other.m_library)), m_handle(std::exchange(other.m_handle, nullptr)) {}

ExclusionZone& ExclusionZone::operator=(ExclusionZone&& other) noexcept {
    if (this != &other) {
        Destroy();
        m_library = std::move(other.m_library);
        m_handle = std::exchange(other.m_handle, nullptr);
    }
    return *this;
}

ExclusionZone ExclusionZone::Create() {
    ExclusionZone zone;
    zone.m_handle = zone.m_library.Create();
    // Without a handle there is nothing to keep the library loaded for.
    if (!zone.m_handle) zone.m_library.Release();
    return zone;
}

bool ExclusionZone::IsEmpty() const { return m_handle == nullptr; }

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

void ExclusionZone::Destroy() {
    if (m_handle) m_library.Destroy(std::exchange(m_handle, nullptr));
    m_library.Release();
}
