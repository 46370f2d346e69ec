// The C border of the library: handles are checked against the set of live
// ones, so that a stale or foreign pointer answers 0 instead of crashing, and
// no exception leaves a call.

#include "OrvDMZ.h"

#include <memory>
#include <mutex>
#include <set>

#include "OwnerTags.h"
#include "Zone.h"
#include "common/InstallDirectory.h"

namespace {

std::mutex g_handlesMutex;
std::set<const orvdmz::Zone*> g_handles;

const orvdmz::Zone* LiveZone(void* handle) {
    std::lock_guard lock(g_handlesMutex);
    const auto* zone = static_cast<const orvdmz::Zone*>(handle);
    return g_handles.count(zone) ? zone : nullptr;
}

}  // namespace

extern "C" {

void* OrvDMZ_Create(void) {
    try {
        const std::string directory = sibling::InstallDirectory();
        if (directory.empty()) return nullptr;
        auto zone = std::make_unique<orvdmz::Zone>(directory + orvdmz::Zone::kFileName);
        std::lock_guard lock(g_handlesMutex);
        g_handles.insert(zone.get());
        return zone.release();
    } catch (...) {
        return nullptr;
    }
}

int32_t OrvDMZ_AddDMZA(void* zone, const char* owner, const char* owner2, const void* records) {
    try {
        const auto* live = LiveZone(zone);
        const auto tags = orvdmz::OwnerTags::From(owner, owner2);
        if (!live || !tags) return 0;
        return live->Add(*tags, records) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

int32_t OrvDMZ_EnumDMZA(void* zone, const char* owner, const char* owner2, void* buffer,
                        int32_t size) {
    try {
        const auto* live = LiveZone(zone);
        const auto tags = orvdmz::OwnerTags::From(owner, owner2);
        if (!live || !tags) return 0;
        return live->Enumerate(*tags, buffer, size);
    } catch (...) {
        return 0;
    }
}

int32_t OrvDMZ_DeleteDMZA(void* zone, const char* owner, const char* owner2, int32_t reserved) {
    (void)reserved;
    try {
        const auto* live = LiveZone(zone);
        const auto tags = orvdmz::OwnerTags::From(owner, owner2);
        if (!live || !tags) return 0;
        return live->Delete(*tags) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

void OrvDMZ_Destroy(void* zone) {
    try {
        std::lock_guard lock(g_handlesMutex);
        const auto* known = static_cast<const orvdmz::Zone*>(zone);
        if (g_handles.erase(known) > 0) delete known;
    } catch (...) {
    }
}

}  // extern "C"
