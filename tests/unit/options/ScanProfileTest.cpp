#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OptionStoreTest.h"
#include "StoreCallLog.h"
#include "options/ArchiveKinds.h"
#include "options/FileTypes.h"
#include "options/RepairPolicy.h"
#include "options/ScanBits.h"
#include "options/ScanProfile.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ScanProfileTest : public OptionStoreTest {
protected:
    static ScanProfile Sample() {
        ScanProfile profile;
        profile.m_dwOptions = 0x40112690u;
        profile.m_dwExtra = 0x33u;
        profile.m_nDepth = 4;
        profile.m_dwKinds = 0x1000005u;
        profile.m_strExtensions = "exe/com";
        profile.m_dwPolicy = 0x2090103u;
        return profile;
    }

    static uint32_t Word(uint32_t section, uint32_t key) { return Q9CfgE_GetDWEx(section, key); }
};

}  // namespace

TEST_F(ScanProfileTest, LoadReadsTheSixValuesOfTheSection) {
    Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanOptions, 0x100u);
    Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanExtra, 0x14700u);
    Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanArchive, 2);
    Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanArchiveKinds, 0xFFFFFFFFu);
    Q9CfgE_SetStrEx(CES_Messenger, CEK_ScanExtensions, "doc/xls");
    Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanPolicy, 0x402u);

    ScanProfile profile;
    profile.LoadProfile(CES_Messenger);

    EXPECT_EQ(profile.m_dwOptions, 0x100u);
    EXPECT_EQ(profile.m_dwExtra, 0x14700u);
    EXPECT_EQ(profile.m_nDepth, 2u);
    EXPECT_EQ(profile.m_dwKinds, 0xFFFFFFFFu);
    EXPECT_EQ(profile.m_strExtensions, "doc/xls");
    EXPECT_EQ(profile.m_dwPolicy, 0x402u);
}

TEST_F(ScanProfileTest, LoadOfAnAbsentTextGivesEmptyText) {
    ScanProfile profile = Sample();
    profile.LoadProfile(CES_SystemScan);
    EXPECT_EQ(profile.m_strExtensions, "");
}

TEST_F(ScanProfileTest, LoadReadsTheCurrentValuesNotTheDefaults) {
    WriteDefaults("[CES_SystemScan]\nCEK_ScanOptions=dword:1\n");
    Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanOptions, 0x200u);
    ScanProfile profile;
    profile.LoadProfile(CES_SystemScan);
    EXPECT_EQ(profile.m_dwOptions, 0x200u);
}

TEST_F(ScanProfileTest, LoadDefaultReadsTheFactoryDefaults) {
    WriteDefaults(
        "[CES_SystemScan]\n"
        "CEK_ScanOptions=dword:00100681\nCEK_ScanArchive=dword:3\n"
        "CEK_ScanArchiveKinds=dword:ffffffff\nCEK_ScanExtensions=\"com/exe\"\n"
        "CEK_ScanPolicy=dword:10103\nCEK_ScanExtra=dword:f\n");
    Sample().SaveProfile(CES_SystemScan);

    ScanProfile profile;
    profile.LoadDefaultProfile(CES_SystemScan);

    EXPECT_EQ(profile.m_dwOptions, 0x100681u);
    EXPECT_EQ(profile.m_dwExtra, 0xFu);
    EXPECT_EQ(profile.m_nDepth, 3u);
    EXPECT_EQ(profile.m_dwKinds, 0xFFFFFFFFu);
    EXPECT_EQ(profile.m_strExtensions, "com/exe");
    EXPECT_EQ(profile.m_dwPolicy, 0x10103u);
}

TEST_F(ScanProfileTest, LoadDefaultNeverWritesTheStore) {
    WriteDefaults("[CES_SystemScan]\nCEK_ScanOptions=dword:1\n");
    Sample().SaveProfile(CES_SystemScan);
    const std::string before = LiveFile();
    const StoreCallLog log;
    ScanProfile profile;
    profile.LoadDefaultProfile(CES_SystemScan);
    EXPECT_THAT(log.Writes(), IsEmpty());
    EXPECT_EQ(LiveFile(), before);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanOptions), Sample().m_dwOptions);
}

