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
        m_error = errno;
        return;
    }
    while (flock(fd, LOCK_EX) != 0) {
        if (errno == EINTR) continue;
        m_error = errno;
        close(fd);
        return;
    }
    m_fd = fd;
}

FileLock::~FileLock() {
    // Closing the only descriptor of the open file releases the lock.
    if (m_fd >= 0) close(m_fd);
}

}  // namespace platform
