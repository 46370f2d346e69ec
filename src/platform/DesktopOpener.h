#pragma once

// Opening a document or web address with the program the desktop chooses
// for it, the way a user's double click would. The desktop's opener
// (xdg-open) is asked first; when it cannot be started, the web browser
// that the environment names (BROWSER) is started with the target. Both are
// started with an argument vector, never through a shell, and neither is
// waited for.

#include <string>
#include <vector>

namespace platform {

// The desktop's opener, looked up on the search path.
constexpr const char* kDesktopOpener = "xdg-open";

// The path of the program name on the search path (PATH); a name that holds
// a '/' is a path already and is given back as it is. Empty when no
// directory of the search path has an executable file of that name.
std::string FindProgram(const std::string& name);

// The argument vector that starts one BROWSER entry on target: the entry's
// words, with every "%s" replaced by target, or with target added behind
// them when no word holds "%s". Empty for an entry without words.
std::vector<std::string> BrowserCommand(const std::string& entry, const std::string& target);

// Opens target: the desktop's opener, else each entry of BROWSER (entries
// are separated by ':') in turn. 0 once a program was started; otherwise the
// error number of the opener's start (ENOENT when it is not installed).
int OpenWithDesktop(const std::string& target);

}  // namespace platform
