#include "TextEscape.h"

namespace cfge {
namespace {

constexpr char kHexDigits[] = "0123456789abcdef";

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// The byte that the escape at quoted[*position] (just after the backslash)
// stands for; advances *position past it. -1 for an unknown escape.
int Unescape(std::string_view quoted, size_t* position) {
    const char c = quoted[(*position)++];
    switch (c) {
        case '\\': return '\\';
        case '"': return '"';
        case 'n': return '\n';
        case 'r': return '\r';
        case 't': return '\t';
        case 'x': {
            if (*position + 2 > quoted.size()) return -1;
            const int high = HexDigit(quoted[*position]);
            const int low = HexDigit(quoted[*position + 1]);
            if (high < 0 || low < 0) return -1;
            *position += 2;
            return high << 4 | low;
        }
        default: return -1;
    }
}

bool NeedsEscape(unsigned char byte) {
    return byte < 0x20 || byte == 0x7f || byte == '\\' || byte == '"';
}

void AppendEscaped(char c, std::string* out) {
    switch (c) {
        case '\\': out->append("\\\\"); break;
        case '"': out->append("\\\""); break;
        case '\n': out->append("\\n"); break;
        case '\r': out->append("\\r"); break;
        case '\t': out->append("\\t"); break;
        default: {
            const auto byte = static_cast<unsigned char>(c);
            const char escape[] = {'\\', 'x', kHexDigits[byte >> 4], kHexDigits[byte & 0xf]};
            out->append(escape, sizeof escape);
        }
    }
}

}  // namespace

// Runs of bytes that need no escape are appended at once.
void TextEscape::AppendQuoted(std::string_view text, std::string* out) {
    out->push_back('"');
    size_t start = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (!NeedsEscape(static_cast<unsigned char>(text[i]))) continue;
        out->append(text.data() + start, i - start);
        AppendEscaped(text[i], out);
        start = i + 1;
    }
    out->append(text.data() + start, text.size() - start);
    out->push_back('"');
}

bool TextEscape::Unquote(std::string_view quoted, size_t* consumed, std::string* out,
                         std::string* message) {
    out->clear();
    size_t position = 1;
    while (position < quoted.size()) {
        const char c = quoted[position++];
        if (c == '"') {
            *consumed = position;
            return true;
        }
        if (c == '\0') {
            *message = "a text cannot hold a NUL byte";
            return false;
        }
        if (c != '\\') {
            out->push_back(c);
            continue;
        }
        const int byte = position < quoted.size() ? Unescape(quoted, &position) : -1;
        if (byte < 0) {
            *message = "unknown escape in a text";
            return false;
        }
        if (byte == 0) {
            *message = "a text cannot hold \\x00";
            return false;
        }
        out->push_back(static_cast<char>(byte));
    }
    *message = "a text without its closing quote";
    return false;
}

}  // namespace cfge
