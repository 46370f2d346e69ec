#pragma once

#include <cstdint>

namespace q9imcfg {

// The installed state of the messengers, from the [Installed] section of
// "Q9IMcfg.ini": one "<row>=1|0" per messenger row. Read at every call.
class MessengerInstallation {
public:
    static constexpr const char* kFileName = "Q9IMcfg.ini";

    // The rows the messenger page lists: 0 MSN Instant Messenger (5.0 and
    // above), 1 AOL Instant Messenger, 2 Yahoo! Instant Messenger, 3 Windows
    // Messenger, 4 Daum Instant Messenger.
    static constexpr int32_t kRowCount = 5;

    // False for a row outside 0 .. kRowCount - 1 whatever the file says.
    static bool IsInstalled(int32_t row);
};

}  // namespace q9imcfg
