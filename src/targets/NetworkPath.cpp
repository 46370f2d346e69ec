#include "targets/NetworkPath.h"

#include "platform/RememberedConnections.h"
#include "session/NetworkDrives.h"
#include "session/SiblingLibs.h"

namespace {

bool StartsWith(const std::string& text, const char* prefix) { return text.rfind(prefix, 0) == 0; }

// "host:/path" or "user@host:/path": a host name before the first ":/", and
// no "/" before it.
bool IsHostPath(const std::string& path) {
    const auto colon = path.find(":/");
    return colon != std::string::npos && colon > 0 && path.find('/') == colon + 1;
}

}  // namespace

bool IsNetworkPathText(const std::string& path) {
    return StartsWith(path, "//") || StartsWith(path, "\\\\") || IsHostPath(path);
}

std::string RemoteNameOf(const std::string& path) {
    std::string remote = platform::RememberedNetworkPathOf(path);
    if (remote.empty()) remote = g_Siblings.GetRemoteName(path, kNetScopeConnected);
    return remote;
}

bool IsNetworkPath(const std::string& path) {
    return IsNetworkPathText(path) || !RemoteNameOf(path).empty();
}

std::string GetUncPath(const std::string& path) {
    if (IsNetworkPathText(path)) return path;
    std::string remote = RemoteNameOf(path);
    if (remote.empty()) return path;
    if (remote.size() > 1 && remote.back() == '/') remote.pop_back();
    return remote;
}
