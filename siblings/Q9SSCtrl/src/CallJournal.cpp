#include "CallJournal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "common/InstallDirectory.h"
#include "platform/ProblemReport.h"

namespace q9ssctrl {

std::string CallJournal::Line(const char* entryPoint, std::optional<int32_t> item,
                              const std::string& arguments, int32_t result) {
    std::string line = entryPoint;
    line += '\t';
    line += item ? std::to_string(*item) : "-";
    line += '\t';
    line += arguments.empty() ? "-" : arguments;
    line += '\t';
    line += std::to_string(result);
    return line;
}

void CallJournal::Append(const char* entryPoint, std::optional<int32_t> item,
                         const std::string& arguments, int32_t result) {
    const std::string path = sibling::InstallFile(kFileName);
    const std::string line = Line(entryPoint, item, arguments, result) + '\n';
    const int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    ssize_t written = -1;
    if (fd >= 0) {
        do {
            written = ::write(fd, line.data(), line.size());
        } while (written < 0 && errno == EINTR);
    }
    const int error = errno;
    if (fd >= 0) ::close(fd);
    if (written != static_cast<ssize_t>(line.size())) {
        platform::ReportProblem("cannot append to " + path + ": " +
                                (written < 0 ? std::strerror(error) : "short write"));
    }
}

}  // namespace q9ssctrl
