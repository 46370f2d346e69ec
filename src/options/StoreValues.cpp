#include "options/StoreValues.h"

#include <Q9CfgE.h>

#include "options/StoreAccess.h"

uint32_t StoreValues::Word(StoreAddress address) const {
    return Q9CfgE_GetDWEx(address.section, address.key);
}

std::string StoreValues::Text(StoreAddress address) const {
    return ReadStoreText(address.section, address.key);
}

uint32_t DefaultValues::Word(StoreAddress address) const {
    return Q9CfgE_GetDefaultDW(address.section, address.key);
}

std::string DefaultValues::Text(StoreAddress address) const {
    return ReadDefaultText(address.section, address.key);
}

void ValueHome::Write(StoreAddress address, uint32_t word) { WriteWord(address, word); }

void ValueHome::WriteText(StoreAddress address, const std::string& text) {
    ::WriteText(address, text);
}

void WriteWord(StoreAddress address, uint32_t word) {
    Q9CfgE_SetDWEx(address.section, address.key, word);
}

void WriteText(StoreAddress address, const std::string& text) {
    Q9CfgE_SetStrEx(address.section, address.key, text.c_str());
}

void WriteEncText(StoreAddress address, const std::string& text) {
    Q9CfgE_SetEncStrEx(address.section, address.key, text.c_str());
}
