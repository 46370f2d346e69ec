#include "SessionLocale.h"

#include <cstdlib>

namespace orvi18n {
namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

std::string SessionLocale::Name() {
    std::string name = Variable("LANGUAGE");
    name = name.substr(0, name.find(':'));
    if (!name.empty()) return name;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        name = Variable(variable);
        if (!name.empty()) return name;
    }
    return {};
}

}  // namespace orvi18n
