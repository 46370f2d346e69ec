#pragma once

// A Qt application for showing windows: the caller's own when it has one,
// otherwise one made here and kept for the life of the process (a Qt
// application cannot be made twice). False when this process has no display
// to show windows on (no X11 or Wayland display and no QT_QPA_PLATFORM
// chosen), or runs a Qt core application of its own without widgets: then
// nothing can be shown.
bool EnsureGuiApplication();
