#pragma once

#include <cstdint>
#include <string>

namespace q9ssctrl {

// The registrations of the installation's functions. Settings come from the
// hand-edited "Q9SSCtrl.ini", the registrations live in "Q9SSCtrl.state";
// both are read at every call from the installation directory.
class FunctionControl {
public:
    static constexpr const char* kSettingsFile = "Q9SSCtrl.ini";
    static constexpr const char* kStateFile = "Q9SSCtrl.state";

    FunctionControl();

    bool CanBeRegister(int32_t item) const;
    bool IsRegistered(int32_t item) const;
    bool Register(int32_t item) const;
    bool Unregister(int32_t item, int32_t timeoutMs) const;
    bool SetCfgChanged(int32_t item) const;
    bool HasEnoughPrivilege() const;

private:
    // The code of each function the product has; the others cannot be
    // registered unless the settings say so.
    static bool IsProductItem(int32_t item);

    bool SetRegistered(int32_t item, bool registered) const;
    int32_t StopDelay(int32_t item) const;

    std::string m_directory;
};

}  // namespace q9ssctrl
