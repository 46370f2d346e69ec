#pragma once

// The secure profile library (libOrvInst.so): values of the profile files
// beside the library. The library is loaded for each call and freed again,
// so a call always meets the library as it is installed now. A missing
// library or entry point answers 0, the default or empty text, as each
// operation says.

#include <cstdint>
#include <string>

#include "session/LanguageBinding.h"

// Secure profile files beside the library.
constexpr const char* kSecProfileFile = "Q9Sec.dat";
constexpr const char* kWarnMailProfileFile = "Q9WM.dat";

class SecureProfileBinding {
public:
    // Reads "Q9WM.dat" when useWarnMail is exactly 1, otherwise "Q9Sec.dat";
    // 0 when missing.
    int32_t GetInt(const char* section, const char* key, int32_t useWarnMail) const;
    // The value from fileName (beside the library), at most 1023 bytes; the
    // default when the key has no value or the library is missing.
    std::string GetString(const char* section, const char* key, const char* defaultText,
                          const char* fileName) const;
    // Write into "Q9WM.dat": 1 when the entry point was reached, else 0.
    int32_t WriteString(const char* section, const char* key, const char* value) const;
    int32_t WriteInt(const char* section, const char* key, int32_t value) const;
    // A product text of "Q9Sec.dat": the language-specific key ("1031_Key"
    // under a German session) first, then the plain key, then defaultText.
    // Empty text when the library is missing.
    std::string ProductString(const char* section, const char* key, const char* defaultText) const;

private:
    LanguageBinding m_language;
};
