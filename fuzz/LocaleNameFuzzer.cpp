// The session's locale name as the environment gives it (LANGUAGE, LC_ALL,
// LC_MESSAGES, LANG), turned into a language id. Any text gives a listed id
// whose main id is its own main id; the case of the letters, and an encoding
// or modifier added to a name that has none, change nothing.

#include <cstddef>
#include <cstdint>
#include <string>

#include "OrvI18N/src/LanguageTable.h"
#include "support/FuzzCheck.h"

namespace {

using orvi18n::LanguageTable;

std::string SwapCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        } else if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string locale(fuzz::AsText(data, size));
    const uint16_t id = LanguageTable::IdOfLocale(locale);
    const uint16_t main = LanguageTable::MainIdOf(id);
    fuzz::Check(LanguageTable::MainIdOf(main) == main, "a main id is its own main id");
    fuzz::Check(LanguageTable::IdOfLocale(SwapCase(locale)) == id, "case does not matter");
    if (locale.find_first_of(".@") == std::string::npos) {
        fuzz::Check(LanguageTable::IdOfLocale(locale + ".UTF-8@euro") == id,
                    "encoding and modifier do not matter");
    }
    return 0;
}
