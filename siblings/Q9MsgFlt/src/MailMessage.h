#pragma once

#include <QString>

#include "SpamRule.h"

namespace q9msgflt {

// The fields of a mail message that rules look at, taken from its text:
// header lines up to the first empty line (a line starting with a space or a
// tab continues the one before), then the body. Encoded words and MIME parts
// are not decoded: rules see the text as it is.
class MailMessage {
public:
    static MailMessage Parse(const QString& text);

    // Sender: From; recipient: To and Cc, joined by ", "; subject: Subject;
    // body: everything after the empty line.
    QString Field(MailField field) const;

private:
    void AddHeader(const QString& name, const QString& value);

    QString m_sender;
    QString m_recipient;
    QString m_subject;
    QString m_body;
};

}  // namespace q9msgflt
