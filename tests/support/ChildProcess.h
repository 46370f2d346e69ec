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
    // Where the program's standard output goes: the test's own, or a pipe
    // the test reads with WaitForLine.
    enum class Output { kInherited, kPiped };

    ChildProcess(const std::string& program, std::vector<std::string> arguments,
                 Output output = Output::kInherited);
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

    // With a piped output: waits until the program has written line (whole,
    // without its line end). Lines before it are passed over. False when the
    // output ended or limit passed first.
    bool WaitForLine(const std::string& line,
                     std::chrono::milliseconds limit = std::chrono::seconds(20));

private:
    void Reap(int status);
    // Reads what the pipe holds into m_output, waiting up to timeoutMs for
    // it. False at the end of the output, on an error or when nothing came.
    bool ReadOutput(int timeoutMs);
    // Takes the first whole line out of m_output; false when there is none.
    bool TakeLine(std::string* line);

    pid_t m_pid = -1;
    bool m_exited = false;
    int m_exitCode = -1;
    int m_outputFd = -1;
    std::string m_output;  // read from the pipe, not yet taken as lines
};

// Polls condition until it holds or a generous time limit has passed.
bool WaitFor(const std::function<bool()>& condition,
             std::chrono::milliseconds limit = std::chrono::seconds(20));
