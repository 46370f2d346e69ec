#include "platform/ProblemReport.h"

#include <atomic>
#include <cstdio>

namespace platform {
namespace {
std::atomic<ProblemSink> g_sink{nullptr};
}

ProblemSink SetProblemSink(ProblemSink sink) { return g_sink.exchange(sink); }

void ReportProblem(const std::string& text) {
    std::fprintf(stderr, "Q9CfgUL: %s\n", text.c_str());
    if (ProblemSink sink = g_sink.load()) sink(text.c_str());
}

}  // namespace platform
