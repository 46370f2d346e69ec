// The internet and startup monitors: what each writes and leaves of its
// section, and the startup page, which works even when it covers itself.

#include <QLabel>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "options/StoreKeys.h"
#include "pages/SettingsPage.h"
#include "pages/scan/InternetMonitorPage.h"
#include "pages/scan/StartupPage.h"
#include "session/SiblingLibs.h"

namespace monitor_pages_test {
namespace {

constexpr int kInternetBox = 1006;
constexpr int32_t kInternetCode = 48;
constexpr int kStartupBox = 1008;
constexpr int32_t kStartupCode = 160;
constexpr int kRegistries = 1100;
constexpr int kFolders = 1101;
constexpr int kSystemFiles = 1102;

const std::string kNothingToMonitor =
    "Select the items to monitor. If you don't have items to monitor, disable \"Startup "
    "Program Monitoring\" option.";

class MonitorPagesTest : public SwitchPageTest {};

TEST_F(MonitorPagesTest, TheInternetPageHasFileTypesAndTwoRepairCombosOnly) {
    auto* page = MakePage<CInternetMonitorPage>(0);
    EXPECT_EQ(ctl::GetText(page, kInternetBox), "Internet Monitoring");
    EXPECT_EQ(ItemsOf(page, 1067), (std::vector<std::string>{"Leave as is", "Repair", "Delete"}));
    EXPECT_EQ(ItemsOf(page, 1068), (std::vector<std::string>{"Leave as is", "Delete"}));
    for (int absent : {1064, 1069, 1071, 1061, 1070}) EXPECT_EQ(ctl::Find(page, absent), nullptr);
}

TEST_F(MonitorPagesTest, TheInternetPageWritesItsWordTextAndPolicyOnly) {
    SetRegistered({kInternetCode});
    SetWord(CES_Internet, CEK_ScanOptions, 0x10 | 0x10000 | 0x100);
    SetWord(CES_Internet, CEK_ScanArchive, 15);
    SetWord(CES_Internet, CEK_ScanArchiveKinds, 0x3);
    auto* page = MakePage<CInternetMonitorPage>(0);
    EXPECT_TRUE(IsChecked(page, kInternetBox));
    Click(page, 1065);
    page->Save();
    // Bit 4 has no control here and bit 16 is the store's.
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions), 0x10U | 0x10000U | 0x680U | 0x2000U);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanArchive), 15U);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanArchiveKinds), 0x3U);
    EXPECT_NE(g_Siblings.GetPending() & 0x2U, 0U);
}

TEST_F(MonitorPagesTest, TheInternetFunctionThatCannotRunDisablesItsBox) {
    SetUnregistrable({kInternetCode});
    auto* page = MakePage<CInternetMonitorPage>(0);
    EXPECT_FALSE(IsEnabled(page, kInternetBox));
    EXPECT_FALSE(IsEnabled(page, 1068));
}

TEST_F(MonitorPagesTest, TheInternetBoxEnablesEverythingUpToTheUnrepairableCombo) {
    SetRegistered({kInternetCode});
    auto* page = MakePage<CInternetMonitorPage>(0);
    for (int id : {1065, 1058, 1066, 1062, 1038, 1067, 1068}) EXPECT_TRUE(IsEnabled(page, id));
    Click(page, kInternetBox);
    for (int id : {1065, 1058, 1066, 1062, 1038, 1067, 1068}) EXPECT_FALSE(IsEnabled(page, id));
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(MonitorPagesTest, StartupOnWithNothingToMonitorCannotBeSaved) {
    SetRegistered({kStartupCode});
    SetWord(CES_Startup, CEK_ScanExtra, 0x800);
    auto* page = MakePage<CStartupPage>(0);
    EXPECT_TRUE(IsChecked(page, kRegistries));
    Click(page, kRegistries);
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kNothingToMonitor);
    EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
    Click(page, kSystemFiles);
    EXPECT_EQ(page->Validate(), 0);
    Click(page, kSystemFiles);
    Click(page, kStartupBox);
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(MonitorPagesTest, StartupItemsEachSaveTheirBit) {
    SetRegistered({kStartupCode});
    const std::pair<int, uint32_t> items[] = {
        {kRegistries, 0x800}, {kFolders, 0x1000}, {kSystemFiles, 0x2000}};
    for (const auto& [id, bit] : items) {
        SetWord(CES_Startup, CEK_ScanExtra, 0x4);
        auto* page = MakePage<CStartupPage>(0);
        Click(page, id);
        page->Save();
        EXPECT_EQ(Word(CES_Startup, CEK_ScanExtra), 0x4U | bit) << id;
        delete page;
    }
}

TEST_F(MonitorPagesTest, SavingTheStartupPageLeavesBit16AsTheLoadFoundIt) {
    for (uint32_t loaded : {0x0U, 0x10000U}) {
        SetWord(CES_Startup, CEK_ScanOptions, loaded);
        auto* page = MakePage<CStartupPage>(0);
        SetWord(CES_Startup, CEK_ScanOptions, loaded ^ 0x10000U);
        page->Save();
        // Neither the scan setting mark nor any file type is written either.
        EXPECT_EQ(Word(CES_Startup, CEK_ScanOptions), loaded) << loaded;
        delete page;
    }
}

TEST_F(MonitorPagesTest, TheStartupPageCoversItselfButStillSavesAndApplies) {
    SetUnregistrable({kStartupCode});
    SetRegistered({kStartupCode});
    SetWord(CES_Switch, CEK_Switch_Scan, 0x80 | 0x1);
    auto* page = MakePage<CStartupPage>(0);
    EXPECT_EQ(page->IsCovered(), 1);
    EXPECT_EQ(CoverText(page), "This system does not support Startup Program Monitoring.");
    // The box could not be shown, so Save writes it off.
    page->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan), 0x1U);
    EXPECT_NE(g_Siblings.GetPending() & 0x80U, 0U);
    ClearJournal();
    page->Apply();
    EXPECT_EQ(Journal().back(), Unregistered(kStartupCode));
}

TEST_F(MonitorPagesTest, StartupDefaultNeedsApply) {
    auto* page = MakePage<CStartupPage>(0);
    page->OnDefault();
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

}  // namespace
}  // namespace monitor_pages_test
