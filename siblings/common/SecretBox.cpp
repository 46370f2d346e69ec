#include "common/SecretBox.h"

#include <fcntl.h>
#include <sodium.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

#include "common/InstallDirectory.h"
#include "platform/ProblemReport.h"

namespace sibling {
namespace {

constexpr std::size_t kKeySize = crypto_secretbox_KEYBYTES;
constexpr std::size_t kNonceSize = crypto_secretbox_NONCEBYTES;
constexpr std::size_t kTagSize = crypto_secretbox_MACBYTES;

bool SodiumReady() {
    static const bool ready = sodium_init() >= 0;
    return ready;
}

std::optional<std::string> ReadKey(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return std::nullopt;
    std::string key(kKeySize + 1, '\0');
    const ssize_t got = ::read(fd, key.data(), key.size());
    ::close(fd);
    if (got != static_cast<ssize_t>(kKeySize)) return std::nullopt;
    key.resize(kKeySize);
    return key;
}

// Writes a new key to a temporary file and links it into place, which fails
// when another process was quicker; then everybody reads the one key there is.
void CreateKey(const std::string& path) {
    std::string key(kKeySize, '\0');
    randombytes_buf(key.data(), key.size());
    const std::string temporary = path + ".new" + std::to_string(getpid());
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) return;
    const bool written = ::write(fd, key.data(), key.size()) == static_cast<ssize_t>(key.size()) &&
                         ::fsync(fd) == 0;
    ::close(fd);
    sodium_memzero(key.data(), key.size());
    if (written) {
        const int linked = ::link(temporary.c_str(), path.c_str());
        (void)linked;
    }
    ::unlink(temporary.c_str());
}

std::string ToBase64(const std::vector<unsigned char>& bytes) {
    std::string text(sodium_base64_ENCODED_LEN(bytes.size(), sodium_base64_VARIANT_ORIGINAL), '\0');
    sodium_bin2base64(text.data(), text.size(), bytes.data(), bytes.size(),
                      sodium_base64_VARIANT_ORIGINAL);
    text.resize(std::strlen(text.c_str()));
    return text;
}

std::optional<std::vector<unsigned char>> FromBase64(std::string_view text) {
    if (text.empty()) return std::nullopt;
    std::vector<unsigned char> bytes(text.size());
    std::size_t length = 0;
    if (sodium_base642bin(bytes.data(), bytes.size(), text.data(), text.size(), nullptr, &length,
                          nullptr, sodium_base64_VARIANT_ORIGINAL) != 0) {
        return std::nullopt;
    }
    bytes.resize(length);
    return bytes;
}

}  // namespace

SecretBox::SecretBox(std::string keyPath)
    : m_keyPath(keyPath.empty() ? InstallFile(kKeyFileName) : std::move(keyPath)) {}

std::optional<std::string> SecretBox::LoadOrCreateKey() const {
    if (!SodiumReady()) {
        platform::ReportProblem("the cipher library cannot start");
        return std::nullopt;
    }
    if (auto key = ReadKey(m_keyPath)) return key;
    CreateKey(m_keyPath);
    auto key = ReadKey(m_keyPath);
    if (!key) platform::ReportProblem("cannot read or make the key file " + m_keyPath);
    return key;
}

std::optional<std::string> SecretBox::Seal(std::string_view plain) const {
    std::optional<std::string> key = LoadOrCreateKey();
    if (!key) return std::nullopt;
    std::vector<unsigned char> sealed(kNonceSize + kTagSize + plain.size());
    randombytes_buf(sealed.data(), kNonceSize);
    crypto_secretbox_easy(sealed.data() + kNonceSize,
                          reinterpret_cast<const unsigned char*>(plain.data()), plain.size(),
                          sealed.data(), reinterpret_cast<const unsigned char*>(key->data()));
    sodium_memzero(key->data(), key->size());
    return ToBase64(sealed);
}

std::optional<std::string> SecretBox::Open(std::string_view sealedText) const {
    const std::optional<std::vector<unsigned char>> sealed = FromBase64(sealedText);
    if (!sealed || sealed->size() < kNonceSize + kTagSize) return std::nullopt;
    std::optional<std::string> key = LoadOrCreateKey();
    if (!key) return std::nullopt;
    std::string plain(sealed->size() - kNonceSize - kTagSize, '\0');
    const int opened = crypto_secretbox_open_easy(
        reinterpret_cast<unsigned char*>(plain.data()), sealed->data() + kNonceSize,
        sealed->size() - kNonceSize, sealed->data(),
        reinterpret_cast<const unsigned char*>(key->data()));
    sodium_memzero(key->data(), key->size());
    if (opened != 0) return std::nullopt;
    return plain;
}

}  // namespace sibling
