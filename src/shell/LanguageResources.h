#pragma once

// The language of a session. The language library (libOrvI18N.so in the
// library's directory) names the translation file for the user's language;
// it is installed as a Qt translator for the session and removed at its end.
// Without the library, or for the built-in language, the library's own texts
// are used.

#include <memory>

#include "platform/SharedLibrary.h"

class QTranslator;

class LanguageResources {
public:
    // The resource family of this library's texts.
    static constexpr const char* kFamily = "Q9CU";

    LanguageResources();
    ~LanguageResources();
    LanguageResources(const LanguageResources&) = delete;
    LanguageResources& operator=(const LanguageResources&) = delete;

    // Loads and installs the translation, if there is one.
    void Load(const std::string& directory);
    // Removes and releases it.
    void Release();

private:
    platform::SharedLibrary m_library;
    void* m_handle = nullptr;
    std::unique_ptr<QTranslator> m_translator;
};
