#include "text/TextFormat.h"

#include <cstdio>
#include <vector>

namespace {

std::string FormatUnboundedV(const char* format, va_list arguments)
    __attribute__((format(printf, 1, 0)));

std::string FormatUnboundedV(const char* format, va_list arguments) {
    va_list copy;
    va_copy(copy, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    if (length <= 0) return {};
    std::vector<char> buffer(static_cast<std::size_t>(length) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

}  // namespace

std::string FormatText(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string text = FormatUnboundedV(format, arguments);
    va_end(arguments);
    return text;
}

std::string FormatBoundedV(std::size_t capacity, const char* format, va_list arguments) {
    if (capacity == 0) return {};
    std::vector<char> buffer(capacity);
    const int length = std::vsnprintf(buffer.data(), capacity, format, arguments);
    if (length <= 0) return {};
    return std::string(buffer.data());
}

// The compiler cannot check a format that is not a literal; resource
// formats are trusted as the header says.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
std::string FormatResource(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::string text = FormatUnboundedV(format, arguments);
    va_end(arguments);
    return text;
}
#pragma GCC diagnostic pop

std::string TextOrEmpty(const char* text) { return text ? std::string(text) : std::string(); }
