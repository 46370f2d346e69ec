#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvinst {

// One secure profile file. Reads go to the file at every call, so that a hand
// edit (switching the edition, say) is seen at once; writes go through the
// profile file's lock and atomic replacement.
class SecureProfile {
public:
    explicit SecureProfile(std::string path);

    std::optional<int32_t> GetInt(const std::string& section, const std::string& key) const;

    // The text, deciphered for a secret key; nullopt when absent, or when a
    // sealed value cannot be opened (reported).
    std::optional<std::string> GetString(const std::string& section, const std::string& key) const;

    bool WriteInt(const std::string& section, const std::string& key, int32_t value) const;

    // Seals the value first for a secret key.
    bool WriteString(const std::string& section, const std::string& key,
                     const std::string& value) const;

    // Keys whose name holds "password" in any case keep their values sealed.
    static bool IsSecretKey(const std::string& key);

    // The prefix that marks a sealed value in the file.
    static constexpr const char* kSealedPrefix = "enc:";

private:
    bool Write(const std::string& section, const std::string& key, const std::string& text) const;

    std::string m_path;
};

}  // namespace orvinst
