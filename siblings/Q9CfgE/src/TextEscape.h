#pragma once

// Quoted texts of the store format: "..." with the escapes \\ \" \n \r \t
// and \xHH; every other byte stands for itself. A text never holds a NUL,
// since the store hands texts out NUL-terminated.

#include <string>
#include <string_view>

namespace cfge {

class TextEscape {
public:
    // Appends text quoted and escaped to *out. Control bytes other than
    // \n \r \t are written as \xHH; bytes from 0x80 up pass through.
    static void AppendQuoted(std::string_view text, std::string* out);

    // Reads a quoted text at the start of quoted (which must begin with '"')
    // into *out and sets *consumed to its length including both quotes.
    // False with *message for a missing end quote, an unknown escape or \x00.
    static bool Unquote(std::string_view quoted, size_t* consumed, std::string* out,
                        std::string* message);
};

}  // namespace cfge
