// The C border of the library: a handle is the path of a translation file,
// checked against the set of live handles so that a stale or foreign pointer
// is answered with null instead of a crash; no exception leaves a call.

#include "OrvI18N.h"

#include <memory>
#include <mutex>
#include <set>
#include <string>

#include "LanguageTable.h"
#include "SessionLocale.h"
#include "TranslationFinder.h"

namespace {

std::mutex g_handlesMutex;
std::set<const std::string*> g_handles;

uint16_t SessionLanguage() {
    return orvi18n::LanguageTable::IdOfLocale(orvi18n::SessionLocale::Name());
}

}  // namespace

extern "C" {

void* OrvI18N_LoadResources(const char* directory, const char* family) {
    try {
        if (!directory || !family || !*family || std::string(family).find('/') != std::string::npos)
            return nullptr;
        auto path = orvi18n::TranslationFinder::Find(directory, family, SessionLanguage());
        if (!path) return nullptr;
        auto handle = std::make_unique<std::string>(std::move(*path));
        std::lock_guard lock(g_handlesMutex);
        g_handles.insert(handle.get());
        return handle.release();
    } catch (...) {
        return nullptr;
    }
}

void OrvI18N_FreeResources(void* resources) {
    try {
        std::lock_guard lock(g_handlesMutex);
        const auto* handle = static_cast<const std::string*>(resources);
        if (g_handles.erase(handle) > 0) delete handle;
    } catch (...) {
    }
}

const char* OrvI18N_GetResourceFile(void* resources) {
    try {
        std::lock_guard lock(g_handlesMutex);
        const auto* handle = static_cast<const std::string*>(resources);
        return g_handles.count(handle) ? handle->c_str() : nullptr;
    } catch (...) {
        return nullptr;
    }
}

uint32_t OrvI18N_GetLanguage(void) {
    try {
        return SessionLanguage();
    } catch (...) {
        return orvi18n::LanguageTable::kUsEnglish;
    }
}

}  // extern "C"
