// Edit mode, level files, Cancel, commits, and the named file mode.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "StoreTest.h"

namespace store_test {
namespace {

class EditModeTest : public StoreTest {
protected:
    static int32_t EnterEditMode() {
        return Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    }
    static int32_t Cancel() { return Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN); }
    static int32_t LoadLevel(const std::string& path) {
        return Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_EDIT);
    }
    static int32_t Resume() { return Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_RESUME); }

    // True when somebody holds the lock on path.
    static bool IsLocked(const std::string& path) {
        const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0) return false;
        const bool locked = flock(fd, LOCK_EX | LOCK_NB) != 0;
        close(fd);
        return locked;
    }

    void WriteLevel(const std::string& name) const {
        WriteFile(PathOf(name), std::string(kHeader) +
                                    "[CES_General]\nCEK_ProtectLevel=dword:00000002\n"
                                    "[CES_SystemScan]\nCEK_ScanOptions=dword:00000022\n");
    }
};

TEST_F(EditModeTest, OkPathCommitsTheWorkingCopyAtTheFlush) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string before = ReadFile(LiveFile());
    ASSERT_EQ(EnterEditMode(), 1);
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 2), 1);
    EXPECT_EQ(Q9CfgE_SetStrEx(kGeneral, kAlertSound, "x.wav"), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 2u);
    EXPECT_EQ(ReadFile(LiveFile()), before);
    EXPECT_EQ(Q9CfgE_UnlockEx(), 1);
    EXPECT_EQ(ReadFile(LiveFile()), before);
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), std::string(kHeader) +
                                        "\n[CES_General]\nCEK_GeneralOptions=dword:00000002\n"
                                        "CEK_AlertSound=\"x.wav\"\n");
    // Edit mode is over: writes go straight to the file again.
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 4);
    EXPECT_NE(ReadFile(LiveFile()).find("dword:00000004"), std::string::npos);
}

TEST_F(EditModeTest, CancelWritesNothing) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string before = ReadFile(LiveFile());
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 2);
    Q9CfgE_SetStrEx(kExclude, Q9CFGE_KEY_OBJECT_LIST, nullptr);
    EXPECT_EQ(Cancel(), 1);
    EXPECT_EQ(ReadFile(LiveFile()), before);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), before);
}

TEST_F(EditModeTest, EditLockIsHeldFromEditModeToUnlock) {
    const std::string lock = PathOf("Q9Cfg.edit.lock");
    EXPECT_FALSE(IsLocked(lock));
    ASSERT_EQ(EnterEditMode(), 1);
    EXPECT_TRUE(IsLocked(lock));
    Q9CfgE_UnlockEx();
    EXPECT_FALSE(IsLocked(lock));
    ASSERT_EQ(EnterEditMode(), 1);
    EXPECT_TRUE(IsLocked(lock));
    Cancel();
    EXPECT_FALSE(IsLocked(lock));
}

TEST_F(EditModeTest, EditModeStartsFromFreshValues) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_General]\nCEK_GeneralOptions=dword:7\n");
    ASSERT_EQ(EnterEditMode(), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 7u);
}

TEST_F(EditModeTest, LevelFileReplacesWhatItHoldsAndKeepsTheRest) {
    WriteFile(DefaultsFile(), std::string(kHeader) + "[CES_General]\nCEK_ScanLogSize=dword:100\n");
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 5);
    Q9CfgE_SetDWEx(kGeneral, kProtectLevel, 8);
    Q9CfgE_SetDWEx(0x10000000, kSchedOn, 1);  // a scheduled scan of the user's
    WriteLevel("level2.dat");
    ASSERT_EQ(EnterEditMode(), 1);
    ASSERT_EQ(LoadLevel(PathOf("level2.dat")), 1);
    ASSERT_EQ(Resume(), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kProtectLevel), 2u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, kScanOptions), 0x22u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 5u);  // the level lacks it
    EXPECT_EQ(Q9CfgE_GetDWEx(0x10000000, kSchedOn), 1u);
    Q9CfgE_SetDWEx(kAuthorization, kAuthEnabled, 1);
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), std::string(kHeader) +
                                        "\n[CES_General]\nCEK_ScanLogSize=dword:00000005\n"
                                        "CEK_ProtectLevel=dword:00000002\n"
                                        "\n[CES_Authorization]\nCEK_AuthEnabled=dword:00000001\n"
                                        "\n[CES_SystemScan]\nCEK_ScanOptions=dword:00000022\n"
                                        "\n[0x10000000]\nCEK_SchedOn=dword:00000001\n");
    // The level file itself is only read.
    EXPECT_EQ(ReadFile(PathOf("level2.dat")).find("Auth"), std::string::npos);
}

TEST_F(EditModeTest, CancelAfterALevelFileWasSelectedDropsTheLevelsValuesToo) {
    Q9CfgE_SetDWEx(kGeneral, kProtectLevel, 8);
    const std::string before = ReadFile(LiveFile());
    WriteLevel("level2.dat");
    ASSERT_EQ(EnterEditMode(), 1);
    ASSERT_EQ(LoadLevel(PathOf("level2.dat")), 1);
    ASSERT_EQ(Resume(), 1);
    Cancel();
    EXPECT_EQ(ReadFile(LiveFile()), before);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kProtectLevel), 8u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kSystemScan, kScanOptions), 0u);
}

