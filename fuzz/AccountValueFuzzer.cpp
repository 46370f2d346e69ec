// The "AI" value of a scheduled scan's key, as the registry stand-in hands it
// back: any bytes another program or a damaged hive may have left. The
// reader reads nothing past the size, and a value it accepts encodes back to
// exactly the bytes it came from (texts hold no NUL, each text's zero byte
// is its last).

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "schedule/AccountValue.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::optional<AccountValue> value = ParseAccountValue(data, size);
    if (!value) return 0;
    const std::string encoded = EncodeAccountValue(value->user, value->password);
    const auto again = ParseAccountValue(encoded.data(), encoded.size());
    fuzz::Check(again.has_value() && *again == *value, "an encoded value reads back the same");
    if (value->user.find('\0') == std::string::npos && encoded.size() == size)
        fuzz::Check(encoded == std::string(reinterpret_cast<const char*>(data), size),
                    "a value read whole encodes to its own bytes");
    return 0;
}
