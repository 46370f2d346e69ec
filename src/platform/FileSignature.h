#pragma once

// What stat() says of a file. The files of the installation are replaced by
// rename, never changed in place, so an unchanged signature means unchanged
// content: a cached parse can be reused without reading the file.

#include <sys/stat.h>

#include <cstdint>
#include <string>

namespace platform {

struct FileSignature {
    int error = 0;  // 0, or the errno of stat()/open(); ENOENT: no file
    uint64_t device = 0;
    uint64_t inode = 0;
    int64_t size = 0;
    int64_t modifiedSeconds = 0;
    int64_t modifiedNanoseconds = 0;

    bool operator==(const FileSignature&) const = default;

    static FileSignature Of(const std::string& path);
    static FileSignature FromStat(const struct stat& info);
    static FileSignature Failed(int error);
};

}  // namespace platform
