#include "platform/Display.h"

#include <cstdlib>
#include <initializer_list>

namespace platform {

bool HasGraphicalDisplay() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(variable);
        if (value && *value) return true;
    }
    return false;
}

}  // namespace platform
