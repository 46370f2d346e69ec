#pragma once

// Problems that the program survives but somebody should hear of (a hive that
// cannot be parsed, a file that cannot be replaced, a disk that is full).
// Each is written to standard error and handed to the sink the diagnostic log
// installs, so that it lands in the log as well when the log is on.

#include <string>

namespace platform {

using ProblemSink = void (*)(const char* line);

// Installs the sink (null removes it). Returns the previous one.
ProblemSink SetProblemSink(ProblemSink sink);

// Writes "Q9CfgUL: <text>" to standard error and passes text to the sink.
void ReportProblem(const std::string& text);

}  // namespace platform
