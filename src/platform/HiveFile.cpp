#include "platform/HiveFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/ProblemReport.h"
#include "platform/Registry.h"

namespace platform {
namespace {

// A missing directory is the same as a missing file: an empty hive.
int NormalizedError(int error) { return error == ENOTDIR ? ENOENT : error; }

int32_t StatusForError(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return kDiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return kAccessDenied;
        default:
            return kWriteFault;
    }
}

int32_t WriteFailure(const std::string& what, int error) {
    ReportProblem(what + ": " + std::strerror(error));
    return StatusForError(error);
}

}  // namespace

HiveFile::HiveFile(std::string fileName, std::string rootName)
    : m_fileName(std::move(fileName)), m_rootName(std::move(rootName)) {}

std::string HiveFile::Path() const { return RegistryDirectory() + m_fileName; }

HiveFile::Snapshot HiveFile::Read() { return Load(Path()); }

int32_t HiveFile::Modify(const Change& change) {
    const std::string directory = RegistryDirectory();
    const std::string path = directory + m_fileName;
    int error = 0;
    if (!CreateDirectories(directory, &error)) {
        return WriteFailure("cannot create the registry directory " + directory, error);
    }
    const FileLock lock(path + ".lock");
    if (!lock.IsLocked()) return WriteFailure("cannot lock " + path + ".lock", lock.ErrorNumber());

    const Snapshot current = Load(path);
    if (current.corrupt) return kRegistryCorrupt;
    if (current.readError != 0) return StatusForError(current.readError);
    RegistryHive hive = *current.hive;
    bool changed = false;
    const int32_t status = change(hive, &changed);
    if (status != kSuccess || !changed) return status;
    return WriteHive(path, std::move(hive));
}

HiveFile::Signature HiveFile::SignatureOf(const std::string& path) {
    Signature signature{path, FileSignature::Of(path)};
    signature.file.error = NormalizedError(signature.file.error);
    return signature;
}

HiveFile::Snapshot HiveFile::Load(const std::string& path) {
    Signature signature = SignatureOf(path);
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (m_cached && signature == m_cachedSignature) return m_cachedSnapshot;
    }
    RegistryHive::ParseError parseError;
    const Snapshot snapshot = ReadFile(path, &signature, &parseError);
    Remember(signature, snapshot);
    if (!snapshot.corrupt && snapshot.readError == 0) {
        NoteReadableFile(path);
    } else if (snapshot.corrupt) {
        ReportOnce(signature, "registry hive " + path + " cannot be parsed, line " +
                                  std::to_string(parseError.line) + ": " + parseError.message +
                                  "; it is read as empty and will not be changed");
    } else if (snapshot.readError != 0) {
        ReportOnce(signature, "registry hive " + path +
                                  " cannot be read: " + std::strerror(snapshot.readError));
    }
    return snapshot;
}

// Reads and parses the file; *signature becomes that of the file actually
// read, which may be newer than the one stat() saw before.
HiveFile::Snapshot HiveFile::ReadFile(const std::string& path, Signature* signature,
                                      RegistryHive::ParseError* parseError) {
    auto hive = std::make_shared<RegistryHive>(m_rootName);
    Snapshot snapshot;
    snapshot.hive = hive;
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (fd < 0 || fstat(fd, &info) != 0) {
        *signature = Signature{path, FileSignature::Failed(NormalizedError(errno))};
        if (signature->file.error != ENOENT) snapshot.readError = signature->file.error;
        if (fd >= 0) close(fd);
        return snapshot;
    }
    *signature = Signature{path, FileSignature::FromStat(info)};
    std::string text;
    if (!ReadAllFrom(fd, &text)) snapshot.readError = errno;
    close(fd);
    if (snapshot.readError == 0) snapshot.corrupt = !hive->Parse(text, parseError);
    return snapshot;
}

void HiveFile::Remember(const Signature& signature, const Snapshot& snapshot) {
    const std::lock_guard<std::mutex> guard(m_mutex);
    m_cached = true;
    m_cachedSignature = signature;
    m_cachedSnapshot = snapshot;
}

// Reported outside the mutex: the problem sink may well read the registry.
void HiveFile::ReportOnce(const Signature& signature, const std::string& text) {
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (signature == m_reportedSignature) return;
        m_reportedSignature = signature;
    }
    ReportUnreadableFile(signature.path, text);
}

int32_t HiveFile::WriteHive(const std::string& path, RegistryHive hive) {
    int error = 0;
    // A hive holds secrets (a scheduled scan's account): its owner's only.
    if (!WriteFileAtomically(path, hive.ToText(), &error, kPrivateFileMode,
                             ExistingMode::kReplace)) {
        return WriteFailure("cannot write registry hive " + path, error);
    }
    // Still under the lock, so the file just written is the current one.
    Snapshot snapshot;
    snapshot.hive = std::make_shared<const RegistryHive>(std::move(hive));
    Remember(SignatureOf(path), snapshot);
    return kSuccess;
}

}  // namespace platform
