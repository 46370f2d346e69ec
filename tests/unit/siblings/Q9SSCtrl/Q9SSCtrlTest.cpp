#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "Q9SSCtrl.h"
#include "support/StderrCapture.h"
#include "support/TemporaryInstallation.h"
#include "common/ProfileFile.h"
#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

namespace {

class Q9SSCtrlTest : public testing::Test {
protected:
    std::vector<std::string> JournalLines() const {
        std::vector<std::string> lines;
        std::istringstream journal(installation.Read("Q9SSCtrl.journal"));
        for (std::string line; std::getline(journal, line);) lines.push_back(line);
        return lines;
    }

    std::optional<int32_t> StateValue(const std::string& section, const std::string& key) const {
        return sibling::ProfileFile::Load(installation.PathOf("Q9SSCtrl.state"))
            .GetInt(section, key);
    }

    // Q9SSCtrl_HasEnoughPrivilege as answered in a child process running as
    // the unprivileged user and group 65534; nullopt when it cannot change.
    static std::optional<int32_t> PrivilegeAnswerAsNobody() {
        const pid_t pid = fork();
        if (pid < 0) return std::nullopt;
        if (pid == 0) {
            const uid_t nobody = 65534;
            if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0) _exit(2);
            _exit(Q9SSCtrl_HasEnoughPrivilege() == 1 ? 1 : 0);
        }
        int status = 0;
        if (waitpid(pid, &status, 0) != pid || !WIFEXITED(status) || WEXITSTATUS(status) > 1) {
            return std::nullopt;
        }
        return WEXITSTATUS(status);
    }

    TemporaryInstallation installation;
};

}  // namespace

TEST_F(Q9SSCtrlTest, LoadedByNameItAnswersAsTheSystemCallsIt) {
    installation.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    platform::SharedLibrary library;
    ASSERT_TRUE(library.Load(TestPath("library"), "Q9SSCtrl"));
    using ItemCall = int32_t(int32_t);
    EXPECT_EQ(library.CallOr<int32_t()>(0, "Q9SSCtrl_HasEnoughPrivilege"), 1);
    EXPECT_EQ(library.CallOr<ItemCall>(0, "Q9SSCtrl_CanBeRegister", 32), 1);
    EXPECT_EQ(library.CallOr<ItemCall>(0, "Q9SSCtrl_Register", 32), 1);
    EXPECT_EQ(library.CallOr<ItemCall>(0, "Q9SSCtrl_IsRegistered", 32), 1);
    EXPECT_EQ(library.CallOr<ItemCall>(0, "Q9SSCtrl_SetCfgChanged", 32), 1);
    EXPECT_EQ(
        library.CallOr<int32_t(int32_t, int32_t, int32_t)>(0, "Q9SSCtrl_Unregister", 32, 5000, 2),
        1);
    EXPECT_EQ(library.CallOr<ItemCall>(0, "Q9SSCtrl_IsRegistered", 32), 0);
    EXPECT_EQ(JournalLines().size(), 7u);
}

TEST_F(Q9SSCtrlTest, WithoutSettingsOnlyTheProductsItemsCanBeRegistered) {
    for (const int32_t item : {0, 1, 16, 32, 48, 64, 80, 96, 112, 128, 144, 160, 176, 192, 208}) {
        EXPECT_EQ(Q9SSCtrl_CanBeRegister(item), 1) << item;
    }
    for (const int32_t item : {-1, 2, 15, 17, 33, 224, 999}) {
        EXPECT_EQ(Q9SSCtrl_CanBeRegister(item), 0) << item;
    }
}

TEST_F(Q9SSCtrlTest, RegistrableSettingOverridesTheDefault) {
    installation.Write("Q9SSCtrl.ini", "[Registrable]\n144=0\n5=1\n48=not a number\n");
    EXPECT_EQ(Q9SSCtrl_CanBeRegister(144), 0);
    EXPECT_EQ(Q9SSCtrl_CanBeRegister(5), 1);
    EXPECT_EQ(Q9SSCtrl_CanBeRegister(48), 1);
    EXPECT_EQ(Q9SSCtrl_CanBeRegister(6), 0);
}

TEST_F(Q9SSCtrlTest, NothingIsRegisteredWithoutAState) {
    EXPECT_EQ(Q9SSCtrl_IsRegistered(32), 0);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(64), 0);
    EXPECT_FALSE(installation.Exists("Q9SSCtrl.state"));
}

