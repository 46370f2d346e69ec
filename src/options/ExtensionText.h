#pragma once

// The customized file types of a scan profile (key 13, and the file types to
// block of key 15): extensions without dots, separated by "/", as in
// "exe/dll/doc".

#include <cstddef>
#include <cstdint>
#include <string>

constexpr std::size_t kMaxExtensionText = 255;

// What is wrong with a text, in the order the checks run.
enum class ExtensionTextProblem {
    None,
    Empty,         // no text at all
    TooLong,       // more than kMaxExtensionText characters
    Forbidden,     // a character no file type may hold: \ : * " . < > |
    EmptyElement,  // an element that is empty or only blanks ("a//b", "a/")
};

// The first problem of text; None when it can be stored (normalised).
ExtensionTextProblem CheckExtensionText(const std::string& text);

// text with the blanks around each element removed, joined again by "/".
std::string NormalizeExtensionText(const std::string& text);

// The string id of the message for problem; 0 for None. The message of
// TooLong takes kMaxExtensionText for its %d.
uint32_t ExtensionTextMessageId(ExtensionTextProblem problem);
