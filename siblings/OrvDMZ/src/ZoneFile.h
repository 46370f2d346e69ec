#pragma once

// The text form of the zone, made to be read by people:
//
//   OrvDMZ Zone 1
//   [Q9Pro2004]
//   record=1,0x00000102,"/home/user/private"
//
// A first line naming the format, then for each owner a group line with its
// tag in square brackets followed by one line per record: in-use value
// (decimal), flags word (hexadecimal), and the path in double quotes, in
// which a backslash, a double quote and every byte below 0x20 or equal to
// 0x7F are written as \\, \" and \xHH. Blank lines and lines starting with
// '#' are ignored when reading; an owner may appear in several groups.

#include <optional>
#include <string>
#include <string_view>

#include "ZoneContent.h"

namespace orvdmz {

class ZoneFile {
public:
    static constexpr std::string_view kFirstLine = "OrvDMZ Zone 1";

    // The content of text; null with *error telling the line and the reason
    // when text is not in this format. Empty or blank text is refused: the
    // writer always writes the first line.
    static std::optional<ZoneContent> Parse(std::string_view text, std::string* error);

    static std::string Format(const ZoneContent& content);

private:
    static std::optional<ZoneRecord> ParseRecord(std::string_view value);
    static std::optional<std::string> ParseQuoted(std::string_view quoted);
    static std::string Quote(const std::string& path);
};

}  // namespace orvdmz
