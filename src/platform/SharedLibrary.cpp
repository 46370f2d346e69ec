#include "platform/SharedLibrary.h"

#include <dlfcn.h>

namespace platform {

std::string LibraryFileName(const std::string& baseName) { return "lib" + baseName + ".so"; }

SharedLibrary::~SharedLibrary() { Release(); }

SharedLibrary::SharedLibrary(SharedLibrary&& other) noexcept
    : m_handle(std::exchange(other.m_handle, nullptr)) {}

SharedLibrary& SharedLibrary::operator=(SharedLibrary&& other) noexcept {
    if (this != &other) {
        Release();
        m_handle = std::exchange(other.m_handle, nullptr);
    }
    return *this;
}

bool SharedLibrary::Load(const std::string& directory, const std::string& baseName) {
    if (m_handle) return true;
    if (directory.empty()) return false;
    std::string path = directory;
    if (path.back() != '/') path += '/';
    path += LibraryFileName(baseName);
    m_handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    // A failure leaves a message in the thread's dlerror state; it is taken
    // here so that it neither shows up nor misleads a later dlerror() caller.
    if (!m_handle) dlerror();
    return m_handle != nullptr;
}

bool SharedLibrary::IsLoaded() const { return m_handle != nullptr; }

void SharedLibrary::Release() {
    if (!m_handle) return;
    dlclose(m_handle);
    m_handle = nullptr;
}

void* SharedLibrary::Symbol(const char* name) const {
    if (!m_handle || !name) return nullptr;
    void* address = dlsym(m_handle, name);
    if (!address) dlerror();
    return address;
}

}  // namespace platform
