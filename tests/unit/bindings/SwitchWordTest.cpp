// The function items, the switch words and the mask rule, against the store
// and the built Q9SSCtrl.

#include <string>
#include <vector>

#include "BindingTest.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "session/ApplySwitch.h"
#include "session/SiblingLibs.h"

namespace {

constexpr uint32_t kIsLight = 0x08000000;
constexpr uint32_t kRemoveInternetMon = 0x00800000;
constexpr uint32_t kRemovePopMon = 0x01000000;
constexpr uint32_t kRemoveOutlookMon = 0x00400000;

struct Expected {
    int32_t code;
    const char* name;
    uint32_t bit;
    uint32_t section;
    uint32_t key;
};

const std::vector<Expected> kTable = {
    {0, "SSCT_Q9SHELLEX", 0x10, CES_Switch, CEK_Switch_Scan},
    {1, "SSCT_Q9BAR", 0x20, CES_Switch, CEK_Switch_Scan},
    {16, "SSCT_SCRSAVER_SCAN", 0x8, CES_Switch, CEK_Switch_Scan},
    {32, "SSCT_SYSTEM_MONITOR", 0x1, CES_Switch, CEK_Switch_Scan},
    {48, "SSCT_HTTP_PROXY", 0x2, CES_Switch, CEK_Switch_Scan},
    {64, "SSCT_POP3", 0x1000, CES_Switch, CEK_Switch_ScanMail},
    {80, "", 0x2000, CES_Switch, CEK_Switch_ScanMail},
    {96, "SSCT_OFFICE_GUARD", 0x4, CES_Switch, CEK_Switch_Scan},
    {112, "SSCT_TRAY", 0x100000, CES_Switch, CEK_Switch_General},
    {128, "SSCT_MONSYS_AUTO", 0x200000, CES_Switch, CEK_Switch_General},
    {144, "SSCT_MESSENGER", 0x40, CES_Switch, CEK_Switch_Scan},
    {160, "SSCT_START_PROCESS", 0x80, CES_Switch, CEK_Switch_Scan},
    {176, "SSCT_MANUAL_OUTLOOK", 0x4000, CES_Switch, CEK_Switch_ScanMail},
    {192, "SSCT_REALTIME_OUTLOOK", 0x8000, CES_Switch, CEK_Switch_ScanMail},
    {208, "", 0x1000000, CES_PortBlock, CEK_PortBlockEnable},
};

class SwitchWordTest : public BindingTest {
protected:
    SwitchWordTest() { AddSibling("Q9SSCtrl"); }

    static std::vector<uint32_t> SwitchWords() {
        return {Word(CES_Switch, CEK_Switch_Scan), Word(CES_Switch, CEK_Switch_ScanMail),
                Word(CES_Switch, CEK_Switch_General)};
    }
};

}  // namespace

TEST(SwitchItemTest, TableGivesEveryCodeItsNameBitAndWord) {
    for (const Expected& expected : kTable) {
        const SwitchItem* item = FindSwitchItem(expected.code);
        ASSERT_NE(item, nullptr) << expected.code;
        EXPECT_STREQ(item->name, expected.name) << expected.code;
        EXPECT_STREQ(SwitchItemName(expected.code), expected.name) << expected.code;
        EXPECT_EQ(item->bit, expected.bit) << expected.code;
        EXPECT_EQ(SwitchBitOf(expected.code), expected.bit) << expected.code;
        EXPECT_EQ(item->section, expected.section) << expected.code;
        EXPECT_EQ(item->key, expected.key) << expected.code;
    }
}

TEST(SwitchItemTest, CodeOutsideTheTableHasNoBitAndNoName) {
    for (int32_t code : {-1, 2, 17, 81, 224, 999}) {
        EXPECT_EQ(FindSwitchItem(code), nullptr) << code;
        EXPECT_EQ(SwitchBitOf(code), kNoSwitchBit) << code;
        EXPECT_STREQ(SwitchItemName(code), "") << code;
    }
}

TEST(SwitchItemTest, BitsFindTheirWords) {
    for (uint32_t bit = 0x1; bit <= 0x80; bit <<= 1)
        EXPECT_EQ(SwitchKeyOfBit(bit), CEK_Switch_Scan);
    for (uint32_t bit = 0x1000; bit <= 0x8000; bit <<= 1) {
        EXPECT_EQ(SwitchKeyOfBit(bit), CEK_Switch_ScanMail);
    }
    EXPECT_EQ(SwitchKeyOfBit(0x100000), CEK_Switch_General);
    EXPECT_EQ(SwitchKeyOfBit(0x200000), CEK_Switch_General);
    for (uint32_t bit : {0x0u, 0x100u, 0x800u, 0x10000u, 0x400000u, 0x1000000u, 0xFFFFFFFFu}) {
        EXPECT_FALSE(SwitchKeyOfBit(bit).has_value()) << bit;
    }
}

