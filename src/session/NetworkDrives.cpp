#include "session/NetworkDrives.h"

#include <sys/stat.h>

#include <cstring>
#include <utility>

#include "platform/RememberedConnections.h"

namespace {

bool IsAbsolute(const char* path) { return path && path[0] == '/'; }

// Copies text and its terminator into buffer when it fits; otherwise sets
// *length to the size needed.
int32_t CopyOut(const std::string& text, char* buffer, uint32_t* length, int32_t status) {
    const size_t needed = text.size() + 1;
    if (!buffer || *length < needed) {
        *length = static_cast<uint32_t>(needed);
        return kNetMoreData;
    }
    std::memcpy(buffer, text.c_str(), needed);
    return status;
}

}  // namespace

CNetworkDrives::CNetworkDrives(std::string mountTableFile)
    : m_mountTableFile(std::move(mountTableFile)) {}

platform::MountTable CNetworkDrives::Mounts() const {
    if (m_mountTableFile.empty()) return platform::MountTable::FromSystem();
    return platform::MountTable::FromFile(m_mountTableFile);
}

int32_t CNetworkDrives::GetConnection(const char* localName, char* remoteName,
                                      uint32_t* length) const {
    if (!IsAbsolute(localName)) return kNetBadDevice;
    if (!length) return kNetInvalidParameter;
    std::string remote = Mounts().NetworkPathOf(localName);
    if (!remote.empty()) return CopyOut(remote, remoteName, length, kNetNoError);
    remote = platform::RememberedNetworkPathOf(localName);
    if (!remote.empty()) return CopyOut(remote, remoteName, length, kNetConnectionUnavail);
    return kNetNotConnected;
}

int32_t CNetworkDrives::AddConnection(const NetResource& resource, const char* /*password*/,
                                      const char* /*userName*/, uint32_t /*flags*/) const {
    if (!IsAbsolute(resource.localName)) return kNetBadDevice;
    // Looking at the path is what makes an automounter (autofs, systemd
    // automount units) mount the file system behind it; whether that worked
    // shows in the mount table, not in this result.
    struct stat ignored {};
    (void)::stat(resource.localName, &ignored);
    return Mounts().NetworkPathOf(resource.localName).empty() ? kNetBadNetPath : kNetNoError;
}

std::string CNetworkDrives::GetRemoteName(const std::string& drive, int32_t scope) const {
    switch (scope) {
        case kNetScopeConnected:
            return Mounts().NetworkPathOf(drive);
        case kNetScopeRemembered:
            return platform::RememberedNetworkPathOf(drive);
        default:
            return {};
    }
}
