#include "platform/RegistryHive.h"

#include <algorithm>
#include <utility>

#include "platform/Registry.h"

namespace platform {
namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
// Hex lists are wrapped so that no line is longer than this (the first line
// may be longer when the value name alone is).
constexpr size_t kMaxLineWidth = 80;

char FoldCase(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           RegistryHive::NamesEqual(text.substr(0, prefix.size()), prefix);
}

int HexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// One to eight hex digits, nothing else.
bool ParseHexNumber(std::string_view digits, uint32_t* value) {
    if (digits.empty() || digits.size() > 8) return false;
    uint32_t result = 0;
    for (char c : digits) {
        const int digit = HexDigitValue(c);
        if (digit < 0) return false;
        result = result << 4 | static_cast<uint32_t>(digit);
    }
    *value = result;
    return true;
}

// The lines of the text, numbered from 1, each without its line end (LF or
// CRLF).
struct LineCursor {
    std::string_view text;
    size_t position = 0;
    int number = 0;

    bool Next(std::string_view* line) {
        if (position >= text.size()) return false;
        size_t end = text.find('\n', position);
        if (end == std::string_view::npos) end = text.size();
        *line = text.substr(position, end - position);
        if (!line->empty() && line->back() == '\r') line->remove_suffix(1);
        position = end + 1;
        ++number;
        return true;
    }
};

// A quoted string starting at text[*position] == '"'; only \" and \\ are
// escapes. *position ends after the closing quote.
bool ParseQuoted(std::string_view text, size_t* position, std::string* out, std::string* message) {
    out->clear();
    size_t i = *position + 1;
    while (true) {
        const size_t special = text.find_first_of("\"\\", i);
        if (special == std::string_view::npos) {
            *message = "unterminated quoted string";
            return false;
        }
        out->append(text.substr(i, special - i));
        if (text[special] == '"') {
            *position = special + 1;
            return true;
        }
        if (special + 1 >= text.size() || (text[special + 1] != '\\' && text[special + 1] != '"')) {
            *message = "bad escape in a quoted string (only \\\" and \\\\ are allowed)";
            return false;
        }
        out->push_back(text[special + 1]);
        i = special + 2;
    }
}

// "00,01,ff": comma-separated bytes of one or two hex digits, blanks allowed
// around them; may be empty.
bool ParseHexList(std::string_view list, std::string* bytes) {
    bytes->clear();
    bytes->reserve(list.size() / 3 + 1);
    if (Trim(list).empty()) return true;
    size_t i = 0;
    while (true) {
        while (i < list.size() && IsBlank(list[i])) ++i;
        int value = 0;
        size_t digits = 0;
        while (i < list.size() && digits < 3 && HexDigitValue(list[i]) >= 0) {
            value = value * 16 + HexDigitValue(list[i++]);
            ++digits;
        }
        if (digits == 0 || digits > 2) return false;
        bytes->push_back(static_cast<char>(value));
        while (i < list.size() && IsBlank(list[i])) ++i;
        if (i == list.size()) return true;
        if (list[i++] != ',') return false;
    }
}

// The rest of a hex list: lines ending in '\' continue on the next line.
bool CollectHexList(std::string_view first, LineCursor& cursor, std::string* list,
                    std::string* message) {
    std::string_view part = Trim(first);
    list->clear();
    while (!part.empty() && part.back() == '\\') {
        part.remove_suffix(1);
        list->append(part);
        std::string_view next;
        if (!cursor.Next(&next)) {
            *message = "the file ends inside a continued hex list";
            return false;
        }
        part = Trim(next);
    }
    list->append(part);
    return true;
}

// "hex:" or "hex(N):" (N in hex) followed by the byte list.
bool ParseHexData(std::string_view data, LineCursor& cursor, uint32_t* type, std::string* bytes,
                  std::string* message) {
    size_t listStart = 0;
    if (StartsWithIgnoringCase(data, "hex:")) {
        *type = kRegBinary;
        listStart = 4;
    } else {
        const size_t close = data.find(')');
        if (close == std::string_view::npos || close + 1 >= data.size() || data[close + 1] != ':' ||
            !ParseHexNumber(data.substr(4, close - 4), type)) {
            *message = "bad value type; expected hex: or hex(N):";
            return false;
        }
        listStart = close + 2;
    }
    std::string list;
    if (!CollectHexList(data.substr(listStart), cursor, &list, message)) return false;
    if (!ParseHexList(list, bytes)) {
        *message = "bad hex byte list";
        return false;
    }
    return true;
}

bool ParseDwordData(std::string_view digits, std::string* bytes, std::string* message) {
    uint32_t value = 0;
    if (!ParseHexNumber(digits, &value)) {
        *message = "bad dword; expected up to 8 hex digits";
        return false;
    }
    bytes->clear();
    for (int i = 0; i < 4; ++i) bytes->push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
    return true;
}

// Everything right of '=' in a value line.
bool ParseData(std::string_view data, LineCursor& cursor, uint32_t* type, std::string* bytes,
               std::string* message) {
    if (data == "-") {
        *message = "value deletion (=-) has no place in a hive";
        return false;
    }
    if (!data.empty() && data.front() == '"') {
        size_t position = 0;
        if (!ParseQuoted(data, &position, bytes, message)) return false;
        if (!Trim(data.substr(position)).empty()) {
            *message = "unexpected text after a quoted string";
            return false;
        }
        bytes->push_back('\0');
        *type = kRegSz;
        return true;
    }
    if (StartsWithIgnoringCase(data, "dword:")) {
        *type = kRegDword;
        return ParseDwordData(data.substr(6), bytes, message);
    }
    if (StartsWithIgnoringCase(data, "hex:") || StartsWithIgnoringCase(data, "hex(")) {
        return ParseHexData(data, cursor, type, bytes, message);
    }
    *message = "bad value data; expected a quoted string, dword: or hex";
    return false;
}

// A line "name"=data or @=data. A name that occurs twice in one key keeps
// its first place and takes the last data.
bool ParseValueLine(std::string_view line, LineCursor& cursor, RegistryHive::Key& key,
                    std::string* message) {
    std::string name;
    size_t position = 1;
    if (line.front() == '"') {
        position = 0;
        if (!ParseQuoted(line, &position, &name, message)) return false;
    } else if (line.front() != '@') {
        *message = "expected a key section [...], a value \"name\"=... or @=...";
        return false;
    }
    const std::string_view rest = Trim(line.substr(position));
    if (rest.empty() || rest.front() != '=') {
        *message = "expected '=' after the value name";
        return false;
    }
    uint32_t type = 0;
    std::string bytes;
    if (!ParseData(Trim(rest.substr(1)), cursor, &type, &bytes, message)) return false;
    key.SetValue(name, type, std::move(bytes));
    return true;
}

// A line "[ROOT\path]"; makes the key (and its parents) the current one.
bool ParseSection(std::string_view line, RegistryHive& hive, RegistryHive::Key** current,
                  std::string* message) {
    if (line.back() != ']') {
        *message = "a key section must end with ']'";
        return false;
    }
    const std::string_view inside = line.substr(1, line.size() - 2);
    if (!inside.empty() && inside.front() == '-') {
        *message = "key deletion [-...] has no place in a hive";
        return false;
    }
    RegistryHive::KeyPath path = RegistryHive::SplitPath(inside);
    if (path.empty() || !RegistryHive::NamesEqual(path.front(), hive.RootName())) {
        *message = "the key is not below " + hive.RootName();
        return false;
    }
    path.erase(path.begin());
    bool created = false;
    *current = &hive.CreateKey(path, &created);
    return true;
}

// Data of a string value that can be written as a quoted string on one line
// and read back to the same bytes.
bool IsQuotable(const RegistryHive::Value& value) {
    const std::string& data = value.data;
    if (value.type != kRegSz || data.empty() || data.back() != '\0') return false;
    return data.find_first_of(std::string_view("\0\r\n", 3)) == data.size() - 1;
}

void AppendQuoted(std::string& out, std::string_view text) {
    out.push_back('"');
    while (!text.empty()) {
        const size_t special = std::min(text.find_first_of("\"\\"), text.size());
        out.append(text.substr(0, special));
        if (special == text.size()) break;
        const char escaped[2] = {'\\', text[special]};
        out.append(escaped, 2);
        text.remove_prefix(special + 1);
    }
    out.push_back('"');
}

constexpr std::string_view kHexDigits = "0123456789abcdef";

void AppendHexByte(std::string& out, unsigned char byte) {
    const char digits[2] = {kHexDigits[byte >> 4], kHexDigits[byte & 0x0F]};
    out.append(digits, 2);
}

// The byte list after "hex:" on a line that started at lineStart; long lists
// continue on lines indented by two spaces, each but the last ending in ",\".
void AppendHexList(std::string& out, size_t lineStart, std::string_view bytes) {
    size_t column = out.size() - lineStart;
    for (size_t i = 0; i < bytes.size(); ++i) {
        const bool last = i + 1 == bytes.size();
        // A byte that is not the last takes "xx," and may need room for a '\'.
        if (i > 0 && column + (last ? 2 : 4) > kMaxLineWidth) {
            out.append("\\\n  ", 4);
            column = 2;
        }
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const char item[3] = {kHexDigits[byte >> 4], kHexDigits[byte & 0x0F], ','};
        out.append(item, last ? 2 : 3);
        column += 3;
    }
}

void AppendTypeTag(std::string& out, uint32_t type) {
    if (type == kRegBinary) {
        out += "hex:";
        return;
    }
    out += "hex(";
    std::string digits;
    do {
        digits.insert(digits.begin(), kHexDigits[type & 0x0F]);
        type >>= 4;
    } while (type != 0);
    out += digits + "):";
}

void AppendDword(std::string& out, std::string_view bytes) {
    out += "dword:";
    for (size_t i = 4; i-- > 0;) AppendHexByte(out, static_cast<unsigned char>(bytes[i]));
}

void AppendValue(std::string& out, const RegistryHive::Value& value) {
    const size_t lineStart = out.size();
    if (value.name.empty()) {
        out.push_back('@');
    } else {
        AppendQuoted(out, value.name);
    }
    out.push_back('=');
    if (IsQuotable(value)) {
        AppendQuoted(out, std::string_view(value.data).substr(0, value.data.size() - 1));
    } else if (value.type == kRegDword && value.data.size() == 4) {
        AppendDword(out, value.data);
    } else {
        AppendTypeTag(out, value.type);
        AppendHexList(out, lineStart, value.data);
    }
    out.push_back('\n');
}

void AppendSection(std::string& out, const std::string& sectionPath, const RegistryHive::Key& key) {
    out += "[" + sectionPath + "]\n";
    for (const RegistryHive::Value& value : key.values) AppendValue(out, value);
    out.push_back('\n');
}

void AppendSubkeys(std::string& out, const std::string& parentPath,
                   const RegistryHive::Key& parent) {
    for (const RegistryHive::Key& key : parent.subkeys) {
        const std::string path = parentPath + "\\" + key.name;
        AppendSection(out, path, key);
        AppendSubkeys(out, path, key);
    }
}

bool SortsBefore(const RegistryHive::Key& key, std::string_view keyName) {
    return RegistryHive::CompareNames(key.name, keyName) < 0;
}

size_t TextSizeEstimate(const RegistryHive::Key& key) {
    size_t size = key.name.size() + 64;
    for (const RegistryHive::Value& value : key.values) {
        size += value.name.size() + 3 * value.data.size() + 32;
    }
    for (const RegistryHive::Key& subkey : key.subkeys) size += TextSizeEstimate(subkey);
    return size;
}

}  // namespace

