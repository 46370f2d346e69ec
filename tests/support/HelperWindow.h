#pragma once

// q9_window_helper (a test helper program) showing a window with a beacon in
// another process; it writes its token and then "forward" lines to a file.
// The helper is killed at the end, so its socket is removed here.

#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "beacon/WindowBeacon.h"
#include "support/ChildProcess.h"

class HelperWindow {
public:
    explicit HelperWindow(const std::string& helperProgram)
        : m_process(helperProgram, {"window", m_outfile}) {}
    ~HelperWindow() {
        m_process.Kill();
        if (m_token != 0) QFile::remove(WindowBeacon::SocketPath(m_token));
    }

    HelperWindow(const HelperWindow&) = delete;
    HelperWindow& operator=(const HelperWindow&) = delete;

    ChildProcess& Process() { return m_process; }

    // The complete lines written so far.
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        std::ifstream file(m_outfile);
        std::string line;
        while (std::getline(file, line)) {
            if (file.eof()) break;  // a line still being written
            lines.push_back(line);
        }
        return lines;
    }

    uint32_t WaitForToken() {
        if (!WaitFor([this] { return !Lines().empty(); })) return 0;
        m_token = static_cast<uint32_t>(std::stoul(Lines().front()));
        return m_token;
    }

private:
    QTemporaryDir m_dir;
    std::string m_outfile = m_dir.filePath("lines").toStdString();
    ChildProcess m_process;
    uint32_t m_token = 0;
};
