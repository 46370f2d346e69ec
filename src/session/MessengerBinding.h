#pragma once

// The instant messenger library (libQ9IMcfg.so): which messengers are
// installed. The library is loaded on first need and kept until Release; a
// missing library or entry point answers 0 (not installed).

#include <cstdint>

#include "platform/SharedLibrary.h"

class MessengerBinding {
public:
    // 1 when the library is loaded (at once when it already is), else 0.
    int32_t Load();
    void Release();

    // Non-zero when the messenger of the monitoring page's row index is
    // installed.
    int32_t IsInstalled(int32_t index);

private:
    platform::SharedLibrary m_library;
};
