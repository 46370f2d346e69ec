// Enciphered values: sealed with the installation's key, never stored plain.
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "StoreTest.h"

namespace store_test {
namespace {

class EncipheredTest : public StoreTest {
protected:
    // The text of an enciphered value read the way callers do: length first.
    static std::string ReadSealed(uint32_t section, uint32_t key) {
        uint32_t length = 0;
        Q9CfgE_GetEncStrEx(section, key, nullptr, &length);
        if (length == 0) return {};
        std::vector<char> buffer(length);
        EXPECT_EQ(Q9CfgE_GetEncStrEx(section, key, buffer.data(), &length), 1);
        return buffer.data();
    }
};

TEST_F(EncipheredTest, ValueIsNotInTheFileAndReadsBack) {
    const std::string secret = "Pa55-word-that-must-not-show";
    ASSERT_EQ(Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, secret.c_str()), 1);
    const std::string file = ReadFile(LiveFile());
    EXPECT_EQ(file.find(secret), std::string::npos);
    EXPECT_EQ(file.find("Pa55"), std::string::npos);
    EXPECT_NE(file.find("CEK_AuthPassword=enc:"), std::string::npos);
    EXPECT_EQ(ReadSealed(kAuthorization, kAuthPassword), secret);
    // Neither is it handed out as a plain text.
    EXPECT_EQ(Q9CfgE_GetStrEx(kAuthorization, kAuthPassword), nullptr);
}

TEST_F(EncipheredTest, KeyFileIsReadableByItsOwnerOnly) {
    ASSERT_EQ(Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "x"), 1);
    struct stat info {};
    ASSERT_EQ(stat(PathOf("q9install.key").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
}

TEST_F(EncipheredTest, EditModeCommitKeepsOnlyTheSealedText) {
    ASSERT_EQ(Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT), 1);
    ASSERT_EQ(Q9CfgE_SetEncStrEx(kSchedule3, kScheduleUser, "operator-account"), 1);
    EXPECT_EQ(ReadSealed(kSchedule3, kScheduleUser), "operator-account");
    Q9CfgE_UnlockEx();
    ASSERT_EQ(Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1), 1);
    EXPECT_EQ(ReadFile(LiveFile()).find("operator-account"), std::string::npos);
    EXPECT_EQ(ReadSealed(kSchedule3, kScheduleUser), "operator-account");
}

TEST_F(EncipheredTest, LengthOfAnAbsentValueIsZeroSoNoSecondCallIsNeeded) {
    uint32_t length = 99;
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length), 0);
    EXPECT_EQ(length, 0u);
}

TEST_F(EncipheredTest, LengthCountsTheNulAndASmallBufferIsRefused) {
    Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "abcd");
    uint32_t length = 0;
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length), 1);
    EXPECT_EQ(length, 5u);
    char small[4] = {'x', 'x', 'x', 'x'};
    length = sizeof small;
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, small, &length), 0);
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(small[0], 'x');
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, nullptr), 0);
}

TEST_F(EncipheredTest, EmptyTextRoundTrips) {
    ASSERT_EQ(Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, ""), 1);
    uint32_t length = 0;
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length), 1);
    EXPECT_EQ(length, 1u);
}

TEST_F(EncipheredTest, ValueSealedUnderAnotherInstallationsKeyReadsAsAbsentAndIsReportedOnce) {
    // Seal in a second installation, then move the file over.
    const std::string other = PathOf("other");
    std::filesystem::create_directory(other);
    setenv("Q9_INSTALL_DIR", other.c_str(), 1);
    Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "foreign");
    const std::string foreign = ReadFile(other + "/Q9Cfg.dat");
    setenv("Q9_INSTALL_DIR", Directory().c_str(), 1);
    Q9CfgE_SetEncStrEx(kGeneral, kAlertSound, "makes this installation's key");
    WriteFile(LiveFile(), foreign);

    StderrCapture errors;
    uint32_t length = 7;
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length), 0);
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length), 0);
    const std::string text = errors.Text();
    EXPECT_EQ(CountOf(text, "cannot be deciphered"), 1u) << text;
    EXPECT_EQ(text.find("foreign"), std::string::npos);
}

TEST_F(EncipheredTest, NullTextRemovesTheValue) {
    Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "abcd");
    ASSERT_EQ(Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, nullptr), 1);
    uint32_t length = 1;
    Q9CfgE_GetEncStrEx(kAuthorization, kAuthPassword, nullptr, &length);
    EXPECT_EQ(length, 0u);
}

}  // namespace
}  // namespace store_test
