#include "platform/BatteryState.h"

#include <filesystem>
#include <fstream>

namespace platform {

namespace {

// The first line of a file of the power supply's folder; empty when absent.
std::string Attribute(const std::filesystem::path& supply, const char* name) {
    std::ifstream file(supply / name);
    std::string value;
    std::getline(file, value);
    return value;
}

bool IsLowBattery(const std::filesystem::path& supply) {
    if (Attribute(supply, "type") != "Battery") return false;
    if (Attribute(supply, "status") != "Discharging") return false;
    const std::string level = Attribute(supply, "capacity_level");
    return level == "Low" || level == "Critical";
}

}  // namespace

bool AnyBatteryLow(const std::string& directory) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(directory, error)) {
        if (IsLowBattery(entry.path())) return true;
    }
    return false;
}

}  // namespace platform
