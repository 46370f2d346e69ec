#include "session/SecureProfileBinding.h"

#include <cstdio>

#include "platform/SharedLibrary.h"
#include "session/ProcessState.h"
#include "text/TextFormat.h"

namespace {

using platform::SharedLibrary;

// Secure profile texts are read into a buffer of this size.
constexpr uint32_t kSecTextCapacity = 1024;

SharedLibrary LoadOrvInst() {
    SharedLibrary library;
    library.Load(g_szModuleDir, "OrvInst");
    return library;
}

std::string ProfilePath(const char* fileName) { return g_szModuleDir + (fileName ? fileName : ""); }

// The value of key, or defaultText when the library answers 0 (no value) or
// lacks the entry point.
std::string ReadSecString(const SharedLibrary& orvInst, const char* section, const char* key,
                          const char* defaultText, const std::string& path) {
    using Entry = int32_t(const char*, const char*, const char*, char*, uint32_t, const char*);
    std::string buffer(kSecTextCapacity, '\0');
    const int32_t copied =
        orvInst.CallOr<Entry>(0, "OrvInst2_GetSecProfileString", section, key, defaultText,
                              buffer.data(), kSecTextCapacity, path.c_str());
    if (copied == 0) return TextOrEmpty(defaultText);
    return std::string(buffer.c_str());
}

// "1031_ProductName": the language id, right-aligned in four places, and the
// key.
std::string LanguageKey(uint32_t language, const char* key) {
    char prefix[16];
    std::snprintf(prefix, sizeof prefix, "%4u_", language);
    return prefix + TextOrEmpty(key);
}

}  // namespace

int32_t SecureProfileBinding::GetInt(const char* section, const char* key,
                                     int32_t useWarnMail) const {
    const SharedLibrary orvInst = LoadOrvInst();
    const std::string path = ProfilePath(useWarnMail == 1 ? kWarnMailProfileFile : kSecProfileFile);
    return orvInst.CallOr<int32_t(const char*, const char*, int32_t, const char*)>(
        0, "OrvInst2_GetSecProfileInt", section, key, 0, path.c_str());
}

std::string SecureProfileBinding::GetString(const char* section, const char* key,
                                            const char* defaultText, const char* fileName) const {
    const SharedLibrary orvInst = LoadOrvInst();
    return ReadSecString(orvInst, section, key, defaultText, ProfilePath(fileName));
}

int32_t SecureProfileBinding::WriteString(const char* section, const char* key,
                                          const char* value) const {
    const SharedLibrary orvInst = LoadOrvInst();
    const std::string path = ProfilePath(kWarnMailProfileFile);
    return orvInst.CallIfPresent<int32_t(const char*, const char*, const char*, const char*)>(
               "OrvInst2_WriteSecProfileString", section, key, value, path.c_str())
               ? 1
               : 0;
}

int32_t SecureProfileBinding::WriteInt(const char* section, const char* key, int32_t value) const {
    const SharedLibrary orvInst = LoadOrvInst();
    const std::string path = ProfilePath(kWarnMailProfileFile);
    return orvInst.CallIfPresent<int32_t(const char*, const char*, int32_t, const char*)>(
               "OrvInst2_WriteSecProfileInt", section, key, value, path.c_str())
               ? 1
               : 0;
}

std::string SecureProfileBinding::ProductString(const char* section, const char* key,
                                                const char* defaultText) const {
    const SharedLibrary orvInst = LoadOrvInst();
    if (!orvInst.IsLoaded()) return {};
    const std::string path = ProfilePath(kSecProfileFile);
    // Without a language id there is no language-specific key to ask for.
    const uint32_t language = m_language.LanguageId();
    if (language != 0) {
        std::string text =
            ReadSecString(orvInst, section, LanguageKey(language, key).c_str(), "", path);
        if (!text.empty()) return text;
    }
    return ReadSecString(orvInst, section, key, defaultText, path);
}
