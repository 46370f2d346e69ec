#include "policy/RecordedApply.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <functional>

#include "Q9CfgE.h"
#include "policy/ConfigurationApply.h"
#include "policy/PolicyHistory.h"
#include "policy/PolicyMerge.h"
#include "policy/PolicyPlan.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"

namespace fs = std::filesystem;

namespace {

std::string StoreFileOf(const std::string& session) {
    return session.empty() ? g_szModuleDir + kLiveStoreFile : session;
}

// Keeps a copy of file as it is now; empty when there is no file to copy.
std::string KeepCopy(const PolicyHistory& history, int64_t number, std::size_t index,
                     const std::string& file) {
    std::error_code error;
    if (!fs::exists(file, error)) return {};
    const fs::path folder = history.FolderPath();
    fs::create_directories(folder, error);
    chmod(folder.c_str(), 0700);
    const fs::path copy = folder / (std::to_string(number) + "-" + std::to_string(index) + ".dat");
    if (!fs::copy_file(file, copy, fs::copy_options::overwrite_existing, error)) return {};
    chmod(copy.c_str(), 0600);
    return copy.string();
}

bool ChangedFile(const HistoryEntry& entry, const std::string& file) {
    return std::any_of(entry.values.begin(), entry.values.end(),
                       [&](const ValueChange& change) { return change.file == file; });
}

// Runs body between snapshots of files, and appends the entry with what
// changed; answers the entry's number. Copies of files that did not change
// are not kept.
int64_t RecordRun(HistoryEntry entry, std::vector<std::string> files, const std::string& session,
               const std::function<void()>& body) {
    std::sort(files.begin(), files.end());
    files.erase(std::unique(files.begin(), files.end()), files.end());
    const PolicyHistory history(g_szModuleDir);
    entry.number = history.NextNumber();
    entry.time = CurrentTimeText();
    entry.user = CurrentUserName();
    std::vector<StoreSnapshot> before;
    std::vector<std::string> copies;
    for (std::size_t i = 0; i < files.size(); ++i) {
        before.push_back(StoreSnapshot::Read(files[i], session));
        copies.push_back(KeepCopy(history, entry.number, i, files[i]));
    }
    body();
    for (std::size_t i = 0; i < files.size(); ++i) {
        for (ValueChange& change :
             CompareSnapshots(files[i], before[i], StoreSnapshot::Read(files[i], session))) {
            entry.values.push_back(std::move(change));
        }
        std::error_code error;
        if (ChangedFile(entry, files[i])) {
            entry.copies[files[i]] = copies[i];
        } else if (!copies[i].empty()) {
            fs::remove(copies[i], error);
        }
    }
    if (!history.Append(entry)) g_Log.Write("the policy history cannot be written");
    return entry.number;
}

// Puts back the values of file that entry changed: those that were there
// from the copy, through the store's own value copying; those that were not
// by removing them.
void RestoreFile(const HistoryEntry& entry, const std::string& file, const std::string& session) {
    const auto copy = entry.copies.find(file);
    const Q9CfgEHandle source =
        (copy != entry.copies.end() && !copy->second.empty())
            ? Q9CfgE_Create(Q9CFGE_STYLE_FILE, copy->second.c_str(), 0)
            : nullptr;
    const Q9CfgEHandle target = Q9CfgE_Create(Q9CFGE_STYLE_FILE, file.c_str(), 0);
    for (const ValueChange& change : entry.values) {
        if (change.file != file || !change.before || !source) continue;
        Q9CfgE_SetStr(target, change.section, change.key,
                      Q9CfgE_GetStr(source, change.section, change.key, nullptr));
    }
    if (source) Q9CfgE_Close(source);
    if (target) Q9CfgE_Close(target);

    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, file.c_str(), Q9CFGE_MODE_PLAIN);
    for (const ValueChange& change : entry.values) {
        if (change.file == file && !change.before) {
            Q9CfgE_SetStrEx(change.section, change.key, nullptr);
        }
    }
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, session.c_str(), Q9CFGE_MODE_PLAIN);
}

// The files an entry changed whose copy it needs but lacks.
std::string MissingCopy(const HistoryEntry& entry) {
    for (const ValueChange& change : entry.values) {
        if (!change.before) continue;
        const auto copy = entry.copies.find(change.file);
        std::error_code error;
        if (copy == entry.copies.end() || copy->second.empty() ||
            !fs::exists(copy->second, error)) {
            return change.file;
        }
    }
    return {};
}

std::vector<std::string> FilesOf(const HistoryEntry& entry) {
    std::vector<std::string> files;
    for (const ValueChange& change : entry.values) files.push_back(change.file);
    return files;
}

}  // namespace

void ApplyPolicyRecorded(const char* basePath, const char* policyPath, int32_t monitorFlag) {
    const std::string session = SessionStorePath(basePath);
    std::vector<std::string> files{StoreFileOf(session)};
    const bool hasPolicy = policyPath && *policyPath;
    const std::string target = PolicyTargetPath(basePath, g_szModuleDir);
    if (hasPolicy && !target.empty()) files.push_back(target);

    HistoryEntry entry;
    entry.kind = "apply";
    entry.policy = hasPolicy ? policyPath : "";
    entry.sha256 = hasPolicy ? FileSha256(policyPath) : "";
    entry.base = session;
    entry.keepMonitor = monitorFlag == 0;
    RecordRun(std::move(entry), files, session,
              [&] { ApplyConfiguration(basePath, policyPath, monitorFlag); });
}

UndoResult UndoLastApply() {
    UndoResult result;
    const PolicyHistory history(g_szModuleDir);
    const std::vector<HistoryEntry> entries = history.Read();
    if (entries.empty()) {
        result.message = "the policy history is empty: nothing to undo";
        return result;
    }
    const HistoryEntry& last = entries.back();
    if (const std::string missing = MissingCopy(last); !missing.empty()) {
        result.status = UndoStatus::kCopyMissing;
        result.message = "the copy of " + missing + " kept by entry " +
                         std::to_string(last.number) + " is missing: nothing was changed";
        return result;
    }
    const std::string session = last.base;
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, session.c_str(), Q9CFGE_MODE_PLAIN);
    std::vector<std::string> files = FilesOf(last);
    files.push_back(StoreFileOf(session));

    HistoryEntry undo;
    undo.kind = "undo";
    undo.base = last.base;
    undo.keepMonitor = last.keepMonitor;
    undo.undoes = last.number;
    result.recorded = RecordRun(std::move(undo), files, session, [&] {
        std::vector<std::string> changed = FilesOf(last);
        std::sort(changed.begin(), changed.end());
        changed.erase(std::unique(changed.begin(), changed.end()), changed.end());
        for (const std::string& file : changed) RestoreFile(last, file, session);
        ApplyConfiguration(session.c_str(), nullptr, last.keepMonitor ? 0 : 1);
    });
    result.status = UndoStatus::kDone;
    result.undone = last.number;
    result.message = "entry " + std::to_string(last.number) + " undone: " +
                     std::to_string(last.values.size()) + " values put back";
    return result;
}
