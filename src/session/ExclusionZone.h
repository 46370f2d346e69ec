#pragma once

// One handle on the shared exclusion zone, owned: it is given back to the
// library's own Destroy when this goes, exactly once, whether it goes out of
// scope, is assigned over or is moved from.
//
// It binds the library for itself (see ExclusionZoneBinding), so the library
// stays loaded for as long as the handle lives, even across
// CSiblingLibs::Release; destroying never meets an unloaded library.
//
// An empty ExclusionZone (the library or its Create is missing, or it was
// moved from) holds nothing, answers 0 and destroys nothing.

#include <cstdint>

#include "session/ExclusionZoneBinding.h"

class ExclusionZone {
public:
    ExclusionZone() = default;
    ~ExclusionZone();

    ExclusionZone(ExclusionZone&& other) noexcept;
    ExclusionZone& operator=(ExclusionZone&& other) noexcept;
    ExclusionZone(const ExclusionZone&) = delete;
    ExclusionZone& operator=(const ExclusionZone&) = delete;

    // A handle on the zone of the library in g_szModuleDir.
    static ExclusionZone Create();

    bool IsEmpty() const;

    // Appends the records of the terminated buffer under owner: 1 on success.
    int32_t Add(const char* owner, const char* owner2, const void* records);
    // The bytes needed for owner's view of the zone; copies it into buffer
    // when size is enough.
    int32_t Enumerate(const char* owner, const char* owner2, void* buffer, int32_t size);
    // Removes owner's records: 1 on success.
    int32_t Delete(const char* owner, const char* owner2);

private:
    void Destroy();

    ExclusionZoneBinding m_library;
    void* m_handle = nullptr;
};
