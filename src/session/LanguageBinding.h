#pragma once

// The language library (libOrvI18N.so), asked for the session's language
// id. It is loaded for the one call and freed again.

#include <cstdint>

class LanguageBinding {
public:
    // The language id, low 16 bits; 0 when the library or entry point is
    // missing.
    uint32_t LanguageId() const;
};
