#include "shell/ConfigWindow.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include "beacon/WindowBeacon.h"
#include "platform/SharedWord.h"
#include "session/DiagLog.h"

namespace {

// The word's name; Q9_CONFIG_WINDOW_WORD may give another, so that separate
// installations (and test programs) running side by side keep apart.
std::string ConfigWindowWordName() {
    const char* name = std::getenv("Q9_CONFIG_WINDOW_WORD");
    const bool valid = name && name[0] == '/' && name[1] != '\0' && !std::strchr(name + 1, '/');
    return valid ? name : platform::kConfigWindowWordName;
}

platform::SharedWord& ConfigWindowWord() {
    static platform::SharedWord word(ConfigWindowWordName());
    return word;
}

}  // namespace

uint32_t OpenConfigWindow() { return ConfigWindowWord().Load(); }

void ClearConfigWindow() { ConfigWindowWord().Exchange(0); }

bool BringConfigWindowForward(uint32_t token) {
    const bool answered = BringWindowForward(token);
    g_Log.Write("the configuration window %u of another call %s", token,
                answered ? "was brought forward" : "did not answer");
    return answered;
}

ConfigWindowRegistration::ConfigWindowRegistration(QWidget* window)
    : m_beacon(std::make_unique<WindowBeacon>(window)) {
    ConfigWindowWord().Exchange(m_beacon->Token());
}

ConfigWindowRegistration::~ConfigWindowRegistration() = default;
