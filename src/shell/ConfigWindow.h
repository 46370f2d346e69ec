#pragma once

// The one configuration window (dialog or single-page shell) a user may have
// open at a time, across processes: a shared word holds the token of the
// open window's beacon, or 0.

#include <cstdint>
#include <memory>

class QWidget;
class WindowBeacon;

// The shared word is "/Q9CfgUL_", or the name Q9_CONFIG_WINDOW_WORD gives.

// The token of the window open in some process, or 0.
uint32_t OpenConfigWindow();
// Clears the word when the dialog of this process has closed.
void ClearConfigWindow();
// Asks the process of the open window to bring it to the front. False when
// no window answers: the word was left behind by a process that ended.
bool BringConfigWindowForward(uint32_t token);

// Makes window the open configuration window for as long as the object lives
// (the word is cleared by the entry point, after the modal run).
class ConfigWindowRegistration {
public:
    explicit ConfigWindowRegistration(QWidget* window);
    ~ConfigWindowRegistration();

    ConfigWindowRegistration(const ConfigWindowRegistration&) = delete;
    ConfigWindowRegistration& operator=(const ConfigWindowRegistration&) = delete;

private:
    std::unique_ptr<WindowBeacon> m_beacon;
};
