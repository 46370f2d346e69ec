#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <set>
#include <thread>

#include "FileSizeLimit.h"
#include "RegistryTestValues.h"
#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/HiveFile.h"
#include "platform/Registry.h"
#include "support/ChildProcess.h"
#include "support/DamagedContent.h"
#include "support/ProblemCapture.h"
#include "support/TemporaryRegistry.h"

namespace {

using namespace platform;
using namespace std::chrono_literals;
using registry_test::CreateKey;
using registry_test::DwordData;
using registry_test::Query;
using registry_test::SetBytes;
using registry_test::StringData;
using registry_test::SubkeyNames;

using registry_test::kHiveHeader;

using registry_test::FilesIn;

ino_t InodeOf(const std::string& path) {
    struct stat info {};
    stat(path.c_str(), &info);
    return info.st_ino;
}

HiveFile::Change SetDword(const std::string& name, uint32_t value) {
    return [=](RegistryHive& hive, bool* changed) {
        bool created = false;
        hive.CreateKey({"Software"}, &created).SetValue(name, kRegDword, DwordData(value));
        *changed = true;
        return int32_t{kSuccess};
    };
}

class HiveFileTest : public ::testing::Test {
protected:
    std::string MachineHive() const { return registry_.PathOf("HKLM.reg"); }

    TemporaryRegistry registry_;
    ProblemCapture problems_;
};

// Suite names start with "HiveFile" for the test selection.
using HiveFileCorrupt = HiveFileTest;
using HiveFileWrite = HiveFileTest;
using HiveFileCache = HiveFileTest;

TEST_F(HiveFileCorrupt, IsReportedReadAsEmptyAndNeverWritten) {
    const std::string garbage = "this is\x01 not a hive\n[HKEY_LOCAL_MACHINE\\Software]\n";
    registry_.WriteHive("HKLM.reg", garbage);
    const ino_t inode = InodeOf(MachineHive());

    RegKey key = nullptr;
    EXPECT_EQ(RegOpenKey(LocalMachine(), "Software", kKeyRead, &key), kFileNotFound);
    EXPECT_TRUE(SubkeyNames(LocalMachine()).empty());
    ASSERT_EQ(problems_.Lines().size(), 1u);
    EXPECT_NE(problems_.Lines()[0].find(MachineHive()), std::string::npos) << problems_.Lines()[0];
    EXPECT_NE(problems_.Lines()[0].find("line 1"), std::string::npos) << problems_.Lines()[0];

    EXPECT_EQ(RegCreateKey(LocalMachine(), "Software", kKeyAllAccess, &key), kRegistryCorrupt);
    EXPECT_EQ(SetBytes(LocalMachine(), "x", kRegDword, DwordData(1)), kRegistryCorrupt);
    EXPECT_EQ(RegDeleteValue(LocalMachine(), "x"), kRegistryCorrupt);
    EXPECT_EQ(RegDeleteKey(LocalMachine(), "Software"), kRegistryCorrupt);

    EXPECT_EQ(TemporaryRegistry::ReadFile(MachineHive()), garbage);
    EXPECT_EQ(InodeOf(MachineHive()), inode);
    EXPECT_EQ(problems_.Lines().size(), 1u) << "one report per file state";

    // The other hive is not affected.
    ASSERT_EQ(CreateKey(CurrentUser(), "Software"), kSuccess);
    ASSERT_EQ(SetBytes(CurrentUser(), "Fine", kRegDword, DwordData(1)), kSuccess);
    EXPECT_EQ(Query(CurrentUser(), "Fine").data, DwordData(1));
}

TEST_F(HiveFileCorrupt, EveryDamageIsListedAsUnreadableAndRefusesChanges) {
    const std::string valid = std::string(kHiveHeader) + "\n[HKEY_LOCAL_MACHINE\\Software]\n";
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "[HKEY_LOCAL"), damage);
        registry_.WriteHive("HKLM.reg", text);
        EXPECT_TRUE(SubkeyNames(LocalMachine()).empty());
        EXPECT_TRUE(IsListedUnreadable(MachineHive()));
        EXPECT_NE(SetBytes(LocalMachine(), "x", kRegDword, DwordData(1)), kSuccess);
        EXPECT_TRUE(TemporaryRegistry::ReadFile(MachineHive()) == text) << "the file is kept";
    }
    registry_.WriteHive("HKLM.reg", valid);
    EXPECT_EQ(SubkeyNames(LocalMachine()), std::vector<std::string>{"Software"});
    EXPECT_FALSE(IsListedUnreadable(MachineHive()));
}

