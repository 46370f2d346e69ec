#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace platform {

FileLock::FileLock(const std::string& lockPath) {
    // Read access is enough for flock(); it lets a process lock a lock file
    // that another user created.
    const int fd = open(lockPath.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) {
        error_ = errno;
        return;
    }
    while (flock(fd, LOCK_EX) != 0) {
        if (errno == EINTR) continue;
        error_ = errno;
        close(fd);
        return;
    }
    fd_ = fd;
}

FileLock::~FileLock() {
    // Closing the only descriptor of the open file releases the lock.
    if (fd_ >= 0) close(fd_);
}

}  // namespace platform
