#include "HelperProcess.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;

namespace {
constexpr const char* kHelper = Q9_HELPER_DIR "/q9_registry_helper";
}

HelperProcess::HelperProcess(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), kHelper);
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    if (posix_spawn(&pid_, kHelper, nullptr, nullptr, argv.data(), environ) != 0) pid_ = -1;
}

HelperProcess::~HelperProcess() {
    if (!Started() || exited_) return;
    kill(pid_, SIGKILL);
    Wait();
}

bool HelperProcess::HasExited() {
    if (!Started() || exited_) return true;
    int status = 0;
    if (waitpid(pid_, &status, WNOHANG) == pid_) Reap(status);
    return exited_;
}

int HelperProcess::Wait() {
    if (!Started()) return -1;
    int status = 0;
    if (!exited_ && waitpid(pid_, &status, 0) == pid_) Reap(status);
    return exitCode_;
}

void HelperProcess::Reap(int status) {
    exited_ = true;
    exitCode_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