TEST_F(ScanProfileTest, SaveWritesTheSixValuesInOrder) {
    const StoreCallLog log;
    Sample().SaveProfile(CES_SystemScan);
    EXPECT_THAT(log.Writes(), ElementsAre("SetDWEx(4,10,0x40112690)", "SetDWEx(4,53,0x33)",
                                          "SetDWEx(4,11,0x4)", "SetDWEx(4,12,0x1000005)",
                                          "SetStrEx(4,13,\"exe/com\")", "SetDWEx(4,16,0x2090103)"));
}

TEST_F(ScanProfileTest, SavedProfileLoadsBackEqual) {
    Sample().SaveProfile(ScheduleSection(3));
    ScanProfile profile;
    profile.LoadProfile(ScheduleSection(3));
    EXPECT_EQ(profile, Sample());
}

TEST_F(ScanProfileTest, SaveScanKeysWritesFiveValuesInOrderWithoutTheExtraWord) {
    Q9CfgE_SetDWEx(CES_ScheduleDefault, CEK_ScanExtra, 0x5u);
    const StoreCallLog log;
    Sample().SaveScanKeys(CES_ScheduleDefault);
    EXPECT_THAT(
        log.Writes(),
        ElementsAre("SetDWEx(0x10ffffff,10,0x40112690)", "SetDWEx(0x10ffffff,11,0x4)",
                    "SetDWEx(0x10ffffff,12,0x1000005)", "SetStrEx(0x10ffffff,13,\"exe/com\")",
                    "SetDWEx(0x10ffffff,16,0x2090103)"));
    EXPECT_EQ(Word(CES_ScheduleDefault, CEK_ScanExtra), 0x5u);
}

TEST_F(ScanProfileTest, DepthAboveTenIsShownUnlimitedAndStoredAsZeroAtTheNextSave) {
    Q9CfgE_SetDWEx(CES_ScreenSaver, CEK_ScanArchive, 11);
    ScanProfile profile;
    profile.LoadProfile(CES_ScreenSaver);
    profile.m_nDepth = DepthComboIndex(profile.m_nDepth);
    EXPECT_EQ(profile.m_nDepth, 0u);
    profile.SaveProfile(CES_ScreenSaver);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanArchive), 0u);
}

TEST_F(ScanProfileTest, WordWithoutAnyFileTypeComesBackFromASaveWithTheDefaultKinds) {
    Q9CfgE_SetDWEx(CES_ScreenSaver, CEK_ScanOptions, kScanCloseView | kScanCompressed);
    ScanProfile profile;
    profile.LoadProfile(CES_ScreenSaver);
    profile.m_dwOptions =
        CollectFileTypes(profile.m_dwOptions, FileTypeRadioOf(profile.m_dwOptions));
    profile.SaveProfile(CES_ScreenSaver);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanOptions),
              kScanCloseView | kScanCompressed | kScanScripts | kScanExecutables | kScanMacros);
}

TEST_F(ScanProfileTest, AllFilesAndCustomizedBothSurviveASaveThroughTheRadio) {
    Q9CfgE_SetDWEx(CES_ScreenSaver, CEK_ScanOptions, kScanAllFiles | kScanCustomized);
    ScanProfile profile;
    profile.LoadProfile(CES_ScreenSaver);
    ASSERT_EQ(FileTypeRadioOf(profile.m_dwOptions), kFileTypesAll);
    profile.m_dwOptions = CollectFileTypes(profile.m_dwOptions, kFileTypesAll);
    profile.SaveProfile(CES_ScreenSaver);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanOptions), kScanAllFiles | kScanCustomized);
}

