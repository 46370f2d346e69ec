#pragma once

// A folder of the process for the files a target hands to a file reader:
// made once below /dev/shm (a memory file system, so that flushing a file to
// disk costs nothing) or TMPDIR, and removed when the process ends normally.

#include <string>
#include <string_view>

namespace fuzz {

class ScratchDirectory {
public:
    // The folder, ending in '/'.
    static const std::string& Path();

    // Replaces the file name in the folder with bytes, as the program's own
    // writers do (a new file renamed into place, with a later modification
    // time), so that readers that cache by the file's stat data see every
    // change. Returns the file's path.
    static std::string Write(const std::string& name, std::string_view bytes);
};

}  // namespace fuzz
