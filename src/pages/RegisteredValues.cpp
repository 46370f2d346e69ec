#include "pages/RegisteredValues.h"

#include "options/StoreAccess.h"
#include "options/SwitchWord.h"
#include "session/SiblingLibs.h"

RegisteredValues::RegisteredValues(CSiblingLibs& siblings, const std::vector<Function>& functions) {
    for (const Function& function : functions) {
        auto& [bits, registered] = m_words[function.word];
        bits |= SwitchBitOf(function.code);
        if (siblings.ServiceControl(SC_IsRegistered, function.code, kServiceOption) != 0)
            registered |= SwitchBitOf(function.code);
    }
}

RegisteredValues::RegisteredValues(CSiblingLibs& siblings, StoreAddress address,
                                   const std::vector<int32_t>& codes) {
    // The word is the answers alone: every bit counts as a function's.
    m_words[address].first = kWholeWord;
    for (const int32_t code : codes) {
        if (siblings.ServiceControl(SC_IsRegistered, code, kServiceOption) != 0)
            m_words[address].second |= SwitchBitOf(code);
    }
}

uint32_t RegisteredValues::Word(StoreAddress address) const {
    const auto it = m_words.find(address);
    if (it == m_words.end()) return StoreValues::Word(address);
    const auto& [bits, registered] = it->second;
    return ReplaceBits(StoreValues::Word(address), registered, bits);
}

void RegisterAsSwitched(CSiblingLibs& siblings, int32_t code, uint32_t word) {
    const bool on = (word & SwitchBitOf(code)) != 0;
    siblings.ServiceControl(on ? SC_Register : SC_Unregister, code, kServiceOption);
}
