#include "support/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

extern char** environ;

namespace {

// Both ends close on exec; the child's copy on its standard output does not.
bool MakePipe(int ends[2]) { return pipe2(ends, O_CLOEXEC) == 0; }

}  // namespace

ChildProcess::ChildProcess(const std::string& program, std::vector<std::string> arguments,
                           Output output) {
    arguments.insert(arguments.begin(), program);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    int ends[2] = {-1, -1};
    if (output == Output::kPiped && !MakePipe(ends)) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (output == Output::kPiped)
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    if (posix_spawn(&m_pid, program.c_str(), &actions, nullptr, argv.data(), environ) != 0) {
        m_pid = -1;
    }
    posix_spawn_file_actions_destroy(&actions);
    if (output == Output::kPiped) {
        close(ends[1]);
        m_outputFd = ends[0];
    }
}

ChildProcess::~ChildProcess() {
    Kill();
    if (m_outputFd >= 0) close(m_outputFd);
}

void ChildProcess::Kill() {
    if (!Started() || m_exited) return;
    kill(m_pid, SIGKILL);
    Wait();
}

bool ChildProcess::HasExited() {
    if (!Started() || m_exited) return true;
    int status = 0;
    if (waitpid(m_pid, &status, WNOHANG) == m_pid) Reap(status);
    return m_exited;
}

int ChildProcess::Wait() {
    if (!Started()) return -1;
    int status = 0;
    if (!m_exited && waitpid(m_pid, &status, 0) == m_pid) Reap(status);
    return m_exitCode;
}

void ChildProcess::Reap(int status) {
    m_exited = true;
    m_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool ChildProcess::WaitForLine(const std::string& line, std::chrono::milliseconds limit) {
    if (!Started() || m_outputFd < 0) return false;
    const auto deadline = std::chrono::steady_clock::now() + limit;
    for (;;) {
        std::string next;
        while (TakeLine(&next)) {
            if (next == line) return true;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !ReadOutput(static_cast<int>(left.count()))) return false;
    }
}

bool ChildProcess::ReadOutput(int timeoutMs) {
    pollfd ready{m_outputFd, POLLIN, 0};
    if (poll(&ready, 1, timeoutMs) != 1) return false;
    char buffer[512];
    const ssize_t size = read(m_outputFd, buffer, sizeof buffer);
    if (size <= 0) return false;
    m_output.append(buffer, static_cast<size_t>(size));
    return true;
}

bool ChildProcess::TakeLine(std::string* line) {
    const size_t end = m_output.find('\n');
    if (end == std::string::npos) return false;
    *line = m_output.substr(0, end);
    m_output.erase(0, end + 1);
    return true;
}

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}
