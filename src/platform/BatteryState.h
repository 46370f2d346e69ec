#pragma once

// The counterpart of the platform's low-battery power event: the batteries
// the kernel lists under /sys/class/power_supply. A battery is low when it
// discharges and its capacity level is "Low" or "Critical".

#include <string>

namespace platform {

constexpr const char* kPowerSupplyDirectory = "/sys/class/power_supply";

// Whether any battery below directory is low; false where there is none.
bool AnyBatteryLow(const std::string& directory = kPowerSupplyDirectory);

}  // namespace platform
