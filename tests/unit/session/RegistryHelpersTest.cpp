#include "session/RegistryHelpers.h"

#include <gtest/gtest.h>

#include <array>

#include "support/TemporaryRegistry.h"

using platform::CurrentUser;
using platform::LocalMachine;

namespace {
class RegistryHelpersTest : public testing::Test {
protected:
    TemporaryRegistry registry;
};
constexpr const char* kKey = "Software\\Orvtek\\Test";
}  // namespace

TEST_F(RegistryHelpersTest, NullTextAnswers87WithoutCreatingTheKey) {
    EXPECT_EQ(RegWriteString(LocalMachine(), kKey, "Name", nullptr), 87);
    EXPECT_EQ(RegKeyExists(LocalMachine(), kKey), 0);
    EXPECT_EQ(RegKeyExists(LocalMachine(), "Software"), 0);
}

TEST_F(RegistryHelpersTest, NullDataAnswers87WithoutCreatingTheKey) {
    EXPECT_EQ(RegWriteBinary(LocalMachine(), kKey, "Blob", nullptr, 4), 87);
    EXPECT_EQ(RegKeyExists(LocalMachine(), kKey), 0);
}

TEST_F(RegistryHelpersTest, StringIsStoredWithItsTerminatorAndReadBack) {
    EXPECT_EQ(RegWriteString(LocalMachine(), kKey, "Name", "C:\\Program \"Files\""), 0);
    EXPECT_EQ(RegReadString(LocalMachine(), kKey, "Name", "dflt"), "C:\\Program \"Files\"");

    platform::RegKey key = nullptr;
    ASSERT_EQ(platform::RegOpenKey(LocalMachine(), kKey, platform::kKeyRead, &key), 0);
    uint32_t type = 0;
    uint32_t size = 0;
    ASSERT_EQ(platform::RegQueryValue(key, "Name", &type, nullptr, &size), 0);
    platform::RegCloseKey(key);
    EXPECT_EQ(type, platform::kRegSz);
    EXPECT_EQ(size, 19u);
}

TEST_F(RegistryHelpersTest, StringReadFallsBackToTheDefault) {
    EXPECT_EQ(RegReadString(LocalMachine(), kKey, "Name", "dflt"), "dflt");
    ASSERT_EQ(RegWriteDword(LocalMachine(), kKey, "Number", 5), 0);
    EXPECT_EQ(RegReadString(LocalMachine(), kKey, "Missing", "dflt"), "dflt");
    EXPECT_EQ(RegReadString(LocalMachine(), kKey, "Number", "dflt"), "dflt");
    EXPECT_EQ(RegReadString(LocalMachine(), kKey, "Missing", nullptr), "");
}

TEST_F(RegistryHelpersTest, DwordRoundTripAndDefault) {
    EXPECT_EQ(RegReadDword(CurrentUser(), kKey, "Number", 42), 42u);
    EXPECT_EQ(RegWriteDword(CurrentUser(), kKey, "Number", 0xFFFFFFFFu), 0);
    EXPECT_EQ(RegReadDword(CurrentUser(), kKey, "Number", 42), 0xFFFFFFFFu);
    ASSERT_EQ(RegWriteString(CurrentUser(), kKey, "Text", "7"), 0);
    EXPECT_EQ(RegReadDword(CurrentUser(), kKey, "Text", 42), 42u);
    EXPECT_EQ(RegReadDword(LocalMachine(), kKey, "Number", 1), 1u);
}

TEST_F(RegistryHelpersTest, BinaryReadGivesBytesOrTheNeededSize) {
    const std::array<uint8_t, 6> data{0, 1, 0x7F, 0x80, 0xFE, 0xFF};
    ASSERT_EQ(RegWriteBinary(LocalMachine(), kKey, "Blob", data.data(), 6), 0);

    std::array<uint8_t, 8> buffer{};
    EXPECT_EQ(RegReadBinary(LocalMachine(), kKey, "Blob", buffer.data(), 8), 6u);
    EXPECT_TRUE(std::equal(data.begin(), data.end(), buffer.begin()));

    std::array<uint8_t, 4> small{9, 9, 9, 9};
    EXPECT_EQ(RegReadBinary(LocalMachine(), kKey, "Blob", small.data(), 4), 6u);
    EXPECT_EQ(small, (std::array<uint8_t, 4>{9, 9, 9, 9}));

    EXPECT_EQ(RegReadBinary(LocalMachine(), kKey, "Missing", buffer.data(), 8), 0u);
    EXPECT_EQ(RegReadBinary(LocalMachine(), "No\\Such", "Blob", buffer.data(), 8), 0u);
}

