#include "options/ScanProfile.h"

#include <Q9CfgE.h>

#include "options/ArchiveKinds.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"

namespace {

// The bits of section 5's word that follow the system scan.
constexpr uint32_t kExplorerFollowsBits = kScanCloseView | kScanAutoRepair;

// The default word of section 5 with the followed bits taken from word.
uint32_t ExplorerWord(uint32_t word) {
    return ReplaceBits(Q9CfgE_GetDefaultDW(CES_ExplorerScan, CEK_ScanOptions), word,
                       kExplorerFollowsBits);
}

void WriteExplorerKeys(uint32_t word, uint32_t policy) {
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanOptions, word);
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanArchive, 0);
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanArchiveKinds, kAllArchiveKinds);
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanPolicy, policy);
}

// The word with bit 16 of the section's stored word, for one write.
uint32_t WithStoredBit16(uint32_t section, uint32_t word) {
    return TakeStoredBits(section, CEK_ScanOptions, kScanCarried16, word);
}

// Writes profile to section with bit 16 carried from the stored word and the
// policy given.
void SaveCarried(ScanProfile profile, uint32_t section, uint32_t policy) {
    profile.m_dwOptions = WithStoredBit16(section, profile.m_dwOptions);
    profile.m_dwPolicy = policy;
    profile.SaveScanKeys(section);
}

// Real-time monitoring keeps no depth and no kinds; its word always has the
// floppy boot sector and the two forced monitor bits.
void SaveSystemMonitor(const ScanProfile& profile) {
    const uint32_t word = WithStoredBit16(CES_SystemMonitor, profile.m_dwOptions);
    Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanOptions, word | kScanFloppyBoot | kScanMonitorForced);
    Q9CfgE_SetStrEx(CES_SystemMonitor, CEK_ScanExtensions, profile.m_strExtensions.c_str());
    Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanPolicy, WithoutUserVerification(profile.m_dwPolicy));
}

// The mail functions: POP3, then the Outlook scan with its own incremental
// bit, then Outlook monitoring with bit 16 set.
void SaveMailFunctions(ScanProfile profile) {
    profile.m_dwPolicy |= kPolicyMailDeletes;
    profile.SaveScanKeys(CES_Pop3);
    ScanProfile outlookScan = profile;
    outlookScan.m_dwOptions |= kScanOutlookIncremental;
    outlookScan.SaveScanKeys(CES_OutlookScan);
    ScanProfile outlookMonitor = profile;
    outlookMonitor.m_dwOptions |= kScanCarried16;
    outlookMonitor.SaveScanKeys(CES_OutlookMonitor);
}

}  // namespace

uint32_t WithoutUserVerification(uint32_t policy) {
    if (!(policy & kPolicyExecVerify)) return policy;
    return (policy & ~kPolicyExecVerify) | kPolicyExecForced;
}

void ScanProfile::LoadProfile(uint32_t section) {
    m_dwOptions = Q9CfgE_GetDWEx(section, CEK_ScanOptions);
    m_dwExtra = Q9CfgE_GetDWEx(section, CEK_ScanExtra);
    m_nDepth = Q9CfgE_GetDWEx(section, CEK_ScanArchive);
    m_dwKinds = Q9CfgE_GetDWEx(section, CEK_ScanArchiveKinds);
    m_strExtensions = ReadStoreText(section, CEK_ScanExtensions);
    m_dwPolicy = Q9CfgE_GetDWEx(section, CEK_ScanPolicy);
}

void ScanProfile::LoadDefaultProfile(uint32_t section) {
    m_dwOptions = Q9CfgE_GetDefaultDW(section, CEK_ScanOptions);
    m_dwExtra = Q9CfgE_GetDefaultDW(section, CEK_ScanExtra);
    m_nDepth = Q9CfgE_GetDefaultDW(section, CEK_ScanArchive);
    m_dwKinds = Q9CfgE_GetDefaultDW(section, CEK_ScanArchiveKinds);
    m_strExtensions = ReadDefaultText(section, CEK_ScanExtensions);
    m_dwPolicy = Q9CfgE_GetDefaultDW(section, CEK_ScanPolicy);
}

void ScanProfile::SaveProfile(uint32_t section) const {
    Q9CfgE_SetDWEx(section, CEK_ScanOptions, m_dwOptions);
    Q9CfgE_SetDWEx(section, CEK_ScanExtra, m_dwExtra);
    Q9CfgE_SetDWEx(section, CEK_ScanArchive, m_nDepth);
    Q9CfgE_SetDWEx(section, CEK_ScanArchiveKinds, m_dwKinds);
    Q9CfgE_SetStrEx(section, CEK_ScanExtensions, m_strExtensions.c_str());
    Q9CfgE_SetDWEx(section, CEK_ScanPolicy, m_dwPolicy);
}

void ScanProfile::SaveScanKeys(uint32_t section) const {
    Q9CfgE_SetDWEx(section, CEK_ScanOptions, m_dwOptions);
    Q9CfgE_SetDWEx(section, CEK_ScanArchive, m_nDepth);
    Q9CfgE_SetDWEx(section, CEK_ScanArchiveKinds, m_dwKinds);
    Q9CfgE_SetStrEx(section, CEK_ScanExtensions, m_strExtensions.c_str());
    Q9CfgE_SetDWEx(section, CEK_ScanPolicy, m_dwPolicy);
}

void WriteExplorerScan(uint32_t systemWord, uint32_t policy) {
    uint32_t word = ReplaceBits(ExplorerWord(systemWord), systemWord, kScanHarmful);
    word = TakeStoredBits(CES_ExplorerScan, CEK_ScanOptions, kScanCarried16 | kScanCarried17, word);
    WriteExplorerKeys(word, policy);
}

void ApplyProfileToAllSections(const ScanProfile& profile) {
    ScanProfile shared = profile;
    shared.m_dwOptions &= ~kScanCarried16;
    shared.SaveScanKeys(CES_SystemScan);
    WriteExplorerKeys(ExplorerWord(shared.m_dwOptions), shared.m_dwPolicy);
    shared.SaveScanKeys(CES_ScreenSaver);
    shared.SaveScanKeys(CES_ScheduleDefault);

    SaveSystemMonitor(shared);
    const uint32_t unattended = WithoutUserVerification(shared.m_dwPolicy);
    SaveCarried(shared, CES_Messenger, unattended);
    SaveCarried(shared, CES_Startup, unattended);

    // What follows has no incremental scan and no executing files choice.
    shared.m_dwOptions &= ~kScanIncremental;
    shared.m_dwPolicy &= ~kPolicyExecutingField;
    SaveCarried(shared, CES_Internet, shared.m_dwPolicy);
    SaveMailFunctions(shared);
}
