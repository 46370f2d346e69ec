#include "support/TestPaths.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

namespace {

constexpr char kFileName[] = "q9_test_paths.txt";

[[noreturn]] void Stop(const std::string& why) {
    std::fprintf(stderr, "test paths: %s\n", why.c_str());
    std::abort();
}

std::map<std::string, std::string> ReadPaths() {
    const std::filesystem::path file =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / kFileName;
    std::ifstream in(file);
    if (!in) Stop("cannot read " + file.string());
    std::map<std::string, std::string> paths;
    for (std::string line; std::getline(in, line);) {
        const auto equals = line.find('=');
        if (equals != std::string::npos) paths[line.substr(0, equals)] = line.substr(equals + 1);
    }
    return paths;
}

const std::map<std::string, std::string>& Paths() {
    static const std::map<std::string, std::string> paths = ReadPaths();
    return paths;
}

}  // namespace

bool HasTestPath(const std::string& name) { return Paths().count(name) != 0; }

std::string TestPath(const std::string& name) {
    const std::map<std::string, std::string>& paths = Paths();
    const auto it = paths.find(name);
    if (it == paths.end()) Stop("no path named \"" + name + "\"");
    return it->second;
}