TEST_F(HiveFileCorrupt, ReportNamesTheLineAndComesOncePerFileState) {
    registry_.WriteHive("HKLM.reg", kHiveHeader + "[HKEY_LOCAL_MACHINE\\A]\n\"x\"=dword:zz\n");
    for (int i = 0; i < 3; ++i) SubkeyNames(LocalMachine());
    ASSERT_EQ(problems_.Lines().size(), 1u);
    EXPECT_NE(problems_.Lines()[0].find("line 4"), std::string::npos) << problems_.Lines()[0];

    registry_.WriteHive("HKLM.reg", kHiveHeader + "[HKEY_LOCAL_MACHINE\\A]\n\n\"x\"=\"open\n");
    for (int i = 0; i < 3; ++i) SubkeyNames(LocalMachine());
    ASSERT_EQ(problems_.Lines().size(), 2u);
    EXPECT_NE(problems_.Lines()[1].find("line 5"), std::string::npos) << problems_.Lines()[1];
}

TEST_F(HiveFileCorrupt, RepairedFileIsUsedAgain) {
    registry_.WriteHive("HKLM.reg", "garbage");
    EXPECT_EQ(CreateKey(LocalMachine(), "Software"), kRegistryCorrupt);
    int error = 0;
    ASSERT_TRUE(
        WriteFileAtomically(MachineHive(), kHiveHeader + "[HKEY_LOCAL_MACHINE\\Fixed]\n", &error));
    EXPECT_EQ(SubkeyNames(LocalMachine()), std::vector<std::string>{"Fixed"});
    EXPECT_EQ(CreateKey(LocalMachine(), "Software"), kSuccess);
}

TEST_F(HiveFileWrite, DirectoryThatIsAFileFailsAndIsReported) {
    const std::string notDirectory = registry_.Base() + "/plain-file";
    {
        int error = 0;
        ASSERT_TRUE(WriteFileAtomically(notDirectory, "keep me", &error));
    }
    setenv("Q9_REGISTRY_DIR", notDirectory.c_str(), 1);
    EXPECT_TRUE(SubkeyNames(LocalMachine()).empty());
    EXPECT_TRUE(problems_.Lines().empty()) << "a missing directory is just an empty hive";

    EXPECT_EQ(CreateKey(LocalMachine(), "Software"), kWriteFault);
    EXPECT_EQ(SetBytes(LocalMachine(), "x", kRegDword, DwordData(1)), kWriteFault);
    EXPECT_EQ(problems_.Lines().size(), 2u);
    EXPECT_EQ(TemporaryRegistry::ReadFile(notDirectory), "keep me");
}

TEST_F(HiveFileWrite, FailedReplacementKeepsTheOldHive) {
    ASSERT_EQ(CreateKey(LocalMachine(), "Software"), kSuccess);
    ASSERT_EQ(SetBytes(LocalMachine(), "Old", kRegSz, StringData("old value")), kSuccess);
    const std::string before = TemporaryRegistry::ReadFile(MachineHive());
    int32_t status = kSuccess;
    {
        // Room for the old hive but not for the new one: the write fails part way.
        const FileSizeLimit limit(before.size() + 100);
        status = SetBytes(LocalMachine(), "Big", kRegBinary, std::string(65536, 'x'));
    }
    EXPECT_EQ(status, kWriteFault);
    ASSERT_EQ(problems_.Lines().size(), 1u);
    EXPECT_NE(problems_.Lines()[0].find(MachineHive()), std::string::npos);
    EXPECT_EQ(TemporaryRegistry::ReadFile(MachineHive()), before);
    EXPECT_EQ(Query(LocalMachine(), "Old").data, StringData("old value"));
    EXPECT_EQ(Query(LocalMachine(), "Big").status, kFileNotFound);
    EXPECT_EQ(FilesIn(registry_.Directory()), (std::set<std::string>{"HKLM.reg", "HKLM.reg.lock"}));
}

TEST_F(HiveFileWrite, ReadOnlyDirectoryIsAccessDenied) {
    ASSERT_EQ(SetBytes(LocalMachine(), "Old", kRegDword, DwordData(1)), kSuccess);
    const std::string before = TemporaryRegistry::ReadFile(MachineHive());
    ASSERT_EQ(chmod(registry_.Directory().c_str(), 0555), 0);
    const std::string probe = registry_.PathOf("probe");
    const int fd = open(probe.c_str(), O_WRONLY | O_CREAT, 0644);
    if (fd >= 0) {
        close(fd);
        unlink(probe.c_str());
        GTEST_SKIP() << "permissions do not stop this user (root); covered by the other tests";
    }
    EXPECT_EQ(SetBytes(LocalMachine(), "New", kRegDword, DwordData(2)), kAccessDenied);
    EXPECT_EQ(problems_.Lines().size(), 1u);
    EXPECT_EQ(TemporaryRegistry::ReadFile(MachineHive()), before);
}

