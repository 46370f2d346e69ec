#include "policy/PolicyReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "options/StoreKeyNames.h"
#include "options/SwitchWord.h"
#include "policy/PolicyMerge.h"

namespace {

constexpr const char* kAbsent = "(absent)";

std::string SecretText(const ValueChange& change) {
    if (!change.before) return "enciphered value set";
    if (!change.after) return "enciphered value removed";
    return "enciphered value changed";
}

std::string ShownValue(const std::optional<SnapshotValue>& value) {
    return value ? value->text : kAbsent;
}

QJsonValue JsonValue(const std::optional<SnapshotValue>& value) {
    if (!value) return QJsonValue::Null;
    return QString::fromStdString(value->secret ? std::string("(enciphered)") : value->text);
}

std::string MergeText(const PolicyPlan& plan, const std::string& policyPath) {
    switch (plan.merge) {
        case MergeOutcome::kNoPolicy: return "No policy file: nothing is merged.";
        case MergeOutcome::kMerged: return "Merge: " + policyPath + " into " + plan.target;
        case MergeOutcome::kBaseTooLong:
            return "Not merged: the base path is longer than " + std::to_string(kMaxPolicyPath) +
                   " characters.";
        case MergeOutcome::kNotOpened:
            return "Not merged: " + policyPath + " or " + plan.target + " cannot be opened.";
        case MergeOutcome::kNoValues:
            return "Not merged: " + policyPath +
                   " holds no value to merge (it is empty or no store file).";
        case MergeOutcome::kTooLarge:
            return "Not merged: " + policyPath + " is larger than " +
                   std::to_string(kMaxPolicyBytes >> 20) + " MiB.";
    }
    return {};
}

const char* MergeName(MergeOutcome outcome) {
    switch (outcome) {
        case MergeOutcome::kNoPolicy: return "no policy";
        case MergeOutcome::kMerged: return "merged";
        case MergeOutcome::kBaseTooLong: return "base path too long";
        case MergeOutcome::kNotOpened: return "cannot be opened";
        case MergeOutcome::kNoValues: return "no values";
        case MergeOutcome::kTooLarge: return "too large";
    }
    return "";
}

const char* ActionName(FunctionAction action) {
    switch (action) {
        case FunctionAction::kRegister: return "register";
        case FunctionAction::kStop: return "stop";
        case FunctionAction::kCannotRegister: return "cannot register, switch bit cleared";
    }
    return "";
}

std::string FunctionText(const FunctionChange& change) {
    return std::string(ActionName(change.action)) + ": " + SwitchItemName(change.item) + " (" +
           std::to_string(change.item) + ")";
}

std::string ZoneRecordText(const ZoneRecord& record) {
    const char* kind = (record.flags & kZoneFolder) ? "folder"
                       : (record.flags & kZoneFile) ? "file"
                                                    : "item";
    std::string text = record.path + " (" + kind + (record.inUse ? ", in use" : ", not in use");
    if (record.flags & kZoneFixed) text += ", fixed";
    return text + ")";
}

std::string JobText(const JobChange& change) {
    if (change.removed) return "remove " + change.name;
    std::string text = "write " + change.name + " (" + change.job.commandLine + ")";
    if (change.losesAccount) text += ", its run-as account goes";
    return text;
}

template <typename List, typename Describe>
void AddBlock(std::string& out, const char* title, const List& list, Describe describe) {
    if (list.empty()) return;
    out += std::string(title) + "\n";
    for (const auto& item : list) out += "  " + describe(item) + "\n";
}

QJsonArray ValuesJson(const std::vector<ValueChange>& values) {
    QJsonArray array;
    for (const ValueChange& change : values) {
        array.append(QJsonObject{{"file", QString::fromStdString(change.file)},
                                 {"section", QString::fromStdString(StoreSectionName(change.section))},
                                 {"key", QString::fromStdString(StoreKeyName(change.key))},
                                 {"before", JsonValue(change.before)},
                                 {"after", JsonValue(change.after)},
                                 {"secret", change.IsSecret()}});
    }
    return array;
}

QJsonArray FunctionsJson(const std::vector<FunctionChange>& functions) {
    QJsonArray array;
    for (const FunctionChange& change : functions) {
        array.append(QJsonObject{{"item", change.item},
                                 {"name", SwitchItemName(change.item)},
                                 {"action", ActionName(change.action)}});
    }
    return array;
}

QJsonArray ZoneJson(const std::vector<ZoneChange>& zone) {
    QJsonArray array;
    for (const ZoneChange& change : zone) {
        array.append(QJsonObject{{"action", change.added ? "add" : "remove"},
                                 {"path", QString::fromStdString(change.record.path)},
                                 {"flags", static_cast<qint64>(change.record.flags)},
                                 {"inUse", static_cast<qint64>(change.record.inUse)}});
    }
    return array;
}

QJsonArray JobsJson(const std::vector<JobChange>& jobs) {
    QJsonArray array;
    for (const JobChange& change : jobs) {
        QJsonObject job{{"action", change.removed ? "remove" : "write"},
                        {"key", QString::fromStdString(change.name)}};
        if (!change.removed) {
            job["commandLine"] = QString::fromStdString(change.job.commandLine);
            job["losesAccount"] = change.losesAccount;
        }
        array.append(job);
    }
    return array;
}

}  // namespace

std::string ValueChangeText(const ValueChange& change) {
    const std::string address = StoreSectionName(change.section) + ", " + StoreKeyName(change.key);
    if (change.IsSecret()) return address + ": " + SecretText(change);
    return address + ": " + ShownValue(change.before) + " -> " + ShownValue(change.after);
}

std::string PlanText(const PolicyPlan& plan, const std::string& policyPath) {
    std::string out = MergeText(plan, policyPath) + "\n";
    AddBlock(out, "Values:", plan.values, [](const ValueChange& change) {
        return change.file + ": " + ValueChangeText(change);
    });
    AddBlock(out, "Functions:", plan.functions, FunctionText);
    if (!plan.zoneAvailable) out += "Exclusion zone: no zone library, the zone is left alone.\n";
    AddBlock(out, "Exclusion zone:", plan.zone, [](const ZoneChange& change) {
        return std::string(change.added ? "add " : "remove ") + ZoneRecordText(change.record);
    });
    AddBlock(out, "Scheduled scans:", plan.jobs, JobText);
    out += plan.ChangesSomething() ? "Something would change.\n" : "Nothing would change.\n";
    return out;
}

std::string PlanJson(const PolicyPlan& plan, const std::string& policyPath) {
    const QJsonObject object{{"policy", QString::fromStdString(policyPath)},
                             {"target", QString::fromStdString(plan.target)},
                             {"merge", MergeName(plan.merge)},
                             {"values", ValuesJson(plan.values)},
                             {"functions", FunctionsJson(plan.functions)},
                             {"zoneAvailable", plan.zoneAvailable},
                             {"zone", ZoneJson(plan.zone)},
                             {"schedule", JobsJson(plan.jobs)},
                             {"changes", plan.ChangesSomething()}};
    return QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString();
}
