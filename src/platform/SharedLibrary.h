#pragma once

// Binding of the product's sibling libraries (libQ9SSCtrl.so and the like),
// found by name in a given directory, normally ModuleDirectory().
//
// Those libraries are optional: a machine may lack any of them, or carry an
// older one without a newer entry point. Nothing here prints or reports; a
// missing library or entry point simply becomes the caller's fallback value.
//
// Entry points are looked up by name at every call, never cached, so that a
// call always goes to what the loaded library exports right now.
//
// One object is not meant to be loaded and released from several threads at
// once; lookups and calls on a loaded object may run in parallel.

#include <string>
#include <utility>

namespace platform {

// The file name of a library with the given base name:
// "Q9SSCtrl" -> "libQ9SSCtrl.so".
std::string LibraryFileName(const std::string& baseName);

// The result type of a plain function type: ResultOf<int32_t(int32_t)> is
// int32_t.
template <typename Fn>
struct FunctionResult;

template <typename R, typename... P>
struct FunctionResult<R(P...)> {
    using Type = R;
};

template <typename Fn>
using ResultOf = typename FunctionResult<Fn>::Type;

class SharedLibrary {
public:
    SharedLibrary() = default;
    ~SharedLibrary();

    SharedLibrary(SharedLibrary&& other) noexcept;
    SharedLibrary& operator=(SharedLibrary&& other) noexcept;
    SharedLibrary(const SharedLibrary&) = delete;
    SharedLibrary& operator=(const SharedLibrary&) = delete;

    // Loads directory + LibraryFileName(baseName) with every symbol resolved
    // now and kept local to this binding. True at once when this object
    // already holds a library. False, silently, when the file is missing or
    // cannot be loaded, or when directory is empty (the library is never
    // searched for on the system's library path).
    bool Load(const std::string& directory, const std::string& baseName);

    bool IsLoaded() const;

    // Unloads the library; afterwards every lookup gives null.
    void Release();

    // The address of the exported symbol name; null when nothing is loaded
    // or the library has no such symbol.
    void* Symbol(const char* name) const;

    // The entry point name as a function of type Fn, e.g.
    // Entry<int32_t(int32_t)>("Q9SSCtrl_IsRegistered"); null when missing.
    template <typename Fn>
    Fn* Entry(const char* name) const {
        return reinterpret_cast<Fn*>(Symbol(name));
    }

    // Calls the entry point name of type Fn with args and returns its result,
    // or fallback when the library or the entry point is missing:
    //   lib.CallOr<int32_t(int32_t)>(0, "Q9SSCtrl_IsRegistered", item)
    template <typename Fn, typename... A>
    ResultOf<Fn> CallOr(ResultOf<Fn> fallback, const char* name, A&&... args) const {
        Fn* entry = Entry<Fn>(name);
        if (!entry) return fallback;
        return entry(std::forward<A>(args)...);
    }

    // For entry points without a result: calls name with args when present.
    // True when the call was made.
    template <typename Fn, typename... A>
    bool CallIfPresent(const char* name, A&&... args) const {
        Fn* entry = Entry<Fn>(name);
        if (!entry) return false;
        entry(std::forward<A>(args)...);
        return true;
    }

private:
    void* m_handle = nullptr;
};

}  // namespace platform
