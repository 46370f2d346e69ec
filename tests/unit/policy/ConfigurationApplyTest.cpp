// Bringing the product into line with the store, with and without a policy
// to merge first: registrations, the exclusion zone, the scheduler's job
// keys, the notice to the services, and the diagnostic log's lines.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "policy/ConfigurationApply.h"
#include "policy/PolicyMerge.h"
#include "schedule/ScheduleEntry.h"
#include "session/DiagLog.h"
#include "session/ExclusionZone.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "session/SiblingLibs.h"
#include "PolicyTest.h"
#include "support/TemporaryRegistry.h"
#include "targets/ExclusionList.h"
#include "targets/ExclusionStore.h"

namespace {

constexpr char kOtherOwner[] = "OtherProduct";
constexpr uint32_t kFirstEntry = CES_Schedule;

using ConfigurationApplyTest = PolicyTest;

const std::string kUnregisterAll = "5000 2";

}  // namespace

TEST_F(ConfigurationApplyTest, NullPathsMergeNothingAndRunEveryOtherStep) {
    SetWord(CES_Switch, CEK_Switch_General, 0x100000);
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    AddStoreEntry(0, 9);
    AddStoreExclusion(0, "/srv/cache");
    ApplyConfiguration(nullptr, nullptr, 1);

    EXPECT_FALSE(Install().Exists(kPolicyBaseFile));
    EXPECT_EQ(Calls(), (std::vector<std::string>{
                           JournalLine("Q9SSCtrl_CanBeRegister", 112, "", 1),
                           JournalLine("Q9SSCtrl_Register", 112, "", 1),
                           JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1)}));
    EXPECT_EQ(JobKeys(), std::vector<std::string>{"Q9SScan0"});
    ASSERT_TRUE(ReadZone().has_value());
    ASSERT_EQ(ReadZone()->size(), 1u);
    EXPECT_EQ(ReadZone()->front().path, "/srv/cache");
}

TEST_F(ConfigurationApplyTest, EmptyPathsAreNullPaths) {
    ApplyConfiguration("", "", 1);
    EXPECT_FALSE(Install().Exists(kPolicyBaseFile));
    EXPECT_EQ(Calls(), std::vector<std::string>{JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1)});
}

TEST_F(ConfigurationApplyTest, MasksOfZeroRegisterAndStopNothingYetZoneAndScheduleAreRebuilt) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0xFF);
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xF000);
    SetWord(CES_Switch, CEK_Switch_General, 0x300000);
    AddStoreEntry(0, 9);
    AddJobKey("Q9SScan5");
    AddStoreExclusion(0, "/srv/cache");
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/old"}});
    ApplyConfiguration(nullptr, nullptr, 1);

    EXPECT_EQ(Calls(), std::vector<std::string>{JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1)});
    EXPECT_EQ(JobKeys(), std::vector<std::string>{"Q9SScan0"});
    ASSERT_EQ(ReadZone()->size(), 1u);
    EXPECT_EQ(ReadZone()->front().path, "/srv/cache");
}

TEST_F(ConfigurationApplyTest, EveryMaskedFunctionIsRegisteredOrStoppedInTheFixedOrder) {
    SetSwitchWords(0x10 | 0x1 | 0x8 | 0x80, 0xFF, 0x1000, 0xF000, 0x200000, 0x300000);
    ApplyConfiguration(nullptr, nullptr, 1);

    const auto on = [](int32_t item) {
        return std::vector<std::string>{JournalLine("Q9SSCtrl_CanBeRegister", item, "", 1),
                                        JournalLine("Q9SSCtrl_Register", item, "", 1)};
    };
    const auto off = [](int32_t item) {
        return std::vector<std::string>{JournalLine("Q9SSCtrl_Unregister", item, kUnregisterAll, 1)};
    };
    std::vector<std::string> expected;
    for (const auto& part : {on(0), off(1), on(32), off(48), off(96), on(16), off(144), on(160),
                             on(64), off(176), off(192), off(112), on(128)}) {
        expected.insert(expected.end(), part.begin(), part.end());
    }
    expected.push_back(JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
    EXPECT_EQ(Calls(), expected);
}

TEST_F(ConfigurationApplyTest, TheMonitorFlagChoosesTheSystemMonitorsOption) {
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x1 | 0x2);
    ApplyConfiguration(nullptr, nullptr, 0);
    const std::vector<std::string> calls = Calls();
    ASSERT_EQ(calls.size(), 3u);
    EXPECT_EQ(calls[0], JournalLine("Q9SSCtrl_Unregister", 32, "5000 0", 1));
    EXPECT_EQ(calls[1], JournalLine("Q9SSCtrl_Unregister", 48, kUnregisterAll, 1));
}

