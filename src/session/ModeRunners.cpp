#include "session/ModeRunners.h"

#include "platform/SharedWord.h"
#include "session/DiagLog.h"

namespace {

// One word shared by every process that loads the library.
platform::SharedWord& ConfigWindowWord() {
    static platform::SharedWord word(platform::kConfigWindowWordName);
    return word;
}

}  // namespace

uint32_t OpenConfigWindow() { return ConfigWindowWord().Load(); }

void ClearConfigWindow() { ConfigWindowWord().Exchange(0); }

void BringConfigWindowForward(uint32_t window) {
    g_Log.Write("the configuration window %u of another call is open", window);
}

// The dialogs are not part of this build yet: each answers as a dialog whose
// window cannot be made.
int32_t RunConfigDialog(uint64_t, uint32_t, int32_t page, int32_t* lastPage) {
    if (lastPage) *lastPage = page;
    return -1;
}

int32_t RunWizard(uint64_t, uint32_t) { return -1; }

int32_t RunSinglePage(uint64_t, uint32_t, int32_t) { return -1; }

void RunSilentPolicy(const char*, const char*, int32_t) {}

void RunSilentWizard(uint32_t) {}
