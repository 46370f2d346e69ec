// The remembered network connections, read from HKEY_CURRENT_USER\NetWork
// and NetWork\Persistent of a hive file: the bytes are HKCU.reg of a
// registry folder of the process's own. Every connection listed has a
// remote path, and a path on a listed absolute mount point is found on a
// remembered drive.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/RememberedConnections.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    setenv("Q9_REGISTRY_DIR", fuzz::ScratchDirectory::Path().c_str(), 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz::ScratchDirectory::Write("HKCU.reg", fuzz::AsText(data, size));
    const std::vector<platform::RememberedConnection> connections =
        platform::RememberedConnections();
    for (const platform::RememberedConnection& connection : connections) {
        fuzz::Check(!connection.remotePath.empty(), "a listed connection has a remote path");
        if (!connection.mountPoint.starts_with('/')) continue;
        const std::string below = connection.mountPoint + "/file";
        fuzz::Check(!platform::RememberedNetworkPathOf(connection.mountPoint).empty(),
                    "a remembered mount point is on a remembered drive");
        fuzz::Check(!platform::RememberedNetworkPathOf(below).empty(),
                    "a path below a remembered mount point is on a remembered drive");
    }
    return 0;
}
