// The other process of the platform tests.
//
//   q9_platform_helper word-exchange <name> <value>
//       Exchanges the shared word <name> for <value> and prints the previous
//       value. Exit status 3 when the word could not be shared.
//   q9_platform_helper write-args <outfile> <arguments...>
//       Writes, each followed by a NUL byte: its process id, its session id,
//       "1" or "0" for whether any signal is blocked, its working directory,
//       and every argument after <outfile> exactly as received.
//   q9_platform_helper fd-target <outfile> <fd>
//       Writes what descriptor <fd> refers to, or nothing when it is closed.
//
// Output files are written beside <outfile> and renamed into place, so that
// a test polling for <outfile> never reads half of one.

#include <signal.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "platform/SharedWord.h"

namespace {

int Usage() {
    std::fprintf(stderr,
                 "usage: q9_platform_helper word-exchange <name> <value>\n"
                 "       q9_platform_helper write-args <outfile> <arguments...>\n"
                 "       q9_platform_helper fd-target <outfile> <fd>\n");
    return 2;
}

bool WriteFileInPlace(const std::string& path, const std::string& content) {
    const std::string temporary = path + ".tmp";
    {
        std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
        file << content;
        if (!file.flush()) return false;
    }
    return std::rename(temporary.c_str(), path.c_str()) == 0;
}

void AppendField(std::string& content, const std::string& field) {
    content += field;
    content += '\0';
}

bool AnySignalBlocked() {
    sigset_t blocked;
    sigemptyset(&blocked);
    sigprocmask(SIG_BLOCK, nullptr, &blocked);
    for (int number = 1; number < SIGRTMIN; ++number) {
        if (sigismember(&blocked, number) == 1) return true;
    }
    return false;
}

std::string WorkingDirectory() {
    char buffer[PATH_MAX];
    return getcwd(buffer, sizeof buffer) ? buffer : "";
}

int WordExchange(const std::string& name, const std::string& value) {
    platform::SharedWord word(name);
    const auto previous = word.Exchange(static_cast<uint32_t>(std::stoul(value)));
    std::printf("%u\n", previous);
    return word.IsShared() ? 0 : 3;
}

int WriteArgs(const std::string& outfile, const std::vector<std::string>& arguments) {
    std::string content;
    AppendField(content, std::to_string(getpid()));
    AppendField(content, std::to_string(getsid(0)));
    AppendField(content, AnySignalBlocked() ? "1" : "0");
    AppendField(content, WorkingDirectory());
    for (const std::string& argument : arguments) AppendField(content, argument);
    return WriteFileInPlace(outfile, content) ? 0 : 1;
}

int FdTarget(const std::string& outfile, const std::string& fd) {
    const std::string link = "/proc/self/fd/" + fd;
    char buffer[PATH_MAX];
    const ssize_t length = readlink(link.c_str(), buffer, sizeof buffer);
    const std::string target =
        length > 0 ? std::string(buffer, static_cast<size_t>(length)) : std::string();
    return WriteFileInPlace(outfile, target) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.size() == 3 && args[0] == "word-exchange") return WordExchange(args[1], args[2]);
    if (args.size() >= 2 && args[0] == "write-args") {
        return WriteArgs(args[1], std::vector<std::string>(args.begin() + 2, args.end()));
    }
    if (args.size() == 3 && args[0] == "fd-target") return FdTarget(args[1], args[2]);
    return Usage();
}
