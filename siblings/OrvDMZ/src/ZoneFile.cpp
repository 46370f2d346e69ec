#include "ZoneFile.h"

#include <charconv>
#include <cstdio>
#include <vector>

#include "OrvDMZ.h"
#include "OwnerTags.h"

namespace orvdmz {
namespace {

constexpr std::string_view kRecordKey = "record=";

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        lines.push_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return lines;
}

// A whole text as an unsigned number of the given base, without sign.
std::optional<uint32_t> ParseNumber(std::string_view text, int base) {
    uint32_t value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, base);
    if (text.empty() || result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

std::optional<int> HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return std::nullopt;
}

bool IsValidPath(const std::string& path) {
    return !path.empty() && path.size() <= ORVDMZ_MAX_PATH && path.find('\0') == std::string::npos;
}

}  // namespace

std::optional<ZoneContent> ZoneFile::Parse(std::string_view text, std::string* error) {
    ZoneContent content;
    bool seenFirstLine = false;
    std::optional<std::string> owner;
    const auto lines = SplitLines(text);
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::string_view line = Trim(lines[index]);
        if (line.empty() || line.front() == '#') continue;
        const auto fail = [&](const std::string& reason) {
            if (error) *error = "line " + std::to_string(index + 1) + ": " + reason;
            return std::nullopt;
        };
        if (!seenFirstLine) {
            if (line != kFirstLine) return fail("not an OrvDMZ zone file");
            seenFirstLine = true;
        } else if (line.front() == '[') {
            if (line.size() < 2 || line.back() != ']') return fail("bad owner line");
            const std::string_view tag = line.substr(1, line.size() - 2);
            if (!OwnerTags::IsValidTag(tag)) return fail("bad owner tag");
            owner = std::string(tag);
        } else if (line.starts_with(kRecordKey)) {
            if (!owner) return fail("record before any owner line");
            const auto record = ParseRecord(line.substr(kRecordKey.size()));
            if (!record) return fail("bad record");
            content.Append(*owner, {*record});
        } else {
            return fail("unknown line");
        }
    }
    // The zone's writer always writes the first line: a file without one was
    // emptied by something else.
    if (!seenFirstLine) {
        if (error) *error = "line 1: the file holds no first line";
        return std::nullopt;
    }
    return content;
}

std::string ZoneFile::Format(const ZoneContent& content) {
    std::string text(kFirstLine);
    text += '\n';
    for (const auto& group : content.Groups()) {
        text += '[' + group.owner + "]\n";
        for (const auto& record : group.records) {
            char numbers[40];
            std::snprintf(numbers, sizeof numbers, "record=%u,0x%08X,", record.inUse, record.flags);
            text += numbers + Quote(record.path) + '\n';
        }
    }
    return text;
}

// "<in use>,0x<flags>,"<path>"".
std::optional<ZoneRecord> ZoneFile::ParseRecord(std::string_view value) {
    const auto firstComma = value.find(',');
    if (firstComma == std::string_view::npos) return std::nullopt;
    const auto secondComma = value.find(',', firstComma + 1);
    if (secondComma == std::string_view::npos) return std::nullopt;
    const std::string_view flagsText = value.substr(firstComma + 1, secondComma - firstComma - 1);
    if (!flagsText.starts_with("0x") && !flagsText.starts_with("0X")) return std::nullopt;
    const auto inUse = ParseNumber(value.substr(0, firstComma), 10);
    const auto flags = ParseNumber(flagsText.substr(2), 16);
    auto path = ParseQuoted(value.substr(secondComma + 1));
    if (!inUse || !flags || !path || !IsValidPath(*path)) return std::nullopt;
    return ZoneRecord{*inUse, *flags, std::move(*path)};
}

std::optional<std::string> ZoneFile::ParseQuoted(std::string_view quoted) {
    if (quoted.size() < 2 || quoted.front() != '"' || quoted.back() != '"') return std::nullopt;
    const std::string_view inner = quoted.substr(1, quoted.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < inner.size(); ++i) {
        if (inner[i] == '"') return std::nullopt;
        if (inner[i] != '\\') {
            text += inner[i];
            continue;
        }
        if (i + 1 >= inner.size()) return std::nullopt;
        const char kind = inner[++i];
        if (kind == '\\' || kind == '"') {
            text += kind;
        } else if (kind == 'x' && i + 2 < inner.size()) {
            const auto high = HexDigit(inner[i + 1]);
            const auto low = HexDigit(inner[i + 2]);
            if (!high || !low) return std::nullopt;
            text += static_cast<char>(*high * 16 + *low);
            i += 2;
        } else {
            return std::nullopt;
        }
    }
    return text;
}

std::string ZoneFile::Quote(const std::string& path) {
    std::string quoted = "\"";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\\' || c == '"') {
            quoted += '\\';
            quoted += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02X", byte);
            quoted += escape;
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

}  // namespace orvdmz
