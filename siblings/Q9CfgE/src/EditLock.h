#pragma once

// The edit lock: an flock() on "<store>.edit.lock" held from entering edit
// mode until UnlockEx, so that two editors of one store hear of each other.
// Correctness does not depend on it (a commit applies only its own changes),
// so a holder that does not let go is waited for a while and then ignored.

#include <chrono>
#include <string>

namespace cfge {

class EditLock {
public:
    EditLock() = default;
    ~EditLock();

    EditLock(const EditLock&) = delete;
    EditLock& operator=(const EditLock&) = delete;

    enum class Result {
        Held,        // this object holds the lock (also when it did already)
        Busy,        // another holder kept it for the whole timeout
        Unavailable  // the lock file cannot be opened or made
    };

    // Takes the lock on path, trying until timeout has passed.
    Result Acquire(const std::string& path, std::chrono::milliseconds timeout);
    void Release();
    bool Held() const { return m_fd >= 0; }

private:
    int m_fd = -1;
    std::string m_path;
};

}  // namespace cfge
