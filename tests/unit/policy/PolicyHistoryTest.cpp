// The record of silent applies: one entry per apply with every value it
// changed, no secret in it, owner-only files, and the undo of the last one.

#include "policy/PolicyHistory.h"

#include <sys/stat.h>

#include <filesystem>

#include "PolicyTest.h"
#include "policy/PolicyReport.h"
#include "policy/RecordedApply.h"

namespace {

constexpr char kOldSecret[] = "0ld-Secret-Word";
constexpr char kNewSecret[] = "N3w-Secret-Word";

class PolicyHistoryTest : public PolicyTest {
protected:
    std::string PolicyPath() const { return Install().PathOf("policy.dat"); }
    std::string BasePath() const { return Install().PathOf("base.dat"); }
    PolicyHistory History() const { return PolicyHistory(g_szModuleDir); }

    static mode_t ModeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    void WritePasswordPolicy() const {
        WriteThroughStore(BasePath(), [] {
            Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, kOldSecret);
            Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions, 1);
        });
        WriteThroughStore(PolicyPath(), [] {
            Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, kNewSecret);
            Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions, 5);
            Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanArchive, 7);
        });
    }

    // The silent call points the store at its base first.
    void ApplyOnBase() const {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, BasePath().c_str(), Q9CFGE_MODE_PLAIN);
        ApplyPolicyRecorded(BasePath().c_str(), PolicyPath().c_str(), 1);
    }
};

}  // namespace

TEST_F(PolicyHistoryTest, EachApplyAppendsOneEntryWithEveryValueItChanged) {
    WritePasswordPolicy();
    ApplyOnBase();
    ApplyOnBase();
    const std::vector<HistoryEntry> entries = History().Read();
    ASSERT_EQ(entries.size(), 2u);
    const HistoryEntry& first = entries[0];
    EXPECT_EQ(first.number, 1);
    EXPECT_EQ(first.kind, "apply");
    EXPECT_EQ(first.policy, PolicyPath());
    EXPECT_EQ(first.sha256, FileSha256(PolicyPath()));
    EXPECT_EQ(first.sha256.size(), 64u);
    EXPECT_EQ(first.base, BasePath());
    EXPECT_EQ(first.user, CurrentUserName());
    EXPECT_EQ(first.time.size(), 20u) << first.time;
    ASSERT_EQ(first.values.size(), 3u);
    EXPECT_EQ(ValueChangeText(first.values[0]), "CES_Macro, CEK_MacroOptions: dword:00000001 -> dword:00000005");
    EXPECT_EQ(ValueChangeText(first.values[1]), "CES_Authorization, CEK_AuthPassword: enciphered value changed");
    EXPECT_EQ(ValueChangeText(first.values[2]), "CES_SystemScan, CEK_ScanArchive: (absent) -> dword:00000007");
    EXPECT_EQ(entries[1].number, 2);
    EXPECT_TRUE(entries[1].values.empty()) << "the second apply changed nothing";
    EXPECT_TRUE(entries[1].copies.empty());
}

TEST_F(PolicyHistoryTest, TheRecordHoldsNoSecretAndOnlyItsOwnerReadsIt) {
    WritePasswordPolicy();
    ApplyOnBase();
    const std::string text = TemporaryRegistry::ReadFile(History().FilePath());
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(text.find(kNewSecret), std::string::npos);
    EXPECT_EQ(text.find(kOldSecret), std::string::npos);
    EXPECT_EQ(text.find("enc:"), std::string::npos);
    EXPECT_EQ(ModeOf(History().FilePath()), 0600u);
    EXPECT_EQ(ModeOf(History().FolderPath()), 0700u);
    const HistoryEntry entry = History().Read().back();
    ASSERT_EQ(entry.copies.size(), 1u);
    const std::string copy = entry.copies.begin()->second;
    EXPECT_EQ(ModeOf(copy), 0600u);
    EXPECT_EQ(TemporaryRegistry::ReadFile(copy).find(kOldSecret), std::string::npos);
}

TEST_F(PolicyHistoryTest, UndoPutsBackEveryValueTheLastApplyChangedEncipheredOnesToo) {
    WritePasswordPolicy();
    ApplyOnBase();
    ASSERT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), kNewSecret);
    const UndoResult result = UndoLastApply();
    EXPECT_EQ(result.status, UndoStatus::kDone) << result.message;
    EXPECT_EQ(result.undone, 1);
    EXPECT_EQ(result.recorded, 2);
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), kOldSecret);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 1u);
    const std::string base = Install().Read("base.dat");
    EXPECT_EQ(base.find("CEK_ScanArchive"), std::string::npos) << "a value the apply added goes";

    const HistoryEntry undo = History().Read().back();
    EXPECT_EQ(undo.kind, "undo");
    EXPECT_EQ(undo.undoes, 1);
    EXPECT_EQ(undo.values.size(), 3u);
}

TEST_F(PolicyHistoryTest, UndoRemovesAScheduleThePolicyAddedAndBringsTheRestIntoLine) {
    Install().Write("policy.dat",
                    StoreFileText("[0x10000000]\nCEK_SchedOn=dword:00000001\n"
                                  "CEK_SchedStyle=dword:00000001\nCEK_SchedCurDir=\"%Q9%\"\n"
                                  "[CES_Switch]\nCEK_Switch_General=dword:00100000\n"
                                  "CEK_Switch_GeneralMask=dword:00100000\n"));
    ApplyOnBase();
    EXPECT_EQ(JobKeys(), std::vector<std::string>{"Q9SScan0"});
    EXPECT_EQ(UndoLastApply().status, UndoStatus::kDone);
    EXPECT_TRUE(JobKeys().empty());
    EXPECT_EQ(Journal().back(), JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
    // The tray stays as the apply left it: with the mask gone, the undo's
    // own run leaves it alone.
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0u);
}

TEST_F(PolicyHistoryTest, UndoingTheUndoAppliesThePolicyAgain) {
    WritePasswordPolicy();
    ApplyOnBase();
    ASSERT_EQ(UndoLastApply().status, UndoStatus::kDone);
    ASSERT_EQ(UndoLastApply().status, UndoStatus::kDone);
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), kNewSecret);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanArchive), 7u);
    EXPECT_EQ(History().Read().size(), 3u);
}

TEST_F(PolicyHistoryTest, AnEmptyHistoryHasNothingToUndo) {
    const UndoResult result = UndoLastApply();
    EXPECT_EQ(result.status, UndoStatus::kNothingToUndo);
    EXPECT_FALSE(std::filesystem::exists(History().FilePath()));
}

TEST_F(PolicyHistoryTest, AMissingCopyChangesNothing) {
    WritePasswordPolicy();
    ApplyOnBase();
    const HistoryEntry entry = History().Read().back();
    std::filesystem::remove(entry.copies.begin()->second);
    const std::string before = Install().Read("base.dat");
    const UndoResult result = UndoLastApply();
    EXPECT_EQ(result.status, UndoStatus::kCopyMissing);
    EXPECT_NE(result.message.find(BasePath()), std::string::npos) << result.message;
    EXPECT_EQ(Install().Read("base.dat"), before);
    EXPECT_EQ(History().Read().size(), 1u);
}

TEST_F(PolicyHistoryTest, LinesThatCannotBeReadAreSkippedAndCounted) {
    WritePasswordPolicy();
    ApplyOnBase();
    std::ofstream(History().FilePath(), std::ios::app) << "{not json\n\n{\"number\":0}\n";
    ApplyOnBase();
    int problems = 0;
    const std::vector<HistoryEntry> entries = History().Read(&problems);
    EXPECT_EQ(problems, 2);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[1].number, 2);
}
