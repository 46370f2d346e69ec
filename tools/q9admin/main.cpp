// q9admin: reads and writes an installation's store and registry values,
// shows the registration journal and the exclusion zone.
#include <iostream>
#include <string>
#include <vector>

#include "AdminCommand.h"

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    return RunAdminCommand(words, std::cin, std::cout, std::cerr);
}