TEST_F(Q9SSCtrlTest, RegisterMarksTheItemRegisteredInTheState) {
    EXPECT_EQ(Q9SSCtrl_Register(64), 1);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(64), 1);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(32), 0);
    EXPECT_EQ(StateValue("Registered", "64"), 1);
}

TEST_F(Q9SSCtrlTest, StateWrittenByHandIsAnswered) {
    installation.Write("Q9SSCtrl.state", "[Registered]\n32=1\n48=0\n");
    EXPECT_EQ(Q9SSCtrl_IsRegistered(32), 1);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(48), 0);
}

TEST_F(Q9SSCtrlTest, RegisterOfAnItemThatCannotBeRegisteredChangesNothing) {
    installation.Write("Q9SSCtrl.ini", "[Registrable]\n176=0\n");
    EXPECT_EQ(Q9SSCtrl_Register(176), 0);
    EXPECT_EQ(Q9SSCtrl_Register(7), 0);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(176), 0);
    EXPECT_FALSE(installation.Exists("Q9SSCtrl.state"));
}

TEST_F(Q9SSCtrlTest, UnregisterWithoutStopDelayUnregisters) {
    ASSERT_EQ(Q9SSCtrl_Register(32), 1);
    EXPECT_EQ(Q9SSCtrl_Unregister(32, 5000, 2), 1);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(32), 0);
    EXPECT_EQ(StateValue("Registered", "32"), 0);
}

TEST_F(Q9SSCtrlTest, UnregisterWhoseStopDelayFitsTheTimeOutUnregisters) {
    installation.Write("Q9SSCtrl.ini", "[StopDelay]\n64=50\n");
    ASSERT_EQ(Q9SSCtrl_Register(64), 1);
    EXPECT_EQ(Q9SSCtrl_Unregister(64, 5000, 2), 1);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(64), 0);
}

TEST_F(Q9SSCtrlTest, UnregisterWhoseStopDelayExceedsTheTimeOutFailsAndStaysRegistered) {
    installation.Write("Q9SSCtrl.ini", "[StopDelay]\n64=50\n");
    ASSERT_EQ(Q9SSCtrl_Register(64), 1);
    EXPECT_EQ(Q9SSCtrl_Unregister(64, 20, 2), 0);
    EXPECT_EQ(Q9SSCtrl_IsRegistered(64), 1);
}

TEST_F(Q9SSCtrlTest, SetCfgChangedCountsEachCall) {
    EXPECT_EQ(Q9SSCtrl_SetCfgChanged(32), 1);
    EXPECT_EQ(Q9SSCtrl_SetCfgChanged(32), 1);
    EXPECT_EQ(Q9SSCtrl_SetCfgChanged(64), 1);
    EXPECT_EQ(StateValue("CfgChanged", "32"), 2);
    EXPECT_EQ(StateValue("CfgChanged", "64"), 1);
}

TEST_F(Q9SSCtrlTest, PrivilegeSettingIsAnswered) {
    installation.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=0\n");
    EXPECT_EQ(Q9SSCtrl_HasEnoughPrivilege(), 0);
    installation.Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    EXPECT_EQ(Q9SSCtrl_HasEnoughPrivilege(), 1);
}

TEST_F(Q9SSCtrlTest, WithoutSettingAWritableInstallationGivesEnoughPrivilege) {
    EXPECT_EQ(Q9SSCtrl_HasEnoughPrivilege(), 1);
}

TEST_F(Q9SSCtrlTest, WithoutSettingAReadOnlyInstallationGivesTooLittlePrivilege) {
    ASSERT_EQ(chmod(installation.Directory().c_str(), 0555), 0);
    if (access(installation.Directory().c_str(), W_OK) != 0) {
        EXPECT_EQ(Q9SSCtrl_HasEnoughPrivilege(), 0);
        return;
    }
    // This user writes everywhere (root): ask as an unprivileged user instead.
    const std::filesystem::path base =
        std::filesystem::path(installation.Directory()).parent_path().parent_path();
    ASSERT_EQ(chmod(base.c_str(), 0711), 0);
    const StderrCapture errors;  // that user cannot write the journal either
    const std::optional<int32_t> readOnly = PrivilegeAnswerAsNobody();
    if (!readOnly)
        GTEST_SKIP() << "cannot change to an unprivileged user, so the default cannot be observed";
    EXPECT_EQ(*readOnly, 0);
    ASSERT_EQ(chmod(installation.Directory().c_str(), 0777), 0);
    EXPECT_EQ(PrivilegeAnswerAsNobody(), 1);
}

