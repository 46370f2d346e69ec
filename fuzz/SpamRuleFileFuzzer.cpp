// The spam filter's rules file (Q9MsgFlt.rules), which people edit by hand:
// the input is the file's bytes, read as UTF-8 as the filter reads them.
// Whatever the bytes, the parser answers without fault; a text it refuses
// names a line; rules it accepts are formatted as a text that reads back to
// the same rules.

#include <QString>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Q9MsgFlt/src/RuleFile.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using q9msgflt::RuleFile;
    const std::string bytes(fuzz::AsText(data, size));
    QString error;
    const auto rules = RuleFile::Parse(QString::fromStdString(bytes), &error);
    if (!rules) {
        fuzz::Check(error.startsWith(QStringLiteral("line ")), "a refusal names a line");
        return 0;
    }
    // Saved and loaded again as the filter does: through UTF-8 bytes.
    const std::string saved = RuleFile::Format(*rules).toStdString();
    const auto again = RuleFile::Parse(QString::fromStdString(saved), &error);
    fuzz::Check(again.has_value(), "the formatted text is read back");
    fuzz::Check(*again == *rules, "the formatted text reads back to the same rules");
    return 0;
}