const RegistryHive::Value* RegistryHive::Key::FindValue(std::string_view valueName) const {
    for (const Value& value : values) {
        if (NamesEqual(value.name, valueName)) return &value;
    }
    return nullptr;
}

void RegistryHive::Key::SetValue(std::string_view valueName, uint32_t type, std::string data) {
    for (Value& value : values) {
        if (NamesEqual(value.name, valueName)) {
            value.type = type;
            value.data = std::move(data);
            return;
        }
    }
    values.push_back(Value{std::string(valueName), type, std::move(data)});
}

bool RegistryHive::Key::DeleteValue(std::string_view valueName) {
    const auto found = std::find_if(values.begin(), values.end(), [&](const Value& value) {
        return NamesEqual(value.name, valueName);
    });
    if (found == values.end()) return false;
    values.erase(found);
    return true;
}

const RegistryHive::Key* RegistryHive::Key::FindSubkey(std::string_view keyName) const {
    const auto found = std::lower_bound(subkeys.begin(), subkeys.end(), keyName, SortsBefore);
    if (found == subkeys.end() || !NamesEqual(found->name, keyName)) return nullptr;
    return &*found;
}

RegistryHive::Key* RegistryHive::Key::FindSubkey(std::string_view keyName) {
    return const_cast<Key*>(std::as_const(*this).FindSubkey(keyName));
}

