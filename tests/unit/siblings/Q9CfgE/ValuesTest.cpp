// Words and texts of the live store, factory defaults, returned texts, the
// read cache and the change mark.
#include <fcntl.h>
#include <sys/stat.h>

#include <cstring>

#include "StoreTest.h"

namespace store_test {
namespace {

class ValuesTest : public StoreTest {};

TEST_F(ValuesTest, WordOutsideEditModeGoesStraightToTheLiveFile) {
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 3), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 3u);
    EXPECT_EQ(ReadFile(LiveFile()),
              std::string(kHeader) + "\n[CES_General]\nCEK_GeneralOptions=dword:00000003\n");
}

TEST_F(ValuesTest, TextRoundTripsWithEveryKindOfByte) {
    const std::string text = "C:\\x \"q\"\nline\ttab\r\x01\x7f \xc3\xa9";
    EXPECT_EQ(Q9CfgE_SetStrEx(kGeneral, kAlertSound, text.c_str()), 1);
    ASSERT_NE(Q9CfgE_GetStrEx(kGeneral, kAlertSound), nullptr);
    EXPECT_EQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), text);
    EXPECT_NE(ReadFile(LiveFile()).find(
                  "CEK_AlertSound=\"C:\\\\x \\\"q\\\"\\nline\\ttab\\r\\x01\\x7f \xc3\xa9\"\n"),
              std::string::npos);
}

TEST_F(ValuesTest, AbsentValuesReadZeroAndNull) {
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 0u);
    EXPECT_EQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), nullptr);
    EXPECT_FALSE(Exists(LiveFile()));
}

TEST_F(ValuesTest, ScheduleKey41ThatWasNeverWrittenReadsNullOrEmpty) {
    Q9CfgE_SetStrEx(kSchedule0, kSchedCurDir, "/opt/q9/");
    const char* folder = Q9CfgE_GetStrEx(kSchedule3, kSchedCurDir);
    EXPECT_TRUE(folder == nullptr || *folder == '\0');
}

TEST_F(ValuesTest, NullTextRemovesTheValueSoItReadsItsDefault) {
    WriteFile(DefaultsFile(), std::string(kHeader) + "[CES_General]\nCEK_AlertSound=\"factory\"\n");
    Q9CfgE_SetStrEx(kGeneral, kAlertSound, "mine");
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "mine");
    EXPECT_EQ(Q9CfgE_SetStrEx(kGeneral, kAlertSound, nullptr), 1);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "factory");
    EXPECT_EQ(ReadFile(LiveFile()).find("CEK_AlertSound"), std::string::npos);
}

TEST_F(ValuesTest, WrongTypeReadsAsAbsent) {
    Q9CfgE_SetStrEx(kGeneral, kGeneralOptions, "text");
    Q9CfgE_SetDWEx(kGeneral, kAlertSound, 5);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 0u);
    EXPECT_EQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), nullptr);
}

TEST_F(ValuesTest, ReservedAddressesHoldNoValue) {
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, Q9CFGE_KEY_OBJECT_LIST, 1), 0);
    EXPECT_EQ(Q9CfgE_SetDWEx(Q9CFGE_ALL_SECTIONS, kGeneralOptions, 1), 0);
    EXPECT_EQ(Q9CfgE_SetStrEx(kExclude, Q9CFGE_KEY_OBJECT_LIST, "text"), 0);
    EXPECT_FALSE(Exists(LiveFile()));
}

TEST_F(ValuesTest, FactoryDefaultsAnswerGetDefaultAndBackAbsentKeys) {
    WriteFile(DefaultsFile(), std::string(kHeader) +
                                  "[CES_General]\nCEK_ScanLogSize=dword:00000400\n"
                                  "CEK_AlertSound=\"/usr/share/sounds/alert.wav\"\n");
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 0x400u);
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "/usr/share/sounds/alert.wav");
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 7);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 7u);
    EXPECT_EQ(Q9CfgE_GetDefaultDW(kGeneral, kScanLogSize), 0x400u);
    EXPECT_STREQ(Q9CfgE_GetDefaultStr(kGeneral, kAlertSound), "/usr/share/sounds/alert.wav");
    EXPECT_EQ(Q9CfgE_GetDefaultDW(kGeneral, kEventLogCount), 0u);
    EXPECT_EQ(Q9CfgE_GetDefaultStr(kGeneral, kEventLogCount), nullptr);
    // The defaults file is only read.
    EXPECT_EQ(ReadFile(DefaultsFile()).find("00000007"), std::string::npos);
}

