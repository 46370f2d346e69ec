#include "platform/ProgramLauncher.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace platform {
namespace {

// The program is started by a short-lived intermediate process that forks
// the program's process and exits at once; the caller reaps the intermediate
// right away and the program, left without a parent, is adopted by the
// system. Both forked processes tell the caller how far they got through a
// close-on-exec pipe: it reaches end of file once the program is running
// (its copy closed by the exec) or once a step failed and said so.
enum class Stage : int32_t { Started, ForkFailed, DirectoryFailed, ExecFailed };

struct StatusRecord {
    Stage stage;
    int32_t value;  // the program's process id, or the errno of a failure
};

// Only async-signal-safe calls from here on up to the exec: the caller may
// have other threads, whose locks the forked copy would inherit held.
void Send(int statusFd, Stage stage, int32_t value) {
    const StatusRecord record{stage, value};
    const ssize_t written = write(statusFd, &record, sizeof record);
    static_cast<void>(written);
}

// Marks every descriptor above standard error close-on-exec, so that the
// program inherits none of the caller's files, pipes or locks.
void CloseDescriptorsOnExec(int highestDescriptor) {
    if (close_range(3, ~0U, CLOSE_RANGE_CLOEXEC) == 0) return;
    for (int fd = 3; fd <= highestDescriptor; ++fd) fcntl(fd, F_SETFD, FD_CLOEXEC);
}

struct LaunchPlan {
    const char* program;
    char* const* argv;
    const char* directory;  // null: stay in the caller's directory
    int highestDescriptor;
};

[[noreturn]] void RunProgram(const LaunchPlan& plan, int statusFd) {
    setsid();
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
    if (plan.directory && chdir(plan.directory) != 0) {
        Send(statusFd, Stage::DirectoryFailed, errno);
        _exit(127);
    }
    CloseDescriptorsOnExec(plan.highestDescriptor);
    execv(plan.program, plan.argv);
    Send(statusFd, Stage::ExecFailed, errno);
    _exit(127);
}

[[noreturn]] void RunIntermediate(const LaunchPlan& plan, int statusFd) {
    const pid_t pid = fork();
    if (pid == 0) RunProgram(plan, statusFd);
    if (pid < 0) {
        Send(statusFd, Stage::ForkFailed, errno);
    } else {
        Send(statusFd, Stage::Started, pid);
    }
    _exit(0);
}

void Reap(pid_t pid) {
    while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
    }
}

// Reads the status records up to end of file. True when the program was
// started and no step failed; its process id is then in *pid. Otherwise
// *error is the error number of the failed step.
bool ReadOutcome(int statusFd, pid_t* pid, int* error) {
    bool started = false;
    bool failed = false;
    StatusRecord record{};
    for (;;) {
        const ssize_t length = read(statusFd, &record, sizeof record);
        if (length < 0 && errno == EINTR) continue;
        if (length != static_cast<ssize_t>(sizeof record)) break;
        if (record.stage == Stage::Started) {
            started = true;
            *pid = record.value;
        } else {
            failed = true;
            *error = record.value;
        }
    }
    if (!started && !failed) *error = ECHILD;
    return started && !failed;
}

// A relative program path is taken from the caller's directory, not from the
// working directory the program is given.
std::string ProgramPath(const std::string& program) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(program, error);
    return error ? program : absolute.string();
}

// The upper end of the one-by-one marking used on kernels without
// close_range: the open-file limit, capped so that a limit in the millions
// does not make every start slow.
int HighestDescriptor() {
    const long limit = sysconf(_SC_OPEN_MAX);
    return limit > 0 && limit < 65536 ? static_cast<int>(limit) - 1 : 65535;
}

// Starts the plan through the intermediate process; true once the program
// runs, with its process id in *pid, else the error number in *error.
bool Launch(const LaunchPlan& plan, pid_t* pid, int* error) {
    int status[2];
    if (pipe2(status, O_CLOEXEC) != 0) {
        *error = errno;
        return false;
    }
    const pid_t intermediate = fork();
    if (intermediate == 0) {
        close(status[0]);
        RunIntermediate(plan, status[1]);
    }
    if (intermediate < 0) *error = errno;
    close(status[1]);
    if (intermediate < 0) {
        close(status[0]);
        return false;
    }
    Reap(intermediate);
    const bool started = ReadOutcome(status[0], pid, error);
    close(status[0]);
    return started;
}

}  // namespace

bool StartProgram(const std::string& program, const std::vector<std::string>& arguments,
                  const std::string& workingDirectory, int64_t* processId, int* error) {
    int failure = ENOENT;
    if (program.empty()) {
        if (error) *error = failure;
        return false;
    }
    // Everything the forked processes need is prepared here, before the fork.
    const std::string path = ProgramPath(program);
    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(program.c_str()));
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    const LaunchPlan plan{path.c_str(), argv.data(),
                          workingDirectory.empty() ? nullptr : workingDirectory.c_str(),
                          HighestDescriptor()};

    pid_t pid = 0;
    const bool started = Launch(plan, &pid, &failure);
    if (started && processId) *processId = pid;
    if (!started && error) *error = failure;
    return started;
}

}  // namespace platform
