#include "platform/MountTable.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <sstream>
#include <string_view>
#include <utility>

namespace platform {
namespace {

// File systems that keep their files on a local disk.
constexpr std::string_view kDiskTypes[] = {"ext2", "ext3",     "ext4",    "xfs",    "btrfs",
                                           "vfat", "exfat",    "ntfs",    "ntfs3",  "f2fs",
                                           "jfs",  "reiserfs", "hfsplus", "fuseblk"};

constexpr std::string_view kOpticalTypes[] = {"iso9660", "udf"};

// File systems whose files live on another machine: file servers, cloud
// storage, and the host of a virtual machine (9p, virtiofs).
constexpr std::string_view kNetworkTypes[] = {
    "nfs",         "nfs4",        "cifs", "smb3",      "smbfs",          "fuse.sshfs",
    "sshfs",       "afs",         "ceph", "glusterfs", "fuse.glusterfs", "davfs",
    "fuse.davfs2", "fuse.rclone", "9p",   "virtiofs"};

constexpr std::string_view kMemoryTypes[] = {"tmpfs", "ramfs"};

bool IsOneOf(const std::string& value, std::span<const std::string_view> names) {
    for (const std::string_view name : names) {
        if (value == name) return true;
    }
    return false;
}

bool IsOctalDigit(char c, char highest) { return c >= '0' && c <= highest; }

// True when text holds a backslash and three octal digits (at most \377) at.
bool IsOctalEscape(std::string_view text, size_t at) {
    return text[at] == '\\' && at + 3 < text.size() && IsOctalDigit(text[at + 1], '3') &&
           IsOctalDigit(text[at + 2], '7') && IsOctalDigit(text[at + 3], '7');
}

// Decodes the octal escapes the kernel writes for a blank, a line end or a
// backslash inside a field (\040, \011, \012, \134); any other backslash is
// kept as it is.
std::string Unescape(std::string_view field) {
    std::string text;
    for (size_t at = 0; at < field.size(); ++at) {
        if (!IsOctalEscape(field, at)) {
            text += field[at];
            continue;
        }
        const int value =
            (field[at + 1] - '0') * 64 + (field[at + 2] - '0') * 8 + (field[at + 3] - '0');
        text += static_cast<char>(static_cast<unsigned char>(value));
        at += 3;
    }
    return text;
}

std::vector<std::string_view> SplitFields(std::string_view line) {
    std::vector<std::string_view> fields;
    size_t at = line.find_first_not_of(" \t");
    while (at != std::string_view::npos) {
        const size_t end = std::min(line.find_first_of(" \t", at), line.size());
        fields.push_back(line.substr(at, end - at));
        at = line.find_first_not_of(" \t", end);
    }
    return fields;
}

// True when the kernel flags the device as removable: the "removable" file of
// the block device, or, for a partition (which has none), that of its disk,
// reached through the partition's link in class/block.
bool IsRemovableDevice(const std::string& source, const std::string& sysfsRoot) {
    if (sysfsRoot.empty()) return false;
    // Names such as /dev/disk/by-uuid/... and /dev/mapper/... are links to
    // the device node, whose name is the one sysfs knows.
    std::error_code error;
    std::filesystem::path device = std::filesystem::canonical(source, error);
    if (error) device = source;
    const std::filesystem::path block =
        std::filesystem::path(sysfsRoot) / "class" / "block" / device.filename();
    for (const char* flagFile : {"removable", "../removable"}) {
        std::ifstream file(block / flagFile);
        char flag = 0;
        if (file >> flag) return flag == '1';
    }
    return false;
}

DriveKind Classify(const MountEntry& entry, const std::string& sysfsRoot) {
    const std::string& type = entry.fsType;
    if (type == "zfs") return DriveKind::Fixed;  // its source is a pool, never a device
    if (IsOneOf(type, kDiskTypes)) {
        if (!entry.source.starts_with("/dev/")) return DriveKind::Unknown;
        return IsRemovableDevice(entry.source, sysfsRoot) ? DriveKind::Removable : DriveKind::Fixed;
    }
    if (IsOneOf(type, kOpticalTypes)) return DriveKind::CdRom;
    if (IsOneOf(type, kNetworkTypes)) return DriveKind::Remote;
    if (IsOneOf(type, kMemoryTypes)) return DriveKind::RamDisk;
    return DriveKind::Unknown;
}

}  // namespace

bool MountPointHolds(const std::string& mountPoint, const std::string& path) {
    if (!mountPoint.starts_with('/') || !path.starts_with(mountPoint)) return false;
    return path.size() == mountPoint.size() || mountPoint.back() == '/' ||
           path[mountPoint.size()] == '/';
}

std::string NetworkPathBelow(const std::string& source, const std::string& mountPoint,
                             const std::string& path) {
    std::string_view rest = std::string_view(path).substr(mountPoint.size());
    while (rest.starts_with('/')) rest.remove_prefix(1);
    std::string networkPath = source;
    if (rest.empty()) return networkPath;
    // "host:" names a home directory and "server:/" a root: no '/' to add.
    if (!networkPath.empty() && networkPath.back() != '/' && networkPath.back() != ':') {
        networkPath += '/';
    }
    networkPath += rest;
    return networkPath;
}

MountTable MountTable::FromText(const std::string& text, const std::string& sysfsRoot) {
    MountTable table;
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        const std::vector<std::string_view> fields = SplitFields(line);
        if (fields.size() < 3 || fields[0].starts_with('#')) continue;
        table.Add({Unescape(fields[0]), Unescape(fields[1]), Unescape(fields[2])}, sysfsRoot);
    }
    return table;
}

