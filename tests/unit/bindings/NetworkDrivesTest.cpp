// The network drive operations, answered from a mount table of the test's own
// and the remembered connections of its registry.

#include <cstdint>
#include <string>

#include "BindingTest.h"
#include "platform/Registry.h"
#include "session/NetworkDrives.h"
#include "session/RegistryHelpers.h"
#include "session/SiblingLibs.h"

namespace {

constexpr const char* kMounts =
    "/dev/sda1 / ext4 rw 0 0\n"
    "//server/share /mnt/share cifs rw 0 0\n"
    "server:/export /mnt/nfs nfs4 rw 0 0\n"
    "/dev/sdb1 /mnt/nfs/local ext4 rw 0 0\n"
    "tmpfs /mnt/ram tmpfs rw 0 0\n";

class NetworkDrivesTest : public BindingTest {
protected:
    NetworkDrivesTest() : m_drives(Install().PathOf("mounts")) {
        Install().Write("mounts", kMounts);
        Remember("NetWork\\/mnt/share", "//old/share");
        Remember("NetWork\\Persistent\\/media/nas", "nas:/volume1");
    }

    static void Remember(const std::string& key, const char* remotePath) {
        ASSERT_EQ(RegWriteString(platform::CurrentUser(), key.c_str(), "RemotePath", remotePath),
                  0);
    }

    // GetConnection into a buffer of capacity bytes.
    int32_t Connection(const char* localName, std::string* remote, uint32_t capacity = 256) const {
        std::string buffer(capacity, '\0');
        uint32_t length = capacity;
        const int32_t status = m_drives.GetConnection(localName, buffer.data(), &length);
        *remote = buffer.c_str();
        return status;
    }

    static NetResource Resource(const char* localName) {
        NetResource resource;
        resource.type = kNetResourceTypeDisk;
        resource.localName = localName;
        resource.remoteName = "//server/share";
        return resource;
    }

    CNetworkDrives m_drives;
};

}  // namespace

TEST_F(NetworkDrivesTest, ConnectedScopeGivesTheNetworkPathOfAMountedDrive) {
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/share", kNetScopeConnected), "//server/share");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/share/a/b", kNetScopeConnected), "//server/share/a/b");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/nfs/x", kNetScopeConnected), "server:/export/x");
}

TEST_F(NetworkDrivesTest, ConnectedScopeFindsNothingOnLocalDrives) {
    EXPECT_EQ(m_drives.GetRemoteName("/home/user", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/ram/x", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/nfs/local/x", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/shared", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("/MNT/SHARE", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("mnt/share", kNetScopeConnected), "");
    EXPECT_EQ(m_drives.GetRemoteName("", kNetScopeConnected), "");
}

TEST_F(NetworkDrivesTest, RememberedScopeGivesTheRememberedNetworkPath) {
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/share/a", kNetScopeRemembered), "//old/share/a");
    EXPECT_EQ(m_drives.GetRemoteName("/media/nas", kNetScopeRemembered), "nas:/volume1");
    EXPECT_EQ(m_drives.GetRemoteName("/mnt/nfs/x", kNetScopeRemembered), "");
}

TEST_F(NetworkDrivesTest, OtherScopesFindNothing) {
    for (int32_t scope : {0, int32_t{kNetScopeGlobal}, 4, -1}) {
        EXPECT_EQ(m_drives.GetRemoteName("/mnt/share", scope), "") << scope;
    }
}

TEST_F(NetworkDrivesTest, ConnectionOfAMountedDrive) {
    std::string remote;
    EXPECT_EQ(Connection("/mnt/share", &remote), kNetNoError);
    EXPECT_EQ(remote, "//server/share");
}

TEST_F(NetworkDrivesTest, ConnectionOfARememberedDriveThatIsNotMounted) {
    std::string remote;
    EXPECT_EQ(Connection("/media/nas/photos", &remote), kNetConnectionUnavail);
    EXPECT_EQ(remote, "nas:/volume1/photos");
}

TEST_F(NetworkDrivesTest, ConnectionOfALocalDrive) {
    std::string remote;
    EXPECT_EQ(Connection("/mnt/nfs/local", &remote), kNetNotConnected);
    EXPECT_EQ(Connection("/", &remote), kNetNotConnected);
    EXPECT_EQ(remote, "");
}

TEST_F(NetworkDrivesTest, ConnectionIntoABufferTooSmallAsksForMore) {
    std::string remote;
    EXPECT_EQ(Connection("/mnt/share", &remote, 14), kNetMoreData);
    EXPECT_EQ(remote, "");
    uint32_t length = 0;
    EXPECT_EQ(m_drives.GetConnection("/mnt/share", nullptr, &length), kNetMoreData);
    EXPECT_EQ(length, 15u);
    EXPECT_EQ(Connection("/mnt/share", &remote, 15), kNetNoError);
    EXPECT_EQ(remote, "//server/share");
}

TEST_F(NetworkDrivesTest, ConnectionNeedsAnAbsolutePathAndALength) {
    std::string remote;
    EXPECT_EQ(Connection(nullptr, &remote), kNetBadDevice);
    EXPECT_EQ(Connection("mnt/share", &remote), kNetBadDevice);
    char buffer[16];
    EXPECT_EQ(m_drives.GetConnection("/mnt/share", buffer, nullptr), kNetInvalidParameter);
}

TEST_F(NetworkDrivesTest, AddConnectionSucceedsWhenANetworkDriveHoldsThePath) {
    EXPECT_EQ(m_drives.AddConnection(Resource("/mnt/share"), nullptr, nullptr, kConnectRedirect),
              kNetNoError);
    EXPECT_EQ(m_drives.AddConnection(Resource("/mnt/nfs/a"), nullptr, nullptr, 0), kNetNoError);
}

TEST_F(NetworkDrivesTest, AddConnectionFailsForARememberedDriveThatStaysUnmounted) {
    EXPECT_EQ(m_drives.AddConnection(Resource("/media/nas"), nullptr, nullptr, kConnectRedirect),
              kNetBadNetPath);
    EXPECT_EQ(m_drives.AddConnection(Resource("/mnt/nfs/local"), nullptr, nullptr, 0),
              kNetBadNetPath);
}

TEST_F(NetworkDrivesTest, AddConnectionNeedsAnAbsoluteLocalName) {
    EXPECT_EQ(m_drives.AddConnection(Resource(nullptr), nullptr, nullptr, 0), kNetBadDevice);
    EXPECT_EQ(m_drives.AddConnection(Resource("share"), nullptr, nullptr, 0), kNetBadDevice);
}

TEST_F(NetworkDrivesTest, BindingsAnswerFromTheSystemsMountsAndTheRememberedConnections) {
    // The installation lies on a local drive: only the remembered connection
    // knows a network path for it.
    const std::string drive = Install().PathOf("never-mounted");
    Remember("NetWork\\" + drive, "//server/gone");
    EXPECT_EQ(g_Siblings.GetRemoteName(drive + "/a", kNetScopeConnected), "");
    EXPECT_EQ(g_Siblings.GetRemoteName(drive + "/a", kNetScopeRemembered), "//server/gone/a");
    char buffer[64] = {};
    uint32_t length = sizeof buffer;
    EXPECT_EQ(g_Siblings.GetConnection(drive.c_str(), buffer, &length), kNetConnectionUnavail);
    EXPECT_STREQ(buffer, "//server/gone");
    EXPECT_EQ(g_Siblings.AddConnection(Resource(drive.c_str()), nullptr, nullptr, 0),
              kNetBadNetPath);
}