TEST_F(SwitchWordTest, StoredStateReadsEachFunctionsOwnBit) {
    for (const Expected& on : kTable) {
        SetAllSwitchWords(0);
        SetWord(CES_PortBlock, CEK_PortBlockEnable, 0);
        SetWord(on.section, on.key, on.section == CES_PortBlock ? 1 : on.bit);
        for (const Expected& item : kTable) {
            EXPECT_EQ(StoredSwitchState(item.code), item.code == on.code ? 1 : 0)
                << on.code << " on, asking " << item.code;
        }
    }
    EXPECT_EQ(StoredSwitchState(999), 0);
}

TEST_F(SwitchWordTest, PortBlockingNeverReadsASwitchWord) {
    SetAllSwitchWords(0xFFFFFFFF);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 0);
    EXPECT_EQ(StoredSwitchState(kPortBlockItem), 0);
    SetAllSwitchWords(0);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 0x100);
    EXPECT_EQ(StoredSwitchState(kPortBlockItem), 1);
}

TEST_F(SwitchWordTest, SetSwitchBitChangesOnlyItsBitOfItsWord) {
    SetAllSwitchWords(0x0F0F0F0F);
    SetSwitchBit(0x80, true);
    SetSwitchBit(0x1, false);
    SetSwitchBit(0x2000, true);
    SetSwitchBit(0x8000, true);
    SetSwitchBit(0x2000, false);
    SetSwitchBit(0x200000, true);
    SetSwitchBit(0x100000, false);
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{0x0F0F0F8E, 0x0F0F8F0F, 0x0F2F0F0F}));
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0x0F0F0F0Fu);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0x0F0F0F0Fu);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0x0F0F0F0Fu);
}

TEST_F(SwitchWordTest, SetSwitchBitTakesAValueUpTo0x80AsTheScanWord) {
    SetAllSwitchWords(0);
    SetSwitchBit(0x3, true);
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{0x3, 0, 0}));
}

TEST_F(SwitchWordTest, SetSwitchBitIgnoresValuesThatNoWordHolds) {
    SetAllSwitchWords(0x0F0F0F0F);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 1);
    for (uint32_t bit : {0x0u, 0x100u, 0x800u, 0x10000u, 0x400000u, 0x1000000u}) {
        SetSwitchBit(bit, true);
        SetSwitchBit(bit, false);
    }
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{0x0F0F0F0F, 0x0F0F0F0F, 0x0F0F0F0F}));
    EXPECT_EQ(Word(CES_PortBlock, CEK_PortBlockEnable), 1u);
}

TEST_F(SwitchWordTest, ClearMaskBitLeavesTheFunctionAlone) {
    ApplySwitch(0x1, 0xFFFFFFFE, 0x1, SSCT_SYSTEM_MONITOR, 2);
    ApplySwitch(0x0, 0xFFFFFFFE, 0x1, SSCT_SYSTEM_MONITOR, 2);
    EXPECT_FALSE(Install().Exists("Q9SSCtrl.journal"));
}

TEST_F(SwitchWordTest, ClearWordBitUnregistersWithTheOption) {
    ApplySwitch(0xFE, 0xFF, 0x1, SSCT_SYSTEM_MONITOR, 0);
    ApplySwitch(0x0, 0x1000, 0x1000, SSCT_POP3, 2);
    const std::vector<std::string> expected = {JournalLine("Q9SSCtrl_Unregister", 32, "5000 0", 1),
                                               JournalLine("Q9SSCtrl_Unregister", 64, "5000 2", 1)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(SwitchWordTest, SetWordBitRegistersWhatCanBeRegistered) {
    SetAllSwitchWords(0);
    ApplySwitch(0x100000, 0xFFFFFFFF, 0x100000, SSCT_TRAY, 2);
    const std::vector<std::string> expected = {JournalLine("Q9SSCtrl_CanBeRegister", 112, "", 1),
                                               JournalLine("Q9SSCtrl_Register", 112, "", 1)};
    EXPECT_EQ(Journal(), expected);
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{0, 0, 0}));
}

TEST_F(SwitchWordTest, FunctionThatCannotRunLosesItsBitInTheStore) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n144=0\n");
    SetWord(CES_Switch, CEK_Switch_Scan, 0xF3);
    ApplySwitch(0xF3, 0xFFFFFFFF, 0x40, SSCT_MESSENGER, 2);
    EXPECT_EQ(Journal(),
              std::vector<std::string>{JournalLine("Q9SSCtrl_CanBeRegister", 144, "", 0)});
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0xB3u);
}

