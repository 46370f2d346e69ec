#include "FileSizeLimit.h"

#include <gtest/gtest.h>

#include <csignal>

FileSizeLimit::FileSizeLimit(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &previous_);
    previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = previous_;
    limit.rlim_cur = bytes;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) ADD_FAILURE() << "setrlimit failed";
}

FileSizeLimit::~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &previous_);
    std::signal(SIGXFSZ, previousHandler_);
}
