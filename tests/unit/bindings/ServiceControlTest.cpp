// ServiceControl against the built Q9SSCtrl, whose journal records every call
// with its arguments and answer.

#include <string>
#include <vector>

#include "BindingTest.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

const std::vector<int32_t> kEveryItem = {0,   1,   16,  32,  48,  64,  80, 96,
                                         112, 128, 144, 160, 176, 192, 208};

constexpr const char* kCanBeRegister = "Q9SSCtrl_CanBeRegister";
constexpr const char* kIsRegistered = "Q9SSCtrl_IsRegistered";
constexpr const char* kRegister = "Q9SSCtrl_Register";
constexpr const char* kUnregister = "Q9SSCtrl_Unregister";
constexpr const char* kSetCfgChanged = "Q9SSCtrl_SetCfgChanged";

class ServiceControlTest : public BindingTest {
protected:
    ServiceControlTest() { AddSibling("Q9SSCtrl"); }

    static int32_t Query(int32_t item) {
        return g_Siblings.ServiceControl(SC_IsRegistered, item, 2);
    }
};

class ServiceControlWithoutLibraryTest : public BindingTest {};

}  // namespace

TEST_F(ServiceControlTest, EveryOpOfEveryItemReachesItsEntryPoint) {
    std::vector<std::string> expected;
    for (int32_t item : kEveryItem) {
        EXPECT_EQ(g_Siblings.ServiceControl(0, item, 2), 1) << item;
        EXPECT_EQ(g_Siblings.ServiceControl(1, item, 2), 0) << item;
        EXPECT_EQ(g_Siblings.ServiceControl(2, item, 2), 1) << item;
        EXPECT_EQ(g_Siblings.ServiceControl(3, item, 2), 1) << item;
        EXPECT_EQ(g_Siblings.ServiceControl(4, item, 2), 1) << item;
        EXPECT_EQ(g_Siblings.ServiceControl(5, item, 2), 1) << item;
        expected.push_back(JournalLine(kCanBeRegister, item, "", 1));
        expected.push_back(JournalLine(kIsRegistered, item, "", 0));
        expected.push_back(JournalLine(kRegister, item, "", 1));
        expected.push_back(JournalLine(kUnregister, item, "5000 2", 1));
        expected.push_back(JournalLine(kSetCfgChanged, item, "", 1));
        expected.push_back(JournalLine(kCanBeRegister, item, "", 1));
    }
    EXPECT_EQ(Journal(), expected);
}

TEST_F(ServiceControlTest, ResultIsWhatTheEntryPointAnswers) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n64=0\n");
    EXPECT_EQ(g_Siblings.ServiceControl(0, 64, 2), 0);
    EXPECT_EQ(g_Siblings.ServiceControl(2, 64, 2), 0);
    EXPECT_EQ(Query(64), 0);
    EXPECT_EQ(g_Siblings.ServiceControl(2, 32, 2), 1);
    EXPECT_EQ(Query(32), 1);
    EXPECT_EQ(g_Siblings.ServiceControl(3, 32, 2), 1);
    EXPECT_EQ(Query(32), 0);
}

TEST_F(ServiceControlTest, UnregisterPassesTheTimeOutAndTheOption) {
    g_Siblings.ServiceControl(3, 32, 0);
    g_Siblings.ServiceControl(3, 64, 7);
    const std::vector<std::string> expected = {JournalLine(kUnregister, 32, "5000 0", 1),
                                               JournalLine(kUnregister, 64, "5000 7", 1)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(ServiceControlTest, OpAboveFourAsksCanBeRegister) {
    g_Siblings.ServiceControl(5, 16, 2);
    g_Siblings.ServiceControl(99, 48, 2);
    const std::vector<std::string> expected = {JournalLine(kCanBeRegister, 16, "", 1),
                                               JournalLine(kCanBeRegister, 48, "", 1)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(ServiceControlTest, PendingBitAnswersFromTheStoreWithoutAskingTheLibrary) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x1);
    g_Siblings.MarkPending(0x1, 0);
    EXPECT_EQ(Query(SSCT_SYSTEM_MONITOR), 1);
    SetWord(CES_Switch, CEK_Switch_Scan, 0xFE);
    EXPECT_EQ(Query(SSCT_SYSTEM_MONITOR), 0);
    EXPECT_TRUE(Journal().empty());
}

TEST_F(ServiceControlTest, PendingStoreAnswerOverridesTheRegistration) {
    g_Siblings.ServiceControl(2, SSCT_SYSTEM_MONITOR, 2);
    SetWord(CES_Switch, CEK_Switch_Scan, 0);
    g_Siblings.MarkPending(0x200001, 0);
    EXPECT_EQ(Query(SSCT_SYSTEM_MONITOR), 0);
    g_Siblings.MarkPending(0, 0x1);
    EXPECT_EQ(Query(SSCT_SYSTEM_MONITOR), 1);
}

TEST_F(ServiceControlTest, OtherPendingBitsStillAskTheLibrary) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0xFF);
    g_Siblings.MarkPending(0x2, 0);
    EXPECT_EQ(Query(SSCT_SYSTEM_MONITOR), 0);
    EXPECT_EQ(Journal(), std::vector<std::string>{JournalLine(kIsRegistered, 32, "", 0)});
}

