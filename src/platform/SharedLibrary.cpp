#include "platform/SharedLibrary.h"

#include <dlfcn.h>

namespace platform {

std::string LibraryFileName(const std::string& baseName) { return "lib" + baseName + ".so"; }

SharedLibrary::~SharedLibrary() { Release(); }

SharedLibrary::SharedLibrary(SharedLibrary&& other) noexcept
    : handle_(std::exchange(other.handle_, nullptr)) {}

SharedLibrary& SharedLibrary::operator=(SharedLibrary&& other) noexcept {
    if (this != &other) {
        Release();
        handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
}

bool SharedLibrary::Load(const std::string& directory, const std::string& baseName) {
    if (handle_) return true;
    if (directory.empty()) return false;
    std::string path = directory;
    if (path.back() != '/') path += '/';
    path += LibraryFileName(baseName);
    handle_ = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    // A failure leaves a message in the thread's dlerror state; it is taken
    // here so that it neither shows up nor misleads a later dlerror() caller.
    if (!handle_) dlerror();
    return handle_ != nullptr;
}

bool SharedLibrary::IsLoaded() const { return handle_ != nullptr; }

void SharedLibrary::Release() {
    if (!handle_) return;
    dlclose(handle_);
    handle_ = nullptr;
}

void* SharedLibrary::Symbol(const char* name) const {
    if (!handle_ || !name) return nullptr;
    void* address = dlsym(handle_, name);
    if (!address) dlerror();
    return address;
}

}  // namespace platform
