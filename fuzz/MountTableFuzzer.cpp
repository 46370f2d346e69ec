// The mount table text (/proc/self/mounts, or a file of that format), with a
// sysfs folder that holds no devices. Every entry has the three fields of its
// line; a listed absolute mount point is found as its own mount, and each
// drive listed is, by its mount point, a drive of its kind.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/MountTable.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

namespace {

using platform::DriveKind;
using platform::MountEntry;
using platform::MountTable;

void CheckDrives(const MountTable& table, const std::vector<MountEntry>& drives, DriveKind kind) {
    fuzz::Check(drives.size() <= table.entries().size(), "no more drives than mounts");
    for (const MountEntry& drive : drives) {
        fuzz::Check(table.KindOf(drive.mountPoint) == kind || !drive.mountPoint.starts_with('/'),
                    "a drive's mount point is a drive of its kind");
    }
}

void CheckEntry(const MountTable& table, size_t index) {
    const MountEntry& entry = table.entries()[index];
    fuzz::Check(!entry.source.empty() && !entry.mountPoint.empty() && !entry.fsType.empty(),
                "an entry has its three fields");
    if (!entry.mountPoint.starts_with('/')) return;
    const MountEntry* found = table.FindMount(entry.mountPoint);
    fuzz::Check(found && found->mountPoint == entry.mountPoint,
                "a mount point is found as its own mount");
    const std::string below = entry.mountPoint + "/file";
    if (table.KindOf(below) == DriveKind::Remote) {
        fuzz::Check(!table.NetworkPathOf(below).empty(),
                    "a path on a network drive has a network path");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string sysfs = fuzz::ScratchDirectory::Path() + "sys";
    const MountTable table = MountTable::FromText(std::string(fuzz::AsText(data, size)), sysfs);
    for (size_t index = 0; index < table.entries().size(); ++index) CheckEntry(table, index);
    CheckDrives(table, table.LocalDrives(), DriveKind::Fixed);
    CheckDrives(table, table.NetworkDrives(), DriveKind::Remote);
    fuzz::Check(table.KindOf("relative/path") == DriveKind::NoRoot, "a relative path has no drive");
    return 0;
}
