#include <gtest/gtest.h>

#include "platform/MountTable.h"
#include "platform/RememberedConnections.h"
#include "session/RegistryHelpers.h"
#include "support/TemporaryRegistry.h"

using platform::CurrentUser;
using platform::RememberedConnections;
using platform::RememberedNetworkPathOf;

namespace {

class RememberedConnectionsTest : public testing::Test {
protected:
    static void Remember(const std::string& key, const char* remotePath) {
        ASSERT_EQ(RegWriteString(CurrentUser(), key.c_str(), "RemotePath", remotePath), 0);
    }
    TemporaryRegistry registry;
};

}  // namespace

TEST_F(RememberedConnectionsTest, NoneWithoutKeys) {
    EXPECT_TRUE(RememberedConnections().empty());
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/share/file"), "");
}

TEST_F(RememberedConnectionsTest, SessionConnectionsComeBeforePersistentOnes) {
    Remember("NetWork\\Persistent\\/mnt/archive", "server:/archive");
    Remember("NetWork\\/mnt/share", "//server/share");
    const auto connections = RememberedConnections();
    ASSERT_EQ(connections.size(), 2u);
    EXPECT_EQ(connections[0].mountPoint, "/mnt/share");
    EXPECT_EQ(connections[0].remotePath, "//server/share");
    EXPECT_FALSE(connections[0].persistent);
    EXPECT_EQ(connections[1].mountPoint, "/mnt/archive");
    EXPECT_EQ(connections[1].remotePath, "server:/archive");
    EXPECT_TRUE(connections[1].persistent);
}

TEST_F(RememberedConnectionsTest, KeysWithoutRemotePathAreNotConnections) {
    ASSERT_EQ(RegWriteDword(CurrentUser(), "NetWork\\/mnt/empty", "Other", 1), 0);
    Remember("NetWork\\/mnt/blank", "");
    EXPECT_TRUE(RememberedConnections().empty());
}

TEST_F(RememberedConnectionsTest, PathOnARememberedDriveGetsItsNetworkPath) {
    Remember("NetWork\\/mnt/share", "//server/share");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/share"), "//server/share");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/share/docs/a.txt"), "//server/share/docs/a.txt");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/shared/docs"), "");
    EXPECT_EQ(RememberedNetworkPathOf("/home/user"), "");
}

TEST_F(RememberedConnectionsTest, SessionConnectionWinsOverPersistentOfTheSameDrive) {
    Remember("NetWork\\Persistent\\/mnt/share", "//old/share");
    Remember("NetWork\\/mnt/share", "//new/share");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/share/x"), "//new/share/x");
}

TEST_F(RememberedConnectionsTest, PersistentConnectionAloneIsFound) {
    Remember("NetWork\\Persistent\\/media/nas", "nas:/volume1");
    EXPECT_EQ(RememberedNetworkPathOf("/media/nas/photos"), "nas:/volume1/photos");
}

TEST_F(RememberedConnectionsTest, LongestMountPointWins) {
    Remember("NetWork\\/mnt", "//server/all");
    Remember("NetWork\\/mnt/deep", "//other/deep");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/deep/f"), "//other/deep/f");
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/other/f"), "//server/all/other/f");
}

TEST_F(RememberedConnectionsTest, TheConnectionHoldingAPathNamesItsDrive) {
    Remember("NetWork\\Persistent\\/mnt/share", "//old/share");
    Remember("NetWork\\/mnt", "//server/all");
    Remember("NetWork\\/mnt/share", "//new/share");
    const auto connection = platform::RememberedConnectionOf("/mnt/share/docs");
    ASSERT_TRUE(connection.has_value());
    EXPECT_EQ(connection->mountPoint, "/mnt/share");
    EXPECT_EQ(connection->remotePath, "//new/share");
    EXPECT_FALSE(connection->persistent);
    EXPECT_EQ(platform::RememberedConnectionOf("/mnt/other")->mountPoint, "/mnt");
    EXPECT_FALSE(platform::RememberedConnectionOf("/home/user").has_value());
}

TEST_F(RememberedConnectionsTest, MountedNetworkDriveAndRememberedOneSideBySide) {
    const auto table = platform::MountTable::FromText(
        "/dev/sda1 / ext4 rw 0 0\n//fileserver/public /mnt/public cifs rw 0 0\n");
    Remember("NetWork\\/mnt/offline", "//fileserver/offline");
    EXPECT_EQ(table.NetworkPathOf("/mnt/public/a"), "//fileserver/public/a");
    // Not mounted now: the mount table sees a local path under "/", the
    // remembered connection still names the share.
    EXPECT_EQ(table.KindOf("/mnt/offline/b"), platform::DriveKind::Fixed);
    EXPECT_EQ(RememberedNetworkPathOf("/mnt/offline/b"), "//fileserver/offline/b");
}
