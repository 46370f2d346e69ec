// The registry hive text, as a hive file holds it. Whatever the bytes, the
// parser answers without fault; a text it refuses names a line and leaves
// the hive empty; a text it accepts is written back as a text that reads back
// to the same hive.

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/RegistryHive.h"
#include "support/FuzzCheck.h"

namespace {

constexpr const char* kRoot = "HKEY_CURRENT_USER";

bool IsEmpty(const platform::RegistryHive& hive) {
    return hive.Root().values.empty() && hive.Root().subkeys.empty();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::RegistryHive hive(kRoot);
    platform::RegistryHive::ParseError error;
    if (!hive.Parse(fuzz::AsText(data, size), &error)) {
        fuzz::Check(error.line >= 1 && !error.message.empty(), "a refusal names a line and why");
        fuzz::Check(IsEmpty(hive), "a refused text leaves the hive empty");
        return 0;
    }
    const std::string text = hive.ToText();
    platform::RegistryHive again(kRoot);
    fuzz::Check(again.Parse(text, &error), "the written text is read back");
    fuzz::Check(again.ToText() == text, "the written text reads back to the same hive");
    return 0;
}
