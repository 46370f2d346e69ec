#pragma once

// The text form of a rule set, made to be read and edited by people:
//
//   Q9MsgFlt Rules 1
//
//   [Rule]
//   Name=Lottery winners
//   Field=Subject
//   Words=lottery, you have won
//   Action=Spam
//   Enabled=Yes
//
// A first line naming the format, then one [Rule] group per rule, in order,
// each with the five keys once: Field is Sender, Recipient, Subject or
// Body; Words is a comma-separated list (so a word holds no comma; spaces
// around each word are dropped); Action is Spam, Delete or Pass; Enabled is
// Yes or No. Keys and keywords are read without regard to case; blank lines
// and lines starting with '#' are ignored. Text is UTF-8; control
// characters in a name or a word are read and written as spaces.

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "SpamRule.h"

namespace q9msgflt {

class RuleFile {
public:
    static constexpr const char* kFileName = "Q9MsgFlt.rules";

    // The rules of text; null with *error telling the line and the reason
    // when text is not in this format. Empty or blank text is refused: the
    // writer always writes the first line.
    static std::optional<std::vector<SpamRule>> Parse(const QString& text, QString* error);

    static QString Format(const std::vector<SpamRule>& rules);

    // The rules of the file at path; none when it does not exist. Null when
    // it cannot be read or parsed: reported, and the file is left alone.
    static std::optional<std::vector<SpamRule>> Load(const std::string& path);

    // Replaces the file at path atomically; false (reported) on failure.
    static bool Save(const std::string& path, const std::vector<SpamRule>& rules);
};

}  // namespace q9msgflt
