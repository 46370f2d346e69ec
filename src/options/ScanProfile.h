#pragma once

// The option group of a scanning or monitoring function, kept in the
// function's own store section under the same keys everywhere: which files
// are scanned, how deep archives are opened, what is done with an infected
// file. The meaning of the bits is in options/ScanBits.h.

#include <cstdint>
#include <string>

struct ScanProfile {
    uint32_t m_dwOptions = 0;     // CEK_ScanOptions (10)
    uint32_t m_dwExtra = 0;       // CEK_ScanExtra (53)
    uint32_t m_nDepth = 0;        // CEK_ScanArchive (11): 0 unlimited, else 1 to 10 levels
    uint32_t m_dwKinds = 0;       // CEK_ScanArchiveKinds (12): 0xFFFFFFFF all kinds
    std::string m_strExtensions;  // CEK_ScanExtensions (13): "exe/dll/doc"
    uint32_t m_dwPolicy = 0;      // CEK_ScanPolicy (16)

    // Reads the six values of the section.
    void LoadProfile(uint32_t section);
    // Reads the section's factory defaults; the store is not written.
    void LoadDefaultProfile(uint32_t section);
    // Writes the six values in the order 10, 53, 11, 12, 13, 16.
    void SaveProfile(uint32_t section) const;
    // Writes the five values every scanning function shares, in the order
    // 10, 11, 12, 13, 16; the extra word is not written.
    void SaveScanKeys(uint32_t section) const;

    bool operator==(const ScanProfile&) const = default;
};

// Section 5 has no page: each save of the system scan writes it beside
// section 4. The word is the default of (5, 10) with bits 0 and 20 and the
// harmful programs bit taken from systemWord (the word just saved in
// section 4) and bits 16 and 17 kept from the stored (5, 10); depth 0, all
// archive kinds, and the policy of section 4. Key 13 is not written.
void WriteExplorerScan(uint32_t systemWord, uint32_t policy);

// The wizard's distribution of its one profile (word, depth, kinds, text and
// policy; the extra word is not used) to every scanning function, each with
// the adjustments that function needs. The order of the writes is fixed.
void ApplyProfileToAllSections(const ScanProfile& profile);

// policy with "process after user verification" for executing files turned
// into "repair after a forced termination": the monitors do not offer the
// first, and nobody is there to answer a scheduled scan.
uint32_t WithoutUserVerification(uint32_t policy);
