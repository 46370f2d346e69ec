#include "RuleLabels.h"

namespace q9msgflt {

QString RuleLabels::Of(MailField field) {
    switch (field) {
        case MailField::Sender:
            return QStringLiteral("Sender");
        case MailField::Recipient:
            return QStringLiteral("Recipient");
        case MailField::Subject:
            return QStringLiteral("Subject");
        case MailField::Body:
            return QStringLiteral("Body");
    }
    return {};
}

QString RuleLabels::Of(RuleAction action) {
    switch (action) {
        case RuleAction::MarkAsSpam:
            return QStringLiteral("Mark as spam");
        case RuleAction::Delete:
            return QStringLiteral("Delete");
        case RuleAction::LetThrough:
            return QStringLiteral("Let through");
    }
    return {};
}

}  // namespace q9msgflt
