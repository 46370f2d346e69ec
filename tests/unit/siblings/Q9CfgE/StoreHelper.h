#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace store_test {

// The store test helper program (q9_store_helper) running as another
// process. The destructor kills and reaps it if it is still running.
class StoreHelper {
public:
    explicit StoreHelper(std::vector<std::string> arguments);
    ~StoreHelper();

    StoreHelper(const StoreHelper&) = delete;
    StoreHelper& operator=(const StoreHelper&) = delete;

    bool Started() const { return m_pid > 0; }
    bool HasExited();
    // Waits for the end; the exit code, or -1 when it did not exit normally.
    int Wait();
    // Ends it at once with SIGKILL and reaps it.
    void Kill();

private:
    void Reap(int status);

    pid_t m_pid = -1;
    bool m_exited = false;
    int m_exitCode = -1;
};

// Polls condition until it holds or a generous time limit has passed.
bool WaitFor(const std::function<bool()>& condition,
             std::chrono::milliseconds limit = std::chrono::seconds(20));

}  // namespace store_test
