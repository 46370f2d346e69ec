#include "StoreParser.h"

#include <limits>

#include "KeyNames.h"
#include "Q9CfgE.h"
#include "TextEscape.h"

namespace cfge {
namespace {

constexpr std::string_view kBom = "\xEF\xBB\xBF";
constexpr std::string_view kRecordName = "record";
// The record header (size, kind, flag) and the text's NUL must fit a 16-bit size.
constexpr size_t kMaximumRecordText = std::numeric_limits<uint16_t>::max() - 5;

std::string_view Trim(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (size_t i = 0; i < prefix.size(); ++i) {
        const char c = text[i];
        const char lower = (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
        if (lower != prefix[i]) return false;
    }
    return true;
}

std::optional<uint32_t> ParseHex(std::string_view digits) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    uint32_t value = 0;
    for (const char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0) return std::nullopt;
        value = value << 4 | static_cast<uint32_t>(digit);
    }
    return value;
}

bool IsBase64(std::string_view text) {
    if (text.empty()) return false;
    for (const char c : text) {
        const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (!letter && !IsDigit(c) && c != '+' && c != '/' && c != '=') return false;
    }
    return true;
}

// A quoted text that must fill the rest of the line.
bool ParseWholeQuoted(std::string_view text, std::string* out, std::string* message) {
    size_t consumed = 0;
    if (!TextEscape::Unquote(text, &consumed, out, message)) return false;
    if (!Trim(text.substr(consumed)).empty()) {
        *message = "unexpected characters after the closing quote";
        return false;
    }
    return true;
}

bool ParseValue(std::string_view text, StoreValue* value, std::string* message) {
    if (StartsWithIgnoringCase(text, "dword:")) {
        const std::optional<uint32_t> word = ParseHex(text.substr(6));
        if (!word) {
            *message = "a dword needs 1 to 8 hex digits";
            return false;
        }
        value->type = ValueType::Dword;
        value->word = *word;
        return true;
    }
    if (StartsWithIgnoringCase(text, "enc:")) {
        if (!IsBase64(text.substr(4))) {
            *message = "an enciphered value needs base64 text";
            return false;
        }
        value->type = ValueType::Sealed;
        value->text = std::string(text.substr(4));
        return true;
    }
    if (!text.empty() && text.front() == '"') {
        value->type = ValueType::Text;
        return ParseWholeQuoted(text, &value->text, message);
    }
    *message = "a value is dword:, enc: or a quoted text";
    return false;
}

std::optional<uint32_t> ParseSectionName(std::string_view name) {
    if (!name.empty() && IsDigit(name.front())) return StoreParser::ParseNumber(name);
    return KeyNames::SectionByName(name);
}

std::optional<uint32_t> ParseKeyName(std::string_view name) {
    if (!name.empty() && IsDigit(name.front())) return StoreParser::ParseNumber(name);
    return KeyNames::KeyByName(name);
}

// A decimal or hex number from 0 to 255 followed by a comma; the rest is
// left in *text.
std::optional<uint8_t> TakeByte(std::string_view* text) {
    const size_t comma = text->find(',');
    if (comma == std::string_view::npos) return std::nullopt;
    const std::optional<uint32_t> number = StoreParser::ParseNumber(Trim(text->substr(0, comma)));
    text->remove_prefix(comma + 1);
    if (!number || *number > 255) return std::nullopt;
    return static_cast<uint8_t>(*number);
}

}  // namespace

std::optional<uint32_t> StoreParser::ParseNumber(std::string_view text) {
    if (StartsWithIgnoringCase(text, "0x")) return ParseHex(text.substr(2));
    if (text.empty() || text.size() > 10) return std::nullopt;
    uint64_t value = 0;
    for (const char c : text) {
        if (!IsDigit(c)) return std::nullopt;
        value = value * 10 + static_cast<uint64_t>(c - '0');
    }
    if (value > std::numeric_limits<uint32_t>::max()) return std::nullopt;
    return static_cast<uint32_t>(value);
}