RegistryHive::Key& RegistryHive::Key::AddSubkey(std::string_view keyName, bool* created) {
    const auto place = std::lower_bound(subkeys.begin(), subkeys.end(), keyName, SortsBefore);
    if (place != subkeys.end() && NamesEqual(place->name, keyName)) return *place;
    *created = true;
    Key key;
    key.name = std::string(keyName);
    return *subkeys.insert(place, std::move(key));
}

bool RegistryHive::Key::DeleteSubkey(std::string_view keyName) {
    const Key* key = FindSubkey(keyName);
    if (!key) return false;
    subkeys.erase(subkeys.begin() + (key - subkeys.data()));
    return true;
}

RegistryHive::RegistryHive(std::string rootName) : m_rootName(std::move(rootName)) {
    m_root.name = m_rootName;
}

const RegistryHive::Key* RegistryHive::FindKey(const KeyPath& path, KeyPath* canonical) const {
    if (canonical) canonical->clear();
    const Key* key = &m_root;
    for (const std::string& name : path) {
        key = key->FindSubkey(name);
        if (!key) return nullptr;
        if (canonical) canonical->push_back(key->name);
    }
    return key;
}

RegistryHive::Key* RegistryHive::FindKey(const KeyPath& path) {
    return const_cast<Key*>(std::as_const(*this).FindKey(path));
}

