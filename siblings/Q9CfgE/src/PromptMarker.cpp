#include "PromptMarker.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <thread>

namespace cfge {
namespace {

// "<20 decimal digits>\n"
constexpr size_t kRecordSize = 21;
// Readers hold the lock for a moment only; a prompt waits this long for them.
constexpr int kLockTries = 100;
constexpr auto kLockRetry = std::chrono::milliseconds(5);

bool LockExclusively(int fd) {
    for (int attempt = 0; attempt < kLockTries; ++attempt) {
        if (flock(fd, LOCK_EX | LOCK_NB) == 0) return true;
        if (errno != EWOULDBLOCK && errno != EINTR) return false;
        std::this_thread::sleep_for(kLockRetry);
    }
    return false;
}

uint64_t ParseRecord(const char* text, ssize_t size) {
    if (size != static_cast<ssize_t>(kRecordSize) || text[kRecordSize - 1] != '\n') return 0;
    uint64_t window = 0;
    for (size_t i = 0; i + 1 < kRecordSize; ++i) {
        if (text[i] < '0' || text[i] > '9') return 0;
        window = window * 10 + static_cast<uint64_t>(text[i] - '0');
    }
    return window;
}

}  // namespace

PromptMarker::PromptMarker(const std::string& path, uint64_t window) {
    const int fd = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return;
    char record[kRecordSize + 1];
    std::snprintf(record, sizeof record, "%020llu\n", static_cast<unsigned long long>(window));
    if (!LockExclusively(fd) || ftruncate(fd, 0) != 0 ||
        pwrite(fd, record, kRecordSize, 0) != static_cast<ssize_t>(kRecordSize)) {
        close(fd);
        return;
    }
    m_fd = fd;
}

PromptMarker::~PromptMarker() {
    if (m_fd < 0) return;
    const int emptied = ftruncate(m_fd, 0);
    (void)emptied;  // the lock going away is what counts
    close(m_fd);
}

uint64_t PromptMarker::OpenPrompt(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return 0;
    uint64_t window = 0;
    if (flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        char record[kRecordSize + 1];
        window = ParseRecord(record, pread(fd, record, sizeof record, 0));
    }
    close(fd);
    return window;
}

}  // namespace cfge
