#pragma once

// The network drive operations of the sibling bindings: which network path
// lies behind a drive, and bringing a remembered drive back. There is no
// network-drive library to bind on this platform; the answers come from the
// mount table (drives that are mounted now) and the remembered connections
// of the registry stand-in (drives known but not necessarily mounted).
//
// A "drive" is a mount point or any absolute path on it. Its remote name is
// the network path of that path: the mount's source (or the remembered
// remote path) followed by the part of the path below the mount point. For
// the mount point itself that is exactly the drive's remote name, and for a
// path on the drive it is the path's own network path, so callers never
// have to cut a drive name off and join the rest themselves. Paths compare
// with regard to case, as the file system does.

#include <cstdint>
#include <string>

#include "platform/MountTable.h"

// The description of a network resource, shaped as the callers of
// AddConnection fill it.
struct NetResource {
    uint32_t scope = 0;
    uint32_t type = 0;
    uint32_t displayType = 0;
    uint32_t usage = 0;
    const char* localName = nullptr;
    const char* remoteName = nullptr;
    const char* comment = nullptr;
    const char* provider = nullptr;
};

// Scopes of GetRemoteName.
enum NetScope : int32_t {
    kNetScopeConnected = 1,   // mounted network file systems
    kNetScopeGlobal = 2,      // browsing the network: no drives, nothing found
    kNetScopeRemembered = 3,  // remembered connections
};

constexpr uint32_t kNetResourceTypeDisk = 1;
constexpr uint32_t kConnectRedirect = 0x80;

// Results of GetConnection and AddConnection, numerically those the callers
// test for.
enum NetStatus : int32_t {
    kNetNoError = 0,
    kNetBadNetPath = 53,           // the drive could not be brought back
    kNetInvalidParameter = 87,     // no length given
    kNetMoreData = 234,            // buffer too small; *length says how large
    kNetBadDevice = 1200,          // no absolute path given
    kNetConnectionUnavail = 1201,  // remembered, not mounted now
    kNetNotConnected = 2250,       // not a network drive at all
};

class CNetworkDrives {
public:
    // The mounts of this process.
    CNetworkDrives() = default;
    // The mounts listed in mountTableFile (mount table format), read at each
    // call.
    explicit CNetworkDrives(std::string mountTableFile);

    // The remote name of the drive localName into remoteName, a buffer of
    // *length bytes: kNetNoError for a mounted network drive,
    // kNetConnectionUnavail (name copied as well) for a remembered one that is
    // not mounted, kNetNotConnected for anything else. With a buffer too
    // small (or null) *length becomes the size needed, terminator included,
    // and the result is kNetMoreData.
    int32_t GetConnection(const char* localName, char* remoteName, uint32_t* length) const;

    // Brings the drive resource.localName back. Nothing here may mount a
    // file system; the path is touched so that an automounter mounts it, and
    // the answer is kNetNoError when a network file system holds it
    // afterwards, kNetBadNetPath when none does, kNetBadDevice without an
    // absolute local name. Password, user name and flags are not used.
    int32_t AddConnection(const NetResource& resource, const char* password, const char* userName,
                          uint32_t flags) const;

    // The remote name of drive in scope: kNetScopeConnected looks at the
    // mounted network file systems, kNetScopeRemembered at the remembered
    // connections. Empty text for any other scope, and when none holds drive.
    std::string GetRemoteName(const std::string& drive, int32_t scope) const;

private:
    platform::MountTable Mounts() const;

    std::string m_mountTableFile;  // empty: the system's
};