bool StoreParser::Parse(std::string_view bytes, StoreData* data, ParseError* error) {
    // A store's writer always writes the first line: a file of no bytes was
    // emptied by something else and is not taken as a store without values.
    if (bytes.empty()) {
        error->line = 1;
        error->message = "the file is empty";
        *data = StoreData();
        return false;
    }
    if (bytes.substr(0, kBom.size()) == kBom) bytes.remove_prefix(kBom.size());
    StoreParser parser(data);
    size_t lineNumber = 0;
    while (!bytes.empty()) {
        const size_t end = bytes.find('\n');
        std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        ++lineNumber;
        std::string message;
        const bool understood = lineNumber == 1 ? (line == kHeader) : parser.ParseLine(line, &message);
        if (!understood) {
            error->line = lineNumber;
            error->message = lineNumber == 1 ? "the first line is not \"" + std::string(kHeader) + "\""
                                             : message;
            *data = StoreData();
            return false;
        }
    }
    return true;
}

bool StoreParser::ParseLine(std::string_view line, std::string* message) {
    line = Trim(line);
    if (line.empty() || line.front() == ';' || line.front() == '#') return true;
    if (line.front() == '[') return ParseSectionHeader(line, message);
    if (!m_section) {
        *message = "a value outside a section";
        return false;
    }
    return ParseValueLine(line, message);
}

bool StoreParser::ParseSectionHeader(std::string_view line, std::string* message) {
    if (line.back() != ']') {
        *message = "a section header must end with ']'";
        return false;
    }
    const std::string_view name = Trim(line.substr(1, line.size() - 2));
    const std::optional<uint32_t> section = ParseSectionName(name);
    if (!section || *section == Q9CFGE_ALL_SECTIONS) {
        *message = "unknown section \"" + std::string(name) + "\"";
        return false;
    }
    if (!m_seenSections.insert(*section).second) {
        *message = "section \"" + std::string(name) + "\" appears twice";
        return false;
    }
    m_section = section;
    return true;
}

bool StoreParser::ParseValueLine(std::string_view line, std::string* message) {
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        *message = "a line must be name=value";
        return false;
    }
    const std::string_view name = Trim(line.substr(0, equals));
    const std::string_view rest = Trim(line.substr(equals + 1));
    if (name.size() == kRecordName.size() && StartsWithIgnoringCase(name, kRecordName)) {
        return ParseRecord(rest, message);
    }
    const std::optional<uint32_t> key = ParseKeyName(name);
    if (!key || *key == Q9CFGE_KEY_OBJECT_LIST) {
        *message = "unknown key \"" + std::string(name) + "\"";
        return false;
    }
    if (m_data->Find(*m_section, *key)) {
        *message = "key \"" + std::string(name) + "\" appears twice in its section";
        return false;
    }
    StoreValue value;
    if (!ParseValue(rest, &value, message)) return false;
    m_data->Set(*m_section, *key, std::move(value));
    return true;
}

bool StoreParser::ParseRecord(std::string_view text, std::string* message) {
    StoreRecord record;
    const std::optional<uint8_t> kind = TakeByte(&text);
    const std::optional<uint8_t> flag = kind ? TakeByte(&text) : std::nullopt;
    if (!kind || !flag) {
        *message = "a record is record=<kind 0-255>,<byte 0-255>,\"<text>\"";
        return false;
    }
    record.kind = *kind;
    record.flag = *flag;
    if (!ParseWholeQuoted(Trim(text), &record.text, message)) return false;
    if (record.text.size() > kMaximumRecordText) {
        *message = "a record text is longer than 65530 bytes";
        return false;
    }
    const size_t count = m_data->Records(*m_section).size();
    return m_data->PutRecord(*m_section, count, std::move(record));
}

}  // namespace cfge
