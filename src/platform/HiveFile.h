#pragma once

// One hive file in the registry directory (for example "HKLM.reg"), read
// through a cache and changed under a lock.
//
// Reading never locks: writers replace the file by rename, so a reader opens
// either the complete old or the complete new file. The parsed hive is
// cached and parsed again only when the file's stat data (path, device,
// inode, size, modification time in nanoseconds) change; the atomic writer
// makes every new file's modification time later than the one it replaces,
// so a reused inode number cannot hide a change.
//
// Changing locks "<file>.lock" in the same directory, re-reads the hive (the
// cache serves when the stat data show the file unchanged), applies the
// change and replaces the file atomically. The directory is created on the
// first change.
//
// A file that cannot be parsed is reported once per file state through
// ReportProblem, reads see an empty hive, and changes fail with
// kRegistryCorrupt without touching the file.

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/FileSignature.h"
#include "platform/RegistryHive.h"

namespace platform {

class HiveFile {
public:
    struct Snapshot {
        std::shared_ptr<const RegistryHive> hive;  // never null; empty when unreadable
        bool corrupt = false;                      // the file exists but cannot be parsed
        int readError = 0;                         // errno when the file cannot be read
    };

    // Receives a copy of the current hive to change. Returns a status of
    // Registry.h; *changed tells whether the hive must be written.
    using Change = std::function<int32_t(RegistryHive& hive, bool* changed)>;

    // fileName within RegistryDirectory(), e.g. "HKLM.reg"; rootName the
    // name of its root key, e.g. "HKEY_LOCAL_MACHINE".
    HiveFile(std::string fileName, std::string rootName);

    HiveFile(const HiveFile&) = delete;
    HiveFile& operator=(const HiveFile&) = delete;

    // The file's path in the current registry directory.
    std::string Path() const;

    // The hive as the file holds it now.
    Snapshot Read();

    // Applies change under the lock and writes the result when it changed
    // something. Returns the change's status, kRegistryCorrupt for a file
    // that cannot be parsed, or kDiskFull / kAccessDenied / kWriteFault when
    // the directory, lock or file cannot be written (reported as well).
    int32_t Modify(const Change& change);

private:
    // The file's signature with its path: the registry directory may change
    // between calls.
    struct Signature {
        std::string path;
        FileSignature file;

        bool operator==(const Signature&) const = default;
    };

    static Signature SignatureOf(const std::string& path);
    Snapshot Load(const std::string& path);
    Snapshot ReadFile(const std::string& path, Signature* signature,
                      RegistryHive::ParseError* parseError);
    void Remember(const Signature& signature, const Snapshot& snapshot);
    void ReportOnce(const Signature& signature, const std::string& text);
    int32_t WriteHive(const std::string& path, RegistryHive hive);

    const std::string m_fileName;
    const std::string m_rootName;

    std::mutex m_mutex;  // guards the members below
    bool m_cached = false;
    Signature m_cachedSignature;
    Snapshot m_cachedSnapshot;
    Signature m_reportedSignature;
};

}  // namespace platform