MountTable MountTable::FromFile(const std::string& path, const std::string& sysfsRoot) {
    std::ifstream file(path);
    if (!file) return {};
    std::ostringstream text;
    text << file.rdbuf();
    return FromText(text.str(), sysfsRoot);
}

MountTable MountTable::FromSystem() {
    const char* table = std::getenv(kMountTableVariable);
    if (table && *table) return FromFile(table, "/sys");
    return FromFile("/proc/self/mounts", "/sys");
}

void MountTable::Add(MountEntry entry, const std::string& sysfsRoot) {
    m_kinds.push_back(Classify(entry, sysfsRoot));
    m_entries.push_back(std::move(entry));
}

const std::vector<MountEntry>& MountTable::entries() const { return m_entries; }

DriveKind MountTable::KindOfEntry(size_t index) const {
    return index < m_kinds.size() ? m_kinds[index] : DriveKind::Unknown;
}

std::vector<MountEntry> MountTable::LocalDrives() const { return VisibleOfKind(DriveKind::Fixed); }

std::vector<MountEntry> MountTable::NetworkDrives() const {
    return VisibleOfKind(DriveKind::Remote);
}

std::vector<MountEntry> MountTable::VisibleOfKind(DriveKind kind) const {
    std::vector<MountEntry> drives;
    for (size_t index = 0; index < m_entries.size(); ++index) {
        if (m_kinds[index] == kind && !IsShadowed(index)) drives.push_back(m_entries[index]);
    }
    return drives;
}

// A mount is hidden by a later one on the same mount point.
bool MountTable::IsShadowed(size_t index) const {
    for (size_t later = index + 1; later < m_entries.size(); ++later) {
        if (m_entries[later].mountPoint == m_entries[index].mountPoint) return true;
    }
    return false;
}

std::optional<size_t> MountTable::FindIndex(const std::string& path) const {
    std::optional<size_t> best;
    for (size_t index = 0; index < m_entries.size(); ++index) {
        const std::string& mountPoint = m_entries[index].mountPoint;
        if (!MountPointHolds(mountPoint, path)) continue;
        // ">=": of equal mount points the later one wins.
        if (!best || mountPoint.size() >= m_entries[*best].mountPoint.size()) best = index;
    }
    return best;
}

const MountEntry* MountTable::FindMount(const std::string& path) const {
    const std::optional<size_t> index = FindIndex(path);
    return index ? &m_entries[*index] : nullptr;
}

DriveKind MountTable::KindOf(const std::string& path) const {
    const std::optional<size_t> index = FindIndex(path);
    return index ? m_kinds[*index] : DriveKind::NoRoot;
}

std::string MountTable::NetworkPathOf(const std::string& path) const {
    const std::optional<size_t> index = FindIndex(path);
    if (!index || m_kinds[*index] != DriveKind::Remote) return {};
    const MountEntry& mount = m_entries[*index];
    return NetworkPathBelow(mount.source, mount.mountPoint, path);
}

}  // namespace platform
