#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/MountTable.h"
#include "support/TestPaths.h"

namespace {

namespace fs = std::filesystem;
using platform::DriveKind;
using platform::MountEntry;
using platform::MountTable;

MountTable Fixture(const std::string& name) {
    return MountTable::FromFile(TestPath("data") + "/platform/" + name);
}

std::vector<std::string> MountPoints(const std::vector<MountEntry>& entries) {
    std::vector<std::string> points;
    for (const MountEntry& entry : entries) points.push_back(entry.mountPoint);
    return points;
}

std::string MountPointOf(const MountTable& table, const std::string& path) {
    const MountEntry* mount = table.FindMount(path);
    return mount ? mount->mountPoint : "(none)";
}

TEST(DriveKindTest, NumbersAreThoseOfThePlatform) {
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::Unknown), 0u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::NoRoot), 1u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::Removable), 2u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::Fixed), 3u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::Remote), 4u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::CdRom), 5u);
    EXPECT_EQ(static_cast<uint32_t>(DriveKind::RamDisk), 6u);
}

TEST(MountTableTest, ReadsSourceMountPointAndType) {
    const MountTable table = Fixture("mounts_desktop.txt");
    ASSERT_EQ(table.entries().size(), 23u);
    const MountEntry& root = table.entries()[5];
    EXPECT_EQ(root.source, "/dev/nvme0n1p2");
    EXPECT_EQ(root.mountPoint, "/");
    EXPECT_EQ(root.fsType, "ext4");
}

TEST(MountTableTest, UnreadableFileGivesEmptyTable) {
    const MountTable table = Fixture("no-such-file.txt");
    EXPECT_TRUE(table.entries().empty());
    EXPECT_EQ(table.KindOf("/"), DriveKind::NoRoot);
    EXPECT_EQ(table.FindMount("/"), nullptr);
}

TEST(MountTableTest, DiskFileSystemsOnDevicesAreFixed) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/"), DriveKind::Fixed);
    EXPECT_EQ(table.KindOf("/etc/passwd"), DriveKind::Fixed);
    EXPECT_EQ(table.KindOf("/boot/efi/EFI"), DriveKind::Fixed);                    // vfat
    EXPECT_EQ(table.KindOf("/home/user"), DriveKind::Fixed);                       // btrfs, mapper
    EXPECT_EQ(table.KindOf("/srv/data"), DriveKind::Fixed);                        // xfs
    EXPECT_EQ(table.KindOf("/media/user/Archive/Users"), DriveKind::Fixed);        // fuseblk
    EXPECT_EQ(table.KindOf("/media/user/USB STICK/photo.jpg"), DriveKind::Fixed);  // no sysfs
}

TEST(MountTableTest, ZfsIsFixedByTypeAlone) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/tank/archive/2020"), DriveKind::Fixed);
}

TEST(MountTableTest, DiskFileSystemWithoutDeviceIsNoDrive) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/mnt/odd/file"), DriveKind::Unknown);
}

TEST(MountTableTest, OpticalFileSystemsAreCdRom) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/media/user/PHOTOS_2019/DCIM"), DriveKind::CdRom);
    EXPECT_EQ(table.KindOf("/media/user/MOVIE"), DriveKind::CdRom);
}

TEST(MountTableTest, MemoryFileSystemsAreRamDisks) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/run/user/1000/bus"), DriveKind::RamDisk);
    EXPECT_EQ(table.KindOf("/dev/shm/x"), DriveKind::RamDisk);
    EXPECT_EQ(table.KindOf("/mnt/keys"), DriveKind::RamDisk);
}

TEST(MountTableTest, VirtualFileSystemsAreNoDrives) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf("/proc/self/status"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/sys/kernel/security/lsm"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/sys/fs/cgroup"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/dev/null"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/snap/core22/1380/usr"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/var/lib/docker/overlay2/4f1c/merged/etc"), DriveKind::Unknown);
    EXPECT_EQ(table.KindOf("/run/user/1000/doc/x"), DriveKind::Unknown);
}

