#pragma once

// Problems that the program survives but somebody should hear of (a hive that
// cannot be parsed, a file that cannot be replaced, a disk that is full).
// Each is written to standard error and handed to the sink the diagnostic log
// installs, so that it lands in the log as well when the log is on.
//
// This code is one shared library (libQ9Problems.so) that the settings
// library and every sibling library load, so that the whole process shares
// one sink and one list of unreadable files: a sibling's report of its own
// damaged file reaches the diagnostic log, and an open dialog can tell the
// user which files it could not read.

#include <string>
#include <vector>

#define Q9_PROBLEMS_API __attribute__((visibility("default")))

namespace platform {

using ProblemSink = void (*)(const char* line);

// Installs the sink (null removes it). Returns the previous one.
Q9_PROBLEMS_API ProblemSink SetProblemSink(ProblemSink sink);

// Writes "Q9CfgUL: <text>" to standard error and passes text to the sink.
Q9_PROBLEMS_API void ReportProblem(const std::string& text);

// A data file that exists but whose settings cannot be used: it cannot be
// read, is too large, or cannot be parsed. Its reader takes it as empty and
// never writes over it.
struct UnreadableFile {
    std::string path;
    std::string problem;  // the text reported
};

// Reports problem (as ReportProblem does) and records path as unreadable
// until a reader reads it whole again.
Q9_PROBLEMS_API void ReportUnreadableFile(const std::string& path, const std::string& problem);

// Records that path was read whole: it is no longer listed as unreadable.
Q9_PROBLEMS_API void NoteReadableFile(const std::string& path);

// The files now recorded as unreadable, in the order they were first found;
// a file that no longer exists is dropped from the list.
Q9_PROBLEMS_API std::vector<UnreadableFile> UnreadableFiles();

}  // namespace platform
