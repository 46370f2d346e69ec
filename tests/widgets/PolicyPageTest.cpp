// The "Setting the advanced scan" page: the macro choice, the five system
// areas and the monitor's self protection, each in its own bits.

#include <string>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreKeys.h"
#include "pages/general/PolicyPage.h"
#include "q9cfgul.h"

namespace policy_page_test {
namespace {

constexpr int kRepairMacros = 1046;
constexpr int kForbidMacros = 1037;
constexpr int kSelfProtect = 1045;
constexpr int kProtectAlerts = 1047;

struct AreaBox {
    int id;
    uint32_t bit;
    const char* caption;
};
constexpr AreaBox kAreas[] = {
    {1040, 0x100, "Memory Scan"},           {1041, 0x400, "Self Scan"},
    {1042, 0x200, "Boot Sector Scan"},      {1043, 0x800, "Process Scan"},
    {1044, 0x1000, "Startup Program Scan"},
};

// Bits of the two words that belong to other pages.
constexpr uint32_t kOthersMacroBits = 0x800F0000;
constexpr uint32_t kOthersExtraBits = 0x4F;
constexpr uint32_t kTrayBit = 0x100000;

class PolicyPageTest : public SwitchPageTest {
protected:
    CPolicyPage* Make(uint32_t flags = 0) { return MakePage<CPolicyPage>(flags); }
    static void SetMacro(uint32_t word) { SetWord(CES_Macro, CEK_MacroOptions, word); }
    static uint32_t Macro() { return Word(CES_Macro, CEK_MacroOptions); }
    static void SetExtra(uint32_t word) { SetWord(CES_SystemMonitor, CEK_ScanExtra, word); }
    static uint32_t Extra() { return Word(CES_SystemMonitor, CEK_ScanExtra); }
};

TEST_F(PolicyPageTest, TemplateHasEveryControlWithItsCaption) {
    CPolicyPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kRepairMacros), "Repair the detected macro viruses ");
    EXPECT_EQ(ctl::GetText(page, kForbidMacros), "Macros not allowed");
    for (const AreaBox& area : kAreas) EXPECT_EQ(ctl::GetText(page, area.id), area.caption);
    EXPECT_EQ(ctl::GetText(page, kSelfProtect), "Self Protect");
    EXPECT_EQ(ctl::GetText(page, kProtectAlerts), "Displaying alert messages to the user");
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(PolicyPageTest, SetIconsGivesTheMacroTheChipAndTheShield) {
    CPolicyPage* page = Make();
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1054))->Index(), 9);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1055))->Index(), 7);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1056))->Index(), 14);
}

TEST_F(PolicyPageTest, OnlyForbidAloneShowsTheSecondRadio) {
    const std::pair<uint32_t, int> cases[] = {
        {0x0, kRepairMacros}, {0x1, kRepairMacros}, {0x2, kForbidMacros}, {0x3, kRepairMacros}};
    for (const auto& [word, radio] : cases) {
        SetMacro(word);
        CPolicyPage* page = Make();
        EXPECT_TRUE(IsChecked(page, radio)) << word;
        EXPECT_FALSE(IsChecked(page, radio == kRepairMacros ? kForbidMacros : kRepairMacros))
            << word;
        delete page;
    }
}

TEST_F(PolicyPageTest, BothMacroBitsShowTheFirstRadioAndSavingClearsForbid) {
    SetMacro(kOthersMacroBits | 0x3);
    CPolicyPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kRepairMacros));
    page->Save();
    EXPECT_EQ(Macro(), kOthersMacroBits | 0x1);
}

TEST_F(PolicyPageTest, TheSecondRadioSavesForbidAlone) {
    SetMacro(kOthersMacroBits | 0x1);
    CPolicyPage* page = Make();
    Click(page, kForbidMacros);
    page->Save();
    EXPECT_EQ(Macro(), kOthersMacroBits | 0x2);
}

TEST_F(PolicyPageTest, ClickingTheRadioThatIsOnLeavesThePageUnmodified) {
    for (const auto& [word, on, off] : {std::tuple{0x1U, kRepairMacros, kForbidMacros},
                                        std::tuple{0x2U, kForbidMacros, kRepairMacros}}) {
        SetMacro(word);
        CPolicyPage* page = Make();
        Click(page, on);
        EXPECT_EQ(page->IsModified(), 0) << word;
        Click(page, off);
        EXPECT_EQ(page->IsModified(), 1) << word;
        delete page;
    }
}

