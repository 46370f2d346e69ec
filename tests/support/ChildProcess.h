#pragma once

// A program of the tests running as another process, started with the test's
// environment. The destructor kills and reaps it if it is still running.

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

class ChildProcess {
public:
    ChildProcess(const std::string& program, std::vector<std::string> arguments);
    ~ChildProcess();

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool Started() const { return m_pid > 0; }
    // True once the process has ended; does not wait.
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
