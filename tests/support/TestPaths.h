#pragma once

// Where a test finds what the build made and the sources it reads: the
// libraries, the helper programs, the test data, the translations. The build
// writes them into q9_test_paths.txt beside the test programs, one
// "name=path" a line, instead of into the compiled code: a test object is
// then the same in every clone of the project, and the compiler cache serves
// a fresh clone too.

#include <string>

// The path recorded under name. A name the file lacks, or a missing file, is
// a broken build: the program says so on standard error and stops.
std::string TestPath(const std::string& name);

// Whether the build recorded name: a program that only some build trees make
// (q9shots is not in the sanitizer tree).
bool HasTestPath(const std::string& name);
