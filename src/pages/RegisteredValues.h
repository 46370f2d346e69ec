#pragma once

// A page whose check box switches a function of the product shows whether
// the function is registered, not what the store's switch word says: the
// two differ when a service changed its registration since the last save.
// RegisteredValues is the store, except that one switch word reads as the
// registrations of the page's functions say. After the commit, the page's
// Apply brings each registration into line with the word it saved.

#include <cstdint>
#include <vector>

#include "options/StoreValues.h"

class CSiblingLibs;

class RegisteredValues : public StoreValues {
public:
    // Asks whether each function of codes is registered, in that order; the
    // word at address then holds the bits of the registered ones.
    RegisteredValues(CSiblingLibs& siblings, StoreAddress address,
                     const std::vector<int32_t>& codes);

    uint32_t Word(StoreAddress address) const override;

private:
    StoreAddress m_address;
    uint32_t m_registered = 0;
};

// Registers the function code when its bit of word is set, and unregisters
// it otherwise.
void RegisterAsSwitched(CSiblingLibs& siblings, int32_t code, uint32_t word);
