#include "platform/FileSignature.h"

#include <cerrno>

namespace platform {

FileSignature FileSignature::Of(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) != 0) return Failed(errno);
    return FromStat(info);
}

FileSignature FileSignature::FromStat(const struct stat& info) {
    FileSignature signature;
    signature.device = static_cast<uint64_t>(info.st_dev);
    signature.inode = static_cast<uint64_t>(info.st_ino);
    signature.size = static_cast<int64_t>(info.st_size);
    signature.modifiedSeconds = static_cast<int64_t>(info.st_mtim.tv_sec);
    signature.modifiedNanoseconds = static_cast<int64_t>(info.st_mtim.tv_nsec);
    return signature;
}

FileSignature FileSignature::Failed(int error) {
    FileSignature signature;
    signature.error = error;
    return signature;
}

}  // namespace platform