TEST_F(HiveFileWrite, WritersTakeTheLock) {
    ASSERT_EQ(CreateKey(LocalMachine(), "Software"), kSuccess);
    auto lock = std::make_unique<FileLock>(MachineHive() + ".lock");
    ASSERT_TRUE(lock->IsLocked());
    std::atomic<bool> aboutToWrite{false};
    std::atomic<bool> done{false};
    std::thread writer([&] {
        aboutToWrite = true;
        SetBytes(LocalMachine(), "Late", kRegDword, DwordData(1));
        done = true;
    });
    EXPECT_TRUE(WaitFor([&] { return aboutToWrite.load(); }));
    std::this_thread::sleep_for(150ms);
    EXPECT_FALSE(done.load()) << "the write went ahead while the lock was held";
    lock.reset();
    writer.join();
    EXPECT_EQ(Query(LocalMachine(), "Late").data, DwordData(1));
}

TEST_F(HiveFileWrite, EachWriteStartsFromTheFileNotFromAStaleCopy) {
    HiveFile first("HKLM.reg", "HKEY_LOCAL_MACHINE");
    HiveFile second("HKLM.reg", "HKEY_LOCAL_MACHINE");
    ASSERT_EQ(first.Modify(SetDword("X", 1)), kSuccess);
    ASSERT_EQ(second.Modify(SetDword("Y", 2)), kSuccess);
    ASSERT_EQ(first.Modify(SetDword("Z", 3)), kSuccess);
    RegistryHive hive("HKEY_LOCAL_MACHINE");
    RegistryHive::ParseError error;
    ASSERT_TRUE(hive.Parse(TemporaryRegistry::ReadFile(MachineHive()), &error));
    const RegistryHive::Key* key = hive.FindKey({"Software"});
    ASSERT_NE(key, nullptr);
    for (const char* name : {"X", "Y", "Z"}) EXPECT_NE(key->FindValue(name), nullptr) << name;
}

TEST_F(HiveFileWrite, UnchangedHiveIsNotWritten) {
    HiveFile hive("HKLM.reg", "HKEY_LOCAL_MACHINE");
    ASSERT_EQ(hive.Modify(SetDword("X", 1)), kSuccess);
    const ino_t inode = InodeOf(MachineHive());
    const int32_t status = hive.Modify([](RegistryHive&, bool* changed) {
        *changed = false;
        return int32_t{kSuccess};
    });
    EXPECT_EQ(status, kSuccess);
    EXPECT_EQ(InodeOf(MachineHive()), inode);
}

TEST_F(HiveFileWrite, ManyWritesLeaveNoTemporaryFiles) {
    HiveFile hive("HKLM.reg", "HKEY_LOCAL_MACHINE");
    for (uint32_t i = 0; i < 10; ++i) ASSERT_EQ(hive.Modify(SetDword("X", i)), kSuccess);
    EXPECT_EQ(FilesIn(registry_.Directory()), (std::set<std::string>{"HKLM.reg", "HKLM.reg.lock"}));
}

TEST_F(HiveFileCache, UnchangedFileIsNotParsedAgain) {
    HiveFile hive("HKLM.reg", "HKEY_LOCAL_MACHINE");
    ASSERT_EQ(hive.Modify(SetDword("X", 1)), kSuccess);
    HiveFile reader("HKLM.reg", "HKEY_LOCAL_MACHINE");
    const HiveFile::Snapshot first = reader.Read();
    const HiveFile::Snapshot second = reader.Read();
    EXPECT_EQ(first.hive.get(), second.hive.get());
    ASSERT_EQ(hive.Modify(SetDword("X", 2)), kSuccess);
    const HiveFile::Snapshot third = reader.Read();
    EXPECT_NE(third.hive.get(), first.hive.get());
    EXPECT_EQ(third.hive->FindKey({"Software"})->FindValue("X")->data, DwordData(2));
}

TEST_F(HiveFileCache, ChangesByOthersAreSeen) {
    ASSERT_EQ(SetBytes(LocalMachine(), "X", kRegDword, DwordData(1)), kSuccess);
    EXPECT_EQ(Query(LocalMachine(), "X").data, DwordData(1));
    int error = 0;
    ASSERT_TRUE(WriteFileAtomically(
        MachineHive(), kHiveHeader + "[HKEY_LOCAL_MACHINE]\n\"X\"=dword:00000002\n\n", &error));
    EXPECT_EQ(Query(LocalMachine(), "X").data, DwordData(2));
    std::filesystem::remove(MachineHive());
    EXPECT_EQ(Query(LocalMachine(), "X").status, kFileNotFound);
}

TEST_F(HiveFileCache, FollowsTheRegistryDirectory) {
    ASSERT_EQ(SetBytes(LocalMachine(), "X", kRegDword, DwordData(1)), kSuccess);
    const TemporaryRegistry elsewhere;
    EXPECT_EQ(Query(LocalMachine(), "X").status, kFileNotFound);
}

}  // namespace
