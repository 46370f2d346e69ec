// One entry of the BROWSER variable, as a user or a desktop sets it, turned
// into the argument vector that opens a link: "<entry>\0<target>". The
// command holds the entry's words, in order, with the target in place of
// every "%s" or behind them; an entry without words gives no command.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/DesktopOpener.h"
#include "support/FuzzCheck.h"

namespace {

size_t CountWords(const std::string& entry) {
    size_t words = 0;
    bool inWord = false;
    for (const char c : entry) {
        if (c != ' ' && !inWord) ++words;
        inWord = c != ' ';
    }
    return words;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view input = fuzz::AsText(data, size);
    const size_t split = input.find('\0');
    const std::string entry(input.substr(0, split));
    const std::string target(split == std::string_view::npos ? "" : input.substr(split + 1));
    const std::vector<std::string> command = platform::BrowserCommand(entry, target);

    const size_t words = CountWords(entry);
    if (words == 0) {
        fuzz::Check(command.empty(), "an entry without words gives no command");
        return 0;
    }
    const bool placed = entry.find("%s") != std::string::npos;
    fuzz::Check(command.size() == words + (placed ? 0 : 1), "one argument a word, and the target");
    if (!placed) fuzz::Check(command.back() == target, "the target goes behind the words");
    return 0;
}
