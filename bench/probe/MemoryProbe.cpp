// Prints the peak resident memory (kB) of a process that does one scene:
// "bare N" paints a bare Qt dialog with N widgets (as many as the
// configuration dialog has), "session" runs a session to its first page
// painted.
#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "BenchInstallation.h"
#include "ShellScenes.h"

namespace {

long PeakResidentKb() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const bool bare = argc == 3 && std::strcmp(argv[1], "bare") == 0;
    const bool session = argc == 2 && std::strcmp(argv[1], "session") == 0;
    if (!bare && !session) {
        std::fprintf(stderr, "usage: q9_memory_probe bare WIDGETS | session\n");
        return 2;
    }
    const int widgets = bare ? std::atoi(argv[2]) : 0;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    if (bare) {
        PaintBareDialog(widgets);
    } else {
        const BenchInstallation installation;
        PaintSessionFirstPage();
    }
    std::printf("%ld\n", PeakResidentKb());
    return 0;
}
