#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

// The registry test helper program (q9_registry_helper) running as another
// process. The destructor kills and reaps it if it is still running.
class HelperProcess {
public:
    explicit HelperProcess(std::vector<std::string> arguments);
    ~HelperProcess();

    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;

    bool Started() const { return pid_ > 0; }

    // True once the process has ended; does not wait.
    bool HasExited();

    // Waits for the end; the exit code, or -1 when it did not exit normally.
    int Wait();

private:
    void Reap(int status);

    pid_t pid_ = -1;
    bool exited_ = false;
    int exitCode_ = -1;
};
