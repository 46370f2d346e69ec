#include "SpamRule.h"

#include <algorithm>

#include "MailMessage.h"

namespace q9msgflt {

bool SpamRule::Matches(const MailMessage& message) const {
    const QString text = message.Field(field);
    return std::any_of(words.begin(), words.end(), [&](const QString& word) {
        return !word.isEmpty() && text.contains(word, Qt::CaseInsensitive);
    });
}

QStringList SpamRule::WordsOf(const QString& text) {
    QStringList words;
    for (const QString& word : text.split(QLatin1Char(','))) {
        if (!word.trimmed().isEmpty()) words << word.trimmed();
    }
    return words;
}

}  // namespace q9msgflt
