#pragma once

#include <sys/resource.h>

// Limits the size of files this process may write (RLIMIT_FSIZE) while the
// object lives, so that a write fails part way with EFBIG, as it would on a
// full disk; unlike permissions this also works when the tests run as root.
// SIGXFSZ is ignored meanwhile, so that the write fails instead of the
// process being killed.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();

    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit previous_{};
    void (*previousHandler_)(int) = nullptr;
};