TEST_F(ScanProfileTest, PolicyWithRepairAndDeleteLoadsAsRepairAndSavesWithBit1Only) {
    Q9CfgE_SetDWEx(CES_ScreenSaver, CEK_ScanPolicy, kPolicyRepair | kPolicyDelete | kPolicyBackup);
    ScanProfile profile;
    profile.LoadProfile(CES_ScreenSaver);
    const RepairCombos combos = RepairCombosOf(profile.m_dwPolicy);
    EXPECT_EQ(combos.repairable, RepairableAction::Repair);
    profile.m_dwPolicy = CollectRepairCombos(profile.m_dwPolicy, combos);
    profile.SaveProfile(CES_ScreenSaver);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanPolicy), kPolicyRepair | kPolicyBackup);
}

TEST_F(ScanProfileTest, PageSaveTakesBit16FromTheStoredWordNotFromItsCopy) {
    Q9CfgE_SetDWEx(CES_Internet, CEK_ScanOptions, kScanCarried16 | kScanAllFiles);
    ScanProfile profile;
    profile.LoadProfile(CES_Internet);
    // Another writer clears the bit between the page's load and its save.
    Q9CfgE_SetDWEx(CES_Internet, CEK_ScanOptions, kScanAllFiles);
    profile.m_dwOptions =
        TakeStoredBits(CES_Internet, CEK_ScanOptions, kScanCarried16, profile.m_dwOptions);
    EXPECT_EQ(profile.m_dwOptions, kScanAllFiles);
    Q9CfgE_SetDWEx(CES_Internet, CEK_ScanOptions, kScanCarried16);
    profile.m_dwOptions =
        TakeStoredBits(CES_Internet, CEK_ScanOptions, kScanCarried16, profile.m_dwOptions);
    EXPECT_EQ(profile.m_dwOptions, kScanAllFiles | kScanCarried16);
}

// Section 5, written beside section 4 by the system scan page.
class ExplorerScanTest : public ScanProfileTest {
protected:
    ExplorerScanTest() {
        // Default word: bits 0, 3, 16, 30.
        WriteDefaults("[CES_ExplorerScan]\nCEK_ScanOptions=dword:40010009\n");
        Q9CfgE_SetStrEx(CES_ExplorerScan, CEK_ScanExtensions, "kept");
    }
};

TEST_F(ExplorerScanTest, WordIsTheDefaultWithTheSystemScanBitsAndTheStoredCarriedBits) {
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanOptions, kScanCarried17 | kScanAllFiles);
    // System word: bit 20 and bit 8 set, bits 0, 16 and 30 clear.
    WriteExplorerScan(kScanAutoRepair | kScanAllFiles, 0x10103u);
    // Bit 3 from the default, bit 20 from the system word, bit 17 from the
    // stored word; bits 0 and 30 cleared by the system word, bit 16 cleared
    // by the stored word; bit 8 of neither.
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions), 0x120008u);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchive), 0u);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanArchiveKinds), 0xFFFFFFFFu);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanPolicy), 0x10103u);
    EXPECT_EQ(ReadStoreText(CES_ExplorerScan, CEK_ScanExtensions), "kept");
}

TEST_F(ExplorerScanTest, SystemScanBitsAndStoredCarriedBitsAreSetWhenSet) {
    Q9CfgE_SetDWEx(CES_ExplorerScan, CEK_ScanOptions, kScanCarried16 | kScanCarried17);
    WriteExplorerScan(kScanCloseView | kScanHarmful | kScanCarried16, 0u);
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions), 0x40030009u);
}

TEST_F(ExplorerScanTest, WritesOnlyKeys10To12And16) {
    // Nothing stored: the carried bits come from the default, as the store
    // answers it for an absent word.
    const StoreCallLog log;
    WriteExplorerScan(0u, 0x2u);
    EXPECT_THAT(log.Writes(), ElementsAre("SetDWEx(5,10,0x10008)", "SetDWEx(5,11,0x0)",
                                          "SetDWEx(5,12,0xffffffff)", "SetDWEx(5,16,0x2)"));
}
