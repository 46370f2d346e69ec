// A program outside the project that links libQ9CfgUL.so from an
// installation, found with find_package(Q9CfgUL) or pkg-config q9cfgul, and
// calls one export. Exit status 0 when the library answers 1.
#include <cstdio>

#include "q9cfgul.h"

int main() {
    const int32_t result = Q9CfgUL_Report();
    std::printf("Q9CfgUL_Report: %d\n", static_cast<int>(result));
    return result == 1 ? 0 : 1;
}
