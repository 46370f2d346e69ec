#include "support/ProblemCapture.h"

namespace {
std::vector<std::string> g_lines;

void Collect(const char* line) { g_lines.emplace_back(line); }
}  // namespace

ProblemCapture::ProblemCapture() : previous_(platform::SetProblemSink(&Collect)) {
    g_lines.clear();
}

ProblemCapture::~ProblemCapture() {
    platform::SetProblemSink(previous_);
    g_lines.clear();
}

const std::vector<std::string>& ProblemCapture::Lines() const { return g_lines; }
