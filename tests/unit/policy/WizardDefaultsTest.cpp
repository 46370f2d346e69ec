// The silent wizard: the switch words a new installation starts with, by
// edition, and the functions it registers, asks about or stops, in order.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "PolicyTest.h"
#include "options/StoreKeys.h"
#include "policy/WizardDefaults.h"
#include "q9cfgul.h"
#include "session/StoreCommit.h"

namespace wizard_defaults_test {
namespace {

constexpr uint32_t kEveryBit = 0xFFFFFFFF;
constexpr uint32_t kMonitorRunsBit = 0x10000;
const std::string kUnregisterAll = "5000 2";

class WizardDefaultsTest : public PolicyTest {
protected:
    void SetUnrunnable(std::initializer_list<int32_t> items) const {
        std::string text = "[Registrable]\n";
        for (const int32_t item : items) text += std::to_string(item) + "=0\n";
        Install().Write("Q9SSCtrl.ini", text);
    }

    static std::string Asked(int32_t item, int32_t answer = 1) {
        return JournalLine("Q9SSCtrl_CanBeRegister", item, "", answer);
    }
    static std::string Registered(int32_t item) {
        return JournalLine("Q9SSCtrl_Register", item, "", 1);
    }
    static std::string Stopped(int32_t item) {
        return JournalLine("Q9SSCtrl_Unregister", item, kUnregisterAll, 1);
    }
    static std::string Told() { return JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1); }

    // The calls every edition ends with: system monitoring when it can run,
    // the tray and automatic monitoring always, then the notice.
    static std::vector<std::string> Ending() {
        return {Asked(32), Registered(32), Registered(112), Registered(128), Told()};
    }

    static std::vector<std::string> Joined(std::vector<std::string> first,
                                           const std::vector<std::string>& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    }

    static void MarkMonitorScans() {
        for (const uint32_t section : {CES_Internet, CES_Messenger, CES_Startup}) {
            SetWord(section, CEK_ScanOptions, kMonitorRunsBit | 0x5);
        }
    }
};

TEST_F(WizardDefaultsTest, AFullEditionStartsEveryFunctionThatCanRun) {
    SetAllSwitchWords(0);
    ApplyWizardDefaults(0);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xF3u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), kEveryBit);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0xD000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), kEveryBit);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0x300000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), kEveryBit);
    EXPECT_EQ(Calls(), Joined({Asked(64), Registered(64), Asked(176), Registered(176), Asked(192),
                               Registered(192), Asked(0), Registered(0), Asked(1), Registered(1),
                               Asked(144), Registered(144), Asked(160), Registered(160)},
                              Ending()));
}

TEST_F(WizardDefaultsTest, FunctionsThatCannotRunAreNotStartedAndLeaveTheirMailBitOut) {
    SetUnrunnable({176, 1, 32});
    ApplyWizardDefaults(0);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x9000u);
    EXPECT_EQ(Calls(),
              (std::vector<std::string>{Asked(64), Registered(64), Asked(176, 0), Asked(192),
                                        Registered(192), Asked(0), Registered(0), Asked(1, 0),
                                        Asked(144), Registered(144), Asked(160), Registered(160),
                                        Asked(32, 0), Registered(112), Registered(128), Told()}));
}

TEST_F(WizardDefaultsTest, TheLightEditionRunsSystemMonitoringAloneWithoutMonitorScans) {
    MarkMonitorScans();
    ApplyWizardDefaults(DMF_IsLight);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 1u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 1u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0x300000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), kEveryBit);
    for (const uint32_t section : {CES_Internet, CES_Messenger, CES_Startup}) {
        EXPECT_EQ(Word(section, CEK_ScanOptions), 0x5u) << section;
    }
    EXPECT_EQ(Calls(), Ending());
}

TEST_F(WizardDefaultsTest, WithoutInternetMonitoringItsBitAndMaskBitAndScanAreOff) {
    MarkMonitorScans();
    ApplyWizardDefaults(DMF_RemoveInternetMon);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xF1u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0xFFFFFFFDu);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions), 0x5u);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanOptions), kMonitorRunsBit | 0x5);
}

TEST_F(WizardDefaultsTest, MasterEditionStopsEveryMailFunction) {
    ApplyWizardDefaults(DMF_Master);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0u);
    EXPECT_EQ(Calls(),
              Joined({Stopped(64), Stopped(176), Stopped(192), Asked(0), Registered(0), Asked(1),
                      Registered(1), Asked(144), Registered(144), Asked(160), Registered(160)},
                     Ending()));
}

TEST_F(WizardDefaultsTest, WithoutBothMailMonitorsEveryMailFunctionIsStopped) {
    ApplyWizardDefaults(DMF_RemovePopMon | DMF_RemoveOutlookMon);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0u);
    const std::vector<std::string> calls = Calls();
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(std::vector<std::string>(calls.begin(), calls.begin() + 3),
              (std::vector<std::string>{Stopped(64), Stopped(176), Stopped(192)}));
}

TEST_F(WizardDefaultsTest, WithoutPop3ItIsStoppedAndOutlookStarted) {
    ApplyWizardDefaults(DMF_RemovePopMon);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0xC000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0xC000u);
    const std::vector<std::string> calls = Calls();
    ASSERT_GE(calls.size(), 5u);
    EXPECT_EQ(std::vector<std::string>(calls.begin(), calls.begin() + 5),
              (std::vector<std::string>{Stopped(64), Asked(176), Registered(176), Asked(192),
                                        Registered(192)}));
}

TEST_F(WizardDefaultsTest, WithoutOutlookItIsStoppedAndPop3Started) {
    ApplyWizardDefaults(DMF_RemoveOutlookMon);

    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x1000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0x1000u);
    const std::vector<std::string> calls = Calls();
    ASSERT_GE(calls.size(), 4u);
    EXPECT_EQ(std::vector<std::string>(calls.begin(), calls.begin() + 4),
              (std::vector<std::string>{Stopped(176), Stopped(192), Asked(64), Registered(64)}));
}

TEST_F(WizardDefaultsTest, WhatWasEditedIsDroppedAndTheWordsReachTheLiveStore) {
    SetWord(CES_General, CEK_ProtectLevel, 4);
    BeginStoreEdit();
    Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, 1);
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_Scan, 0);
    ApplyWizardDefaults(0);

    // Word reads the live file: nothing of the edit survived, the defaults
    // are there without a flush.
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), 4u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xF3u);
}

}  // namespace
}  // namespace wizard_defaults_test