TEST_F(ValuesTest, FactoryDefaultsAnswerInEditAndNamedFileModes) {
    WriteFile(DefaultsFile(), std::string(kHeader) + "[CES_General]\nCEK_ScanLogSize=dword:00000400\n");
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 7);

    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 9);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 9u);
    EXPECT_EQ(Q9CfgE_GetDefaultDW(kGeneral, kScanLogSize), 0x400u);
    Q9CfgE_SetStrEx(kGeneral, kScanLogSize, nullptr);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 0x400u);
    ResetStore();

    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, PathOf("named.dat").c_str(), Q9CFGE_MODE_PLAIN), 1);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 0x400u);
    EXPECT_EQ(Q9CfgE_GetDefaultDW(kGeneral, kScanLogSize), 0x400u);
}

TEST_F(ValuesTest, ReturnedTextStaysValidUntilThatValueChanges) {
    Q9CfgE_SetStrEx(kGeneral, kAlertSound, "first.wav");
    const char* first = Q9CfgE_GetStrEx(kGeneral, kAlertSound);
    Q9CfgE_SetStrEx(kSystemScan, kScanExtensions, "exe;com");
    Q9CfgE_SetDWEx(kGeneral, kScanLogSize, 3);
    EXPECT_STREQ(first, "first.wav");
    EXPECT_EQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), first);
    Q9CfgE_SetStrEx(kGeneral, kAlertSound, "second.wav");
    EXPECT_STREQ(Q9CfgE_GetStrEx(kGeneral, kAlertSound), "second.wav");
}

// The file is rewritten in place with the same size, inode and modification
// time: a read that opened the file would see the new word, one that trusts
// its stat() does not. Changing the time afterwards makes the change visible.
TEST_F(ValuesTest, UnchangedFileIsNotReadAgain) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    ASSERT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);
    struct stat before {};
    ASSERT_EQ(stat(LiveFile().c_str(), &before), 0);
    std::string bytes = ReadFile(LiveFile());
    bytes.replace(bytes.find("00000001"), 8, "00000002");
    WriteFile(LiveFile(), bytes);
    const timespec times[2] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, LiveFile().c_str(), times, 0), 0);

    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 1u);

    const timespec later[2] = {before.st_atim, {before.st_mtim.tv_sec + 1, before.st_mtim.tv_nsec}};
    ASSERT_EQ(utimensat(AT_FDCWD, LiveFile().c_str(), later, 0), 0);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 2u);
}

TEST_F(ValuesTest, HandEditIsSeenByTheNextRead) {
    Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1);
    WriteFile(LiveFile(), std::string(kHeader) + "[CES_General]\nCEK_GeneralOptions=dword:00000005\n"
                                                 "CEK_ScanLogSize=dword:00000006\n");
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kGeneralOptions), 5u);
    EXPECT_EQ(Q9CfgE_GetDWEx(kGeneral, kScanLogSize), 6u);
}

TEST_F(ValuesTest, SetModifiedBumpsTheChangeMark) {
    EXPECT_FALSE(Exists(PathOf("Q9Cfg.mod")));
    EXPECT_EQ(Q9CfgE_SetModified(), 1);
    const std::string first = ReadFile(PathOf("Q9Cfg.mod"));
    EXPECT_EQ(first.rfind("generation=1\ntime=", 0), 0u) << first;
    EXPECT_EQ(Q9CfgE_SetModified(), 1);
    const std::string second = ReadFile(PathOf("Q9Cfg.mod"));
    EXPECT_EQ(second.rfind("generation=2\ntime=", 0), 0u) << second;
}

TEST_F(ValuesTest, WriteIntoAMissingDirectoryFailsAndIsReported) {
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, PathOf("no/such/dir/x.dat").c_str(),
                                Q9CFGE_MODE_PLAIN),
              1);
    StderrCapture errors;
    EXPECT_EQ(Q9CfgE_SetDWEx(kGeneral, kGeneralOptions, 1), 0);
    EXPECT_NE(errors.Text().find("no/such/dir/x.dat"), std::string::npos);
}

}  // namespace
}  // namespace store_test
