// The "other process" of the configuration store tests. The first argument
// after the mode is always the installation directory.
//
//   q9_store_helper set-dw <dir> <section> <key> <value>
//       Writes one word straight to the live store. Exit 0 on success.
//
//   q9_store_helper flush-loop <dir>
//       Commits one generation of the large test configuration after the
//       other through edit mode, from the generation the file holds on,
//       until it is killed.
//
//   q9_store_helper read-loop <dir> <generations> <progress file>
//       Reads the live store over and over until it has seen <generations>
//       different generations, writing the number of passes done to the
//       progress file after each pass. Exit 0 when every read found a whole
//       and consistent file and generations never went back; 1 otherwise.
//
//   q9_store_helper edit-hold <dir> <ready file> <release file> <section> <key> <value>
//       Enters edit mode, sets the word in the working copy, creates the
//       ready file, waits for the release file, then unlocks and commits.
//       Exit 0 when edit mode was entered without waiting and the commit
//       succeeded.
//
//   q9_store_helper prompt <dir> <stop file> [<events file>]
//       Runs a widget application and asks for the password; the prompt is
//       cancelled once the stop file exists. Exit 0 when the answer was 0.
//       With an events file, appends "shown" once the prompt is on screen
//       and "raised" each time it is raised after that.
//
//   q9_store_helper prompt-bare <dir>
//       Asks for the password without an application of its own (the store
//       makes one). Meant to be killed while the prompt is open.

#include <sys/stat.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

#include "Q9CfgE.h"
#include "unit/siblings/Q9CfgE/Generations.h"

namespace {

constexpr auto kTimeLimit = std::chrono::seconds(25);

bool Exists(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0;
}

uint32_t Number(const char* text) { return static_cast<uint32_t>(std::strtoul(text, nullptr, 0)); }

int Fail(const std::string& why) {
    std::fprintf(stderr, "q9_store_helper: %s\n", why.c_str());
    return 1;
}

int SetWord(char** argv) {
    return Q9CfgE_SetDWEx(Number(argv[0]), Number(argv[1]), Number(argv[2])) == 1 ? 0 : 1;
}

int FlushLoop() {
    for (uint32_t generation = Q9CfgE_GetDWEx(store_test::kGenerationSection,
                                              store_test::kGenerationKey) + 1;;
         ++generation) {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
        store_test::WriteGeneration(generation);
        Q9CfgE_UnlockEx();
        if (Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1) != 1) return Fail("a commit failed");
    }
}

int ReadLoop(uint32_t wanted, const std::string& progress) {
    const auto deadline = std::chrono::steady_clock::now() + kTimeLimit;
    uint32_t seen = 0;
    uint32_t last = 0;
    uint32_t passes = 0;
    while (seen < wanted) {
        if (std::chrono::steady_clock::now() > deadline) return Fail("too few generations seen");
        // Until the first commit there is no file to check.
        if (last == 0 && Q9CfgE_GetDWEx(store_test::kGenerationSection,
                                        store_test::kGenerationKey) == 0) {
            continue;
        }
        uint32_t generation = 0;
        std::string why;
        if (!store_test::CheckGeneration(&generation, &why)) return Fail(why);
        std::ofstream(progress, std::ios::trunc) << ++passes << "\n";
        if (generation < last) return Fail("a generation went back");
        if (generation > last) ++seen;
        last = generation;
    }
    return 0;
}

int EditHold(const std::string& ready, const std::string& release, char** word) {
    const int32_t entered = Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    Q9CfgE_SetDWEx(Number(word[0]), Number(word[1]), Number(word[2]));
    std::ofstream(ready).put('\n');
    const auto deadline = std::chrono::steady_clock::now() + kTimeLimit;
    while (!Exists(release)) {
        if (std::chrono::steady_clock::now() > deadline) return Fail("never released");
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    Q9CfgE_UnlockEx();
    const int32_t committed = Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1);
    return entered == 1 && committed == 1 ? 0 : 1;
}

// Writes what happens to the prompt dialog to a file, a line each.
class PromptEvents : public QObject {
public:
    explicit PromptEvents(std::string path) : m_path(std::move(path)) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!qobject_cast<QDialog*>(watched)) return false;
        if (event->type() == QEvent::Show) Append("shown");
        if (event->type() == QEvent::ZOrderChange && m_shown) Append("raised");
        return false;
    }

private:
    void Append(const char* line) {
        m_shown = true;
        std::ofstream(m_path, std::ios::app) << line << '\n';
    }

    std::string m_path;
    bool m_shown = false;
};

int Prompt(int argc, char** argv, const std::string& stop, const char* eventsFile) {
    QApplication application(argc, argv);
    PromptEvents events(eventsFile ? eventsFile : "");
    if (eventsFile) application.installEventFilter(&events);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&stop] {
        if (!Exists(stop)) return;
        if (QWidget* prompt = QApplication::activeModalWidget()) prompt->close();
    });
    watch.start(10);
    return Q9CfgE_AuthenticateEx(0, 0, "Helper prompt") == 0 ? 0 : 1;
}

int BarePrompt() { return Q9CfgE_AuthenticateEx(0, 0, "Helper prompt") == 0 ? 0 : 1; }

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return Fail("usage: q9_store_helper <mode> <dir> ...");
    const std::string mode = argv[1];
    setenv("Q9_INSTALL_DIR", argv[2], 1);
    if (mode == "set-dw" && argc == 6) return SetWord(argv + 3);
    if (mode == "flush-loop" && argc == 3) return FlushLoop();
    if (mode == "read-loop" && argc == 5) return ReadLoop(Number(argv[3]), argv[4]);
    if (mode == "edit-hold" && argc == 8) return EditHold(argv[3], argv[4], argv + 5);
    if (mode == "prompt" && (argc == 4 || argc == 5)) {
        return Prompt(argc, argv, argv[3], argc == 5 ? argv[4] : nullptr);
    }
    if (mode == "prompt-bare" && argc == 3) return BarePrompt();
    return Fail("unknown mode or wrong arguments: " + mode);
}
