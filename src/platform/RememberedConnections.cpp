#include "platform/RememberedConnections.h"

#include <strings.h>

#include "platform/MountTable.h"
#include "platform/Registry.h"

namespace platform {
namespace {

constexpr const char* kSessionKey = "NetWork";
constexpr const char* kPersistentKey = "NetWork\\Persistent";
constexpr uint32_t kNameCapacity = 1024;

std::string ReadRemotePath(RegKey parent, const std::string& name) {
    RegKey key = nullptr;
    if (RegOpenKey(parent, name.c_str(), kKeyRead, &key) != kSuccess) return {};
    std::string text(kNameCapacity, '\0');
    uint32_t type = 0;
    auto size = static_cast<uint32_t>(text.size());
    const int32_t status =
        RegQueryValue(key, "RemotePath", &type, reinterpret_cast<uint8_t*>(text.data()), &size);
    RegCloseKey(key);
    if (status != kSuccess || type != kRegSz) return {};
    text.resize(size);
    return std::string(text.c_str());  // up to the terminating 0
}

void CollectUnder(const char* keyPath, bool persistent,
                  std::vector<RememberedConnection>* connections) {
    RegKey parent = nullptr;
    if (RegOpenKey(CurrentUser(), keyPath, kKeyRead, &parent) != kSuccess) return;
    for (uint32_t index = 0;; ++index) {
        char name[kNameCapacity];
        uint32_t nameSize = sizeof name;
        if (RegEnumKey(parent, index, name, &nameSize) != kSuccess) break;
        // "Persistent" is the folder of the other kind, not a drive.
        if (!persistent && strcasecmp(name, "Persistent") == 0) continue;
        std::string remotePath = ReadRemotePath(parent, name);
        if (!remotePath.empty()) connections->push_back({name, std::move(remotePath), persistent});
    }
    RegCloseKey(parent);
}

}  // namespace

std::vector<RememberedConnection> RememberedConnections() {
    std::vector<RememberedConnection> connections;
    CollectUnder(kSessionKey, false, &connections);
    CollectUnder(kPersistentKey, true, &connections);
    return connections;
}

std::optional<RememberedConnection> RememberedConnectionOf(const std::string& path) {
    std::optional<RememberedConnection> best;
    for (RememberedConnection& connection : RememberedConnections()) {
        if (!MountPointHolds(connection.mountPoint, path)) continue;
        // Session connections come first, so a persistent one of the same
        // mount point does not replace them.
        if (!best || connection.mountPoint.size() > best->mountPoint.size()) {
            best = std::move(connection);
        }
    }
    return best;
}

std::string RememberedNetworkPathOf(const std::string& path) {
    const std::optional<RememberedConnection> connection = RememberedConnectionOf(path);
    if (!connection) return {};
    return NetworkPathBelow(connection->remotePath, connection->mountPoint, path);
}

}  // namespace platform
