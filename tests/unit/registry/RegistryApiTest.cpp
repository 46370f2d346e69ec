#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>

#include "RegistryTestValues.h"
#include "support/TemporaryRegistry.h"
#include "platform/HiveFile.h"
#include "platform/ModuleDirectory.h"
#include "platform/Registry.h"
#include "platform/RegistryHive.h"

namespace {

using namespace platform;
using registry_test::AllByteValues;
using registry_test::CreateKey;
using registry_test::DwordData;
using registry_test::Query;
using registry_test::SetBytes;
using registry_test::StringData;
using registry_test::SubkeyNames;
using registry_test::ValueNames;

constexpr const char* kTestKey = "Software\\Orvtek\\Q9Test";

struct TypedData {
    const char* name;
    uint32_t type;
    std::string data;
};

std::vector<TypedData> AllKindsOfValues() {
    std::string longBinary;
    for (int round = 0; round < 40; ++round) longBinary += AllByteValues();
    return {
        {"Plain", kRegSz, StringData("plain text")},
        {"Quoted", kRegSz, StringData("say \"hi\" to C:\\Temp\\ and \\\\server")},
        {"Lines", kRegSz, StringData("first\nsecond\r\nthird")},
        {"Empty", kRegSz, StringData("")},
        {"Utf8", kRegSz, StringData("gr\xC3\xBC\xC3\x9F dich")},
        {"Zero", kRegDword, DwordData(0)},
        {"One", kRegDword, DwordData(1)},
        {"Max", kRegDword, DwordData(0xFFFFFFFF)},
        {"Bytes", kRegBinary, AllByteValues()},
        {"LongBytes", kRegBinary, longBinary},
        {"EmptyBytes", kRegBinary, ""},
        {"Multi", 7, std::string("one\0two\0\0", 9)},
        {"", kRegSz, StringData("default")},
    };
}

class RegistryApi : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(RegCreateKey(CurrentUser(), kTestKey, kKeyAllAccess, &key_), kSuccess);
    }
    void TearDown() override { RegCloseKey(key_); }

    RegKey Reopen() {
        RegCloseKey(key_);
        key_ = nullptr;
        EXPECT_EQ(RegOpenKey(CurrentUser(), kTestKey, kKeyRead, &key_), kSuccess);
        return key_;
    }

    std::string HiveText() const {
        return TemporaryRegistry::ReadFile(registry_.PathOf("HKCU.reg"));
    }

    TemporaryRegistry registry_;
    RegKey key_ = nullptr;
};

TEST_F(RegistryApi, EveryKindOfValueRoundTripsThroughTheApi) {
    for (const TypedData& value : AllKindsOfValues()) {
        ASSERT_EQ(SetBytes(key_, value.name, value.type, value.data), kSuccess) << value.name;
    }
    Reopen();
    for (const TypedData& value : AllKindsOfValues()) {
        const auto read = Query(key_, value.name);
        ASSERT_EQ(read.status, kSuccess) << value.name;
        EXPECT_EQ(read.type, value.type) << value.name;
        EXPECT_EQ(read.data, value.data) << value.name;
    }
}

TEST_F(RegistryApi, EveryKindOfValueRoundTripsThroughTheFile) {
    for (const TypedData& value : AllKindsOfValues()) {
        ASSERT_EQ(SetBytes(key_, value.name, value.type, value.data), kSuccess) << value.name;
    }
    // A fresh parse of the file, without any cache of this process.
    RegistryHive hive("HKEY_CURRENT_USER");
    RegistryHive::ParseError error;
    ASSERT_TRUE(hive.Parse(HiveText(), &error)) << error.line << ": " << error.message;
    const RegistryHive::Key* key = hive.FindKey(RegistryHive::SplitPath(kTestKey));
    ASSERT_NE(key, nullptr);
    ASSERT_EQ(key->values.size(), AllKindsOfValues().size());
    for (const TypedData& value : AllKindsOfValues()) {
        const RegistryHive::Value* read = key->FindValue(value.name);
        ASSERT_NE(read, nullptr) << value.name;
        EXPECT_EQ(read->type, value.type) << value.name;
        EXPECT_EQ(read->data, value.data) << value.name;
    }
    // And through a second reader with a cache of its own.
    HiveFile other("HKCU.reg", "HKEY_CURRENT_USER");
    const HiveFile::Snapshot snapshot = other.Read();
    EXPECT_EQ(snapshot.hive->ToText(), hive.ToText());
}