TEST_F(ConfigurationApplyTest, AFunctionThatCannotBeRegisteredComesOutWithItsBitCleared) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n144=0\n");
    SetWord(CES_Switch, CEK_Switch_Scan, 0x40 | 0x10);
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x40 | 0x10);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0x10u);
    EXPECT_EQ(Calls()[2], JournalLine("Q9SSCtrl_CanBeRegister", 144, "", 0));
}

TEST_F(ConfigurationApplyTest, APolicyOverwritesTheBaseValuesAndDeletesNothing) {
    const std::string base = Install().PathOf("base.dat");
    Install().Write("base.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000001\n"
                                              "[CES_SystemScan]\nCEK_ScanArchive=dword:00000003\n"
                                              "CEK_ScanExtensions=\"exe\"\n"));
    Install().Write("policy.dat",
                    StoreFileText("[CES_SystemScan]\nCEK_ScanArchive=dword:00000007\n"
                                  "CEK_ScanExtensions=\"com/exe\"\n"
                                  "[CES_Exclude]\nCEK_ExcludeEnable=dword:00000001\n"
                                  "record=0,1,\"/srv/policy\"\n"));
    ApplyConfiguration(base.c_str(), Install().PathOf("policy.dat").c_str(), 1);

    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, base.c_str(), Q9CFGE_MODE_PLAIN);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 1u);
    EXPECT_EQ(Word(CES_SystemScan, CEK_ScanArchive), 7u);
    EXPECT_STREQ(Q9CfgE_GetStrEx(CES_SystemScan, CEK_ScanExtensions), "com/exe");
    EXPECT_EQ(Word(CES_Exclude, CEK_ExcludeEnable), 1u);
    EXPECT_EQ(ParseObjectList(Q9CfgE_GetObjectList(CES_Exclude, 0)),
              (std::vector<ObjectRecord>{{0, "/srv/policy"}}));
}

TEST_F(ConfigurationApplyTest, WithoutABaseThePolicyMergesIntoTheInstallationsBaseFile) {
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    ApplyConfiguration(nullptr, Install().PathOf("policy.dat").c_str(), 1);
    ASSERT_TRUE(Install().Exists(kPolicyBaseFile));
    EXPECT_NE(Install().Read(kPolicyBaseFile).find("CEK_MacroOptions=dword:00000005"),
              std::string::npos);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0u) << "the live store is not the base";
}

