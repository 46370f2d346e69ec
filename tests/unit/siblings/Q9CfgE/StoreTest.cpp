#include "StoreTest.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace store_test {
namespace {

constexpr const char* kVariable = "Q9_INSTALL_DIR";

std::string TemporaryRoot() {
    const char* configured = std::getenv("TMPDIR");
    return (configured && *configured) ? configured : "/tmp";
}

}  // namespace

StoreTest::StoreTest() {
    std::string pattern = TemporaryRoot() + "/q9-store-XXXXXX";
    if (!mkdtemp(pattern.data())) ADD_FAILURE() << "mkdtemp failed for " << pattern;
    m_directory = pattern;
    if (const char* previous = std::getenv(kVariable)) {
        m_hadPrevious = true;
        m_previous = previous;
    }
    setenv(kVariable, m_directory.c_str(), 1);
    ResetStore();
}

StoreTest::~StoreTest() {
    ResetStore();
    if (m_hadPrevious) {
        setenv(kVariable, m_previous.c_str(), 1);
    } else {
        unsetenv(kVariable);
    }
    std::error_code ignored;
    std::filesystem::remove_all(m_directory, ignored);
}

void StoreTest::ResetStore() {
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
}

std::string StoreTest::ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void StoreTest::WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

bool StoreTest::Exists(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0;
}

StderrCapture::StderrCapture() {
    char pattern[] = "/tmp/q9-stderr-XXXXXX";
    const int fd = mkstemp(pattern);
    if (fd < 0) return;
    m_path = pattern;
    std::fflush(stderr);
    m_saved = dup(STDERR_FILENO);
    dup2(fd, STDERR_FILENO);
    close(fd);
}

StderrCapture::~StderrCapture() {
    if (m_saved < 0) return;
    std::fflush(stderr);
    dup2(m_saved, STDERR_FILENO);
    close(m_saved);
    unlink(m_path.c_str());
}

std::string StderrCapture::Text() const {
    std::fflush(stderr);
    std::ifstream in(m_path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

size_t CountOf(const std::string& text, const std::string& needle) {
    size_t count = 0;
    for (size_t at = text.find(needle); at != std::string::npos; at = text.find(needle, at + 1)) {
        ++count;
    }
    return count;
}

}  // namespace store_test
