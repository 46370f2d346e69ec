#pragma once

// One handle on the shared exclusion zone, owned (see OwnedLibraryObject):
// given back to the library's own Destroy exactly once. An empty
// ExclusionZone answers 0.

#include <cstdint>

#include "session/ExclusionZoneBinding.h"
#include "session/OwnedLibraryObject.h"

class ExclusionZone
    : public OwnedLibraryObject<ExclusionZoneBinding, &ExclusionZoneBinding::Destroy> {
public:
    // A handle on the zone of the library in g_szModuleDir.
    static ExclusionZone Create();

    // Appends the records of the terminated buffer under owner: 1 on success.
    int32_t Add(const char* owner, const char* owner2, const void* records);
    // The bytes needed for owner's view of the zone; copies it into buffer
    // when size is enough.
    int32_t Enumerate(const char* owner, const char* owner2, void* buffer, int32_t size);
    // Removes owner's records: 1 on success.
    int32_t Delete(const char* owner, const char* owner2);
};
