#pragma once

// Fixture of the configuration store tests: an installation directory of its
// own per test (Q9_INSTALL_DIR), and the store back on the live file outside
// edit mode before and after each test.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "Q9CfgE.h"

namespace store_test {

constexpr uint32_t kGeneral = 0;
constexpr uint32_t kExclude = 1;
constexpr uint32_t kAuthorization = 3;
constexpr uint32_t kSystemScan = 4;
constexpr uint32_t kScreenSaver = 6;
constexpr uint32_t kSystemMonitor = 7;
constexpr uint32_t kSwitch = 14;

constexpr uint32_t kGeneralOptions = 0;
constexpr uint32_t kAlertSound = 1;
constexpr uint32_t kScanLogSize = 2;
constexpr uint32_t kEventLogCount = 3;
constexpr uint32_t kExcludeEnable = 5;
constexpr uint32_t kAuthEnabled = 7;
constexpr uint32_t kAuthPassword = 9;
constexpr uint32_t kScanOptions = 10;
constexpr uint32_t kScanArchive = 11;
constexpr uint32_t kScanExtensions = 13;
constexpr uint32_t kMonitorOptions = 14;
constexpr uint32_t kSchedOn = 32;
constexpr uint32_t kSchedCmdLine = 40;
constexpr uint32_t kSchedCurDir = 41;
constexpr uint32_t kScheduleUser = 50;
constexpr uint32_t kProtectLevel = 59;

constexpr uint32_t kSchedule0 = Q9CFGE_SCHEDULE_FIRST;
constexpr uint32_t kSchedule3 = Q9CFGE_SCHEDULE_FIRST | 3;

constexpr const char* kHeader = "Q9 Configuration Store 1\n";

class StoreTest : public testing::Test {
protected:
    StoreTest();
    ~StoreTest() override;

    // Paths in the test's installation directory.
    const std::string& Directory() const { return m_directory; }
    std::string PathOf(const std::string& name) const { return m_directory + "/" + name; }
    std::string LiveFile() const { return PathOf("Q9Cfg.dat"); }
    std::string DefaultsFile() const { return PathOf("Q9CfgDef.dat"); }

    // Whole file content; empty when it cannot be read.
    static std::string ReadFile(const std::string& path);
    // Writes a file in place, as a hand edit would.
    static void WriteFile(const std::string& path, const std::string& bytes);
    static bool Exists(const std::string& path);

    // The store leaves edit mode and goes back to the live file.
    static void ResetStore();

private:
    std::string m_directory;
    bool m_hadPrevious = false;
    std::string m_previous;
};

// Captures what is written to standard error (where the store reports
// problems) while the object lives.
class StderrCapture {
public:
    StderrCapture();
    ~StderrCapture();

    StderrCapture(const StderrCapture&) = delete;
    StderrCapture& operator=(const StderrCapture&) = delete;

    // Everything captured so far.
    std::string Text() const;

private:
    int m_saved = -1;
    std::string m_path;
};

// How often needle occurs in text.
size_t CountOf(const std::string& text, const std::string& needle);

}  // namespace store_test
