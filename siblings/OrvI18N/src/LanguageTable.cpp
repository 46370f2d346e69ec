#include "LanguageTable.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>

namespace orvi18n {
namespace {

struct Entry {
    const char* language;   // ISO 639 code, lower case
    const char* territory;  // ISO 3166 code, upper case
    uint16_t id;
    bool main;  // the id of the language without or with an unknown territory
};

constexpr Entry kEntries[] = {
    {"ar", "SA", 1025, true},  {"ar", "EG", 3073, false},  {"ar", "AE", 14337, false},
    {"bg", "BG", 1026, true},  {"ca", "ES", 1027, true},   {"zh", "TW", 1028, false},
    {"zh", "CN", 2052, true},  {"zh", "HK", 3076, false},  {"zh", "SG", 4100, false},
    {"zh", "MO", 5124, false}, {"cs", "CZ", 1029, true},   {"da", "DK", 1030, true},
    {"de", "DE", 1031, true},  {"de", "CH", 2055, false},  {"de", "AT", 3079, false},
    {"de", "LU", 4103, false}, {"de", "LI", 5127, false},  {"el", "GR", 1032, true},
    {"en", "US", 1033, true},  {"en", "GB", 2057, false},  {"en", "AU", 3081, false},
    {"en", "CA", 4105, false}, {"en", "NZ", 5129, false},  {"en", "IE", 6153, false},
    {"en", "ZA", 7177, false}, {"en", "IN", 16393, false}, {"en", "SG", 18441, false},
    {"es", "ES", 3082, true},  {"es", "MX", 2058, false},  {"es", "AR", 11274, false},
    {"es", "CO", 9226, false}, {"es", "CL", 13322, false}, {"es", "US", 21514, false},
    {"fi", "FI", 1035, true},  {"fr", "FR", 1036, true},   {"fr", "BE", 2060, false},
    {"fr", "CA", 3084, false}, {"fr", "CH", 4108, false},  {"fr", "LU", 5132, false},
    {"he", "IL", 1037, true},  {"hu", "HU", 1038, true},   {"is", "IS", 1039, true},
    {"it", "IT", 1040, true},  {"it", "CH", 2064, false},  {"ja", "JP", 1041, true},
    {"ko", "KR", 1042, true},  {"nl", "NL", 1043, true},   {"nl", "BE", 2067, false},
    {"nb", "NO", 1044, true},  {"no", "NO", 1044, true},   {"nn", "NO", 2068, true},
    {"pl", "PL", 1045, true},  {"pt", "BR", 1046, true},   {"pt", "PT", 2070, false},
    {"ro", "RO", 1048, true},  {"ru", "RU", 1049, true},   {"hr", "HR", 1050, true},
    {"sk", "SK", 1051, true},  {"sv", "SE", 1053, true},   {"sv", "FI", 2077, false},
    {"th", "TH", 1054, true},  {"tr", "TR", 1055, true},   {"id", "ID", 1057, true},
    {"uk", "UA", 1058, true},  {"sl", "SI", 1060, true},   {"et", "EE", 1061, true},
    {"lv", "LV", 1062, true},  {"lt", "LT", 1063, true},   {"vi", "VN", 1066, true},
    {"eu", "ES", 1069, true},  {"hi", "IN", 1081, true},   {"ms", "MY", 1086, true},
    {"gl", "ES", 1110, true},
};

std::string Lower(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::string Upper(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return result;
}

const Entry* MainEntryOf(const std::string& language) {
    const auto* found = std::find_if(std::begin(kEntries), std::end(kEntries), [&](const Entry& e) {
        return e.main && language == e.language;
    });
    return found != std::end(kEntries) ? found : nullptr;
}

}  // namespace

uint16_t LanguageTable::IdOfLocale(std::string_view locale) {
    locale = locale.substr(0, locale.find_first_of(".@"));
    const auto separator = locale.find_first_of("_-");
    const std::string language = Lower(locale.substr(0, separator));
    const std::string territory =
        separator == std::string_view::npos ? std::string() : Upper(locale.substr(separator + 1));
    const auto* exact = std::find_if(std::begin(kEntries), std::end(kEntries), [&](const Entry& e) {
        return language == e.language && territory == e.territory;
    });
    if (exact != std::end(kEntries)) return exact->id;
    const Entry* main = MainEntryOf(language);
    return main ? main->id : kUsEnglish;
}

uint16_t LanguageTable::MainIdOf(uint16_t id) {
    const auto* entry = std::find_if(std::begin(kEntries), std::end(kEntries),
                                     [&](const Entry& e) { return e.id == id; });
    if (entry == std::end(kEntries)) return id;
    return MainEntryOf(entry->language)->id;
}

}  // namespace orvi18n
