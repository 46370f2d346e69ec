#include "Zone.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "OrvDMZ.h"
#include "RecordBuffer.h"
#include "ZoneFile.h"
#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/ProblemReport.h"

namespace orvdmz {
namespace {

// Bits that only mean something to the record's own owner: fixed by the
// product, derived by it, managed by its user.
constexpr uint32_t kOwnerOnlyFlags = ORVDMZ_FLAG_FIXED | ORVDMZ_FLAG_DERIVED | ORVDMZ_FLAG_USER;

// The records as owner sees them: its own first, then everybody else's.
std::vector<RecordBuffer::TaggedRecord> ViewOf(const ZoneContent& content, const OwnerTags& owner) {
    std::vector<RecordBuffer::TaggedRecord> own;
    std::vector<RecordBuffer::TaggedRecord> foreign;
    for (const auto& group : content.Groups()) {
        const bool owned = owner.Owns(group.owner);
        for (ZoneRecord record : group.records) {
            if (owned) {
                own.push_back({group.owner, std::move(record)});
                continue;
            }
            record.flags = (record.flags & ~kOwnerOnlyFlags) | ORVDMZ_FLAG_FOREIGN;
            foreign.push_back({group.owner, std::move(record)});
        }
    }
    own.insert(own.end(), foreign.begin(), foreign.end());
    return own;
}

bool IsLocked(const platform::FileLock& lock, const std::string& path) {
    if (lock.IsLocked()) return true;
    platform::ReportProblem("OrvDMZ: cannot lock " + path + ": " +
                            std::strerror(lock.ErrorNumber()));
    return false;
}

}  // namespace

Zone::Zone(std::string filePath) : m_filePath(std::move(filePath)) {}

int32_t Zone::Enumerate(const OwnerTags& owner, void* buffer, int32_t size) const {
    const auto content = Read();
    if (!content) return 0;
    const auto view = ViewOf(*content, owner);
    const uint64_t needed = RecordBuffer::SizeOf(view);
    if (needed > INT32_MAX) {
        platform::ReportProblem("OrvDMZ: the zone is too large to enumerate");
        return 0;
    }
    if (buffer && size >= 0 && static_cast<uint64_t>(size) >= needed && needed > 0)
        RecordBuffer::Pack(view, static_cast<unsigned char*>(buffer));
    return static_cast<int32_t>(needed);
}

bool Zone::Add(const OwnerTags& owner, const void* records) const {
    if (!records) return false;
    const auto unpacked = RecordBuffer::Unpack(records);
    if (!unpacked) return false;
    std::vector<ZoneRecord> added;
    for (const auto& record : *unpacked) {
        if (!(record.flags & ORVDMZ_FLAG_FOREIGN)) added.push_back(record);
    }
    if (added.empty()) return true;
    const std::string lockPath = m_filePath + ".lock";
    platform::FileLock lock(lockPath);
    if (!IsLocked(lock, lockPath)) return false;
    auto content = Read();
    if (!content) return false;
    content->Append(owner.Tag(), added);
    return Write(*content);
}

bool Zone::Delete(const OwnerTags& owner) const {
    const std::string lockPath = m_filePath + ".lock";
    platform::FileLock lock(lockPath);
    if (!IsLocked(lock, lockPath)) return false;
    auto content = Read();
    if (!content) return false;
    ZoneContent kept;
    for (const auto& group : content->Groups()) {
        if (!owner.Owns(group.owner)) kept.Append(group.owner, group.records);
    }
    if (kept == *content) return true;
    return Write(kept);
}

std::optional<ZoneContent> Zone::Read() const {
    std::string text;
    const int readError = platform::ReadWholeFile(m_filePath, &text);
    if (readError == ENOENT) {
        platform::NoteReadableFile(m_filePath);
        return ZoneContent{};
    }
    if (readError != 0) {
        platform::ReportUnreadableFile(m_filePath, "OrvDMZ: cannot read " + m_filePath + ": " +
                                                       std::strerror(readError) +
                                                       "; it is left as it is");
        return std::nullopt;
    }
    std::string error;
    auto content = ZoneFile::Parse(text, &error);
    if (!content) {
        platform::ReportUnreadableFile(
            m_filePath,
            "OrvDMZ: " + m_filePath + " is not a zone file (" + error + "); it is left as it is");
        return std::nullopt;
    }
    platform::NoteReadableFile(m_filePath);
    return content;
}

bool Zone::Write(const ZoneContent& content) const {
    int errorNumber = 0;
    if (platform::WriteFileAtomically(m_filePath, ZoneFile::Format(content), &errorNumber))
        return true;
    platform::ReportProblem("OrvDMZ: cannot write " + m_filePath + ": " +
                            std::strerror(errorNumber));
    return false;
}

}  // namespace orvdmz
