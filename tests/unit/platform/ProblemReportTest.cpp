// The process's list of unreadable files: what a reader reports stays listed
// until the file is read whole again or is gone, and each report reaches the
// problem sink like any other problem.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/ProblemReport.h"
#include "support/ProblemCapture.h"
#include "support/TemporaryInstallation.h"

namespace {

std::vector<std::string> ListedPaths() {
    std::vector<std::string> paths;
    for (const platform::UnreadableFile& file : platform::UnreadableFiles()) {
        paths.push_back(file.path);
    }
    return paths;
}

class ProblemReportTest : public testing::Test {
protected:
    ProblemReportTest() {
        install.Write("a.dat", "x");
        install.Write("b.dat", "y");
    }
    ~ProblemReportTest() override {
        platform::NoteReadableFile(install.PathOf("a.dat"));
        platform::NoteReadableFile(install.PathOf("b.dat"));
    }

    TemporaryInstallation install;
};

}  // namespace

TEST_F(ProblemReportTest, AnUnreadableFileIsListedInOrderAndReachesTheSink) {
    const std::string a = install.PathOf("a.dat");
    const std::string b = install.PathOf("b.dat");
    ProblemCapture problems;
    platform::ReportUnreadableFile(b, "b is damaged");
    platform::ReportUnreadableFile(a, "a is damaged");
    EXPECT_EQ(ListedPaths(), (std::vector<std::string>{b, a}));
    EXPECT_EQ(problems.Lines(), (std::vector<std::string>{"b is damaged", "a is damaged"}));
}

TEST_F(ProblemReportTest, AFileReportedAgainIsListedOnceWithItsLatestProblem) {
    const std::string a = install.PathOf("a.dat");
    platform::ReportUnreadableFile(a, "cut short");
    platform::ReportUnreadableFile(a, "too large");
    const std::vector<platform::UnreadableFile> listed = platform::UnreadableFiles();
    ASSERT_EQ(ListedPaths(), std::vector<std::string>{a});
    EXPECT_EQ(listed[0].problem, "too large");
}

TEST_F(ProblemReportTest, AFileReadWholeAgainIsNoLongerListed) {
    const std::string a = install.PathOf("a.dat");
    const std::string b = install.PathOf("b.dat");
    platform::ReportUnreadableFile(a, "damaged");
    platform::ReportUnreadableFile(b, "damaged");
    platform::NoteReadableFile(a);
    EXPECT_EQ(ListedPaths(), std::vector<std::string>{b});
    platform::NoteReadableFile(install.PathOf("never reported"));
    EXPECT_EQ(ListedPaths(), std::vector<std::string>{b});
}

TEST_F(ProblemReportTest, AFileThatIsGoneIsDroppedFromTheList) {
    const std::string a = install.PathOf("a.dat");
    platform::ReportUnreadableFile(a, "damaged");
    std::filesystem::remove(a);
    EXPECT_TRUE(ListedPaths().empty());
}

TEST_F(ProblemReportTest, APathThatCannotNameAFileIsDroppedFromTheList) {
    ProblemCapture problems;
    const std::string tooLong = "/" + std::string(300, 'a') + "/" + std::string(300, 'b');
    const std::string underAFile = install.PathOf("a.dat") + "/inside.dat";
    const std::string kept = install.PathOf("b.dat");
    platform::ReportUnreadableFile(tooLong, "name too long");
    platform::ReportUnreadableFile(underAFile, "not a folder");
    platform::ReportUnreadableFile(kept, "damaged");
    EXPECT_EQ(ListedPaths(), std::vector<std::string>{kept});
}
