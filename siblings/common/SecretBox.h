#pragma once

// Enciphering of secrets kept in files of the installation (passwords,
// accounts). Authenticated encryption (libsodium's secretbox: XSalsa20 and
// Poly1305) under one key per installation, held in a key file readable by
// its owner only and made on first use. A sealed text is the base64 of a
// fresh random nonce followed by the ciphertext, so equal secrets never look
// alike in a file.

#include <optional>
#include <string>
#include <string_view>

namespace sibling {

class SecretBox {
public:
    // The key file of the installation.
    static constexpr const char* kKeyFileName = "q9install.key";

    // Uses the key file at keyPath; an empty path means the installation's.
    explicit SecretBox(std::string keyPath = {});

    // Base64 text; nullopt when the key cannot be had (reported).
    std::optional<std::string> Seal(std::string_view plain) const;

    // The plain text; nullopt when sealed is not base64, was sealed under
    // another key, or was changed.
    std::optional<std::string> Open(std::string_view sealed) const;

private:
    std::optional<std::string> LoadOrCreateKey() const;

    std::string m_keyPath;
};

}  // namespace sibling
