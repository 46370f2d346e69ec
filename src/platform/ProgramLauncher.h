#pragma once

// Starting another program of the product (or any program) as an
// independent process: the arguments reach it exactly as given, never through
// a shell; the caller does not wait for it, and it never becomes a child that
// the caller would have to reap.

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// Starts program with the given arguments (argument 0 is program itself) in
// workingDirectory, or in the caller's current directory when that is empty.
// program is a path: a relative one is taken from the caller's current
// directory, and no search path is consulted.
//
// The started process runs in a session of its own, with no signal blocked
// and none of the caller's file descriptors except standard input, output
// and error.
//
// True once the program is running; its process id is then stored in
// *processId when given. False when it could not be started: the program is
// missing or not executable, or the working directory cannot be entered; the
// system's error number of the step that failed (ENOENT for an empty
// program) is then stored in *error when given.
bool StartProgram(const std::string& program, const std::vector<std::string>& arguments,
                  const std::string& workingDirectory, int64_t* processId = nullptr,
                  int* error = nullptr);

}  // namespace platform