TEST_F(ConfigurationApplyTest, SectionZeroOfAPolicyIsNotMerged) {
    Install().Write("policy.dat", StoreFileText("[CES_General]\nCEK_ScanLogSize=dword:00000063\n"
                                                "[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    const std::string base = Install().PathOf("base.dat");
    ApplyConfiguration(base.c_str(), Install().PathOf("policy.dat").c_str(), 1);
    const std::string merged = Install().Read("base.dat");
    EXPECT_EQ(merged.find("CEK_ScanLogSize"), std::string::npos);
    EXPECT_NE(merged.find("CEK_MacroOptions=dword:00000005"), std::string::npos);
}

TEST_F(ConfigurationApplyTest, APolicyThatCannotBeOpenedEndsOnlyTheMerge) {
    const std::string baseText = StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000001\n");
    Install().Write("base.dat", baseText);
    std::filesystem::create_directory(Install().PathOf("policy.dat"));
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    AddStoreEntry(0, 9);
    ApplyConfiguration(Install().PathOf("base.dat").c_str(), Install().PathOf("policy.dat").c_str(),
                       1);
    EXPECT_EQ(Install().Read("base.dat"), baseText);
    EXPECT_EQ(Calls().front(), JournalLine("Q9SSCtrl_Unregister", 112, kUnregisterAll, 1));
    EXPECT_EQ(JobKeys(), std::vector<std::string>{"Q9SScan0"});
}

TEST_F(ConfigurationApplyTest, ABaseThatCannotBeParsedIsKeptAsItIs) {
    const std::string garbage("\x01\x02 not a store \xff\n[", 19);
    Install().Write("base.dat", garbage);
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    ApplyConfiguration(Install().PathOf("base.dat").c_str(), Install().PathOf("policy.dat").c_str(),
                       1);
    EXPECT_EQ(Install().Read("base.dat"), garbage);
    EXPECT_EQ(Calls().back(), JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
}

TEST_F(ConfigurationApplyTest, ABasePathLongerThanTheLimitIsNotMerged) {
    const std::string folder = Install().PathOf(std::string(200, 'd'));
    std::filesystem::create_directory(folder);
    const std::string base = folder + "/" + std::string(kMaxPolicyPath - folder.size(), 'b');
    ASSERT_EQ(base.size(), kMaxPolicyPath + 1);
    Install().Write("policy.dat", StoreFileText("[CES_Macro]\nCEK_MacroOptions=dword:00000005\n"));
    ApplyConfiguration(base.c_str(), Install().PathOf("policy.dat").c_str(), 1);
    EXPECT_FALSE(std::filesystem::exists(base));
    EXPECT_EQ(PolicyTargetPath(base.c_str(), g_szModuleDir), "");
    EXPECT_EQ(PolicyTargetPath(base.substr(1).c_str(), g_szModuleDir), base.substr(1));
    EXPECT_EQ(Calls().back(), JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
}

TEST_F(ConfigurationApplyTest, OtherSubkeysSurviveAndEveryOldJobKeyGoes) {
    AddJobKey("Other1");
    AddJobKey("Q9SScan7");
    AddJobKey("q9sscan2");
    AddStoreEntry(0, 9);
    AddStoreEntry(1, 21);
    ApplyConfiguration(nullptr, nullptr, 1);
    std::vector<std::string> keys = JobKeys();
    std::sort(keys.begin(), keys.end());
    EXPECT_EQ(keys, (std::vector<std::string>{"Other1", "Q9SScan0", "Q9SScan1"}));
    EXPECT_EQ(JobWord("Q9SScan1", "Hour"), 21u);
    EXPECT_EQ(JobWord("Q9SScan1", "Style"), 2u);
    EXPECT_EQ(JobWord("Q9SScan1", "DayOfWeek"), 3u);
    EXPECT_EQ(JobWord("Other1", "On"), 1u);
}

TEST_F(ConfigurationApplyTest, AnEntryThatAsksBeforeRepairingRepairsAfterATerminationInstead) {
    AddStoreEntry(0, 9);
    SetWord(kFirstEntry, CEK_ScanPolicy, 0x1000000 | 0x2);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(Word(kFirstEntry, CEK_ScanPolicy), 0x2000000u | 0x2);
}

TEST_F(ConfigurationApplyTest, OnAHostOutsideTheNtFamilyTheScanOptionsStay) {
    AddStoreEntry(0, 9);
    SetWord(kFirstEntry, CEK_ScanOptions, 0x8);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(Word(kFirstEntry, CEK_ScanOptions), 0x8u);
}

TEST_F(ConfigurationApplyTest, OnAnNtHostEveryEntryGainsTheUnattendedScanOptions) {
    g_bWinNT = 1;
    AddStoreEntry(0, 9);
    AddStoreEntry(1, 10);
    SetWord(kFirstEntry, CEK_ScanOptions, 0x8);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(Word(kFirstEntry, CEK_ScanOptions), 0x8u | 0x101001);
    EXPECT_EQ(Word(kFirstEntry | 1, CEK_ScanOptions), 0x101001u);
}

TEST_F(ConfigurationApplyTest, TheZoneKeepsTheFixedRecordsAndAnotherProductsAndTakesTheStoreList) {
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/old"},
                              {1, kZoneFolder | kZoneFixed, "", "/opt/product"},
                              {1, kZoneFolder | kZoneUser | kZoneDerived, "", "/net/old"}});
    PutInZone(kOtherOwner, {{1, kZoneFolder, "", "/opt/other"}});
    SetWord(CES_Exclude, CEK_ExcludeEnable, 0);
    AddStoreExclusion(0, "/srv/cache");
    AddStoreExclusion(1, "/srv/big.iso");
    AddStoreExclusion(2, "/srv/unknown");
    ApplyConfiguration(nullptr, nullptr, 1);

    const std::vector<ZoneRecord> zone = *ReadZone();
    ASSERT_EQ(zone.size(), 5u);
    EXPECT_EQ(zone[0].path, "/opt/product");
    EXPECT_EQ(zone[0].flags, kZoneFolder | kZoneFixed);
    EXPECT_EQ(zone[1], (ZoneRecord{0, 0x102, kZoneOwnerTag, "/srv/cache"}));
    EXPECT_EQ(zone[2], (ZoneRecord{0, 0x101, kZoneOwnerTag, "/srv/big.iso"}));
    EXPECT_EQ(zone[3], (ZoneRecord{0, 0x100, kZoneOwnerTag, "/srv/unknown"}));
    EXPECT_EQ(zone[4].owner, kOtherOwner);
}

TEST_F(ConfigurationApplyTest, WithoutTheZoneLibraryTheOtherStepsStillRun) {
    RemoveLibrary("OrvDMZ");
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    AddStoreEntry(0, 9);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(Calls().front(), JournalLine("Q9SSCtrl_Unregister", 112, kUnregisterAll, 1));
    EXPECT_EQ(JobKeys(), std::vector<std::string>{"Q9SScan0"});
}

TEST_F(ConfigurationApplyTest, RegistryErrorsAreIgnored) {
    m_registry.WriteHive("HKLM.reg", "this is no hive\n");
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    AddStoreEntry(0, 9);
    ApplyConfiguration(nullptr, nullptr, 1);
    EXPECT_EQ(TemporaryRegistry::ReadFile(m_registry.PathOf("HKLM.reg")), "this is no hive\n");
    EXPECT_EQ(Calls().front(), JournalLine("Q9SSCtrl_Unregister", 112, kUnregisterAll, 1));
    EXPECT_EQ(Calls().back(), JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
}

TEST_F(ConfigurationApplyTest, TheDiagnosticLogHoldsEveryStepInItsOrder) {
    const std::string logPath = m_registry.Base() + "/q9cfgul.log";
    const std::string savedPath = g_Log.path();
    ASSERT_EQ(RegWriteDword(platform::LocalMachine(), CDiagLog::kSettingKey, CDiagLog::kSettingValue,
                            1),
              0);
    g_Log.Open(logPath);
    SetSwitchWords(17, 255, 4096, 61440, 1048576, 3145728);
    ApplyConfiguration(nullptr, nullptr, 1);
    RegDeleteTree(platform::LocalMachine(), "Software\\Orvtek", "Q9CfgUL");
    g_Log.Open(savedPath);

    EXPECT_EQ(LinesOf(TemporaryRegistry::ReadFile(logPath)),
              (std::vector<std::string>{
                  "CES_Switch, CEK_Switch_Scan, 17", "CES_Switch, CEK_Switch_ScanMask, 255",
                  "After Schedule Scan", "After DMZ", "SSCT_Q9SHELLEX", "SSCT_Q9BAR",
                  "SSCT_SYSTEM_MONITOR", "SSCT_HTTP_PROXY", "SSCT_OFFICE_GUARD",
                  "SSCT_SCRSAVER_SCAN", "SSCT_MESSENGER", "SSCT_START_PROCESS",
                  "CES_Switch, CEK_Switch_ScanMail, 4096",
                  "CES_Switch, CEK_Switch_ScanMailMask, 61440", "SSCT_POP3",
                  "SSCT_MANUAL_OUTLOOK", "SSCT_REALTIME_OUTLOOK",
                  "CES_Switch, CEK_Switch_General, 1048576",
                  "CES_Switch, CEK_Switch_GeneralMask, 3145728", "SSCT_TRAY",
                  "SSCT_MONSYS_AUTO"}));
    EXPECT_EQ(g_Log.mode(), CDiagLog::kOff);
}
