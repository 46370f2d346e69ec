// A mail message as a mail client hands it to PFN_ApplyRules: the address
// of a NUL-terminated text, read as UTF-8. The reader cannot be told the
// text's length, so it is given the input followed by a NUL; it reads up to
// the first NUL and never past that buffer. Header fields hold no line end
// and no field keeps a carriage return; a rule on a field's own text
// matches.

#include <QString>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "Q9MsgFlt/src/MailMessage.h"
#include "Q9MsgFlt/src/SpamRule.h"
#include "support/FuzzCheck.h"

namespace {

using q9msgflt::MailField;
using q9msgflt::MailMessage;

void CheckField(const MailMessage& message, MailField field) {
    const QString text = message.Field(field);
    fuzz::Check(!text.contains(QLatin1Char('\r')), "no field keeps a carriage return");
    if (field != MailField::Body) {
        fuzz::Check(!text.contains(QLatin1Char('\n')), "a header field holds no line end");
    }
    if (text.trimmed().isEmpty() || text.contains(QLatin1Char(','))) return;
    q9msgflt::SpamRule rule;
    rule.field = field;
    rule.words = q9msgflt::SpamRule::WordsOf(text);
    fuzz::Check(rule.Matches(message), "a rule on a field's own text matches");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<char> text(data, data + size);
    text.push_back('\0');
    const MailMessage message = MailMessage::Parse(QString::fromUtf8(text.data()));
    for (const MailField field :
         {MailField::Sender, MailField::Recipient, MailField::Subject, MailField::Body}) {
        CheckField(message, field);
    }
    return 0;
}