TEST_F(RegistryHelpersTest, KeyExistsAnswersOneOrZero) {
    EXPECT_EQ(RegKeyExists(LocalMachine(), kKey), 0);
    ASSERT_EQ(RegWriteDword(LocalMachine(), kKey, "On", 1), 0);
    EXPECT_EQ(RegKeyExists(LocalMachine(), kKey), 1);
    EXPECT_EQ(RegKeyExists(LocalMachine(), "SOFTWARE\\ORVTEK\\TEST"), 1);
}

TEST_F(RegistryHelpersTest, DeleteAllValuesEmptiesTheKeyAndKeepsSubkeys) {
    for (const char* name : {"A", "B", "C", "D"}) {
        ASSERT_EQ(RegWriteDword(LocalMachine(), kKey, name, 1), 0);
    }
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Software\\Orvtek\\Test\\Child", "X", 1), 0);
    RegDeleteAllValues(LocalMachine(), kKey);
    EXPECT_EQ(RegReadDword(LocalMachine(), kKey, "A", 0), 0u);
    EXPECT_EQ(RegReadDword(LocalMachine(), kKey, "D", 0), 0u);
    EXPECT_EQ(RegReadDword(LocalMachine(), "Software\\Orvtek\\Test\\Child", "X", 0), 1u);
    RegDeleteAllValues(LocalMachine(), "No\\Such\\Key");  // nothing to do, no hang
}

TEST_F(RegistryHelpersTest, SubkeyNamesByIndexAndStatusPastTheEnd) {
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Software\\S\\beta", "v", 1), 0);
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Software\\S\\Alpha", "v", 1), 0);
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "Software\\S", 0), "Alpha");
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "Software\\S", 1), "beta");
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "Software\\S", 2), "");
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "No\\Such", 0), "");

    platform::RegKey key = nullptr;
    ASSERT_EQ(platform::RegOpenKey(LocalMachine(), "Software\\S", platform::kKeyRead, &key), 0);
    int32_t status = -1;
    EXPECT_EQ(RegEnumSubkey(key, 1, &status), "beta");
    EXPECT_EQ(status, 0);
    EXPECT_EQ(RegEnumSubkey(key, 2, &status), "");
    EXPECT_EQ(status, 259);
    platform::RegCloseKey(key);
}

TEST_F(RegistryHelpersTest, DeleteSubkeysGoesDepthFirstAndKeepsTheKeyItself) {
    for (const char* path : {"Sched\\A\\1\\x", "Sched\\A\\2", "Sched\\B", "Sched\\C\\deep\\er"}) {
        ASSERT_EQ(RegWriteDword(LocalMachine(), path, "v", 1), 0) << path;
    }
    RegDeleteSubkeys(LocalMachine(), "Sched");
    EXPECT_EQ(RegKeyExists(LocalMachine(), "Sched"), 1);
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "Sched", 0), "");
}

TEST_F(RegistryHelpersTest, DeleteSubkeysJoinsWithoutDoublingABackslash) {
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Sched\\A\\1", "v", 1), 0);
    RegDeleteSubkeys(LocalMachine(), "Sched\\");
    EXPECT_EQ(RegSubkeyName(LocalMachine(), "Sched", 0), "");
    EXPECT_EQ(RegJoinPath("a\\", "b"), "a\\b");
    EXPECT_EQ(RegJoinPath("a", "b"), "a\\b");
    EXPECT_EQ(RegJoinPath("", "b"), "b");
}

TEST_F(RegistryHelpersTest, DeleteTreeRemovesTheChildAndLeavesItsSiblings) {
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Sched\\Q9SScan0\\Sub\\Deeper", "v", 1), 0);
    ASSERT_EQ(RegWriteDword(LocalMachine(), "Sched\\Other1", "v", 1), 0);
    EXPECT_EQ(RegDeleteTree(LocalMachine(), "Sched", "Q9SScan0"), 0);
    EXPECT_EQ(RegKeyExists(LocalMachine(), "Sched\\Q9SScan0"), 0);
    EXPECT_EQ(RegKeyExists(LocalMachine(), "Sched\\Other1"), 1);
    EXPECT_EQ(RegDeleteTree(LocalMachine(), "Sched", "Q9SScan0"), 2);
}
