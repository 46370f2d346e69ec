#pragma once

#include <cstdint>
#include <string_view>

namespace orvi18n {

// Locale names and the classic numeric language ids.
class LanguageTable {
public:
    static constexpr uint16_t kUsEnglish = 1033;

    // The id of a locale name such as "de_AT.UTF-8@euro", "pt-BR" or "ja":
    // language and territory, compared without regard to case; the encoding
    // after '.' and the modifier after '@' are ignored. A known language with
    // a territory that is not listed, or none, gives the language's main id;
    // anything else (also "C" and "POSIX") gives US English.
    static uint16_t IdOfLocale(std::string_view locale);

    // The main id of id's language (1031 for 3079 de-AT); id itself when it
    // is a main id or not listed.
    static uint16_t MainIdOf(uint16_t id);
};

}  // namespace orvi18n
