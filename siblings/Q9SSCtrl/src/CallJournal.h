#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace q9ssctrl {

// "Q9SSCtrl.journal" in the installation directory: one line per call,
//   <entry point>\t<item or ->\t<further arguments space-separated, or ->\t<result>
// Each line is appended with one write to a file opened for appending, so
// that lines of several processes never interleave.
class CallJournal {
public:
    static constexpr const char* kFileName = "Q9SSCtrl.journal";

    // The line of one call, without its '\n'.
    static std::string Line(const char* entryPoint, std::optional<int32_t> item,
                            const std::string& arguments, int32_t result);

    // Appends the line of one call; a failure is reported and otherwise ignored.
    static void Append(const char* entryPoint, std::optional<int32_t> item,
                       const std::string& arguments, int32_t result);
};

}  // namespace q9ssctrl
