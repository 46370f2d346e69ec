#include "FunctionControl.h"

#include <unistd.h>

#include <cerrno>

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "common/InstallDirectory.h"
#include "common/ProfileFile.h"

namespace q9ssctrl {
namespace {

constexpr std::array<int32_t, 15> kProductItems = {0,   1,   16,  32,  48,  64,  80, 96,
                                                   112, 128, 144, 160, 176, 192, 208};

void Sleep(int32_t milliseconds) {
    if (milliseconds > 0) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace

FunctionControl::FunctionControl() : m_directory(sibling::InstallDirectory()) {}

bool FunctionControl::IsProductItem(int32_t item) {
    return std::find(kProductItems.begin(), kProductItems.end(), item) != kProductItems.end();
}

bool FunctionControl::CanBeRegister(int32_t item) const {
    const auto setting = sibling::ProfileFile::Load(m_directory + kSettingsFile)
                             .GetInt("Registrable", std::to_string(item));
    const bool can = setting ? *setting > 0 : IsProductItem(item);
    // Why not, for the caller's errno: this system cannot run the function
    // at all (a setting of -1), or its program is not installed.
    if (!can) errno = setting && *setting < 0 ? ENOTSUP : ENOENT;
    return can;
}

bool FunctionControl::IsRegistered(int32_t item) const {
    return sibling::ProfileFile::Load(m_directory + kStateFile)
               .GetInt("Registered", std::to_string(item))
               .value_or(0) != 0;
}

bool FunctionControl::Register(int32_t item) const {
    return CanBeRegister(item) && SetRegistered(item, true);
}

bool FunctionControl::Unregister(int32_t item, int32_t timeoutMs) const {
    const int32_t delay = StopDelay(item);
    const int32_t timeout = std::max(timeoutMs, 0);
    if (delay > timeout) {
        // The function does not stop within the time-out: give up, still registered.
        Sleep(timeout);
        return false;
    }
    Sleep(delay);
    return SetRegistered(item, false);
}

bool FunctionControl::SetCfgChanged(int32_t item) const {
    const std::string key = std::to_string(item);
    return sibling::ProfileFile::Update(m_directory + kStateFile, [&](sibling::ProfileFile& state) {
        const int64_t count = int64_t{state.GetInt("CfgChanged", key).value_or(0)} + 1;
        return state.Set("CfgChanged", key, std::to_string(std::min<int64_t>(count, INT32_MAX)));
    });
}

bool FunctionControl::HasEnoughPrivilege() const {
    const auto setting =
        sibling::ProfileFile::Load(m_directory + kSettingsFile).GetInt("Privilege", "Enough");
    if (setting) return *setting != 0;
    // Who may change the installation may change its registrations.
    return ::access(m_directory.c_str(), W_OK) == 0;
}

bool FunctionControl::SetRegistered(int32_t item, bool registered) const {
    return sibling::ProfileFile::Update(m_directory + kStateFile, [&](sibling::ProfileFile& state) {
        return state.Set("Registered", std::to_string(item), registered ? "1" : "0");
    });
}

int32_t FunctionControl::StopDelay(int32_t item) const {
    const auto delay = sibling::ProfileFile::Load(m_directory + kSettingsFile)
                           .GetInt("StopDelay", std::to_string(item));
    return std::max(delay.value_or(0), 0);
}

}  // namespace q9ssctrl
