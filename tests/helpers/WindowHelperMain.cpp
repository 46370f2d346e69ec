// The other process of the window beacon tests.
//
//   q9_window_helper window <outfile>
//       Shows a window with a beacon on Qt's offscreen platform and writes
//       its token as a line to <outfile>, then a line "forward" each time the
//       window is brought forward. Ends when killed or after a minute, so
//       that it never outlives a test run that lost track of it. Exit status
//       3 when the beacon could not listen.
//   q9_window_helper bring <token>
//       Asks the beacon of <token> to bring its window forward, without any
//       Qt application object. Exit status 0 when it acknowledged, else 1.
//
// Lines go to a file, not to standard output, as the tests start the helper
// with their own standard streams.

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "beacon/WindowBeacon.h"

namespace {

constexpr int kSafetyTimeoutMs = 60 * 1000;

int Usage() {
    std::fprintf(stderr,
                 "usage: q9_window_helper window <outfile>\n"
                 "       q9_window_helper bring <token>\n");
    return 2;
}

// Each line is written and flushed whole, so that a reader sees complete lines.
void AppendLine(const std::string& path, const std::string& line) {
    std::ofstream file(path, std::ios::app);
    file << line << '\n' << std::flush;
}

int ShowWindow(int argc, char** argv, const std::string& outfile) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("q9_window_helper"));
    window.show();
    WindowBeacon beacon(&window);
    if (beacon.Token() == 0) return 3;
    QObject::connect(&beacon, &WindowBeacon::broughtForward, [&outfile] { AppendLine(outfile, "forward"); });
    AppendLine(outfile, std::to_string(beacon.Token()));
    QTimer::singleShot(kSafetyTimeoutMs, &app, &QApplication::quit);
    return app.exec();
}

int Bring(const std::string& token) {
    return BringWindowForward(static_cast<uint32_t>(std::stoul(token))) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return Usage();
    const std::string mode = argv[1];
    if (mode == "window") return ShowWindow(argc, argv, argv[2]);
    if (mode == "bring") return Bring(argv[2]);
    return Usage();
}
