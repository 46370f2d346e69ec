#pragma once

#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>

#include <string>

// Collects what is written to standard error while the object lives. The
// libraries under test report problems there from their own copy of the
// reporting code, which a sink installed by the test does not reach.
class StderrCapture {
public:
    StderrCapture() {
        char pattern[] = "/tmp/q9-stderr-XXXXXX";
        m_file = mkstemp(pattern);
        if (m_file < 0) return;
        unlink(pattern);
        fflush(stderr);
        m_saved = dup(STDERR_FILENO);
        dup2(m_file, STDERR_FILENO);
    }

    ~StderrCapture() {
        fflush(stderr);
        if (m_saved >= 0) {
            dup2(m_saved, STDERR_FILENO);
            close(m_saved);
        }
        if (m_file >= 0) close(m_file);
    }

    StderrCapture(const StderrCapture&) = delete;
    StderrCapture& operator=(const StderrCapture&) = delete;

    std::string Text() const {
        fflush(stderr);
        std::string text;
        if (m_file < 0) return text;
        char buffer[4096];
        ssize_t got = 0;
        off_t offset = 0;
        while ((got = pread(m_file, buffer, sizeof buffer, offset)) > 0) {
            text.append(buffer, static_cast<size_t>(got));
            offset += got;
        }
        return text;
    }

private:
    int m_file = -1;
    int m_saved = -1;
};
