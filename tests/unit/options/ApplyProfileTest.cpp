// The wizard's distribution of one profile to every scanning function, read
// back value by value through the store.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "OptionStoreTest.h"
#include "StoreCallLog.h"
#include "options/ScanProfile.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"

namespace {

// Word: bits 4, 6, 7, 9, 10, 13, 16, 20, 30.
constexpr uint32_t kWord = 0x401126D0u;
// Policy: bits 0, 1, 8, 16, 19, 24 (process after user verification), 27.
constexpr uint32_t kPolicy = 0x9090103u;
constexpr uint32_t kDepth = 3;
constexpr uint32_t kKinds = 0x1000001u;
constexpr const char* kText = "exe/com";

class ApplyProfileTest : public OptionStoreTest {
protected:
    ApplyProfileTest() {
        // Default word of section 5: bits 0, 3, 16, 17.
        WriteDefaults("[CES_ExplorerScan]\nCEK_ScanOptions=dword:00030009\n");
    }

    static ScanProfile Wizard(uint32_t word, uint32_t policy) {
        ScanProfile profile;
        profile.m_dwOptions = word;
        profile.m_dwExtra = 0x77u;
        profile.m_nDepth = kDepth;
        profile.m_dwKinds = kKinds;
        profile.m_strExtensions = kText;
        profile.m_dwPolicy = policy;
        return profile;
    }

    // Stored words with bit 16 where the test wants it, and values the
    // distribution must leave alone.
    static void StoreBefore() {
        for (const uint32_t section : {4u, 6u, 7u, 8u, 11u, 16u}) {
            Q9CfgE_SetDWEx(section, CEK_ScanOptions, 0x10000u);
        }
        Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanOptions, 0x1u);
        Q9CfgE_SetDWEx(CES_Internet, CEK_ScanOptions, 0x8010000u);
        Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanArchive, 7);
        Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanArchiveKinds, 5);
        Q9CfgE_SetStrEx(CES_ExplorerScan, CEK_ScanExtensions, "kept");
        Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanExtra, 0x30u);
        Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanExtra, 0x41u);
        Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanExtra, 0x100u);
        Q9CfgE_SetDWEx(CES_Startup, CEK_ScanExtra, 0x800u);
    }

    static uint32_t Word(uint32_t section, uint32_t key) { return Q9CfgE_GetDWEx(section, key); }

    // The five shared values of a section.
    static void ExpectShared(uint32_t section, uint32_t word, uint32_t policy) {
        SCOPED_TRACE("section " + std::to_string(section));
        EXPECT_EQ(Word(section, CEK_ScanOptions), word);
        EXPECT_EQ(Word(section, CEK_ScanArchive), kDepth);
        EXPECT_EQ(Word(section, CEK_ScanArchiveKinds), kKinds);
        EXPECT_EQ(ReadStoreText(section, CEK_ScanExtensions), kText);
        EXPECT_EQ(Word(section, CEK_ScanPolicy), policy);
    }
};

std::string Hex(uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", value);
    return text;
}

// The log lines of writing the five shared values to section (as the log
// names it).
std::vector<std::string> FiveWrites(const std::string& section, uint32_t word, uint32_t policy) {
    return {"SetDWEx(" + section + ",10," + Hex(word) + ")", "SetDWEx(" + section + ",11,0x3)",
            "SetDWEx(" + section + ",12,0x1000001)", "SetStrEx(" + section + ",13,\"exe/com\")",
            "SetDWEx(" + section + ",16," + Hex(policy) + ")"};
}

}  // namespace

TEST_F(ApplyProfileTest, SystemScanGetsTheProfileWithoutBit16AndKeepsItsExtraWord) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    ExpectShared(CES_SystemScan, 0x401026D0u, kPolicy);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanExtra), 0x30u);
}

TEST_F(ApplyProfileTest, ExplorerScanGetsTheDefaultWordWithBits0And20FromTheProfile) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    // Default 0x30009: bit 0 cleared and bit 20 set from the profile.
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions), 0x130008u);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchive), 0u);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchiveKinds), 0xFFFFFFFFu);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanPolicy), kPolicy);
    EXPECT_EQ(ReadStoreText(CES_ExplorerScan, CEK_ScanExtensions), "kept");
}

TEST_F(ApplyProfileTest, ExplorerScanTakesBit0WhenTheProfileHasIt) {
    ApplyProfileToAllSections(Wizard(0x100001u, 0u));
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions), 0x130009u);
}

TEST_F(ApplyProfileTest, ScreenSaverAndScheduleTemplateGetTheProfileUnchanged) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    ExpectShared(CES_ScreenSaver, 0x401026D0u, kPolicy);
    ExpectShared(CES_ScheduleDefault, 0x401026D0u, kPolicy);
}

