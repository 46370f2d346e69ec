#pragma once

// printf-style formatting into std::string.

#include <cstdarg>
#include <cstddef>
#include <string>

// A copy of a text another library handed out; null gives empty text.
std::string TextOrEmpty(const char* text);

// Formats with a literal format checked by the compiler.
std::string FormatText(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Formats into at most capacity - 1 characters, as into a fixed buffer of
// capacity bytes; longer output is cut.
std::string FormatBoundedV(std::size_t capacity, const char* format, va_list arguments)
    __attribute__((format(printf, 2, 0)));

// Formats with a format taken from the string table. Those formats are texts
// of our own resources, so they are trusted like literals; the caller passes
// the arguments the string's placeholders name. The format is a plain
// pointer: the last named parameter before "..." must not be a reference.
std::string FormatResource(const char* format, ...);
