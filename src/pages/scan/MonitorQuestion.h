#pragma once

// The question asked when the user turns System Monitoring off, on every
// page that has its box: with auto-restart on it says when the monitor
// comes back, otherwise that it will not.

class QWidget;

// restartMinutes: the auto-restart interval, or a negative number when the
// monitor does not restart by itself. True when the user answers Yes.
bool ConfirmMonitorOff(QWidget* owner, int restartMinutes);
