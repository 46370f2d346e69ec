#pragma once

// An exclusive lock held for the lifetime of the object, taken on a lock file
// beside the data it protects (for example "HKLM.reg.lock" beside
// "HKLM.reg"). The lock file is created when missing and never removed:
// removing it would let two processes lock two different files.
//
// The lock is an flock() lock, so it is held by this object's own open file:
// two FileLock objects on the same path exclude each other even inside one
// process, which also means one thread must not take the same lock twice.
// The operating system releases the lock when the process dies.

#include <string>

namespace platform {

class FileLock {
public:
    // Blocks until the lock is held, or until it fails (lock file cannot be
    // opened or created): then IsLocked() is false and ErrorNumber() tells why.
    explicit FileLock(const std::string& lockPath);
    ~FileLock();

    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool IsLocked() const { return m_fd >= 0; }

    // The errno value of the failure; 0 when locked.
    int ErrorNumber() const { return m_error; }

private:
    int m_fd = -1;
    int m_error = 0;
};

}  // namespace platform
