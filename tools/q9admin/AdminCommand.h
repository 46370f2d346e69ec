#pragma once

// The verbs of q9admin. Each takes the words after the verb, writes its
// answer to out and its complaints to err, and returns the exit status:
// 0 done, 1 the thing asked for is not there, 2 a bad command line, 3 the
// store or registry refused a write.

#include <iosfwd>
#include <string>
#include <vector>

int RunAdminCommand(const std::vector<std::string>& words, std::istream& in, std::ostream& out,
                    std::ostream& err);

// The usage text.
std::string AdminUsage();
