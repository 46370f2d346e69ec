#pragma once

// The counterpart of the platform's debugger output: one line to the system
// log (facility user, priority debug, tag "Q9CfgUL"), or to standard error
// on a machine that has no system log socket.

#include <string>

namespace platform {

// Where the system log listens on this machine.
constexpr const char* kSystemLogSocket = "/dev/log";

// Sends text as one line; a line end is added.
void DebugOutput(const std::string& text);

// The same, deciding by the given socket path (tests pass one that is absent).
void DebugOutputVia(const char* systemLogSocket, const std::string& text);

}  // namespace platform
