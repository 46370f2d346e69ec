// q9cfg: the host program that calls libQ9CfgUL.so as the product's programs do.
#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "HostCommand.h"

namespace {

// The directory of this program, ending in '/'.
std::string ProgramDirectory() {
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
    if (length <= 0) return "./";
    const std::string program(path, static_cast<std::size_t>(length));
    return program.substr(0, program.rfind('/') + 1);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    return RunHostCommand(words, ProgramDirectory(), std::cout, std::cerr);
}
