#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/ProgramLauncher.h"
#include "support/TestPaths.h"

namespace {

namespace fs = std::filesystem;
using platform::StartProgram;

const std::string kHelper = TestPath("helpers") + "/q9_platform_helper";

// Waits for another process to write path (which it renames into place);
// generous, as a loaded machine may take a while to start a program.
std::optional<std::string> WaitForFile(const fs::path& path) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (std::chrono::steady_clock::now() < deadline) {
        std::ifstream file(path, std::ios::binary);
        if (file) {
            std::ostringstream content;
            content << file.rdbuf();
            return content.str();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return std::nullopt;
}

// What "q9_platform_helper write-args" wrote.
struct HelperReport {
    int64_t pid = 0;
    int64_t sid = 0;
    bool signalBlocked = true;
    std::string workingDirectory;
    std::vector<std::string> arguments;
};

std::optional<HelperReport> ReadReport(const fs::path& path) {
    const std::optional<std::string> content = WaitForFile(path);
    if (!content) return std::nullopt;
    std::vector<std::string> fields;
    size_t start = 0;
    for (size_t end; (end = content->find('\0', start)) != std::string::npos; start = end + 1) {
        fields.push_back(content->substr(start, end - start));
    }
    if (fields.size() < 4) return std::nullopt;
    HelperReport report;
    report.pid = std::stoll(fields[0]);
    report.sid = std::stoll(fields[1]);
    report.signalBlocked = fields[2] == "1";
    report.workingDirectory = fields[3];
    report.arguments.assign(fields.begin() + 4, fields.end());
    return report;
}

class ProgramLauncherTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "q9 launcher XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        directory_ = pattern;
        outfile_ = directory_ / "report";
    }

    void TearDown() override { fs::remove_all(directory_); }

    // Starts the helper in mode write-args with the given arguments.
    bool StartWriteArgs(const std::string& program, const std::vector<std::string>& arguments,
                        const std::string& workingDirectory, int64_t* pid = nullptr) {
        std::vector<std::string> all = {"write-args", outfile_.string()};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return StartProgram(program, all, workingDirectory, pid);
    }

    fs::path directory_;
    fs::path outfile_;
};

TEST_F(ProgramLauncherTest, ArgumentsArriveVerbatim) {
    const std::vector<std::string> arguments = {"with space",   "double\"quote",
                                                "single'quote", "back\\slash",
                                                "trailing\\",   "$HOME",
                                                "a;b",          "*",
                                                "x|y",          "",
                                                "`id`",         "grüße ✓",
                                                "line\nend",    "-n"};
    ASSERT_TRUE(StartWriteArgs(kHelper, arguments, directory_.string()));
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->arguments, arguments);
}

TEST_F(ProgramLauncherTest, RunsInGivenWorkingDirectory) {
    ASSERT_NE(directory_.string().find(' '), std::string::npos);
    ASSERT_TRUE(StartWriteArgs(kHelper, {}, directory_.string()));
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->workingDirectory, fs::canonical(directory_).string());
}

TEST_F(ProgramLauncherTest, EmptyWorkingDirectoryKeepsCallersDirectory) {
    ASSERT_TRUE(StartWriteArgs(kHelper, {}, ""));
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->workingDirectory, fs::canonical(fs::current_path()).string());
}

TEST_F(ProgramLauncherTest, GivesProcessIdOfProgram) {
    int64_t pid = 0;
    ASSERT_TRUE(StartWriteArgs(kHelper, {}, directory_.string(), &pid));
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->pid, pid);
}