TEST(MountTableTest, LocalDrivesAreTheFixedOnes) {
    const MountTable table = Fixture("mounts_desktop.txt");
    const std::vector<std::string> expected = {"/",
                                               "/boot/efi",
                                               "/home",
                                               "/srv/data",
                                               "/tank/archive",
                                               "/media/user/USB STICK",
                                               "/media/user/Archive"};
    EXPECT_EQ(MountPoints(table.LocalDrives()), expected);
    EXPECT_TRUE(table.NetworkDrives().empty());
}

TEST(MountTableTest, KindOfEntryFollowsTable) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOfEntry(0), DriveKind::Unknown);  // sysfs
    EXPECT_EQ(table.KindOfEntry(5), DriveKind::Fixed);    // /
    EXPECT_EQ(table.KindOfEntry(20), DriveKind::CdRom);
    EXPECT_EQ(table.KindOfEntry(99), DriveKind::Unknown);
}

TEST(MountTableTest, RelativeOrEmptyPathHasNoRoot) {
    const MountTable table = Fixture("mounts_desktop.txt");
    EXPECT_EQ(table.KindOf(""), DriveKind::NoRoot);
    EXPECT_EQ(table.KindOf("home/user"), DriveKind::NoRoot);
    EXPECT_EQ(table.KindOf("./x"), DriveKind::NoRoot);
    EXPECT_EQ(table.FindMount("home/user"), nullptr);
    EXPECT_EQ(table.NetworkPathOf(""), "");
}

TEST(MountTableTest, NetworkFileSystemsAreRemote) {
    const MountTable table = Fixture("mounts_network.txt");
    for (const char* path :
         {"/mnt/nfs/a", "/mnt/nfsroot", "/mnt/share/a", "/mnt/shared/a", "/mnt/ssh/a",
          "/mnt/sshhome/a", "/mnt/host/a", "/mnt/gdrive/a", "/mnt/dav/a"}) {
        EXPECT_EQ(table.KindOf(path), DriveKind::Remote) << path;
    }
    EXPECT_EQ(table.KindOf("/run/user/1000/gvfs/smb-share"), DriveKind::Unknown);
}

TEST(MountTableTest, NetworkDrivesListsRemoteMounts) {
    const MountTable table = Fixture("mounts_network.txt");
    const std::vector<std::string> expected = {"/mnt/nfs",    "/mnt/nfsroot", "/mnt/share",
                                               "/mnt/shared", "/mnt/ssh",     "/mnt/sshhome",
                                               "/mnt/host",   "/mnt/gdrive",  "/mnt/dav"};
    EXPECT_EQ(MountPoints(table.NetworkDrives()), expected);
    EXPECT_EQ(MountPoints(table.LocalDrives()), std::vector<std::string>{"/"});
}

TEST(MountTableTest, NetworkPathJoinsSourceAndRestOfPath) {
    const MountTable table = Fixture("mounts_network.txt");
    EXPECT_EQ(table.NetworkPathOf("/mnt/nfs/a/b c.txt"), "server:/export/a/b c.txt");
    EXPECT_EQ(table.NetworkPathOf("/mnt/nfs"), "server:/export");
    EXPECT_EQ(table.NetworkPathOf("/mnt/nfs/"), "server:/export");
    EXPECT_EQ(table.NetworkPathOf("/mnt/nfsroot/srv"), "server:/srv");
    EXPECT_EQ(table.NetworkPathOf("/mnt/share/dir/f.doc"), "//fileserver/share/dir/f.doc");
    EXPECT_EQ(table.NetworkPathOf("/mnt/shared/f"), "//fileserver/shared docs/f");
    EXPECT_EQ(table.NetworkPathOf("/mnt/ssh/notes"), "user@host:/home/user/notes");
    EXPECT_EQ(table.NetworkPathOf("/mnt/sshhome/notes"), "user@host:notes");
    EXPECT_EQ(table.NetworkPathOf("/mnt/gdrive/Photos"), "gdrive:Photos");
}

