#pragma once

// The exclusion zone library (libOrvDMZ.so): handles on the zone the
// products of an installation share, and the records this product keeps in
// it under its owner tags. Record buffers are laid out as the library's
// header describes.
//
// Every call loads the library first when it is not loaded yet; it is kept
// until Release. A missing library or entry point answers 0 or null.
//
// The raw handles of Create must be given back to Destroy of the same loaded
// library; ExclusionZone does that on its own and is the usual way to get one.

#include <cstdint>

#include "platform/SharedLibrary.h"

class ExclusionZoneBinding {
public:
    // 1 when the library is loaded (at once when it already is), else 0.
    int32_t Load();
    void Release();

    void* Create();
    void Destroy(void* zone);
    int32_t Add(void* zone, const char* owner, const char* owner2, const void* records);
    // The bytes needed for owner's view of the zone; copies it into buffer
    // when size is enough.
    int32_t Enumerate(void* zone, const char* owner, const char* owner2, void* buffer,
                      int32_t size);
    int32_t Delete(void* zone, const char* owner, const char* owner2);

private:
    platform::SharedLibrary m_library;
};
