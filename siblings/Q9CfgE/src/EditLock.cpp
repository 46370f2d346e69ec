#include "EditLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace cfge {
namespace {
constexpr auto kPollInterval = std::chrono::milliseconds(10);
}

EditLock::~EditLock() { Release(); }

EditLock::Result EditLock::Acquire(const std::string& path, std::chrono::milliseconds timeout) {
    if (Held() && m_path == path) return Result::Held;
    Release();
    const int fd = open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return Result::Unavailable;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) {
            close(fd);
            return Result::Unavailable;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            close(fd);
            return Result::Busy;
        }
        std::this_thread::sleep_for(kPollInterval);
    }
    m_fd = fd;
    m_path = path;
    return Result::Held;
}

void EditLock::Release() {
    if (m_fd >= 0) close(m_fd);
    m_fd = -1;
    m_path.clear();
}

}  // namespace cfge