TEST_F(ApplyProfileTest,
       SystemMonitorCarriesBit16ForcesItsBitsAndTurnsVerificationIntoTermination) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    // Bit 16 from the stored word; bits 22, 24, 25 forced.
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions), 0x435126D0u);
    EXPECT_EQ(ReadStoreText(CES_SystemMonitor, CEK_ScanExtensions), kText);
    // Bit 24 becomes bit 25.
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanPolicy), 0xA090103u);
    // Depth, kinds and the extra word are not written.
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanArchive), 7u);
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanArchiveKinds), 5u);
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanExtra), 0x41u);
}

TEST_F(ApplyProfileTest, SystemMonitorWithoutStoredBit16DoesNotGetIt) {
    Q9CfgE_SetDWEx(CES_SystemMonitor, CEK_ScanOptions, 0x1u);
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions), 0x435026D0u);
}

TEST_F(ApplyProfileTest, MessengerAndStartupCarryBit16AndTurnVerificationIntoTermination) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    ExpectShared(CES_Messenger, 0x401026D0u, 0xA090103u);
    ExpectShared(CES_Startup, 0x401126D0u, 0xA090103u);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanExtra), 0x100u);
    EXPECT_EQ(Word(CES_Startup, CEK_ScanExtra), 0x800u);
}

TEST_F(ApplyProfileTest, OtherExecutingChoicesReachTheMonitorsUnchanged) {
    // Restart after the repair (bit 26), no verification.
    ApplyProfileToAllSections(Wizard(0x100u, 0x4000002u));
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanPolicy), 0x4000002u);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanPolicy), 0x4000002u);
    EXPECT_EQ(Word(CES_Startup, CEK_ScanPolicy), 0x4000002u);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanPolicy), 0x2u);
}

TEST_F(ApplyProfileTest, InternetLosesIncrementalScanAndBits24To27AndCarriesBit16Only) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    // Bit 6 cleared; bit 16 from the stored word, but not its bit 27.
    ExpectShared(CES_Internet, 0x40112690u, 0x90103u);
}

TEST_F(ApplyProfileTest, Pop3AlwaysDeletesUnrepairableAndCompressedFiles) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    // No bit 16 although the stored word has it.
    ExpectShared(CES_Pop3, 0x40102690u, 0xD0503u);
}

TEST_F(ApplyProfileTest, OutlookScanGetsItsIncrementalBit) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    ExpectShared(CES_OutlookScan, 0x40106690u, 0xD0503u);
}

TEST_F(ApplyProfileTest, OutlookMonitorGetsBit16Set) {
    StoreBefore();
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    ExpectShared(CES_OutlookMonitor, 0x40112690u, 0xD0503u);
}

TEST_F(ApplyProfileTest, WritesComeInTheirFixedOrder) {
    StoreBefore();
    const StoreCallLog log;
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));

    std::vector<std::string> expected;
    const auto add = [&expected](const std::vector<std::string>& writes) {
        expected.insert(expected.end(), writes.begin(), writes.end());
    };
    add(FiveWrites("4", 0x401026D0u, kPolicy));
    add({"SetDWEx(5,10,0x130008)", "SetDWEx(5,11,0x0)", "SetDWEx(5,12,0xffffffff)",
         "SetDWEx(5,16," + Hex(kPolicy) + ")"});
    add(FiveWrites("6", 0x401026D0u, kPolicy));
    add(FiveWrites("0x10ffffff", 0x401026D0u, kPolicy));
    add({"SetDWEx(7,10,0x435126d0)", "SetStrEx(7,13,\"exe/com\")", "SetDWEx(7,16,0xa090103)"});
    add(FiveWrites("15", 0x401026D0u, 0xA090103u));
    add(FiveWrites("16", 0x401126D0u, 0xA090103u));
    add(FiveWrites("9", 0x40112690u, 0x90103u));
    add(FiveWrites("8", 0x40102690u, 0xD0503u));
    add(FiveWrites("11", 0x40106690u, 0xD0503u));
    add(FiveWrites("12", 0x40112690u, 0xD0503u));
    EXPECT_EQ(log.Writes(), expected);
}

TEST_F(ApplyProfileTest, InAnEditSessionNothingReachesTheFileBeforeTheCommit) {
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    ApplyProfileToAllSections(Wizard(kWord, kPolicy));
    EXPECT_EQ(LiveFile().find("CES_OutlookMonitor"), std::string::npos);
    Q9CfgE_UnlockEx();
    Q9CfgE_FlushEx(kAllSections, 1);
    ExpectShared(CES_OutlookMonitor, 0x40112690u, 0xD0503u);
    ExpectShared(CES_SystemScan, 0x401026D0u, kPolicy);
}