TEST(MountTableTest, NetworkPathIsEmptyOffNetworkDrives) {
    const MountTable table = Fixture("mounts_network.txt");
    EXPECT_EQ(table.NetworkPathOf("/home/user"), "");
    EXPECT_EQ(table.NetworkPathOf("/proc/1"), "");
    EXPECT_EQ(table.NetworkPathOf("/run/user/1000/gvfs/smb-share"), "");
}

TEST(MountTableTest, MountPointMatchesWholeComponentsOnly) {
    const MountTable table = Fixture("mounts_network.txt");
    EXPECT_EQ(MountPointOf(table, "/mnt/share"), "/mnt/share");
    EXPECT_EQ(MountPointOf(table, "/mnt/share/x"), "/mnt/share");
    EXPECT_EQ(MountPointOf(table, "/mnt/shared"), "/mnt/shared");
    EXPECT_EQ(MountPointOf(table, "/mnt/shared/x"), "/mnt/shared");
    EXPECT_EQ(MountPointOf(table, "/mnt/sharedx/y"), "/");
    EXPECT_EQ(MountPointOf(table, "/mnt/shar"), "/");
    EXPECT_EQ(MountPointOf(table, "/mnt/nfsroot/x"), "/mnt/nfsroot");
    EXPECT_EQ(table.KindOf("/mnt/sharedx/y"), DriveKind::Fixed);
}

TEST(MountTableTest, EscapesInFieldsAreDecoded) {
    const MountTable table = Fixture("mounts_escapes.txt");
    EXPECT_EQ(MountPointOf(table, "/mnt/with space/f"), "/mnt/with space");
    EXPECT_EQ(MountPointOf(table, "/mnt/tab\there"), "/mnt/tab\there");
    EXPECT_EQ(MountPointOf(table, "/mnt/new\nline/f"), "/mnt/new\nline");
    EXPECT_EQ(MountPointOf(table, "/mnt/back\\slash/f"), "/mnt/back\\slash");
    EXPECT_EQ(table.NetworkPathOf("/mnt/nas files/a b"), "//nas/my files/a b");
}

TEST(MountTableTest, OtherBackslashesAreKept) {
    const MountTable table = Fixture("mounts_escapes.txt");
    EXPECT_EQ(MountPointOf(table, "/mnt/not\\xan\\400escape\\12"), "/mnt/not\\xan\\400escape\\12");
}

TEST(MountTableTest, CommentBlankAndShortLinesAreSkipped) {
    const MountTable table = Fixture("mounts_escapes.txt");
    ASSERT_EQ(table.entries().size(), 8u);
    EXPECT_EQ(table.entries()[0].mountPoint, "/");
    EXPECT_EQ(table.entries()[7].source, "/dev/sda7");  // blanks of any kind between fields
    EXPECT_EQ(table.entries()[7].mountPoint, "/mnt/tabs");
    EXPECT_EQ(MountPointOf(table, "/mnt/incomplete"), "/");
}

TEST(MountTableTest, LaterMountOnSameMountPointWins) {
    const MountTable table = Fixture("mounts_stacked.txt");
    EXPECT_EQ(table.KindOf("/mnt/data/f"), DriveKind::Fixed);  // ext4 over tmpfs
    EXPECT_EQ(table.FindMount("/mnt/data/f")->source, "/dev/sdb1");
    EXPECT_EQ(table.KindOf("/mnt/usb/f"), DriveKind::RamDisk);  // tmpfs over ext4
    EXPECT_EQ(table.NetworkPathOf("/mnt/net/f"), "server:/new/f");
}

TEST(MountTableTest, HiddenMountsAreNoDrives) {
    const MountTable table = Fixture("mounts_stacked.txt");
    const std::vector<std::string> local = {"/", "/mnt/data"};
    EXPECT_EQ(MountPoints(table.LocalDrives()), local);
    const std::vector<MountEntry> network = table.NetworkDrives();
    ASSERT_EQ(network.size(), 2u);
    EXPECT_EQ(network[0].mountPoint, "/mnt/data/remote");
    EXPECT_EQ(network[1].source, "server:/new");
}

