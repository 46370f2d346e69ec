#pragma once

// An object that a sibling library hands out, owned: it is given back to the
// library's own free entry point (Give) when this goes, exactly once,
// whether it goes out of scope, is assigned over or is moved from.
//
// It holds a binding of its own (Binding), so the library stays loaded for
// as long as the object lives, even across CSiblingLibs::Release; giving the
// object back never meets an unloaded library. An empty owner (the library
// or its Create is missing, or it was moved from) holds nothing and gives
// nothing back.

#include <utility>

template <typename Binding, void (Binding::*Give)(void*)>
class OwnedLibraryObject {
public:
    OwnedLibraryObject() = default;
    ~OwnedLibraryObject() { Reset(); }

    OwnedLibraryObject(OwnedLibraryObject&& other) noexcept
        : m_library(std::move(other.m_library)), m_handle(std::exchange(other.m_handle, nullptr)) {}
    OwnedLibraryObject& operator=(OwnedLibraryObject&& other) noexcept {
        if (this != &other) {
            Reset();
            m_library = std::move(other.m_library);
            m_handle = std::exchange(other.m_handle, nullptr);
        }
        return *this;
    }
    OwnedLibraryObject(const OwnedLibraryObject&) = delete;
    OwnedLibraryObject& operator=(const OwnedLibraryObject&) = delete;

    bool IsEmpty() const { return m_handle == nullptr; }

protected:
    // Has the library in g_szModuleDir make the object; without one there
    // is nothing to keep the library loaded for.
    void Make() {
        m_handle = m_library.Create();
        if (!m_handle) m_library.Release();
    }

    Binding m_library;
    void* m_handle = nullptr;

private:
    void Reset() {
        if (m_handle) (m_library.*Give)(std::exchange(m_handle, nullptr));
        m_library.Release();
    }
};