TEST_F(EditModeTest, LevelFileThatCannotBeLoadedLeavesTheWorkingCopy) {
    Q9CfgE_SetDWEx(kGeneral, kProtectLevel, 8);
    WriteFile(PathOf("broken.dat"), std::string(kHeader) + "[CES_Nothing]\n");
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 3);
    StderrCapture errors;
    EXPECT_EQ(LoadLevel(PathOf("missing.dat")), 0);
    EXPECT_EQ(LoadLevel(PathOf("broken.dat")), 0);
    EXPECT_NE(errors.Text().find("missing.dat"), std::string::npos);
    EXPECT_NE(errors.Text().find("broken.dat"), std::string::npos);
    EXPECT_EQ(Resume(), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kProtectLevel), 8u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 3u);
}

TEST_F(EditModeTest, ResumeKeepsTheWorkingCopyWithoutReload) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 2);
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_General]\nCEK_GeneralOptions=dword:9\n");
    ASSERT_EQ(Resume(), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 2u);
}

TEST_F(EditModeTest, ResumeOutsideEditModeEntersIt) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string before = ReadFile(LiveFile());
    ASSERT_EQ(Resume(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 2);
    EXPECT_EQ(ReadFile(LiveFile()), before);
}

TEST_F(EditModeTest, CommitAppliesOnlyTheSessionsChangesOnTopOfTheFile) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 2);
    // Another writer (here a hand edit) changes another key meanwhile.
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_General]\nCEK_GeneralOptions=dword:9\n"
                                                 "CEK_ScanLogSize=dword:5\n");
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 9u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 2u);
}

TEST_F(EditModeTest, FlushOfOneSectionCommitsOnlyThatSection) {
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    Q9CfgE_SetDWEx(kSystemScan, kScanOptions, 2);
    ASSERT_EQ(Q9CfgE_FlushEx(kSystemScan, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()),
              std::string(kHeader) + "\n[CES_SystemScan]\nCEK_ScanOptions=dword:00000002\n");
    // Still in edit mode, with the rest pending.
    Q9CfgE_SetDWEx(kSystemScan, kScanArchive, 3);
    EXPECT_EQ(ReadFile(LiveFile()).find("CEK_ScanArchive"), std::string::npos);
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), std::string(kHeader) +
                                        "\n[CES_General]\nCEK_GeneralOptions=dword:00000001\n"
                                        "\n[CES_SystemScan]\nCEK_ScanOptions=dword:00000002\n"
                                        "CEK_ScanArchive=dword:00000003\n");
}

TEST_F(EditModeTest, FlushOutsideEditModeHasNothingToDo) {
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_FALSE(Exists(LiveFile()));
}

TEST_F(EditModeTest, FlushWithoutChangesWritesNothing) {
    WriteFile(LiveFile(), std::string(kHeader) + "; kept comment\n");
    ASSERT_EQ(EnterEditMode(), 1);
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), std::string(kHeader) + "; kept comment\n");
}

TEST_F(EditModeTest, FailedCommitKeepsTheWorkingCopy) {
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 3);
    const std::string corrupt = std::string(kHeader) + "[CES_Nothing]\n";
    WriteFile(LiveFile(), corrupt);
    {
        StderrCapture errors;
        EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 0);
        EXPECT_NE(errors.Text().find("could not be committed"), std::string::npos);
    }
    EXPECT_EQ(ReadFile(LiveFile()), corrupt);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 3u);
    WriteFile(LiveFile(), std::string(kHeader));
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_NE(ReadFile(LiveFile()).find("dword:00000003"), std::string::npos);
}

TEST_F(EditModeTest, NamedFileTakesReadsAndWritesUntilTheLiveStoreIsSelectedAgain) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string live = ReadFile(LiveFile());
    const std::string named = PathOf("OrvIni.dat");
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, named.c_str(), Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 0u);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 2);
    EXPECT_NE(ReadFile(named).find("dword:00000002"), std::string::npos);

    ASSERT_EQ(EnterEditMode(), 1);
    EXPECT_TRUE(Exists(PathOf("OrvIni.edit.lock")));
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 3);
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_NE(ReadFile(named).find("CEK_ScanLogSize=dword:00000003"), std::string::npos);
    // Cancel keeps the named file current.
    Cancel();
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 3u);
    EXPECT_EQ(ReadFile(LiveFile()), live);

    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
}

TEST_F(EditModeTest, SelectingAFileEndsEditModeWithoutWriting) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    const std::string live = ReadFile(LiveFile());
    ASSERT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 2);
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, PathOf("other.dat").c_str(), Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()), live);
    EXPECT_FALSE(Exists(PathOf("other.dat")));
}

TEST_F(EditModeTest, FileInAMissingDirectoryIsNotBusyButCannotBeCommitted) {
    const std::string path = PathOf("missing/OrvIni.dat");
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(EnterEditMode(), 1);
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    StderrCapture errors;
    EXPECT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 0);
    EXPECT_NE(errors.Text().find("missing/OrvIni.dat"), std::string::npos);
}

TEST_F(EditModeTest, UnknownStyleAndModeCombinationsAreRefused) {
    EXPECT_EQ(Q9CfgE_SetStyleEx(7, nullptr, 0), 0);
    EXPECT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_PLAIN), 0);
    EXPECT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_EDIT), 0);
    EXPECT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, PathOf("x").c_str(), Q9CFGE_MODE_RESUME), 0);
}

}  // namespace
}  // namespace store_test