TEST_F(PolicyPageTest, EveryCheckBoxMarksThePageAndNoneNeedsApply) {
    for (int id : {1040, 1041, 1042, 1043, 1044, kSelfProtect, kProtectAlerts}) {
        SetExtra(0x80);
        CPolicyPage* page = Make();
        Click(page, id);
        EXPECT_EQ(page->IsModified(), 1) << id;
        EXPECT_EQ(page->NeedApply(), 0) << id;
        delete page;
    }
}

TEST_F(PolicyPageTest, EachAreaBoxEditsItsBitAndKeepsTheRest) {
    for (const AreaBox& area : kAreas) {
        SetMacro(kOthersMacroBits | 0x1);
        CPolicyPage* page = Make();
        EXPECT_FALSE(IsChecked(page, area.id)) << area.id;
        Click(page, area.id);
        page->Save();
        EXPECT_EQ(Macro(), kOthersMacroBits | 0x1 | area.bit) << area.id;
        page->Load();
        EXPECT_TRUE(IsChecked(page, area.id)) << area.id;
        Click(page, area.id);
        page->Save();
        EXPECT_EQ(Macro(), kOthersMacroBits | 0x1) << area.id;
        delete page;
    }
}

TEST_F(PolicyPageTest, SelfProtectionLivesInTheMonitorsThirdScanWord) {
    SetExtra(kOthersExtraBits);
    CPolicyPage* page = Make();
    EXPECT_FALSE(IsChecked(page, kSelfProtect));
    Click(page, kSelfProtect);
    Click(page, kProtectAlerts);
    page->Save();
    EXPECT_EQ(Extra(), kOthersExtraBits | 0x80 | 0x8000);
    SetExtra(0xFFFFFFFF);
    page->Load();
    EXPECT_TRUE(IsChecked(page, kSelfProtect));
    EXPECT_TRUE(IsChecked(page, kProtectAlerts));
    Click(page, kSelfProtect);
    page->Save();
    EXPECT_EQ(Extra(), ~0x80U);
}

TEST_F(PolicyPageTest, SelfProtectEnablesItsAlerts) {
    SetExtra(0);
    CPolicyPage* page = Make();
    EXPECT_FALSE(IsEnabled(page, kProtectAlerts));
    Click(page, kSelfProtect);
    EXPECT_TRUE(IsEnabled(page, kProtectAlerts));
}

TEST_F(PolicyPageTest, InTheMasterEditionWithoutTheTrayIconTheAlertsStayDisabled) {
    SetExtra(0x80);
    SetWord(CES_Switch, CEK_Switch_General, ~kTrayBit);
    CPolicyPage* page = Make(DMF_Master);
    ASSERT_TRUE(IsChecked(page, kSelfProtect));
    EXPECT_FALSE(IsEnabled(page, kProtectAlerts));
    Click(page, kSelfProtect);
    Click(page, kSelfProtect);
    EXPECT_FALSE(IsEnabled(page, kProtectAlerts));
    page->OnDefault();
    EXPECT_FALSE(IsEnabled(page, kProtectAlerts));
}

TEST_F(PolicyPageTest, TheTrayIconOrTheNormalEditionLetTheAlertsBeChosen) {
    SetExtra(0x80);
    SetWord(CES_Switch, CEK_Switch_General, kTrayBit);
    EXPECT_TRUE(IsEnabled(Make(DMF_Master), kProtectAlerts));
    SetWord(CES_Switch, CEK_Switch_General, 0);
    EXPECT_TRUE(IsEnabled(Make(), kProtectAlerts));
}

TEST_F(PolicyPageTest, DefaultShowsTheFactoryWordsWithoutWritingThem) {
    WriteDefaults(
        "[CES_Macro]\nCEK_MacroOptions=dword:000e1f01\n"
        "[CES_SystemMonitor]\nCEK_ScanExtra=dword:00008080\n");
    SetMacro(0x2);
    SetExtra(0);
    CPolicyPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kRepairMacros));
    for (const AreaBox& area : kAreas) EXPECT_TRUE(IsChecked(page, area.id)) << area.id;
    EXPECT_TRUE(IsChecked(page, kSelfProtect));
    EXPECT_TRUE(IsChecked(page, kProtectAlerts));
    EXPECT_TRUE(IsEnabled(page, kProtectAlerts));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 0);
    EXPECT_EQ(Macro(), 0x2U);
    EXPECT_EQ(Extra(), 0U);
}

}  // namespace
}  // namespace policy_page_test
