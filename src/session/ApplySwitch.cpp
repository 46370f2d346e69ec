#include "session/ApplySwitch.h"

#include "options/SwitchWord.h"
#include "session/SiblingLibs.h"

SwitchStep SwitchStepOf(uint32_t word, uint32_t mask, uint32_t bit, int32_t code) {
    if ((mask & bit) == 0) return SwitchStep::kNone;
    if ((word & bit) == 0) return SwitchStep::kUnregister;
    return g_Siblings.ServiceControl(SC_CanBeRegister, code, kServiceOption) != 0
               ? SwitchStep::kRegister
               : SwitchStep::kClearBit;
}

void ApplySwitch(uint32_t word, uint32_t mask, uint32_t bit, int32_t code, int32_t option) {
    switch (SwitchStepOf(word, mask, bit, code)) {
        case SwitchStep::kNone: return;
        case SwitchStep::kUnregister: g_Siblings.ServiceControl(SC_Unregister, code, option); return;
        case SwitchStep::kRegister: g_Siblings.ServiceControl(SC_Register, code, option); return;
        case SwitchStep::kClearBit: SetSwitchBit(bit, false); return;
    }
}
