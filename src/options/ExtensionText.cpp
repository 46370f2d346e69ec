#include "options/ExtensionText.h"

#include <vector>

#include "text/StringTable.h"

namespace {

constexpr const char* kForbidden = "\\:*\".<>|";
constexpr const char* kBlanks = " \t";
constexpr char kSeparator = '/';

// Messages of the file types tab.
constexpr uint32_t kNoCustomTypes = 1018;
constexpr uint32_t kForbiddenTypeCharacters = 1015;
constexpr uint32_t kBlankElement = 1048;

// The elements of text split at every "/", each without its blanks.
std::vector<std::string> Elements(const std::string& text) {
    std::vector<std::string> elements;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find(kSeparator, start);
        const std::string piece = text.substr(start, end == std::string::npos ? end : end - start);
        const std::size_t first = piece.find_first_not_of(kBlanks);
        elements.push_back(first == std::string::npos
                               ? std::string()
                               : piece.substr(first, piece.find_last_not_of(kBlanks) - first + 1));
        if (end == std::string::npos) return elements;
        start = end + 1;
    }
}

}  // namespace

ExtensionTextProblem CheckExtensionText(const std::string& text) {
    if (text.empty()) return ExtensionTextProblem::Empty;
    if (text.size() > kMaxExtensionText) return ExtensionTextProblem::TooLong;
    if (text.find_first_of(kForbidden) != std::string::npos) return ExtensionTextProblem::Forbidden;
    for (const std::string& element : Elements(text)) {
        if (element.empty()) return ExtensionTextProblem::EmptyElement;
    }
    return ExtensionTextProblem::None;
}

std::string NormalizeExtensionText(const std::string& text) {
    const std::vector<std::string> elements = Elements(text);
    std::string joined = elements.front();
    for (std::size_t i = 1; i < elements.size(); ++i) joined += kSeparator + elements[i];
    return joined;
}

uint32_t ExtensionTextMessageId(ExtensionTextProblem problem) {
    switch (problem) {
        case ExtensionTextProblem::None:
            return 0;
        case ExtensionTextProblem::Empty:
            return kNoCustomTypes;
        case ExtensionTextProblem::TooLong:
            return strings::kLengthMessage;
        case ExtensionTextProblem::Forbidden:
            return kForbiddenTypeCharacters;
        case ExtensionTextProblem::EmptyElement:
            return kBlankElement;
    }
    return 0;
}
