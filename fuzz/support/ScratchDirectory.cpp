#include "support/ScratchDirectory.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/AtomicFile.h"
#include "support/FuzzCheck.h"

namespace fuzz {
namespace {

std::string BaseFolder() {
    if (access("/dev/shm", W_OK) == 0) return "/dev/shm";
    const char* temporary = std::getenv("TMPDIR");
    return temporary && *temporary ? temporary : "/tmp";
}

struct Folder {
    Folder() {
        std::string pattern = BaseFolder() + "/q9fuzz.XXXXXX";
        Check(mkdtemp(pattern.data()) != nullptr, "the scratch folder can be made");
        path = pattern + "/";
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    std::string path;
};

}  // namespace

const std::string& ScratchDirectory::Path() {
    static const Folder folder;
    return folder.path;
}

std::string ScratchDirectory::Write(const std::string& name, std::string_view bytes) {
    const std::string path = Path() + name;
    int error = 0;
    Check(platform::WriteFileAtomically(path, bytes, &error), "a scratch file can be written");
    return path;
}

}  // namespace fuzz
