#include "platform/DebugOutput.h"

#include <sys/stat.h>
#include <syslog.h>

#include <cstdio>

namespace platform {

void DebugOutput(const std::string& text) { DebugOutputVia(kSystemLogSocket, text); }

void DebugOutputVia(const char* systemLogSocket, const std::string& text) {
    struct stat info {};
    if (stat(systemLogSocket, &info) == 0 && S_ISSOCK(info.st_mode)) {
        openlog("Q9CfgUL", LOG_PID, LOG_USER);
        syslog(LOG_DEBUG, "%s", text.c_str());
        closelog();
        return;
    }
    std::fprintf(stderr, "%s\n", text.c_str());
    std::fflush(stderr);
}

}  // namespace platform