RegistryHive::Key& RegistryHive::CreateKey(const KeyPath& path, bool* created, KeyPath* canonical) {
    *created = false;
    if (canonical) canonical->clear();
    Key* key = &m_root;
    for (const std::string& name : path) {
        key = &key->AddSubkey(name, created);
        if (canonical) canonical->push_back(key->name);
    }
    return *key;
}

bool RegistryHive::RemoveKey(const KeyPath& path) {
    if (path.empty()) return false;
    Key* parent = FindKey(KeyPath(path.begin(), path.end() - 1));
    return parent && parent->DeleteSubkey(path.back());
}

bool RegistryHive::Parse(std::string_view text, ParseError* error) {
    m_root = Key();
    m_root.name = m_rootName;
    if (text.substr(0, kUtf8Bom.size()) == kUtf8Bom) text.remove_prefix(kUtf8Bom.size());
    LineCursor cursor{text};
    std::string_view line;
    std::string message;
    bool parsed = cursor.Next(&line) && line == kFileHeader;
    if (!parsed) message = "the first line must be \"" + std::string(kFileHeader) + "\"";
    Key* current = nullptr;
    while (parsed && cursor.Next(&line)) {
        line = Trim(line);
        if (line.empty()) continue;
        if (line.front() == '[') {
            parsed = ParseSection(line, *this, &current, &message);
        } else if (!current) {
            message = "a value outside a key section";
            parsed = false;
        } else {
            const int start = cursor.number;
            parsed = ParseValueLine(line, cursor, *current, &message);
            if (!parsed) cursor.number = start;
        }
    }
    if (parsed) return true;
    error->line = std::max(cursor.number, 1);
    error->message = message;
    m_root = Key();
    m_root.name = m_rootName;
    return false;
}

std::string RegistryHive::ToText() const {
    std::string out;
    out.reserve(TextSizeEstimate(m_root));
    out += kFileHeader;
    out += "\n\n";
    if (!m_root.values.empty()) AppendSection(out, m_rootName, m_root);
    AppendSubkeys(out, m_rootName, m_root);
    return out;
}

RegistryHive::KeyPath RegistryHive::SplitPath(std::string_view path) {
    KeyPath parts;
    size_t start = 0;
    while (start <= path.size()) {
        size_t end = path.find('\\', start);
        if (end == std::string_view::npos) end = path.size();
        if (end > start) parts.emplace_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

std::string RegistryHive::JoinPath(const KeyPath& path) {
    std::string joined;
    for (const std::string& name : path) {
        if (!joined.empty()) joined.push_back('\\');
        joined += name;
    }
    return joined;
}

bool RegistryHive::NamesEqual(std::string_view a, std::string_view b) {
    return a.size() == b.size() && CompareNames(a, b) == 0;
}

int RegistryHive::CompareNames(std::string_view a, std::string_view b) {
    const size_t common = std::min(a.size(), b.size());
    for (size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(FoldCase(a[i]));
        const auto y = static_cast<unsigned char>(FoldCase(b[i]));
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

}  // namespace platform
