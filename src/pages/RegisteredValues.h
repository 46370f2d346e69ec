#pragma once

// A page whose check box switches a function of the product shows whether
// the function is registered, not what the store's switch word says: the
// two differ when a service changed its registration since the last save.
// RegisteredValues is the store, except that one switch word reads as the
// registrations of the page's functions say. After the commit, the page's
// Apply brings each registration into line with the word it saved.

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "options/StoreValues.h"

class CSiblingLibs;

class RegisteredValues : public StoreValues {
public:
    // A function and the switch word that holds its bit.
    struct Function {
        StoreAddress word;
        int32_t code;
    };

    // Asks whether each function is registered, in that order; the
    // functions' bits of their words then read as the answers, and the
    // words' other bits as the store holds them.
    RegisteredValues(CSiblingLibs& siblings, const std::vector<Function>& functions);
    // The same for functions whose bits lie in one word, all of whose bits
    // then read as the answers.
    RegisteredValues(CSiblingLibs& siblings, StoreAddress address,
                     const std::vector<int32_t>& codes);

    uint32_t Word(StoreAddress address) const override;

private:
    // Per word: the functions' bits, and which of them are registered.
    std::map<StoreAddress, std::pair<uint32_t, uint32_t>> m_words;
};

// Registers the function code when its bit of word is set, and unregisters
// it otherwise.
void RegisterAsSwitched(CSiblingLibs& siblings, int32_t code, uint32_t word);
