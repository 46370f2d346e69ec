#pragma once

// The record of every silent apply: one JSON object per line, appended to
// kPolicyHistoryFile of the installation and readable by its owner only.
// An entry names what was applied and every value it changed, old and new;
// enciphered values appear only as changed. So that an undo can put every
// value back, enciphered ones too, an entry keeps a copy of each file it
// changed, as it was before, in kPolicyHistoryFolder (owner only, like the
// store files themselves).

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "policy/StoreSnapshot.h"

constexpr const char* kPolicyHistoryFile = "Q9Policy.history";
constexpr const char* kPolicyHistoryFolder = "Q9Policy.history.d";

struct HistoryEntry {
    int64_t number = 0;  // from 1, in the order of the file
    std::string kind;    // "apply" or "undo"
    std::string time;    // UTC, ISO 8601
    std::string user;
    std::string policy;  // the policy file, or empty
    std::string sha256;  // of the policy file's bytes, or empty
    std::string base;    // the base path named by the caller, or empty
    bool keepMonitor = false;
    int64_t undoes = 0;  // the entry an undo put back
    std::vector<ValueChange> values;
    // The copy of each changed file as it was before; empty when the file
    // did not exist.
    std::map<std::string, std::string> copies;
};

class PolicyHistory {
public:
    // The history of the installation in directory (ending in '/').
    explicit PolicyHistory(std::string directory);

    std::string FilePath() const { return m_directory + kPolicyHistoryFile; }
    std::string FolderPath() const { return m_directory + kPolicyHistoryFolder; }

    // The entries in order. Lines that cannot be read are skipped; problems
    // tells how many there were.
    std::vector<HistoryEntry> Read(int* problems = nullptr) const;

    // The number the next entry gets.
    int64_t NextNumber() const;

    // Appends the entry as one line. False when the file cannot be written.
    bool Append(const HistoryEntry& entry) const;

private:
    std::string m_directory;
};

// The SHA-256 of a file's bytes in hexadecimal; empty when it cannot be read.
std::string FileSha256(const std::string& path);

// Who runs this process, by name.
std::string CurrentUserName();

// The time now, UTC, ISO 8601 with seconds.
std::string CurrentTimeText();
