#pragma once

#include <string>

namespace orvi18n {

// The locale name the session's language is taken from.
class SessionLocale {
public:
    // The first non-empty of: the first entry of LANGUAGE's colon-separated
    // list, LC_ALL, LC_MESSAGES, LANG. Empty when none is set.
    static std::string Name();
};

}  // namespace orvi18n
