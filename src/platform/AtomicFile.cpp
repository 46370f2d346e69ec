#include "platform/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace platform {
namespace {

bool Fail(int error, int* errorNumber) {
    if (errorNumber) *errorNumber = error;
    return false;
}

std::string DirectoryPart(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    if (slash == 0) return "/";
    return path.substr(0, slash);
}

std::string NamePart(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(fd, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

bool IsEarlierOrEqual(const timespec& a, const timespec& b) {
    return a.tv_sec < b.tv_sec || (a.tv_sec == b.tv_sec && a.tv_nsec <= b.tv_nsec);
}

// Coarse file system clocks can give two writes in quick succession the same
// modification time; the new file then gets the old time plus 1 ns.
bool MakeLaterThan(int fd, const struct stat& old) {
    struct stat now {};
    if (fstat(fd, &now) != 0) return false;
    if (!IsEarlierOrEqual(now.st_mtim, old.st_mtim)) return true;
    timespec times[2];
    times[0].tv_sec = 0;
    times[0].tv_nsec = UTIME_OMIT;
    times[1] = old.st_mtim;
    if (++times[1].tv_nsec >= 1000000000L) {
        times[1].tv_nsec = 0;
        ++times[1].tv_sec;
    }
    return futimens(fd, times) == 0;
}

// Fills the open temporary file and flushes it; the permission bits and the
// modification time are set before the flush so that they are durable too.
bool FillTemporary(int fd, std::string_view bytes, mode_t mode, const struct stat* old) {
    if (!WriteAll(fd, bytes)) return false;
    if (fchmod(fd, mode) != 0) return false;
    if (old && !MakeLaterThan(fd, *old)) return false;
    return fsync(fd) == 0;
}

bool SyncDirectory(const std::string& directory) {
    const int fd = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return false;
    // Some file systems cannot flush a directory; there is nothing more to do.
    const bool synced = fsync(fd) == 0 || errno == EINVAL;
    const int error = errno;
    close(fd);
    errno = error;
    return synced;
}

}  // namespace

bool WriteFileAtomically(const std::string& path, std::string_view bytes, int* errorNumber,
                         mode_t newFileMode, ExistingMode existing) {
    struct stat old {};
    const bool hadOld = stat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode);
    const mode_t mode =
        hadOld && existing == ExistingMode::kKeep ? (old.st_mode & 07777) : newFileMode;

    const std::string directory = DirectoryPart(path);
    std::string temporary = directory + "/." + NamePart(path) + ".XXXXXX";
    const int fd = mkostemp(temporary.data(), O_CLOEXEC);
    if (fd < 0) return Fail(errno, errorNumber);

    bool filled = FillTemporary(fd, bytes, mode, hadOld ? &old : nullptr);
    int error = errno;
    // close() can report a delayed write error (network file systems).
    if (close(fd) != 0 && filled) {
        filled = false;
        error = errno;
    }
    if (!filled || rename(temporary.c_str(), path.c_str()) != 0) {
        if (filled) error = errno;
        unlink(temporary.c_str());
        return Fail(error, errorNumber);
    }
    if (!SyncDirectory(directory)) return Fail(errno, errorNumber);
    return true;
}

bool CreateDirectories(const std::string& path, int* errorNumber, mode_t mode) {
    // Every prefix ending before a '/' and then the whole path; a part that
    // exists already answers EEXIST and is checked by the next step.
    size_t end = path.find('/', 1);
    while (true) {
        const std::string part = path.substr(0, end);
        if (mkdir(part.c_str(), mode) != 0 && errno != EEXIST) return Fail(errno, errorNumber);
        if (end == std::string::npos) break;
        end = path.find('/', end + 1);
    }
    struct stat info {};
    if (stat(path.c_str(), &info) != 0) return Fail(errno, errorNumber);
    if (!S_ISDIR(info.st_mode)) return Fail(ENOTDIR, errorNumber);
    return true;
}

bool ReadAllFrom(int fd, std::string* text) {
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got == 0) return true;
        if (got < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        if (text->size() + static_cast<size_t>(got) > kMaxDataFileBytes) {
            errno = EFBIG;
            return false;
        }
        text->append(buffer, static_cast<size_t>(got));
    }
}

int ReadWholeFile(const std::string& path, std::string* text) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return errno;
    const bool complete = ReadAllFrom(fd, text);
    const int error = complete ? 0 : errno;
    ::close(fd);
    if (!complete) text->clear();
    return error;
}

}  // namespace platform