TEST_F(RegistryApi, FileShowsStringsQuotedAndOtherTypesTagged) {
    SetBytes(key_, "Debug", kRegDword, DwordData(1));
    SetBytes(key_, "Name", kRegSz, StringData("a \"b\" \\ c"));
    SetBytes(key_, nullptr, kRegSz, StringData("default"));
    SetBytes(key_, "Lines", kRegSz, StringData("a\nb"));
    SetBytes(key_, "Multi", 7, std::string("a\0\0", 3));
    EXPECT_EQ(HiveText(),
              "Windows Registry Editor Version 5.00\n\n"
              "[HKEY_CURRENT_USER\\Software]\n\n"
              "[HKEY_CURRENT_USER\\Software\\Orvtek]\n\n"
              "[HKEY_CURRENT_USER\\Software\\Orvtek\\Q9Test]\n"
              "\"Debug\"=dword:00000001\n"
              "\"Name\"=\"a \\\"b\\\" \\\\ c\"\n"
              "@=\"default\"\n"
              "\"Lines\"=hex(1):61,0a,62,00\n"
              "\"Multi\"=hex(7):61,00,00\n\n");
}

TEST_F(RegistryApi, QueryWithoutBufferGivesTypeAndSize) {
    SetBytes(key_, "Name", kRegSz, StringData("hello"));
    uint32_t type = 0;
    uint32_t size = 0;
    EXPECT_EQ(RegQueryValue(key_, "Name", &type, nullptr, &size), kSuccess);
    EXPECT_EQ(type, kRegSz);
    EXPECT_EQ(size, 6u);
}

TEST_F(RegistryApi, SmallBufferGivesMoreDataAndTheSizeNeeded) {
    SetBytes(key_, "Name", kRegSz, StringData("hello"));
    uint8_t buffer[4] = {};
    uint32_t size = sizeof buffer;
    EXPECT_EQ(RegQueryValue(key_, "Name", nullptr, buffer, &size), kMoreData);
    EXPECT_EQ(kMoreData, 234);
    EXPECT_EQ(size, 6u);
}

TEST_F(RegistryApi, NullAndEmptyNameAreTheDefaultValue) {
    SetBytes(key_, "", kRegSz, StringData("by empty name"));
    EXPECT_EQ(Query(key_, nullptr).data, StringData("by empty name"));
    SetBytes(key_, nullptr, kRegDword, DwordData(5));
    EXPECT_EQ(Query(key_, "").data, DwordData(5));
    EXPECT_EQ(ValueNames(key_), std::vector<std::string>{""});
    EXPECT_NE(HiveText().find("\n@=dword:00000005\n"), std::string::npos);
}

TEST_F(RegistryApi, ValuesEnumerateInCreationOrder) {
    SetBytes(key_, "c", kRegDword, DwordData(1));
    SetBytes(key_, "a", kRegDword, DwordData(2));
    SetBytes(key_, "b", kRegDword, DwordData(3));
    SetBytes(key_, "A", kRegDword, DwordData(4));
    EXPECT_EQ(ValueNames(Reopen()), (std::vector<std::string>{"c", "a", "b"}));
    EXPECT_EQ(Query(key_, "a").data, DwordData(4));
}

TEST_F(RegistryApi, EnumValueGivesNameTypeAndData) {
    SetBytes(key_, "First", kRegDword, DwordData(7));
    SetBytes(key_, "Second", kRegSz, StringData("text"));
    char name[16];
    uint32_t nameSize = sizeof name;
    uint32_t type = 0;
    uint8_t data[16];
    uint32_t size = sizeof data;
    ASSERT_EQ(RegEnumValue(key_, 1, name, &nameSize, &type, data, &size), kSuccess);
    EXPECT_EQ(std::string(name), "Second");
    EXPECT_EQ(nameSize, 6u);
    EXPECT_EQ(type, kRegSz);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(data), size), StringData("text"));

    size = 2;
    nameSize = sizeof name;
    EXPECT_EQ(RegEnumValue(key_, 1, name, &nameSize, &type, data, &size), kMoreData);
    EXPECT_EQ(size, 5u);

    nameSize = 6;
    EXPECT_EQ(RegEnumValue(key_, 1, name, &nameSize, nullptr, nullptr, nullptr), kMoreData);
    EXPECT_EQ(nameSize, 6u);
    nameSize = sizeof name;
    EXPECT_EQ(RegEnumValue(key_, 2, name, &nameSize, nullptr, nullptr, nullptr), kNoMoreItems);
}

