#include "MailMessage.h"

#include <QStringList>

namespace q9msgflt {

MailMessage MailMessage::Parse(const QString& text) {
    MailMessage message;
    const QStringList lines = QString(text).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    QString name;
    QString value;
    qsizetype index = 0;
    for (; index < lines.size() && !lines[index].isEmpty(); ++index) {
        const QString& line = lines[index];
        if ((line.front() == QLatin1Char(' ') || line.front() == QLatin1Char('\t')) &&
            !name.isEmpty()) {
            value += QLatin1Char(' ') + line.trimmed();
            continue;
        }
        message.AddHeader(name, value);
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        name = colon > 0 ? line.left(colon).trimmed().toLower() : QString();
        value = colon > 0 ? line.mid(colon + 1).trimmed() : QString();
    }
    message.AddHeader(name, value);
    if (index < lines.size()) message.m_body = lines.mid(index + 1).join(QLatin1Char('\n'));
    return message;
}

QString MailMessage::Field(MailField field) const {
    switch (field) {
        case MailField::Sender:
            return m_sender;
        case MailField::Recipient:
            return m_recipient;
        case MailField::Subject:
            return m_subject;
        case MailField::Body:
            return m_body;
    }
    return {};
}

void MailMessage::AddHeader(const QString& name, const QString& value) {
    if (name == QLatin1String("from")) {
        m_sender = value;
    } else if (name == QLatin1String("subject")) {
        m_subject = value;
    } else if (name == QLatin1String("to") || name == QLatin1String("cc")) {
        if (!m_recipient.isEmpty()) m_recipient += QLatin1String(", ");
        m_recipient += value;
    }
}

}  // namespace q9msgflt
