#include "RuleFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <QStringList>
#include <array>
#include <cerrno>
#include <cstring>
#include <map>

#include "platform/AtomicFile.h"
#include "platform/ProblemReport.h"

namespace q9msgflt {
namespace {

const QString kFirstLine = QStringLiteral("Q9MsgFlt Rules 1");
const QString kGroupLine = QStringLiteral("[Rule]");
const std::array<QString, 5> kKeys = {QStringLiteral("Name"), QStringLiteral("Field"),
                                      QStringLiteral("Words"), QStringLiteral("Action"),
                                      QStringLiteral("Enabled")};
const std::array<QString, 4> kFieldWords = {QStringLiteral("Sender"), QStringLiteral("Recipient"),
                                            QStringLiteral("Subject"), QStringLiteral("Body")};
const std::array<QString, 3> kActionWords = {QStringLiteral("Spam"), QStringLiteral("Delete"),
                                             QStringLiteral("Pass")};

// The position of word in words, compared without regard to case; -1 if none.
template <std::size_t N>
int IndexOf(const std::array<QString, N>& words, const QString& word) {
    for (std::size_t i = 0; i < N; ++i) {
        if (words[i].compare(word, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    }
    return -1;
}

QString WithoutControls(QString text) {
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control) c = QLatin1Char(' ');
    }
    return text;
}

// A rule from its five values, keyed by their index in kKeys; null with
// *reason when a value is missing or wrong.
std::optional<SpamRule> RuleOf(const std::map<int, QString>& values, QString* reason) {
    if (values.size() != kKeys.size()) {
        *reason = QStringLiteral("a rule needs Name, Field, Words, Action and Enabled");
        return std::nullopt;
    }
    // Control characters of a name or word are read as the spaces Format
    // writes for them, so that a rule holds what the file holds after a save
    // (a name or word of controls alone would be saved blank, which no file
    // may hold).
    SpamRule rule;
    rule.name = WithoutControls(values.at(0)).trimmed();
    rule.words = SpamRule::WordsOf(WithoutControls(values.at(2)));
    const int field = IndexOf(kFieldWords, values.at(1));
    const int action = IndexOf(kActionWords, values.at(3));
    const bool on = values.at(4).compare(QLatin1String("Yes"), Qt::CaseInsensitive) == 0;
    const bool off = values.at(4).compare(QLatin1String("No"), Qt::CaseInsensitive) == 0;
    if (rule.name.isEmpty() || rule.words.isEmpty() || field < 0 || action < 0 || (!on && !off)) {
        *reason = QStringLiteral("the rule before this line has an empty or unknown value");
        return std::nullopt;
    }
    rule.field = static_cast<MailField>(field);
    rule.action = static_cast<RuleAction>(action + 1);
    rule.enabled = on;
    return rule;
}

}  // namespace

std::optional<std::vector<SpamRule>> RuleFile::Parse(const QString& text, QString* error) {
    std::vector<SpamRule> rules;
    std::optional<std::map<int, QString>> values;  // of the rule being read
    bool seenFirstLine = false;
    QString reason;
    const QStringList lines = text.split(QLatin1Char('\n'));
    qsizetype index = 0;
    // Ends the rule being read, if any; false when it is incomplete or wrong.
    const auto finishRule = [&]() {
        if (!values) return true;
        auto rule = RuleOf(*values, &reason);
        if (rule) rules.push_back(std::move(*rule));
        values.reset();
        return rule.has_value();
    };
    for (; index < lines.size(); ++index) {
        const QString line = lines[index].trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) continue;
        if (!seenFirstLine) {
            seenFirstLine = line == kFirstLine;
            if (!seenFirstLine) reason = QStringLiteral("not a Q9MsgFlt rules file");
        } else if (line.compare(kGroupLine, Qt::CaseInsensitive) == 0) {
            if (finishRule()) values.emplace();
        } else {
            const qsizetype equals = line.indexOf(QLatin1Char('='));
            const int key = equals > 0 ? IndexOf(kKeys, line.left(equals).trimmed()) : -1;
            if (!values || key < 0 || values->count(key)) {
                reason = QStringLiteral("unknown, repeated or misplaced line");
            } else {
                (*values)[key] = line.mid(equals + 1).trimmed();
            }
        }
        if (!reason.isEmpty()) break;
    }
    // The writer always writes the first line: a file without one was emptied
    // by something else.
    if (reason.isEmpty() && !seenFirstLine) reason = QStringLiteral("the file holds no first line");
    if (reason.isEmpty() && finishRule()) return rules;
    if (error) *error = QStringLiteral("line %1: %2").arg(index + 1).arg(reason);
    return std::nullopt;
}

QString RuleFile::Format(const std::vector<SpamRule>& rules) {
    QString text = kFirstLine + QLatin1Char('\n');
    for (const SpamRule& rule : rules) {
        QStringList words;
        for (const QString& word : rule.words) words << WithoutControls(word);
        text += QLatin1Char('\n') + kGroupLine + QLatin1Char('\n');
        text += kKeys[0] + QLatin1Char('=') + WithoutControls(rule.name) + QLatin1Char('\n');
        text += kKeys[1] + QLatin1Char('=') + kFieldWords[static_cast<std::size_t>(rule.field)] +
                QLatin1Char('\n');
        text += kKeys[2] + QLatin1Char('=') + words.join(QLatin1String(", ")) + QLatin1Char('\n');
        text += kKeys[3] + QLatin1Char('=') +
                kActionWords[static_cast<std::size_t>(rule.action) - 1] + QLatin1Char('\n');
        text += kKeys[4] + QLatin1Char('=') +
                (rule.enabled ? QLatin1String("Yes") : QLatin1String("No")) + QLatin1Char('\n');
    }
    return text;
}

std::optional<std::vector<SpamRule>> RuleFile::Load(const std::string& path) {
    std::string text;
    const int readError = platform::ReadWholeFile(path, &text);
    if (readError == ENOENT) {
        platform::NoteReadableFile(path);
        return std::vector<SpamRule>{};
    }
    if (readError != 0) {
        platform::ReportUnreadableFile(path, "Q9MsgFlt: cannot read " + path + ": " +
                                                 std::strerror(readError) +
                                                 "; it is left as it is");
        return std::nullopt;
    }
    QString error;
    auto rules = Parse(QString::fromStdString(text), &error);
    if (!rules) {
        platform::ReportUnreadableFile(path, "Q9MsgFlt: " + path + " is not a rules file (" +
                                                 error.toStdString() + "); it is left as it is");
        return std::nullopt;
    }
    platform::NoteReadableFile(path);
    return rules;
}

bool RuleFile::Save(const std::string& path, const std::vector<SpamRule>& rules) {
    int errorNumber = 0;
    const QByteArray bytes = Format(rules).toUtf8();
    if (platform::WriteFileAtomically(
            path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
            &errorNumber))
        return true;
    platform::ReportProblem("Q9MsgFlt: cannot write " + path + ": " + std::strerror(errorNumber));
    return false;
}

}  // namespace q9msgflt
