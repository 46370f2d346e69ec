#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <thread>

#include "HelperProcess.h"
#include "platform/FileLock.h"
#include "support/TemporaryRegistry.h"

namespace {

using platform::FileLock;
using namespace std::chrono_literals;

class FileLockTest : public ::testing::Test {
protected:
    std::string LockPath() const { return temporary_.Base() + "/HKLM.reg.lock"; }

    TemporaryRegistry temporary_;
};

// Suite names start with "FileLock" for the test selection.
using FileLockBasics = FileLockTest;

TEST_F(FileLockBasics, CreatesTheLockFileAndHoldsTheLock) {
    const FileLock lock(LockPath());
    EXPECT_TRUE(lock.IsLocked());
    EXPECT_EQ(lock.ErrorNumber(), 0);
    EXPECT_TRUE(std::filesystem::exists(LockPath()));
}

TEST_F(FileLockBasics, ReportsWhyItCannotLock) {
    const FileLock lock(temporary_.Base() + "/missing/HKLM.reg.lock");
    EXPECT_FALSE(lock.IsLocked());
    EXPECT_EQ(lock.ErrorNumber(), ENOENT);
}

TEST_F(FileLockBasics, OtherProcessWaitsUntilReleased) {
    auto lock = std::make_unique<FileLock>(LockPath());
    ASSERT_TRUE(lock->IsLocked());
    HelperProcess other({"lock", LockPath()}, HelperProcess::Output::kPiped);
    ASSERT_TRUE(other.Started());
    // Only a process that has come as far as the lock proves anything by
    // still waiting after a while.
    ASSERT_TRUE(other.WaitForLine("about to lock"));
    std::this_thread::sleep_for(200ms);
    EXPECT_FALSE(other.HasExited()) << "the other process got the lock while it was held";
    lock.reset();
    EXPECT_EQ(other.Wait(), 0);
}

TEST_F(FileLockBasics, SecondLockInSameProcessWaitsToo) {
    auto lock = std::make_unique<FileLock>(LockPath());
    std::atomic<bool> aboutToLock{false};
    std::atomic<bool> acquired{false};
    std::thread other([&] {
        aboutToLock = true;
        const FileLock otherLock(LockPath());
        acquired = otherLock.IsLocked();
    });
    EXPECT_TRUE(WaitFor([&] { return aboutToLock.load(); }));
    std::this_thread::sleep_for(100ms);
    EXPECT_FALSE(acquired.load());
    lock.reset();
    other.join();
    EXPECT_TRUE(acquired.load());
}

}  // namespace
