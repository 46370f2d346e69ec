#pragma once

// The scan profile of one section as a home of values, so that controls bound
// to that section's profile keys collect a profile instead of writing the
// store. It starts from the stored profile; every other address is the
// store's.

#include <cstdint>
#include <string>

#include "options/ScanProfile.h"
#include "options/StoreValues.h"

class ProfileValues : public ValueHome {
public:
    explicit ProfileValues(uint32_t section) : m_section(section) {}

    // Starts again from the section's stored profile.
    void Reload() { m_profile.LoadProfile(m_section); }
    const ScanProfile& Profile() const { return m_profile; }

    uint32_t Word(StoreAddress address) const override;
    std::string Text(StoreAddress address) const override;
    void Write(StoreAddress address, uint32_t word) override;
    void WriteText(StoreAddress address, const std::string& text) override;

private:
    // Whether address is key of the profile's section.
    bool Holds(StoreAddress address, uint32_t key) const;

    uint32_t m_section;
    ScanProfile m_profile;
};
