#include "ChangeMark.h"

#include <cerrno>
#include <cstring>
#include <ctime>
#include <fstream>
#include <sstream>

#include "platform/AtomicFile.h"
#include "platform/FileLock.h"
#include "platform/ProblemReport.h"

namespace cfge {

uint64_t ChangeMark::Generation(const std::string& path) {
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (line.rfind("generation=", 0) == 0) return std::strtoull(line.c_str() + 11, nullptr, 10);
    }
    return 0;
}

bool ChangeMark::Bump(const std::string& path) {
    const platform::FileLock lock(path + ".lock");
    if (!lock.IsLocked()) {
        platform::ReportProblem("cannot lock " + path + ".lock: " + std::strerror(lock.ErrorNumber()));
        return false;
    }
    std::ostringstream text;
    text << "generation=" << Generation(path) + 1 << "\ntime=" << std::time(nullptr) << "\n";
    int error = 0;
    if (!platform::WriteFileAtomically(path, text.str(), &error)) {
        platform::ReportProblem("cannot write the change mark " + path + ": " + std::strerror(error));
        return false;
    }
    return true;
}

}  // namespace cfge
