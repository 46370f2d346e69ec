#pragma once

// The spam filter library (libQ9MsgFlt.so): its rule manager and the
// filter's own rule editor. The library is loaded on first need and kept
// until Release; a missing library or entry point answers 0.

#include <cstdint>

#include "platform/SharedLibrary.h"

class SpamFilterBinding {
public:
    // 1 when the library is loaded (at once when it already is), else 0.
    int32_t Load();
    void Release();

    int32_t InitManager();
    int32_t ReleaseManager();
    // Opens the rule editor; 1 when the rules changed.
    int32_t DoProperty();
    // Applies the rules to the mail text whose address is high:low.
    int32_t ApplyRules(uint32_t low, uint32_t high);
    int32_t ReloadManager();
    int32_t WriteRules();
    int32_t RuleCount();

private:
    int32_t CallManager(const char* entryPoint);

    platform::SharedLibrary m_library;
};