TEST_F(SwitchWordTest, PortBlockingThatCannotRunChangesNoSwitchWord) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n208=0\n");
    SetAllSwitchWords(0xFFFFFFFF);
    SetWord(CES_PortBlock, CEK_PortBlockEnable, 1);
    ApplySwitch(kPortBlockBit, kPortBlockBit, kPortBlockBit, kPortBlockItem, 2);
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}));
    EXPECT_EQ(Word(CES_PortBlock, CEK_PortBlockEnable), 1u);
}

TEST_F(SwitchWordTest, WithoutTheLibraryNothingIsRegisteredAndTheBitIsCleared) {
    RemoveLibrary("Q9SSCtrl");
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xD000);
    ApplySwitch(0xD000, 0xFFFFFFFF, 0x4000, SSCT_MANUAL_OUTLOOK, 2);
    ApplySwitch(0x0000, 0xFFFFFFFF, 0x2000, kUnnamedMailItem, 2);
    EXPECT_FALSE(Install().Exists("Q9SSCtrl.journal"));
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x9000u);
}

TEST(SwitchMaskTest, PagesWriteTheFullMasksByDefault) {
    const SwitchMasks masks = PageSwitchMasks(0);
    EXPECT_EQ(masks.scan, 0xFFFFFFFFu);
    EXPECT_EQ(masks.scanMail, 0xFFFFFFFFu);
    EXPECT_FALSE(masks.general.has_value());
}

TEST(SwitchMaskTest, PagesOfTheLightEditionWriteOnlyTheScanMask) {
    const SwitchMasks masks = PageSwitchMasks(kIsLight | kRemovePopMon | kRemoveInternetMon);
    EXPECT_EQ(masks.scan, 1u);
    EXPECT_FALSE(masks.scanMail.has_value());
    EXPECT_FALSE(masks.general.has_value());
}

TEST(SwitchMaskTest, PagesKeepTheFullScanMaskWithoutInternetMonitoring) {
    EXPECT_EQ(PageSwitchMasks(kRemoveInternetMon).scan, 0xFFFFFFFFu);
}

TEST(SwitchMaskTest, MailMaskLeavesOutTheRemovedFunctionsPop3First) {
    EXPECT_EQ(PageSwitchMasks(kRemovePopMon).scanMail, 0xC000u);
    EXPECT_EQ(PageSwitchMasks(kRemoveOutlookMon).scanMail, 0x1000u);
    EXPECT_EQ(PageSwitchMasks(kRemovePopMon | kRemoveOutlookMon).scanMail, 0xC000u);
    EXPECT_EQ(WizardSwitchMasks(kRemovePopMon).scanMail, 0xC000u);
    EXPECT_EQ(WizardSwitchMasks(kRemoveOutlookMon).scanMail, 0x1000u);
    EXPECT_EQ(WizardSwitchMasks(kRemovePopMon | kRemoveOutlookMon).scanMail, 0xC000u);
}

TEST(SwitchMaskTest, WizardWritesAllThreeMasks) {
    const SwitchMasks masks = WizardSwitchMasks(0);
    EXPECT_EQ(masks.scan, 0xFFFFFFFFu);
    EXPECT_EQ(masks.scanMail, 0xFFFFFFFFu);
    EXPECT_EQ(masks.general, 0xFFFFFFFFu);
}

TEST(SwitchMaskTest, WizardOfTheLightEdition) {
    const SwitchMasks masks = WizardSwitchMasks(kIsLight | kRemoveInternetMon | kRemovePopMon);
    EXPECT_EQ(masks.scan, 1u);
    EXPECT_EQ(masks.scanMail, 0u);
    EXPECT_EQ(masks.general, 0xFFFFFFFFu);
}

TEST(SwitchMaskTest, WizardWithoutInternetMonitoringMasksItsBit) {
    EXPECT_EQ(WizardSwitchMasks(kRemoveInternetMon).scan, 0xFFFFFFFDu);
    EXPECT_EQ(WizardSwitchMasks(kRemoveInternetMon).scanMail, 0xFFFFFFFFu);
}

TEST_F(SwitchWordTest, WriteSwitchMasksWritesOnlyTheGivenMasks) {
    SetAllSwitchWords(7);
    WriteSwitchMasks(PageSwitchMasks(kIsLight));
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 1u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 7u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 7u);
    WriteSwitchMasks(WizardSwitchMasks(kRemovePopMon));
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0xFFFFFFFFu);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0xC000u);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0xFFFFFFFFu);
    EXPECT_EQ(SwitchWords(), (std::vector<uint32_t>{7, 7, 7}));
}
