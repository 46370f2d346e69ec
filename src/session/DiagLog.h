#pragma once

// The diagnostic log that a support engineer switches on without a rebuild:
// the DWORD value "Debug" under HKEY_LOCAL_MACHINE\Software\Orvtek\Q9CfgUL in
// the registry stand-in. 1 writes each line to the log file, 2 to the system
// log (standard error where there is none); anything else leaves it off. Lines
// carry no level and no time stamp.

#include <cstdint>
#include <string>

class CDiagLog {
public:
    // The log file. It needs no drive and is writable by every user; it is
    // opened without following links and created readable by its owner only.
    static constexpr const char* kDefaultPath = "/tmp/q9cfgul.log";
    static constexpr const char* kSettingKey = "Software\\Orvtek\\Q9CfgUL";
    static constexpr const char* kSettingValue = "Debug";
    static constexpr std::size_t kLineCapacity = 1024;

    enum Mode : uint32_t { kOff = 0, kFile = 1, kSystemLog = 2 };

    // Keeps path and reads the switch. Called once at library start.
    void Open(const std::string& path);

    // Formats one line into at most 1023 characters and writes it by the
    // mode. Empty text is dropped. A file that cannot be opened is ignored
    // (said once on standard error); each line is appended and the file
    // closed again, so that every line survives a crash.
    void Write(const char* format, ...) __attribute__((format(printf, 2, 3)));

    uint32_t mode() const { return m_mode; }
    const std::string& path() const { return m_path; }

    // Where mode 2 looks for the system log (tests point it at a missing
    // socket to read the lines from standard error).
    void SetSystemLogSocket(const std::string& socketPath) { m_systemLogSocket = socketPath; }

private:
    void WriteToFile(const std::string& line);

    std::string m_path;
    uint32_t m_mode = kOff;
    std::string m_systemLogSocket;
    bool m_reportedFileFailure = false;
};

extern CDiagLog g_Log;
