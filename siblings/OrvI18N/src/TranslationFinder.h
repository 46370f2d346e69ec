#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvi18n {

// Where a family's translation into a language lies.
class TranslationFinder {
public:
    // <directory>Lang/<family>_<id>.qm for language's own id, else for its
    // main id, whichever is a readable regular file first. Null for US
    // English (built in, never looked for), also when the main id is US
    // English, and when neither file is there. directory gets a '/' at its
    // end when it lacks one.
    static std::optional<std::string> Find(std::string directory, const std::string& family,
                                           uint16_t language);

    static std::string PathOf(const std::string& directory, const std::string& family,
                              uint16_t language);
};

}  // namespace orvi18n
