#include "platform/ProblemReport.h"

#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <mutex>

namespace platform {
namespace {

std::atomic<ProblemSink> g_sink{nullptr};

std::mutex g_unreadableMutex;
std::vector<UnreadableFile> g_unreadable;  // a handful at most: a list is enough

std::vector<UnreadableFile>::iterator FindUnreadable(const std::string& path) {
    return std::find_if(g_unreadable.begin(), g_unreadable.end(),
                        [&path](const UnreadableFile& file) { return file.path == path; });
}

}  // namespace

ProblemSink SetProblemSink(ProblemSink sink) { return g_sink.exchange(sink); }

void ReportProblem(const std::string& text) {
    std::fprintf(stderr, "Q9CfgUL: %s\n", text.c_str());
    if (ProblemSink sink = g_sink.load()) sink(text.c_str());
}

void ReportUnreadableFile(const std::string& path, const std::string& problem) {
    {
        const std::lock_guard<std::mutex> guard(g_unreadableMutex);
        const auto known = FindUnreadable(path);
        if (known != g_unreadable.end()) {
            known->problem = problem;
        } else {
            g_unreadable.push_back(UnreadableFile{path, problem});
        }
    }
    // Outside the lock: the sink may read files whose readers report here.
    ReportProblem(problem);
}

namespace {

// A file removed since, or one whose path cannot name a file (a folder of
// it is a file, or it is longer than the system takes), is no longer
// unreadable: its reader takes it as missing the next time.
bool IsGone(const std::string& path) {
    struct stat info {};
    if (::lstat(path.c_str(), &info) == 0) return false;
    return errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG;
}

}  // namespace

void NoteReadableFile(const std::string& path) {
    const std::lock_guard<std::mutex> guard(g_unreadableMutex);
    const auto known = FindUnreadable(path);
    if (known != g_unreadable.end()) g_unreadable.erase(known);
}

std::vector<UnreadableFile> UnreadableFiles() {
    const std::lock_guard<std::mutex> guard(g_unreadableMutex);
    std::erase_if(g_unreadable, [](const UnreadableFile& file) { return IsGone(file.path); });
    return g_unreadable;
}

}  // namespace platform