TEST_F(RegistryApi, SubkeysEnumerateSortedIgnoringCase) {
    for (const char* name : {"beta", "Alpha", "gamma", "Delta"}) {
        ASSERT_EQ(CreateKey(key_, name), kSuccess);
    }
    EXPECT_EQ(SubkeyNames(key_), (std::vector<std::string>{"Alpha", "beta", "Delta", "gamma"}));
}

TEST_F(RegistryApi, EnumKeyWithSmallBufferGivesMoreData) {
    CreateKey(key_, "Longer");
    char name[6];
    uint32_t size = sizeof name;
    EXPECT_EQ(RegEnumKey(key_, 0, name, &size), kMoreData);
    EXPECT_EQ(size, 6u);
    char fits[7];
    size = sizeof fits;
    EXPECT_EQ(RegEnumKey(key_, 0, fits, &size), kSuccess);
    EXPECT_EQ(size, 6u);
    EXPECT_STREQ(fits, "Longer");
}

TEST_F(RegistryApi, NamesIgnoreCaseAndKeepTheirStoredCase) {
    RegKey other = nullptr;
    ASSERT_EQ(RegOpenKey(CurrentUser(), "SOFTWARE\\orvtek", kKeyRead, &other), kSuccess);
    RegCloseKey(other);
    ASSERT_EQ(SetBytes(key_, "Debug", kRegDword, DwordData(1)), kSuccess);
    EXPECT_EQ(Query(key_, "DEBUG").data, DwordData(1));
    ASSERT_EQ(SetBytes(key_, "dEbUg", kRegDword, DwordData(2)), kSuccess);
    ASSERT_EQ(CreateKey(CurrentUser(), "software\\ORVTEK\\q9test\\Child"), kSuccess);

    EXPECT_EQ(SubkeyNames(CurrentUser()), std::vector<std::string>{"Software"});
    EXPECT_EQ(ValueNames(key_), std::vector<std::string>{"Debug"});
    EXPECT_EQ(Query(key_, "debug").data, DwordData(2));
    const std::string text = HiveText();
    EXPECT_NE(text.find("[HKEY_CURRENT_USER\\Software\\Orvtek\\Q9Test\\Child]"), std::string::npos);
    EXPECT_NE(text.find("\"Debug\"=dword:00000002"), std::string::npos);
    EXPECT_EQ(text.find("ORVTEK"), std::string::npos);
}

TEST_F(RegistryApi, OpenedHandleUsesTheStoredCase) {
    RegKey other = nullptr;
    ASSERT_EQ(RegOpenKey(CurrentUser(), "SOFTWARE", kKeyRead, &other), kSuccess);
    ASSERT_EQ(CreateKey(other, "New"), kSuccess);
    RegCloseKey(other);
    EXPECT_NE(HiveText().find("[HKEY_CURRENT_USER\\Software\\New]"), std::string::npos);
}

TEST_F(RegistryApi, SeparatorsAreTolerated) {
    ASSERT_EQ(CreateKey(CurrentUser(), "\\Software\\\\Orvtek\\Q9Test\\Odd\\"), kSuccess);
    RegKey other = nullptr;
    ASSERT_EQ(RegOpenKey(key_, "Odd", kKeyRead, &other), kSuccess);
    RegCloseKey(other);
    ASSERT_EQ(RegOpenKey(key_, "\\\\Odd\\", kKeyRead, &other), kSuccess);
    RegCloseKey(other);
    EXPECT_EQ(SubkeyNames(key_), std::vector<std::string>{"Odd"});
}

TEST_F(RegistryApi, KeyNamesMayHoldSlashesAndSpaces) {
    ASSERT_EQ(CreateKey(key_, "Program Files/x86 [a]=b"), kSuccess);
    // Through the file as another process would see it.
    HiveFile other("HKCU.reg", "HKEY_CURRENT_USER");
    EXPECT_NE(
        other.Read().hive->FindKey({"Software", "Orvtek", "Q9Test", "program files/X86 [a]=b"}),
        nullptr);
    EXPECT_EQ(SubkeyNames(key_), std::vector<std::string>{"Program Files/x86 [a]=b"});
}

