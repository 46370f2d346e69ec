#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <set>

#include "FileSizeLimit.h"
#include "support/TemporaryRegistry.h"
#include "RegistryTestValues.h"
#include "platform/AtomicFile.h"

namespace {

using platform::CreateDirectories;
using platform::WriteFileAtomically;

using registry_test::FilesIn;

mode_t PermissionsOf(const std::string& path) {
    struct stat info {};
    stat(path.c_str(), &info);
    return info.st_mode & 07777;
}

class AtomicFile : public ::testing::Test {
protected:
    std::string PathOf(const std::string& name) const { return temporary_.Base() + "/" + name; }

    TemporaryRegistry temporary_;
};

TEST_F(AtomicFile, CreatesFileWithDefaultMode) {
    const std::string path = PathOf("new.txt");
    int error = 0;
    ASSERT_TRUE(WriteFileAtomically(path, "first", &error)) << error;
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), "first");
    EXPECT_EQ(PermissionsOf(path), 0644u);
}

TEST_F(AtomicFile, CreatesFileWithGivenMode) {
    const std::string path = PathOf("private.txt");
    ASSERT_TRUE(WriteFileAtomically(path, "secret", nullptr, 0600));
    EXPECT_EQ(PermissionsOf(path), 0600u);
}

TEST_F(AtomicFile, ReplacesContentAndKeepsPermissionBits) {
    const std::string path = PathOf("data.txt");
    ASSERT_TRUE(WriteFileAtomically(path, "a much longer first content", nullptr));
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    ASSERT_TRUE(WriteFileAtomically(path, "second", nullptr, 0600));
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), "second");
    EXPECT_EQ(PermissionsOf(path), 0640u);
}

TEST_F(AtomicFile, ReplacingTheModeTightensAnExistingFile) {
    const std::string path = PathOf("secrets.txt");
    ASSERT_TRUE(WriteFileAtomically(path, "first", nullptr));
    ASSERT_EQ(PermissionsOf(path), 0644u);
    ASSERT_TRUE(WriteFileAtomically(path, "second", nullptr, platform::kPrivateFileMode,
                                    platform::ExistingMode::kReplace));
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), "second");
    EXPECT_EQ(PermissionsOf(path), 0600u);
}

TEST_F(AtomicFile, WritesEmptyAndBinaryContent) {
    const std::string path = PathOf("binary.bin");
    const std::string bytes("\0\x01\xff\n\r", 5);
    ASSERT_TRUE(WriteFileAtomically(path, bytes, nullptr));
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), bytes);
    ASSERT_TRUE(WriteFileAtomically(path, "", nullptr));
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), "");
}

TEST_F(AtomicFile, LeavesNoTemporaryFileOnSuccess) {
    const std::string path = PathOf("data.txt");
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(WriteFileAtomically(path, std::to_string(i), nullptr));
    EXPECT_EQ(FilesIn(temporary_.Base()), std::set<std::string>{"data.txt"});
}

TEST_F(AtomicFile, FailedWriteKeepsOldFileAndLeavesNoTemporaryFile) {
    const std::string path = PathOf("data.txt");
    ASSERT_TRUE(WriteFileAtomically(path, "old content", nullptr));
    int error = 0;
    bool written = true;
    {
        const FileSizeLimit limit(1024);
        written = WriteFileAtomically(path, std::string(4096, 'x'), &error);
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(error, EFBIG);
    EXPECT_EQ(TemporaryRegistry::ReadFile(path), "old content");
    EXPECT_EQ(FilesIn(temporary_.Base()), std::set<std::string>{"data.txt"});
}

TEST_F(AtomicFile, FailsInMissingDirectory) {
    int error = 0;
    EXPECT_FALSE(WriteFileAtomically(PathOf("missing/data.txt"), "x", &error));
    EXPECT_EQ(error, ENOENT);
    EXPECT_TRUE(FilesIn(temporary_.Base()).empty());
}

// A cache keyed by stat data must see every replacement, even when the clock
// has not moved on (here: the old file claims to be from the future).
TEST_F(AtomicFile, NewFileIsAlwaysNewerThanOldOne) {
    const std::string path = PathOf("data.txt");
    ASSERT_TRUE(WriteFileAtomically(path, "old", nullptr));
    timespec times[2];
    times[0].tv_nsec = UTIME_OMIT;
    times[0].tv_sec = 0;
    ASSERT_EQ(clock_gettime(CLOCK_REALTIME, &times[1]), 0);
    times[1].tv_sec += 3600;
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);

    ASSERT_TRUE(WriteFileAtomically(path, "new", nullptr));
    struct stat info {};
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mtim.tv_sec, times[1].tv_sec);
    EXPECT_EQ(info.st_mtim.tv_nsec, times[1].tv_nsec + 1);
}

TEST_F(AtomicFile, CreateDirectoriesMakesAllParts) {
    const std::string path = PathOf("a/b/c/");
    int error = 0;
    ASSERT_TRUE(CreateDirectories(path, &error)) << error;
    EXPECT_TRUE(std::filesystem::is_directory(path));
    const mode_t mask = umask(0);
    umask(mask);
    EXPECT_EQ(PermissionsOf(PathOf("a/b")), 0755u & ~mask);
    EXPECT_TRUE(CreateDirectories(path, &error)) << "an existing directory is fine";
}

TEST_F(AtomicFile, CreateDirectoriesFailsWhenAPartIsAFile) {
    ASSERT_TRUE(WriteFileAtomically(PathOf("file"), "x", nullptr));
    int error = 0;
    EXPECT_FALSE(CreateDirectories(PathOf("file"), &error));
    EXPECT_EQ(error, ENOTDIR);
    error = 0;
    EXPECT_FALSE(CreateDirectories(PathOf("file/below"), &error));
    EXPECT_EQ(error, ENOTDIR);
}

}  // namespace
