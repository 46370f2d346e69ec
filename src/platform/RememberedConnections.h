#pragma once

// Network drives that are remembered but need not be mounted now. Each is a
// key of the registry stand-in named after the drive's mount point, holding
// the text value "RemotePath" with the network path:
//
//   HKEY_CURRENT_USER\NetWork\<mount point>              connections of the session
//   HKEY_CURRENT_USER\NetWork\Persistent\<mount point>   connections restored at log-on
//
// e.g. [HKEY_CURRENT_USER\NetWork\/mnt/share] "RemotePath"="//server/share".

#include <optional>
#include <string>
#include <vector>

namespace platform {

struct RememberedConnection {
    std::string mountPoint;
    std::string remotePath;
    bool persistent = false;
};

// Every remembered connection with a non-empty "RemotePath": those under
// NetWork first, then those under NetWork\Persistent, each in key order.
std::vector<RememberedConnection> RememberedConnections();

// The remembered connection whose mount point holds path: NetWork is asked
// before NetWork\Persistent, and of several mount points holding path the
// longest wins. None when no remembered drive holds it.
std::optional<RememberedConnection> RememberedConnectionOf(const std::string& path);

// The network path of path when it lies on a remembered drive: the remote
// path of RememberedConnectionOf(path) joined with the part of path below its
// mount point. Empty text when none holds it.
std::string RememberedNetworkPathOf(const std::string& path);

}  // namespace platform