TEST_F(Q9SSCtrlTest, JournalRecordsEveryCallInOrder) {
    installation.Write("Q9SSCtrl.ini", "[StopDelay]\n48=50\n[Privilege]\nEnough=1\n");
    Q9SSCtrl_HasEnoughPrivilege();
    Q9SSCtrl_CanBeRegister(48);
    Q9SSCtrl_Register(48);
    Q9SSCtrl_IsRegistered(48);
    Q9SSCtrl_Unregister(48, 20, 2);
    Q9SSCtrl_Unregister(48, 5000, 0);
    Q9SSCtrl_SetCfgChanged(32);
    Q9SSCtrl_Register(3);
    EXPECT_EQ(JournalLines(), (std::vector<std::string>{
                                  "Q9SSCtrl_HasEnoughPrivilege\t-\t-\t1",
                                  "Q9SSCtrl_CanBeRegister\t48\t-\t1",
                                  "Q9SSCtrl_Register\t48\t-\t1",
                                  "Q9SSCtrl_IsRegistered\t48\t-\t1",
                                  "Q9SSCtrl_Unregister\t48\t20 2\t0",
                                  "Q9SSCtrl_Unregister\t48\t5000 0\t1",
                                  "Q9SSCtrl_SetCfgChanged\t32\t-\t1",
                                  "Q9SSCtrl_Register\t3\t-\t0",
                              }));
}

TEST_F(Q9SSCtrlTest, TwoProcessesCallingAtOnceKeepWholeJournalLinesAndEveryCount) {
    constexpr int kCallsEach = 40;
    int start[2];
    ASSERT_EQ(pipe(start), 0);
    std::vector<pid_t> children;
    for (int child = 0; child < 2; ++child) {
        const pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            close(start[1]);
            char go = 0;
            const bool started = read(start[0], &go, 1) == 0;  // both start when the pipe closes
            for (int i = 0; started && i < kCallsEach; ++i) Q9SSCtrl_SetCfgChanged(32 + child * 16);
            _exit(started ? 0 : 1);
        }
        children.push_back(pid);
    }
    close(start[0]);
    close(start[1]);
    for (const pid_t pid : children) {
        int status = 0;
        ASSERT_EQ(waitpid(pid, &status, 0), pid);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    const std::vector<std::string> lines = JournalLines();
    EXPECT_EQ(lines.size(), 2u * kCallsEach);
    for (const std::string& line : lines) {
        EXPECT_TRUE(line == "Q9SSCtrl_SetCfgChanged\t32\t-\t1" ||
                    line == "Q9SSCtrl_SetCfgChanged\t48\t-\t1")
            << line;
    }
    EXPECT_EQ(StateValue("CfgChanged", "32"), kCallsEach);
    EXPECT_EQ(StateValue("CfgChanged", "48"), kCallsEach);
}

TEST_F(Q9SSCtrlTest, CorruptStateIsReportedKeptAndNotWritten) {
    const std::string corrupt = "[Registered\n32=1\n";
    installation.Write("Q9SSCtrl.state", corrupt);
    const StderrCapture errors;
    EXPECT_EQ(Q9SSCtrl_IsRegistered(32), 0);
    EXPECT_EQ(Q9SSCtrl_Register(32), 0);
    EXPECT_EQ(Q9SSCtrl_SetCfgChanged(32), 0);
    EXPECT_EQ(installation.Read("Q9SSCtrl.state"), corrupt);
    EXPECT_NE(errors.Text().find("Q9SSCtrl.state:1"), std::string::npos) << errors.Text();
}

TEST_F(Q9SSCtrlTest, CorruptSettingsAreReportedAndTheDefaultsApply) {
    const std::string corrupt = "[Privilege]\nEnough 0\n";
    installation.Write("Q9SSCtrl.ini", corrupt);
    const StderrCapture errors;
    EXPECT_EQ(Q9SSCtrl_HasEnoughPrivilege(), 1);
    EXPECT_EQ(Q9SSCtrl_CanBeRegister(32), 1);
    EXPECT_EQ(installation.Read("Q9SSCtrl.ini"), corrupt);
    EXPECT_NE(errors.Text().find("Q9SSCtrl.ini:2"), std::string::npos) << errors.Text();
}
