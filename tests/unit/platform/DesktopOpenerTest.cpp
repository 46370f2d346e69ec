// Opening a target with the desktop's program: the opener found on the
// search path, the browsers of BROWSER after it, and the error told when
// nothing could be started. The programs here are small scripts of the test
// that write down the arguments they were given.

#include <gtest/gtest.h>
#include <stdlib.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/DesktopOpener.h"
#include "support/ScopedVariable.h"

namespace desktop_opener_test {
namespace {

namespace fs = std::filesystem;
using platform::BrowserCommand;
using platform::FindProgram;
using platform::OpenWithDesktop;

class DesktopOpenerTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "q9 opener XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        m_directory = pattern;
        m_bin = m_directory / "bin";
        fs::create_directory(m_bin);
        m_path.emplace("PATH", m_bin.c_str());
        m_browser.emplace("BROWSER", nullptr);
    }

    void TearDown() override {
        m_path.reset();
        m_browser.reset();
        fs::remove_all(m_directory);
    }

    // A program of the search path that writes its arguments, one a line,
    // to <directory>/<name>.args.
    void AddRecorder(const std::string& name) const {
        const fs::path program = m_bin / name;
        const fs::path record = m_directory / (name + ".args");
        std::ofstream(program)
            << "#!/bin/sh\nPATH=/usr/bin:/bin\nfor a in \"$@\"; do echo \"$a\"; done > '"
            << (record.string() + ".tmp") << "'\nmv '" << record.string() << ".tmp' '"
            << record.string() << "'\n";
        fs::permissions(program, fs::perms::owner_all);
    }

    // The arguments the recorder name was started with; none when it did not
    // run within a generous time.
    std::optional<std::vector<std::string>> ArgumentsOf(const std::string& name) const {
        const fs::path record = m_directory / (name + ".args");
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!fs::exists(record)) {
            if (std::chrono::steady_clock::now() > deadline) return std::nullopt;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        std::ifstream file(record);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) lines.push_back(line);
        return lines;
    }

    fs::path m_directory;
    fs::path m_bin;
    std::optional<ScopedVariable> m_path;
    std::optional<ScopedVariable> m_browser;
};

const std::string kTarget = "https://example.org/a page?x=1&y=2";

TEST_F(DesktopOpenerTest, FindsAnExecutableFileOnTheSearchPath) {
    AddRecorder("opener");
    EXPECT_EQ(FindProgram("opener"), (m_bin / "opener").string());
    EXPECT_EQ(FindProgram("missing"), "");
    EXPECT_EQ(FindProgram(""), "");
}

TEST_F(DesktopOpenerTest, PassesOverDirectoriesAndFilesThatCannotRun) {
    fs::create_directory(m_bin / "folder");
    std::ofstream(m_bin / "data") << "x";
    fs::permissions(m_bin / "data", fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(FindProgram("folder"), "");
    EXPECT_EQ(FindProgram("data"), "");
}

TEST_F(DesktopOpenerTest, ANameWithASlashIsAPathAlready) {
    EXPECT_EQ(FindProgram("/usr/bin/anything"), "/usr/bin/anything");
    EXPECT_EQ(FindProgram("./here"), "./here");
}

TEST_F(DesktopOpenerTest, BrowserCommandAddsTheTargetOrPutsItInPlaceOfPercentS) {
    EXPECT_EQ(BrowserCommand("firefox", kTarget), (std::vector<std::string>{"firefox", kTarget}));
    EXPECT_EQ(BrowserCommand("chromium --new-window %s", kTarget),
              (std::vector<std::string>{"chromium", "--new-window", kTarget}));
    EXPECT_EQ(BrowserCommand("w3m -T text/html url=%s", "%s"),
              (std::vector<std::string>{"w3m", "-T", "text/html", "url=%s"}));
    EXPECT_TRUE(BrowserCommand("", kTarget).empty());
    EXPECT_TRUE(BrowserCommand("   ", kTarget).empty());
}

TEST_F(DesktopOpenerTest, TheDesktopsOpenerGetsTheTargetAsOneArgument) {
    AddRecorder("xdg-open");
    AddRecorder("browser");
    const ScopedVariable browser("BROWSER", "browser");
    EXPECT_EQ(OpenWithDesktop(kTarget), 0);
    EXPECT_EQ(ArgumentsOf("xdg-open"), (std::vector<std::string>{kTarget}));
    EXPECT_FALSE(fs::exists(m_directory / "browser.args"));
}

TEST_F(DesktopOpenerTest, WithoutTheOpenerTheFirstBrowserThatStartsOpensIt) {
    AddRecorder("browser");
    const ScopedVariable browser("BROWSER", "missing-browser:browser --new %s");
    EXPECT_EQ(OpenWithDesktop(kTarget), 0);
    EXPECT_EQ(ArgumentsOf("browser"), (std::vector<std::string>{"--new", kTarget}));
}

TEST_F(DesktopOpenerTest, NothingToStartTellsTheOpenersError) {
    EXPECT_EQ(OpenWithDesktop(kTarget), ENOENT);
    const ScopedVariable browser("BROWSER", "missing-browser::");
    EXPECT_EQ(OpenWithDesktop(kTarget), ENOENT);
}

}  // namespace
}  // namespace desktop_opener_test
