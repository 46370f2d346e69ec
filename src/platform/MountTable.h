#pragma once

// The counterpart of drives and network drives: the mounted file systems,
// read from a mount table in the /proc/self/mounts format, each classified
// as a kind of drive.
//
// A path belongs to the mount with the longest mount point that contains it
// (whole path components only: /mnt/share holds /mnt/share/a, not
// /mnt/shared). Of several mounts on the same mount point the last one in
// the table is the visible one, as mounts stack. Paths are compared as
// given: callers pass absolute paths without "." or ".." components, with
// symbolic links already resolved when they matter.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// Numerically the drive types of the original platform.
enum class DriveKind : uint32_t {
    Unknown = 0,
    NoRoot = 1,
    Removable = 2,
    Fixed = 3,
    Remote = 4,
    CdRom = 5,
    RamDisk = 6,
};

struct MountEntry {
    std::string source;      // device, "server:/export", "//server/share", ...
    std::string mountPoint;  // absolute directory
    std::string fsType;
};

// True when the mount on mountPoint holds path, comparing whole path
// components: "/mnt/share" holds "/mnt/share/a" but not "/mnt/shared".
bool MountPointHolds(const std::string& mountPoint, const std::string& path);

// The network path of path on a network drive: source (e.g. "//server/share"
// or "server:/export") joined with the part of path below mountPoint.
std::string NetworkPathBelow(const std::string& source, const std::string& mountPoint,
                             const std::string& path);

constexpr char kMountTableVariable[] = "Q9_MOUNT_TABLE";

class MountTable {
public:
    MountTable() = default;

    // Parses text in the mount table format: per line the source, mount
    // point and file system type separated by blanks (further fields are
    // ignored), with octal escapes such as \040 for a space decoded. Blank
    // lines and lines starting with '#' are skipped, as are lines of fewer
    // than three fields.
    //
    // With a sysfs root (normally "/sys"), a disk file system on a device
    // that the kernel flags as removable (a USB stick, a card reader) is a
    // Removable drive; without one, or when the device is not found there,
    // it is Fixed.
    static MountTable FromText(const std::string& text, const std::string& sysfsRoot = {});

    // The same from a file; an unreadable file gives an empty table.
    static MountTable FromFile(const std::string& path, const std::string& sysfsRoot = {});

    // The mounts of this process, from /proc/self/mounts and /sys; or, when
    // the environment variable Q9_MOUNT_TABLE names a file, from that file
    // (tests and demonstrations show network drives without mounting any).
    static MountTable FromSystem();

    const std::vector<MountEntry>& entries() const;

    // The kind of the index-th entry.
    DriveKind KindOfEntry(size_t index) const;

    // The visible mounts that are local hard drives (Fixed), in table order.
    std::vector<MountEntry> LocalDrives() const;

    // The visible mounts that are network drives (Remote), in table order.
    std::vector<MountEntry> NetworkDrives() const;

    // The mount that holds path; null when none does (a relative path, an
    // empty table).
    const MountEntry* FindMount(const std::string& path) const;

    // The kind of the drive that holds path: NoRoot for an empty or relative
    // path or one no mount holds, Unknown for a mount that is no drive
    // (proc, sysfs, overlay, ...).
    DriveKind KindOf(const std::string& path) const;

    // For a path on a network drive, the network path of the same file: the
    // mount's source followed by the part of path below the mount point
    // ("/mnt/nfs/a/b" on "server:/export" -> "server:/export/a/b"). Empty
    // for a path on anything else.
    std::string NetworkPathOf(const std::string& path) const;

private:
    void Add(MountEntry entry, const std::string& sysfsRoot);
    std::optional<size_t> FindIndex(const std::string& path) const;
    bool IsShadowed(size_t index) const;
    std::vector<MountEntry> VisibleOfKind(DriveKind kind) const;

    std::vector<MountEntry> m_entries;
    std::vector<DriveKind> m_kinds;  // one per entry
};

}  // namespace platform
