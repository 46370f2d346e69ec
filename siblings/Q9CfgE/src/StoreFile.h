#pragma once

// One store file, read through a cache and replaced under a lock.
//
// Reading never locks: writers replace the file by rename, so a reader opens
// either the complete old or the complete new file. The parsed content is
// kept and parsed again only when one stat() shows that the file changed
// (device, inode, size or modification time in nanoseconds; the atomic writer
// makes every new file's time later than the one it replaces).
//
// Replacing takes "<file>.lock", reads the current content (the cache serves
// when the file is unchanged), lets the caller make the new content, writes
// it to a temporary file and renames it into place. The new content becomes
// the cache, so the process's own writes are never parsed again.
//
// A file that cannot be parsed is reported once per file state, reads as
// empty, and is never written.

#include <sys/stat.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "StoreData.h"
#include "platform/FileSignature.h"

namespace cfge {

class StoreFile {
public:
    struct Snapshot {
        std::shared_ptr<const StoreData> data;  // never null; empty when unreadable
        bool missing = false;                   // there is no file (an empty store)
        bool corrupt = false;                   // the file exists but cannot be parsed
        int readError = 0;                      // errno when it cannot be read (not ENOENT)

        bool Writable() const { return !corrupt && readError == 0; }
    };

    // Makes the new content from the current one; null refuses the change.
    using Producer = std::function<std::shared_ptr<const StoreData>(
        const std::shared_ptr<const StoreData>& current)>;
    // Changes a copy of the current content; false refuses the change.
    using Change = std::function<bool(StoreData& data)>;

    explicit StoreFile(std::string path);

    StoreFile(const StoreFile&) = delete;
    StoreFile& operator=(const StoreFile&) = delete;

    const std::string& Path() const { return m_path; }

    // The content as the file holds it now: one stat() when unchanged.
    Snapshot Read();

    // Replaces the file with what produce makes of its current content.
    // False when the file cannot be parsed or read, the lock or the write
    // fails (reported), or produce refuses; the file is then unchanged.
    bool Replace(const Producer& produce);
    bool Modify(const Change& change);

private:
    using Signature = platform::FileSignature;

    void Load();
    void ReportOnce(const std::string& text);

    const std::string m_path;
    bool m_cached = false;
    Signature m_signature;
    Snapshot m_snapshot;
    bool m_reported = false;
    Signature m_reportedSignature;
};

}  // namespace cfge