TEST_F(ServiceControlTest, PendingLevelAnswersEveryItemFromTheStore) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x11);         // items 32 and 0
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x8000);   // item 192
    SetWord(CES_Switch, CEK_Switch_General, 0x200000);  // item 128
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 1);     // item 208
    g_bLevelPending = 1;
    for (int32_t item : kEveryItem) {
        const bool on = item == 0 || item == 32 || item == 192 || item == 128 || item == 208;
        EXPECT_EQ(Query(item), on ? 1 : 0) << item;
    }
    EXPECT_TRUE(Journal().empty());
}

TEST_F(ServiceControlTest, UnknownItemWithPendingLevelAnswersZero) {
    SetAllSwitchWords(0xFFFFFFFF);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 1);
    g_bLevelPending = 1;
    EXPECT_EQ(g_Siblings.ServiceControl(1, 999, 2), 0);
    EXPECT_TRUE(Journal().empty());
}

TEST_F(ServiceControlTest, UnknownItemMeetsAnyPendingBit) {
    g_Siblings.ServiceControl(2, 999, 2);  // not registrable: stays unregistered
    g_Siblings.MarkPending(0x1000, 0);
    EXPECT_EQ(Query(999), 0);
    EXPECT_EQ(Journal(), std::vector<std::string>{JournalLine(kRegister, 999, "", 0)});
}

TEST_F(ServiceControlTest, UnknownItemWithoutPendingAsksTheLibrary) {
    EXPECT_EQ(Query(999), 0);
    EXPECT_EQ(Journal(), std::vector<std::string>{JournalLine(kIsRegistered, 999, "", 0)});
}

TEST_F(ServiceControlTest, PortBlockingAnswersFromItsEnableKeyNotFromASwitchWord) {
    g_Siblings.MarkPending(kPortBlockBit, 0);
    SetAllSwitchWords(0xFFFFFFFF);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 0);
    EXPECT_EQ(Query(kPortBlockItem), 0);
    SetAllSwitchWords(0);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 5);
    EXPECT_EQ(Query(kPortBlockItem), 1);
    EXPECT_TRUE(Journal().empty());
}

TEST_F(ServiceControlTest, PendingConcernsOnlyTheRegistrationQuery) {
    g_Siblings.MarkPending(kAllSwitchBits, 0);
    g_bLevelPending = 1;
    g_Siblings.ServiceControl(0, 32, 2);
    g_Siblings.ServiceControl(2, 32, 2);
    g_Siblings.ServiceControl(3, 32, 2);
    g_Siblings.ServiceControl(4, 32, 2);
    EXPECT_EQ(Journal().size(), 4u);
}

TEST_F(ServiceControlTest, PrivilegeIsTheLibrarysAnswer) {
    Install().Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    EXPECT_EQ(g_Siblings.HasEnoughPrivilege(), 1);
    Install().Write("Q9SSCtrl.ini", "[Privilege]\nEnough=0\n");
    EXPECT_EQ(g_Siblings.HasEnoughPrivilege(), 0);
    const std::vector<std::string> expected = {
        JournalLine("Q9SSCtrl_HasEnoughPrivilege", -1, "", 1),
        JournalLine("Q9SSCtrl_HasEnoughPrivilege", -1, "", 0)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(ServiceControlTest, LoadedLibraryIsKeptUntilRelease) {
    ASSERT_EQ(g_Siblings.LoadSSCtrl(), 1);
    RemoveLibrary("Q9SSCtrl");
    EXPECT_EQ(g_Siblings.LoadSSCtrl(), 1);
    EXPECT_EQ(g_Siblings.ServiceControl(0, 32, 2), 1);
    g_Siblings.Release();
    EXPECT_EQ(g_Siblings.ServiceControl(0, 32, 2), 0);
    EXPECT_EQ(g_Siblings.LoadSSCtrl(), 0);
}

TEST_F(ServiceControlWithoutLibraryTest, EveryOpAnswersZero) {
    Install().Write("Q9SSCtrl.ini", "[Privilege]\nEnough=1\n");
    for (int32_t item : kEveryItem) {
        for (int32_t op = 0; op <= 5; ++op) {
            EXPECT_EQ(g_Siblings.ServiceControl(op, item, 2), 0) << op << " " << item;
        }
    }
    EXPECT_EQ(g_Siblings.HasEnoughPrivilege(), 0);
    EXPECT_EQ(g_Siblings.LoadSSCtrl(), 0);
    EXPECT_FALSE(Install().Exists("Q9SSCtrl.journal"));
}

TEST_F(ServiceControlWithoutLibraryTest, QueryAnswersZeroUnlessPendingCoversTheFunction) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0xFF);
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xF000);
    EXPECT_EQ(g_Siblings.ServiceControl(1, 32, 2), 0);
    EXPECT_EQ(g_Siblings.ServiceControl(1, 64, 2), 0);
    g_Siblings.MarkPending(0x1000, 0);
    EXPECT_EQ(g_Siblings.ServiceControl(1, 64, 2), 1);
    EXPECT_EQ(g_Siblings.ServiceControl(1, 32, 2), 0);
    g_bLevelPending = 1;
    EXPECT_EQ(g_Siblings.ServiceControl(1, 32, 2), 1);
}

TEST_F(ServiceControlWithoutLibraryTest, LibraryWithoutEntryPointsAnswersZero) {
    AddProbeAs("Q9SSCtrl");
    ASSERT_EQ(g_Siblings.LoadSSCtrl(), 1);
    for (int32_t op = 0; op <= 5; ++op) EXPECT_EQ(g_Siblings.ServiceControl(op, 32, 2), 0) << op;
    EXPECT_EQ(g_Siblings.HasEnoughPrivilege(), 0);
}
