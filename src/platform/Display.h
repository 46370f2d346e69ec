#pragma once

namespace platform {

// Whether this process can show windows: an X11 or Wayland display is named,
// or a Qt platform (such as "offscreen") was chosen explicitly. Without one,
// making a Qt widget application would end the process.
bool HasGraphicalDisplay();

}  // namespace platform
