// A sealed secret as files hold it ("enc:" values of the store and of the
// secure profile): base64 of a nonce and a ciphertext under the
// installation's key. Text that was not sealed under the key never opens,
// whatever it is; the input sealed as a secret opens to itself.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "common/SecretBox.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const sibling::SecretBox box(fuzz::ScratchDirectory::Path() + "q9install.key");
    const std::string_view text = fuzz::AsText(data, size);
    fuzz::Check(!box.Open(text).has_value(), "text not sealed under the key does not open");
    const std::optional<std::string> sealed = box.Seal(text);
    fuzz::Check(sealed.has_value(), "a secret can be sealed");
    fuzz::Check(box.Open(*sealed) == text, "a sealed secret opens to itself");
    return 0;
}
