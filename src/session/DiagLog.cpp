#include "session/DiagLog.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "platform/DebugOutput.h"
#include "platform/ProblemReport.h"
#include "platform/Registry.h"
#include "text/TextFormat.h"

CDiagLog g_Log;

namespace {

uint32_t ReadModeSwitch() {
    platform::RegKey key = nullptr;
    if (platform::RegOpenKey(platform::LocalMachine(), CDiagLog::kSettingKey,
                             platform::kKeyAllAccess, &key) != platform::kSuccess) {
        return CDiagLog::kOff;
    }
    uint32_t type = 0;
    uint32_t value = 0;
    uint32_t size = sizeof value;
    const int32_t status = platform::RegQueryValue(key, CDiagLog::kSettingValue, &type,
                                                   reinterpret_cast<uint8_t*>(&value), &size);
    platform::RegCloseKey(key);
    if (status != platform::kSuccess || type != platform::kRegDword || size != sizeof value) {
        return CDiagLog::kOff;
    }
    return (value == CDiagLog::kFile || value == CDiagLog::kSystemLog) ? value : CDiagLog::kOff;
}

// Problems the platform layer reports also go into the log.
void WriteProblemToLog(const char* line) { g_Log.Write("%s", line); }

}  // namespace

void CDiagLog::Open(const std::string& path) {
    m_path = path;
    m_mode = ReadModeSwitch();
    m_reportedFileFailure = false;
    if (m_systemLogSocket.empty()) m_systemLogSocket = platform::kSystemLogSocket;
    platform::SetProblemSink(m_mode == kOff ? nullptr : &WriteProblemToLog);
}

void CDiagLog::Write(const char* format, ...) {
    if (m_mode == kOff) return;
    va_list arguments;
    va_start(arguments, format);
    const std::string line = FormatBoundedV(kLineCapacity, format, arguments);
    va_end(arguments);
    if (line.empty()) return;
    if (m_mode == kFile) {
        WriteToFile(line);
    } else {
        platform::DebugOutputVia(m_systemLogSocket.c_str(), line);
    }
}

void CDiagLog::WriteToFile(const std::string& line) {
    const int fd =
        ::open(m_path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) {
        // Not through ReportProblem: that would come back here.
        if (!m_reportedFileFailure) {
            std::fprintf(stderr, "Q9CfgUL: cannot write the log file %s: %s\n", m_path.c_str(),
                         std::strerror(errno));
            m_reportedFileFailure = true;
        }
        return;
    }
    const std::string text = line + "\n";
    // One write per line: appends from several processes do not interleave.
    const ssize_t written = ::write(fd, text.data(), text.size());
    (void)written;
    ::close(fd);
}
