#include "StoreFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "StoreParser.h"
#include "StoreWriter.h"
#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/ProblemReport.h"

namespace cfge {

StoreFile::StoreFile(std::string path) : m_path(std::move(path)) {
    m_snapshot.data = std::make_shared<const StoreData>();
}

StoreFile::Snapshot StoreFile::Read() {
    if (!m_cached || Signature::Of(m_path) != m_signature) Load();
    return m_snapshot;
}

// Reads and parses the file; the signature comes from the open file itself,
// so that it always describes the bytes that were parsed.
void StoreFile::Load() {
    m_cached = true;
    m_snapshot = Snapshot{std::make_shared<const StoreData>(), false, false, 0};
    m_signature = Signature{};
    const int fd = open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (fd < 0 || fstat(fd, &info) != 0) {
        m_signature.error = errno;
        if (fd >= 0) close(fd);
        if (m_signature.error == ENOENT) {
            m_snapshot.missing = true;
            platform::NoteReadableFile(m_path);
            return;
        }
        m_snapshot.readError = m_signature.error;
        ReportOnce("cannot read the store file " + m_path + ": " + std::strerror(m_signature.error));
        return;
    }
    m_signature = Signature::FromStat(info);
    std::string bytes;
    const bool read = platform::ReadAllFrom(fd, &bytes);
    const int error = errno;
    close(fd);
    if (!read) {
        m_snapshot.readError = error;
        ReportOnce("cannot read the store file " + m_path + ": " + std::strerror(error));
        return;
    }
    auto data = std::make_shared<StoreData>();
    ParseError parseError;
    if (!StoreParser::Parse(bytes, data.get(), &parseError)) {
        m_snapshot.corrupt = true;
        ReportOnce("the store file " + m_path + " cannot be parsed (line " +
                   std::to_string(parseError.line) + ": " + parseError.message +
                   "); it reads as empty and is not written");
        return;
    }
    platform::NoteReadableFile(m_path);
    m_snapshot.data = std::move(data);
}

void StoreFile::ReportOnce(const std::string& text) {
    if (m_reported && m_reportedSignature == m_signature) return;
    m_reported = true;
    m_reportedSignature = m_signature;
    platform::ReportUnreadableFile(m_path, text);
}

bool StoreFile::Replace(const Producer& produce) {
    const platform::FileLock lock(m_path + ".lock");
    if (!lock.IsLocked()) {
        platform::ReportProblem("cannot lock " + m_path + ".lock: " +
                                std::strerror(lock.ErrorNumber()));
        return false;
    }
    const Snapshot current = Read();
    if (!current.Writable()) return false;
    std::shared_ptr<const StoreData> next = produce(current.data);
    if (!next) return false;
    int error = 0;
    // The store holds enciphered secrets: its owner's only.
    if (!platform::WriteFileAtomically(m_path, StoreWriter::Write(*next), &error,
                                       platform::kPrivateFileMode,
                                       platform::ExistingMode::kReplace)) {
        m_cached = false;
        platform::ReportProblem("cannot write the store file " + m_path + ": " +
                                std::strerror(error));
        return false;
    }
    // Still under the lock, so the file is the one just written.
    m_signature = Signature::Of(m_path);
    m_snapshot = Snapshot{std::move(next), false, false, 0};
    return true;
}

bool StoreFile::Modify(const Change& change) {
    return Replace([&change](const std::shared_ptr<const StoreData>& current) {
        auto next = std::make_shared<StoreData>(*current);
        return change(*next) ? std::shared_ptr<const StoreData>(std::move(next)) : nullptr;
    });
}

}  // namespace cfge
