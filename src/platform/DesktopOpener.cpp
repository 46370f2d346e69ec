#include "platform/DesktopOpener.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>

#include "platform/ProgramLauncher.h"

namespace platform {
namespace {

// The parts of text between separators; empty parts are left out.
std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        if (!part.empty()) parts.push_back(part);
    }
    return parts;
}

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// Starts program (looked up on the search path) with arguments; 0 or the
// error number of the start.
int Start(const std::string& program, const std::vector<std::string>& arguments) {
    const std::string path = FindProgram(program);
    if (path.empty()) return ENOENT;
    int error = 0;
    return StartProgram(path, arguments, "", nullptr, &error) ? 0 : error;
}

}  // namespace

std::string FindProgram(const std::string& name) {
    if (name.empty()) return {};
    if (name.find('/') != std::string::npos) return name;
    for (const std::string& directory : Split(Environment("PATH"), ':')) {
        const std::string path = directory + "/" + name;
        struct stat status {};
        if (stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
            access(path.c_str(), X_OK) == 0)
            return path;
    }
    return {};
}

std::vector<std::string> BrowserCommand(const std::string& entry, const std::string& target) {
    std::vector<std::string> words = Split(entry, ' ');
    bool placed = false;
    for (std::string& word : words) {
        for (size_t at = 0; (at = word.find("%s", at)) != std::string::npos; at += target.size()) {
            word.replace(at, 2, target);
            placed = true;
        }
    }
    if (!words.empty() && !placed) words.push_back(target);
    return words;
}

int OpenWithDesktop(const std::string& target) {
    const int openerError = Start(kDesktopOpener, {target});
    if (openerError == 0) return 0;
    for (const std::string& entry : Split(Environment("BROWSER"), ':')) {
        std::vector<std::string> command = BrowserCommand(entry, target);
        if (command.empty()) continue;
        const std::string program = command.front();
        command.erase(command.begin());
        if (Start(program, command) == 0) return 0;
    }
    return openerError;
}

}  // namespace platform
