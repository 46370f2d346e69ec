#include "support/ChildProcess.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <thread>

extern char** environ;

ChildProcess::ChildProcess(const std::string& program, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), program);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    if (posix_spawn(&m_pid, program.c_str(), nullptr, nullptr, argv.data(), environ) != 0) {
        m_pid = -1;
    }
}

ChildProcess::~ChildProcess() { Kill(); }

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

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}
