#pragma once

// The commands of q9cfg. Each loads libQ9CfgUL.so, calls one export and
// prints its result. Exit status: 0 the call was made (its result printed),
// 2 a bad command line, 4 the library or its entry point could not be had.

#include <iosfwd>
#include <string>
#include <vector>

int RunHostCommand(const std::vector<std::string>& words, const std::string& programDirectory,
                   std::ostream& out, std::ostream& err);

std::string HostUsage();
