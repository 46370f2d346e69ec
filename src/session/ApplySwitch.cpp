#include "session/ApplySwitch.h"

#include "options/SwitchWord.h"
#include "session/SiblingLibs.h"

void ApplySwitch(uint32_t word, uint32_t mask, uint32_t bit, int32_t code, int32_t option) {
    if ((mask & bit) == 0) return;
    if ((word & bit) == 0) {
        g_Siblings.ServiceControl(SC_Unregister, code, option);
        return;
    }
    if (g_Siblings.ServiceControl(SC_CanBeRegister, code, option) != 0) {
        g_Siblings.ServiceControl(SC_Register, code, option);
    } else {
        SetSwitchBit(bit, false);
    }
}
