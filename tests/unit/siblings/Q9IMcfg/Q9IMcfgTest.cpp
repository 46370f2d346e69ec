#include <gtest/gtest.h>

#include <string>

#include "Q9IMcfg.h"
#include "support/StderrCapture.h"
#include "support/TemporaryInstallation.h"
#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

namespace {

class Q9IMcfgTest : public testing::Test {
protected:
    TemporaryInstallation installation;
};

}  // namespace

TEST_F(Q9IMcfgTest, LoadedByNameItAnswersAsTheSystemCallsIt) {
    installation.Write("Q9IMcfg.ini", "[Installed]\n3=1\n");
    platform::SharedLibrary library;
    ASSERT_TRUE(library.Load(TestPath("library"), "Q9IMcfg"));
    EXPECT_EQ(library.CallOr<int32_t(int32_t)>(0, "GetIMInstall", 3), 1);
    EXPECT_EQ(library.CallOr<int32_t(int32_t)>(0, "GetIMInstall", 2), 0);
}

TEST_F(Q9IMcfgTest, MissingFileMeansNothingIsInstalled) {
    for (int32_t row = 0; row < 5; ++row) EXPECT_EQ(GetIMInstall(row), 0) << row;
}

TEST_F(Q9IMcfgTest, EachRowAnswersItsInstalledValue) {
    installation.Write("Q9IMcfg.ini",
                       "; messengers found on this machine\n"
                       "[installed]\n"
                       "0=1\n"
                       "1=0\n"
                       "2 = 1\n"
                       "3=yes\n");
    EXPECT_EQ(GetIMInstall(0), 1);
    EXPECT_EQ(GetIMInstall(1), 0);
    EXPECT_EQ(GetIMInstall(2), 1);
    EXPECT_EQ(GetIMInstall(3), 0);  // not a number
    EXPECT_EQ(GetIMInstall(4), 0);  // absent row
}

TEST_F(Q9IMcfgTest, OnlyTheFiveMessengerRowsExist) {
    installation.Write("Q9IMcfg.ini", "[Installed]\n4=1\n5=1\n-1=1\n");
    EXPECT_EQ(GetIMInstall(4), 1);
    EXPECT_EQ(GetIMInstall(5), 0);
    EXPECT_EQ(GetIMInstall(-1), 0);
}

TEST_F(Q9IMcfgTest, AChangedFileIsSeenAtTheNextCall) {
    installation.Write("Q9IMcfg.ini", "[Installed]\n1=0\n");
    EXPECT_EQ(GetIMInstall(1), 0);
    installation.Write("Q9IMcfg.ini", "[Installed]\n1=1\n");
    EXPECT_EQ(GetIMInstall(1), 1);
}

TEST_F(Q9IMcfgTest, CorruptFileMeansNothingIsInstalledAndIsReportedAndKept) {
    const std::string corrupt = "[Installed]\n0=1\n1\n";
    installation.Write("Q9IMcfg.ini", corrupt);
    const StderrCapture errors;
    EXPECT_EQ(GetIMInstall(0), 0);
    EXPECT_EQ(installation.Read("Q9IMcfg.ini"), corrupt);
    EXPECT_NE(errors.Text().find("Q9IMcfg.ini:3"), std::string::npos) << errors.Text();
}
