#include "session/PowerWatch.h"

namespace {

constexpr int kCheckIntervalMs = 30 * 1000;

}  // namespace

PowerWatch::PowerWatch(std::function<void(int)> deliver, std::string directory)
    : m_deliver(std::move(deliver)), m_directory(std::move(directory)) {
    m_timer.setInterval(kCheckIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { Check(); });
}

// The event tells of a change: a battery that is low already when the
// dialog opens is not told.
void PowerWatch::Start() {
    m_wasLow = platform::AnyBatteryLow(m_directory);
    m_timer.start();
}

void PowerWatch::Stop() { m_timer.stop(); }

void PowerWatch::Check() {
    const bool low = platform::AnyBatteryLow(m_directory);
    if (low && !m_wasLow) m_deliver(kLowBattery);
    m_wasLow = low;
}