// Neither the program nor the process that forked it is a child of the
// caller: nothing is left for the caller to reap.
TEST_F(ProgramLauncherTest, LeavesNoChildBehind) {
    int64_t pid = 0;
    ASSERT_TRUE(StartWriteArgs(kHelper, {}, directory_.string(), &pid));
    ASSERT_TRUE(ReadReport(outfile_));
    int status = 0;
    errno = 0;
    EXPECT_EQ(waitpid(static_cast<pid_t>(pid), &status, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    errno = 0;
    EXPECT_EQ(waitpid(-1, &status, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(ProgramLauncherTest, ProgramLeadsSessionOfItsOwn) {
    ASSERT_TRUE(StartWriteArgs(kHelper, {}, directory_.string()));
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->sid, report->pid);
}

TEST_F(ProgramLauncherTest, ProgramStartsWithNoSignalBlocked) {
    sigset_t block;
    sigset_t previous;
    sigemptyset(&block);
    sigaddset(&block, SIGUSR2);
    pthread_sigmask(SIG_BLOCK, &block, &previous);
    const bool started = StartWriteArgs(kHelper, {}, directory_.string());
    pthread_sigmask(SIG_SETMASK, &previous, nullptr);
    ASSERT_TRUE(started);
    const std::optional<HelperReport> report = ReadReport(outfile_);
    ASSERT_TRUE(report);
    EXPECT_FALSE(report->signalBlocked);
}

TEST_F(ProgramLauncherTest, ProgramInheritsNoDescriptor) {
    const fs::path probe = directory_ / "inherit-probe";
    const int fd = open(probe.c_str(), O_WRONLY | O_CREAT, 0600);  // deliberately not O_CLOEXEC
    ASSERT_GE(fd, 3);
    const bool started =
        StartProgram(kHelper, {"fd-target", outfile_.string(), std::to_string(fd)}, "");
    close(fd);
    ASSERT_TRUE(started);
    const std::optional<std::string> target = WaitForFile(outfile_);
    ASSERT_TRUE(target);
    EXPECT_EQ(target->find("inherit-probe"), std::string::npos) << *target;
}

// A relative program path counts from the caller's directory, not from the
// working directory given to the program.
TEST_F(ProgramLauncherTest, RelativeProgramIsFoundFromCallersDirectory) {
    std::string relative = fs::relative(kHelper, fs::current_path()).string();
    if (relative.find('/') == std::string::npos) relative = "./" + relative;
    ASSERT_TRUE(StartWriteArgs(relative, {}, directory_.string()));
    EXPECT_TRUE(ReadReport(outfile_));
}

TEST_F(ProgramLauncherTest, MissingProgramFails) {
    int64_t pid = -5;
    EXPECT_FALSE(
        StartWriteArgs((directory_ / "no-such-program").string(), {}, directory_.string(), &pid));
    EXPECT_EQ(pid, -5);
}

TEST_F(ProgramLauncherTest, ProgramNotFoundOnSearchPath) {
    EXPECT_FALSE(StartProgram("true", {}, directory_.string()));
}

TEST_F(ProgramLauncherTest, EmptyProgramFails) {
    EXPECT_FALSE(StartProgram("", {}, directory_.string()));
}

TEST_F(ProgramLauncherTest, NonExecutableFileFails) {
    const fs::path data = directory_ / "data.txt";
    std::ofstream(data) << "#!/bin/sh\nexit 0\n";
    fs::permissions(data, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(StartProgram(data.string(), {}, directory_.string()));
}

TEST_F(ProgramLauncherTest, FailureTellsTheErrorOfTheStepThatFailed) {
    int error = 0;
    EXPECT_FALSE(StartProgram((directory_ / "no-such-program").string(), {}, "", nullptr, &error));
    EXPECT_EQ(error, ENOENT);
    const fs::path data = directory_ / "data.txt";
    std::ofstream(data) << "#!/bin/sh\nexit 0\n";
    fs::permissions(data, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(StartProgram(data.string(), {}, "", nullptr, &error));
    EXPECT_EQ(error, EACCES);
    EXPECT_FALSE(StartProgram(kHelper, {}, (directory_ / "missing").string(), nullptr, &error));
    EXPECT_EQ(error, ENOENT);
    error = 0;
    EXPECT_FALSE(StartProgram("", {}, "", nullptr, &error));
    EXPECT_EQ(error, ENOENT);
}

TEST_F(ProgramLauncherTest, SuccessLeavesTheErrorAlone) {
    int error = -7;
    ASSERT_TRUE(StartProgram(kHelper, {"write-args", outfile_.string()}, "", nullptr, &error));
    EXPECT_EQ(error, -7);
    EXPECT_TRUE(ReadReport(outfile_).has_value());
}

TEST_F(ProgramLauncherTest, MissingWorkingDirectoryFails) {
    EXPECT_FALSE(StartWriteArgs(kHelper, {}, (directory_ / "missing").string()));
}

TEST_F(ProgramLauncherTest, FileAsWorkingDirectoryFails) {
    const fs::path file = directory_ / "plain-file";
    std::ofstream(file) << "x";
    EXPECT_FALSE(StartWriteArgs(kHelper, {}, file.string()));
}

}  // namespace
