#pragma once

#include <QString>
#include <QStringList>

namespace q9msgflt {

class MailMessage;

// The mail fields a rule can look at.
enum class MailField { Sender, Recipient, Subject, Body };

// What happens to a mail a rule matches; the numbers are the results of
// PFN_ApplyRules.
enum class RuleAction { MarkAsSpam = 1, Delete = 2, LetThrough = 3 };

struct SpamRule {
    QString name;
    MailField field = MailField::Subject;
    QStringList words;
    RuleAction action = RuleAction::MarkAsSpam;
    bool enabled = true;

    // Whether the rule's field of message contains any of its words, without
    // regard to case. Whether the rule is on is not looked at.
    bool Matches(const MailMessage& message) const;

    // The words of a comma-separated text, trimmed, empty ones dropped.
    static QStringList WordsOf(const QString& text);

    bool operator==(const SpamRule&) const = default;
};

}  // namespace q9msgflt