TEST(MountTableTest, LongestMountPointWinsWhateverTheOrder) {
    const MountTable table = Fixture("mounts_stacked.txt");
    EXPECT_EQ(MountPointOf(table, "/proc/1/status"), "/proc");  // listed before "/"
    EXPECT_EQ(table.KindOf("/mnt/data/remote/x"), DriveKind::Remote);
    EXPECT_EQ(table.NetworkPathOf("/mnt/data/remote/x"), "server:/export/x");
}

TEST(MountTableTest, FromTextParsesLines) {
    const MountTable table =
        MountTable::FromText("/dev/sda1 / ext4 rw 0 0\nsrv:/x /net nfs rw 0 0");
    ASSERT_EQ(table.entries().size(), 2u);
    EXPECT_EQ(table.KindOf("/net/y"), DriveKind::Remote);
}

TEST(MountTableTest, FromSystemReadsMountsOfThisProcess) {
    const MountTable table = MountTable::FromSystem();
    ASSERT_FALSE(table.entries().empty());
    ASSERT_NE(table.FindMount("/"), nullptr);
    ASSERT_NE(table.FindMount("/proc/self"), nullptr);
    EXPECT_EQ(table.FindMount("/proc/self")->fsType, "proc");
    EXPECT_EQ(table.KindOf("/proc/self"), DriveKind::Unknown);
}

// A fake sysfs: sdq is a removable disk (a USB stick) with partition sdq1,
// sdp a fixed disk with partition sdp1, sdr a removable disk used whole.
class RemovableDriveTest : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "q9-sysfs-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        root_ = pattern;
        AddDisk("usb", "sdq", "1", "sdq1");
        AddDisk("pci", "sdp", "0", "sdp1");
        AddDisk("usb", "sdr", "1", "");
    }

    void TearDown() override { fs::remove_all(root_); }

    // Creates devices/<bus>/<disk> with its removable flag, and a partition
    // inside it when given, each linked from class/block as sysfs does.
    void AddDisk(const std::string& bus, const std::string& disk, const std::string& removable,
                 const std::string& partition) {
        const fs::path diskDirectory = root_ / "devices" / bus / disk;
        fs::create_directories(diskDirectory);
        std::ofstream(diskDirectory / "removable") << removable << "\n";
        fs::create_directories(root_ / "class" / "block");
        fs::create_directory_symlink(fs::path("../../devices") / bus / disk,
                                     root_ / "class" / "block" / disk);
        if (partition.empty()) return;
        fs::create_directories(diskDirectory / partition);
        fs::create_directory_symlink(fs::path("../../devices") / bus / disk / partition,
                                     root_ / "class" / "block" / partition);
    }

    MountTable Table() const {
        return MountTable::FromText(
            "/dev/sdp1 / ext4 rw 0 0\n"
            "/dev/sdq1 /media/user/STICK vfat rw 0 0\n"
            "/dev/sdr /media/user/WHOLE exfat rw 0 0\n"
            "/dev/sdz1 /mnt/unknown ext4 rw 0 0\n"
            "/dev/sdq1 /media/user/CD iso9660 ro 0 0\n",
            root_.string());
    }

    fs::path root_;
};

TEST_F(RemovableDriveTest, RemovableDevicesAreRemovableDrives) {
    const MountTable table = Table();
    EXPECT_EQ(table.KindOf("/media/user/STICK/f"), DriveKind::Removable);
    EXPECT_EQ(table.KindOf("/media/user/WHOLE/f"), DriveKind::Removable);
    EXPECT_EQ(table.KindOf("/media/user/CD/f"), DriveKind::CdRom);
}

TEST_F(RemovableDriveTest, OtherDevicesStayFixed) {
    const MountTable table = Table();
    EXPECT_EQ(table.KindOf("/etc"), DriveKind::Fixed);
    EXPECT_EQ(table.KindOf("/mnt/unknown/f"), DriveKind::Fixed);  // not in sysfs
    const std::vector<std::string> local = {"/", "/mnt/unknown"};
    EXPECT_EQ(MountPoints(table.LocalDrives()), local);
}

}  // namespace
