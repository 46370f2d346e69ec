#include "pages/RegisteredValues.h"

#include "options/SwitchWord.h"
#include "session/SiblingLibs.h"

RegisteredValues::RegisteredValues(CSiblingLibs& siblings, StoreAddress address,
                                   const std::vector<int32_t>& codes)
    : m_address(address) {
    for (const int32_t code : codes) {
        if (siblings.ServiceControl(SC_IsRegistered, code, kServiceOption) != 0)
            m_registered |= SwitchBitOf(code);
    }
}

uint32_t RegisteredValues::Word(StoreAddress address) const {
    return address == m_address ? m_registered : StoreValues::Word(address);
}

void RegisterAsSwitched(CSiblingLibs& siblings, int32_t code, uint32_t word) {
    const bool on = (word & SwitchBitOf(code)) != 0;
    siblings.ServiceControl(on ? SC_Register : SC_Unregister, code, kServiceOption);
}
