#pragma once

// Delivers the platform's low-battery event to a dialog while it is open:
// the batteries are looked at every half minute, and the event comes once
// each time a battery becomes low.

#include <QObject>
#include <QTimer>
#include <functional>
#include <string>

#include "platform/BatteryState.h"

class PowerWatch : public QObject {
public:
    // The platform's event number of a low battery.
    static constexpr int kLowBattery = 9;

    PowerWatch(std::function<void(int event)> deliver,
               std::string directory = platform::kPowerSupplyDirectory);

    void Start();
    void Stop();
    // One look at the batteries (the timer calls it).
    void Check();

private:
    std::function<void(int)> m_deliver;
    std::string m_directory;
    QTimer m_timer;
    bool m_wasLow = false;
};
