#include "support/FuzzCheck.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace fuzz {
namespace {

// Taken before libFuzzer's -close_fd_mask=2 replaces descriptor 2.
const int g_reportFd = dup(STDERR_FILENO);

void WriteReport(std::string_view text) {
    const int fd = g_reportFd >= 0 ? g_reportFd : STDERR_FILENO;
    while (!text.empty()) {
        const ssize_t written = write(fd, text.data(), text.size());
        if (written <= 0) return;
        text.remove_prefix(static_cast<size_t>(written));
    }
}

}  // namespace

void Check(bool holds, const char* what) {
    if (holds) return;
    WriteReport(std::string("fuzz check failed: ") + what + "\n");
    std::abort();
}

std::string_view AsText(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace fuzz