TEST_F(RegistryApi, EmptySubkeyOpensTheSameKey) {
    RegKey same = nullptr;
    ASSERT_EQ(RegOpenKey(key_, nullptr, kKeyRead, &same), kSuccess);
    SetBytes(same, "Via", kRegDword, DwordData(3));
    RegCloseKey(same);
    ASSERT_EQ(RegOpenKey(key_, "", kKeyRead, &same), kSuccess);
    EXPECT_EQ(Query(same, "Via").data, DwordData(3));
    RegCloseKey(same);
}

TEST_F(RegistryApi, EmptyKeysPersist) {
    ASSERT_EQ(CreateKey(key_, "Empty\\Deeper"), kSuccess);
    HiveFile other("HKCU.reg", "HKEY_CURRENT_USER");
    EXPECT_NE(other.Read().hive->FindKey({"Software", "Orvtek", "Q9Test", "Empty", "Deeper"}),
              nullptr);
}

TEST_F(RegistryApi, CreatingAnExistingKeyDoesNotRewriteTheFile) {
    struct stat before {};
    ASSERT_EQ(stat(registry_.PathOf("HKCU.reg").c_str(), &before), 0);
    RegKey again = nullptr;
    ASSERT_EQ(RegCreateKey(CurrentUser(), "software\\orvtek\\q9test", kKeyAllAccess, &again),
              kSuccess);
    RegCloseKey(again);
    struct stat after {};
    ASSERT_EQ(stat(registry_.PathOf("HKCU.reg").c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(before.st_mtim.tv_nsec, after.st_mtim.tv_nsec);
}

TEST_F(RegistryApi, NamesWithLineEndsAreRefused) {
    EXPECT_EQ(SetBytes(key_, "a\nb", kRegDword, DwordData(1)), kInvalidParameter);
    EXPECT_EQ(CreateKey(key_, "a\rb"), kInvalidParameter);
    EXPECT_TRUE(ValueNames(key_).empty());
    EXPECT_TRUE(SubkeyNames(key_).empty());
}

TEST_F(RegistryApi, StatusCodes) {
    RegKey missing = nullptr;
    EXPECT_EQ(RegOpenKey(CurrentUser(), "Software\\Missing", kKeyRead, &missing), 2);
    EXPECT_EQ(missing, nullptr);
    EXPECT_EQ(Query(key_, "Missing").status, 2);
    EXPECT_EQ(RegDeleteValue(key_, "Missing"), 2);
    EXPECT_EQ(RegDeleteKey(key_, "Missing"), 2);
    char name[8];
    uint32_t size = sizeof name;
    EXPECT_EQ(RegEnumKey(key_, 0, name, &size), 259);
    EXPECT_EQ(RegEnumValue(key_, 0, name, &size, nullptr, nullptr, nullptr), 259);
    EXPECT_EQ(RegDeleteKey(CurrentUser(), nullptr), 5);
    EXPECT_EQ(RegDeleteKey(CurrentUser(), "\\"), 5);
    EXPECT_EQ(RegDeleteKey(CurrentUser(), "Software"), 5) << "it has subkeys";
    EXPECT_EQ(RegOpenKey(CurrentUser(), "Software", kKeyRead, nullptr), kInvalidParameter);
    uint8_t data[4];
    EXPECT_EQ(RegQueryValue(key_, "x", nullptr, data, nullptr), kInvalidParameter);
    EXPECT_EQ(RegSetValue(key_, "x", kRegBinary, nullptr, 4), kInvalidParameter);
}

TEST_F(RegistryApi, NullHandleIsInvalid) {
    RegKey result = nullptr;
    char name[8];
    uint32_t size = sizeof name;
    EXPECT_EQ(RegOpenKey(nullptr, "x", kKeyRead, &result), 6);
    EXPECT_EQ(RegCreateKey(nullptr, "x", kKeyRead, &result), 6);
    EXPECT_EQ(RegQueryValue(nullptr, "x", nullptr, nullptr, &size), 6);
    EXPECT_EQ(RegSetValue(nullptr, "x", kRegBinary, nullptr, 0), 6);
    EXPECT_EQ(RegEnumKey(nullptr, 0, name, &size), 6);
    EXPECT_EQ(RegEnumValue(nullptr, 0, name, &size, nullptr, nullptr, nullptr), 6);
    EXPECT_EQ(RegDeleteValue(nullptr, "x"), 6);
    EXPECT_EQ(RegDeleteKey(nullptr, "x"), 6);
    EXPECT_EQ(RegCloseKey(nullptr), kSuccess);
    EXPECT_EQ(RegCloseKey(CurrentUser()), kSuccess);
}

TEST_F(RegistryApi, HandleOfADeletedKeyAnswersKeyDeleted) {
    RegKey child = nullptr;
    ASSERT_EQ(RegCreateKey(key_, "Child", kKeyAllAccess, &child), kSuccess);
    ASSERT_EQ(RegDeleteKey(key_, "Child"), kSuccess);
    char name[8];
    uint32_t size = sizeof name;
    EXPECT_EQ(Query(child, "x").status, 1018);
    EXPECT_EQ(SetBytes(child, "x", kRegDword, DwordData(1)), kKeyDeleted);
    EXPECT_EQ(RegDeleteValue(child, "x"), kKeyDeleted);
    EXPECT_EQ(RegEnumKey(child, 0, name, &size), kKeyDeleted);
    EXPECT_EQ(RegEnumValue(child, 0, name, &size, nullptr, nullptr, nullptr), kKeyDeleted);
    RegKey below = nullptr;
    EXPECT_EQ(RegCreateKey(child, "Below", kKeyAllAccess, &below), kKeyDeleted);
    EXPECT_EQ(RegOpenKey(child, "", kKeyRead, &below), kKeyDeleted);
    EXPECT_EQ(SubkeyNames(key_), std::vector<std::string>{}) << "nothing was re-created";
    RegCloseKey(child);
}

TEST_F(RegistryApi, HandleSeesChangesMadeThroughAnotherHandle) {
    RegKey other = nullptr;
    ASSERT_EQ(RegOpenKey(CurrentUser(), kTestKey, kKeyAllAccess, &other), kSuccess);
    SetBytes(other, "Shared", kRegDword, DwordData(9));
    EXPECT_EQ(Query(key_, "Shared").data, DwordData(9));
    RegCloseKey(other);
}

// Deletes key\name and everything below it, children first, always taking
// index 0 because the indexes move as keys go.
int32_t DeleteTree(RegKey parent, const std::string& name) {
    RegKey key = nullptr;
    int32_t status = RegOpenKey(parent, name.c_str(), kKeyAllAccess, &key);
    if (status != kSuccess) return status;
    char child[256];
    uint32_t size = sizeof child;
    while (status == kSuccess && RegEnumKey(key, 0, child, &size) == kSuccess) {
        status = DeleteTree(key, child);
        size = sizeof child;
    }
    RegCloseKey(key);
    return status == kSuccess ? RegDeleteKey(parent, name.c_str()) : status;
}

TEST_F(RegistryApi, KeyWithSubkeysIsDeletedChildrenFirst) {
    ASSERT_EQ(CreateKey(key_, "Tree\\A\\A1"), kSuccess);
    ASSERT_EQ(CreateKey(key_, "Tree\\A\\A2"), kSuccess);
    ASSERT_EQ(CreateKey(key_, "Tree\\B"), kSuccess);
    EXPECT_EQ(RegDeleteKey(key_, "Tree"), kAccessDenied);
    EXPECT_EQ(RegDeleteKey(key_, "Tree\\A"), kAccessDenied);
    EXPECT_EQ(SubkeyNames(key_), std::vector<std::string>{"Tree"});
    EXPECT_EQ(DeleteTree(key_, "Tree"), kSuccess);
    EXPECT_TRUE(SubkeyNames(key_).empty());
    EXPECT_EQ(HiveText().find("Tree"), std::string::npos);
}

TEST_F(RegistryApi, WipeByIndexDeletesOnlyMatchingKeys) {
    for (const char* path :
         {"Q9SScan0", "Q9SScan1\\Sub", "Other1", "Q9SScan7\\Sub\\Deeper", "Q9SScan7\\Sub2"}) {
        ASSERT_EQ(CreateKey(key_, path), kSuccess);
    }
    SetBytes(key_, "Kept", kRegDword, DwordData(1));
    char name[256];
    uint32_t size = sizeof name;
    uint32_t index = 0;
    int32_t status = kSuccess;
    while ((status = RegEnumKey(key_, index, name, &size)) == kSuccess) {
        if (std::string(name).rfind("Q9SScan", 0) == 0) {
            ASSERT_EQ(DeleteTree(key_, name), kSuccess) << name;
        } else {
            ++index;
        }
        size = sizeof name;
    }
    EXPECT_EQ(status, kNoMoreItems);
    EXPECT_EQ(SubkeyNames(Reopen()), std::vector<std::string>{"Other1"});
    EXPECT_EQ(ValueNames(key_), std::vector<std::string>{"Kept"});
}

TEST_F(RegistryApi, DeletingIndexZeroUntilNoMoreItemsEmptiesAKey) {
    for (const char* name : {"v1", "v2", "v3", "v4"}) SetBytes(key_, name, kRegDword, DwordData(1));
    char name[256];
    uint32_t size = sizeof name;
    int deleted = 0;
    while (RegEnumValue(key_, 0, name, &size, nullptr, nullptr, nullptr) == kSuccess) {
        ASSERT_EQ(RegDeleteValue(key_, name), kSuccess);
        size = sizeof name;
        ASSERT_LT(++deleted, 10);
    }
    EXPECT_EQ(deleted, 4);
    EXPECT_TRUE(ValueNames(Reopen()).empty());
    EXPECT_NE(HiveText().find("[HKEY_CURRENT_USER\\Software\\Orvtek\\Q9Test]\n\n"),
              std::string::npos);
}

TEST_F(RegistryApi, DeleteKeyWithEmptySubkeyDeletesTheKeyItself) {
    RegKey child = nullptr;
    ASSERT_EQ(RegCreateKey(key_, "Child", kKeyAllAccess, &child), kSuccess);
    EXPECT_EQ(RegDeleteKey(child, ""), kSuccess);
    EXPECT_TRUE(SubkeyNames(key_).empty());
    RegCloseKey(child);
}

TEST_F(RegistryApi, HivesAreSeparate) {
    SetBytes(key_, "Where", kRegSz, StringData("user"));
    RegKey machine = nullptr;
    EXPECT_EQ(RegOpenKey(LocalMachine(), kTestKey, kKeyRead, &machine), kFileNotFound);
    ASSERT_EQ(RegCreateKey(LocalMachine(), kTestKey, kKeyAllAccess, &machine), kSuccess);
    SetBytes(machine, "Where", kRegSz, StringData("machine"));
    EXPECT_EQ(Query(key_, "Where").data, StringData("user"));
    EXPECT_EQ(Query(machine, "Where").data, StringData("machine"));
    RegCloseKey(machine);
    EXPECT_NE(TemporaryRegistry::ReadFile(registry_.PathOf("HKLM.reg"))
                  .find("[HKEY_LOCAL_MACHINE\\Software\\Orvtek\\Q9Test]"),
              std::string::npos);
}

TEST(RegistryDirectory, ComesFromTheEnvironmentWithASlash) {
    const TemporaryRegistry registry;
    EXPECT_EQ(RegistryDirectory(), registry.Directory());
    setenv("Q9_REGISTRY_DIR", "/some/where", 1);
    EXPECT_EQ(RegistryDirectory(), "/some/where/");
}

TEST(RegistryDirectory, DefaultsToRegistryBesideTheModule) {
    const TemporaryRegistry registry;  // restores the variable afterwards
    unsetenv("Q9_REGISTRY_DIR");
    EXPECT_EQ(RegistryDirectory(), ModuleDirectory() + "registry/");
    setenv("Q9_REGISTRY_DIR", "", 1);
    EXPECT_EQ(RegistryDirectory(), ModuleDirectory() + "registry/");
}

TEST(RegistryDirectory, MissingDirectoryIsAnEmptyHiveUntilTheFirstWrite) {
    const TemporaryRegistry registry;
    EXPECT_FALSE(std::filesystem::exists(registry.Directory()));
    EXPECT_TRUE(SubkeyNames(LocalMachine()).empty());
    RegKey key = nullptr;
    EXPECT_EQ(RegOpenKey(LocalMachine(), "Software", kKeyRead, &key), kFileNotFound);
    EXPECT_EQ(RegDeleteKey(LocalMachine(), "Software"), kFileNotFound);
    EXPECT_FALSE(std::filesystem::exists(registry.Directory())) << "reads create nothing";

    ASSERT_EQ(CreateKey(LocalMachine(), "Software"), kSuccess);
    EXPECT_TRUE(std::filesystem::is_regular_file(registry.PathOf("HKLM.reg")));
    EXPECT_TRUE(std::filesystem::is_regular_file(registry.PathOf("HKLM.reg.lock")));
    struct stat info {};
    ASSERT_EQ(stat(registry.Directory().c_str(), &info), 0);
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(info.st_mode & 0777, 0755u & ~mask);
    EXPECT_FALSE(std::filesystem::exists(registry.PathOf("HKCU.reg")));
}

}  // namespace
