#include "policy/PolicyHistory.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <fstream>
#include <sstream>

#include "options/StoreKeyNames.h"

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// Secrets are never written: their texts are digests, kept only in memory.
QJsonValue ValueJson(const std::optional<SnapshotValue>& value) {
    if (!value) return QJsonValue::Null;
    if (value->secret) return QJsonObject{{"secret", true}};
    return QJsonObject{{"text", Q(value->text)}};
}

std::optional<SnapshotValue> ValueOf(const QJsonValue& json) {
    if (!json.isObject()) return std::nullopt;
    const QJsonObject object = json.toObject();
    if (object.value("secret").toBool()) return SnapshotValue{"(enciphered)", true};
    return SnapshotValue{object.value("text").toString().toStdString(), false};
}

QJsonObject ChangeJson(const ValueChange& change) {
    return QJsonObject{{"file", Q(change.file)},
                       {"section", static_cast<qint64>(change.section)},
                       {"key", static_cast<qint64>(change.key)},
                       {"sectionName", Q(StoreSectionName(change.section))},
                       {"keyName", Q(StoreKeyName(change.key))},
                       {"before", ValueJson(change.before)},
                       {"after", ValueJson(change.after)}};
}

ValueChange ChangeOf(const QJsonObject& json) {
    ValueChange change;
    change.file = json.value("file").toString().toStdString();
    change.section = static_cast<uint32_t>(json.value("section").toInteger());
    change.key = static_cast<uint32_t>(json.value("key").toInteger());
    change.before = ValueOf(json.value("before"));
    change.after = ValueOf(json.value("after"));
    return change;
}

QJsonObject EntryJson(const HistoryEntry& entry) {
    QJsonArray values;
    for (const ValueChange& change : entry.values) values.append(ChangeJson(change));
    QJsonObject copies;
    for (const auto& [file, copy] : entry.copies) copies[Q(file)] = Q(copy);
    return QJsonObject{{"number", static_cast<qint64>(entry.number)},       {"kind", Q(entry.kind)},
                       {"time", Q(entry.time)},         {"user", Q(entry.user)},
                       {"policy", Q(entry.policy)},     {"sha256", Q(entry.sha256)},
                       {"base", Q(entry.base)},         {"keepMonitor", entry.keepMonitor},
                       {"undoes", static_cast<qint64>(entry.undoes)},        {"values", values},
                       {"copies", copies}};
}

std::optional<HistoryEntry> EntryOf(const std::string& line) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(line), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) return std::nullopt;
    const QJsonObject json = document.object();
    HistoryEntry entry;
    entry.number = json.value("number").toInteger();
    entry.kind = json.value("kind").toString().toStdString();
    entry.time = json.value("time").toString().toStdString();
    entry.user = json.value("user").toString().toStdString();
    entry.policy = json.value("policy").toString().toStdString();
    entry.sha256 = json.value("sha256").toString().toStdString();
    entry.base = json.value("base").toString().toStdString();
    entry.keepMonitor = json.value("keepMonitor").toBool();
    entry.undoes = json.value("undoes").toInteger();
    for (const QJsonValue& value : json.value("values").toArray()) {
        entry.values.push_back(ChangeOf(value.toObject()));
    }
    const QJsonObject copies = json.value("copies").toObject();
    for (auto it = copies.begin(); it != copies.end(); ++it) {
        entry.copies[it.key().toStdString()] = it.value().toString().toStdString();
    }
    if (entry.number <= 0 || entry.kind.empty()) return std::nullopt;
    return entry;
}

}  // namespace

PolicyHistory::PolicyHistory(std::string directory) : m_directory(std::move(directory)) {}

std::vector<HistoryEntry> PolicyHistory::Read(int* problems) const {
    std::vector<HistoryEntry> entries;
    int bad = 0;
    std::ifstream in(FilePath(), std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        if (line.empty()) continue;
        if (std::optional<HistoryEntry> entry = EntryOf(line)) {
            entries.push_back(std::move(*entry));
        } else {
            ++bad;
        }
    }
    if (problems) *problems = bad;
    return entries;
}

int64_t PolicyHistory::NextNumber() const {
    int64_t last = 0;
    for (const HistoryEntry& entry : Read()) last = std::max(last, entry.number);
    return last + 1;
}

bool PolicyHistory::Append(const HistoryEntry& entry) const {
    const std::string line =
        QJsonDocument(EntryJson(entry)).toJson(QJsonDocument::Compact).toStdString() + "\n";
    const int fd = open(FilePath().c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                        0600);
    if (fd < 0) return false;
    fchmod(fd, 0600);
    const bool written = write(fd, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    const bool synced = fsync(fd) == 0;
    close(fd);
    return written && synced;
}

std::string FileSha256(const std::string& path) {
    QFile file(Q(path));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&file)) return {};
    return hash.result().toHex().toStdString();
}

std::string CurrentUserName() {
    if (const passwd* entry = getpwuid(getuid())) return entry->pw_name;
    return std::to_string(getuid());
}

std::string CurrentTimeText() {
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
}
