// Network paths: the network forms, paths on mounted network drives (from a
// mount table of the test's own) and on remembered drives that are not
// mounted (from the registry stand-in).

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

#include "platform/MountTable.h"
#include "platform/Registry.h"
#include "session/RegistryHelpers.h"
#include "support/ScopedVariable.h"
#include "support/SiblingTest.h"
#include "targets/NetworkPath.h"

namespace {

constexpr const char* kNetworkMounts =
    "/dev/sda1 / ext4 rw 0 0\n"
    "//server/share /mnt/share cifs rw 0 0\n"
    "server:/export /mnt/nfs nfs4 rw 0 0\n"
    "user@host:/home/user /mnt/ssh fuse.sshfs rw 0 0\n";

class NetworkPathTest : public SiblingTest {
protected:
    NetworkPathTest() { Install().Write("mounts", kNetworkMounts); }

    static void Remember(const std::string& key, const char* remotePath) {
        ASSERT_EQ(RegWriteString(platform::CurrentUser(), key.c_str(), "RemotePath", remotePath),
                  0);
    }

    ScopedVariable m_mountTable{platform::kMountTableVariable, Install().PathOf("mounts").c_str()};
};

}  // namespace

TEST_F(NetworkPathTest, NetworkFormsAreNetworkPaths) {
    EXPECT_TRUE(IsNetworkPathText("//server/share/a"));
    EXPECT_TRUE(IsNetworkPathText("\\\\server\\share"));
    EXPECT_TRUE(IsNetworkPathText("server:/export/a"));
    EXPECT_TRUE(IsNetworkPathText("user@host:/home"));
    EXPECT_FALSE(IsNetworkPathText("/mnt/share"));
    EXPECT_FALSE(IsNetworkPathText("/odd:/name"));
    EXPECT_FALSE(IsNetworkPathText("relative/path"));
    EXPECT_FALSE(IsNetworkPathText(""));
    EXPECT_TRUE(IsNetworkPath("//server/share"));
}

TEST_F(NetworkPathTest, APathOnAMountedNetworkDriveIsANetworkPath) {
    EXPECT_TRUE(IsNetworkPath("/mnt/share"));
    EXPECT_TRUE(IsNetworkPath("/mnt/nfs/a/b"));
    EXPECT_TRUE(IsNetworkPath("/mnt/ssh/x"));
    EXPECT_FALSE(IsNetworkPath("/home/user"));
    EXPECT_FALSE(IsNetworkPath("/mnt/shared"));
}

TEST_F(NetworkPathTest, TheNetworkPathReplacesTheMountPoint) {
    EXPECT_EQ(GetUncPath("/mnt/share/docs/a.txt"), "//server/share/docs/a.txt");
    EXPECT_EQ(GetUncPath("/mnt/nfs/"), "server:/export");
    EXPECT_EQ(GetUncPath("/mnt/share"), "//server/share");
    EXPECT_EQ(GetUncPath("/home/user"), "/home/user");
    EXPECT_EQ(GetUncPath("//other/share/x/"), "//other/share/x/");
}

TEST_F(NetworkPathTest, ARememberedDriveThatIsNotMountedIsStillRecognised) {
    Remember("NetWork\\Persistent\\/media/nas", "//nas/volume1");
    EXPECT_TRUE(IsNetworkPath("/media/nas/photos"));
    EXPECT_EQ(GetUncPath("/media/nas/photos"), "//nas/volume1/photos");
}

TEST_F(NetworkPathTest, TheSessionsRememberedConnectionWinsOverTheMountedOne) {
    Remember("NetWork\\/mnt/share", "//old/share");
    EXPECT_EQ(GetUncPath("/mnt/share/a"), "//old/share/a");
}

TEST_F(NetworkPathTest, WithoutTheVariableTheProcessMountsAreRead) {
    const ScopedVariable systemMounts(platform::kMountTableVariable, nullptr);
    EXPECT_FALSE(IsNetworkPath("/mnt/share/a"));
}
