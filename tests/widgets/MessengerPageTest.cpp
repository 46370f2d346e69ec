// The "Instant Messenger Monitoring" page: Auto Recognition or messengers
// chosen by hand from the installed ones, the list's rows and their bits,
// and the notices of a system that cannot monitor messengers.

#include <QLabel>
#include <QTreeWidgetItem>
#include <string>

#include "SwitchPageTest.h"
#include "controls/CheckListCtrl.h"
#include "framework/DialogControls.h"
#include "options/StoreKeys.h"
#include "pages/scan/MessengerPage.h"
#include "session/SiblingLibs.h"

namespace messenger_page_test {
namespace {

constexpr int kFunctionBox = 1007;
constexpr int kAutoRadio = 1117;
constexpr int kManualRadio = 1044;
constexpr int kList = 1101;
constexpr int32_t kCode = 144;

// Row n's bit of (15,53): rows 1 and 2 stand the other way round.
constexpr uint32_t kRowBits[] = {0x100, 0x400, 0x200, 0x4000, 0x10000};

const std::string kChooseMessenger =
    "Specify the Instant Messenger to monitor manully or select \"Auto Recognition\".";

class MessengerPageTest : public SwitchPageTest {
protected:
    // The messenger library and the messengers installed on this machine,
    // by row.
    void SetInstalled(std::initializer_list<int> rows) const {
        AddSibling("Q9IMcfg");
        std::string text = "[Installed]\n";
        for (int row : rows) text += std::to_string(row) + "=1\n";
        Install().Write("Q9IMcfg.ini", text);
    }
    CMessengerPage* Make() { return MakePage<CMessengerPage>(0); }
    static CCheckListCtrl* List(const CSettingsPage* page) {
        return qobject_cast<CCheckListCtrl*>(ctl::Find(page, kList));
    }
    static bool RowChecked(const CSettingsPage* page, int row) {
        return List(page)->IsRowChecked(row);
    }
    static uint32_t Extra() { return Word(CES_Messenger, CEK_ScanExtra); }
    static void SetExtra(uint32_t word) { SetWord(CES_Messenger, CEK_ScanExtra, word); }
    static void SetSelect(uint32_t word) { SetWord(CES_Messenger, CEK_MessengerSelect, word); }
};

TEST_F(MessengerPageTest, TheListHasTheFiveMessengersAndOnlyInstalledOnesCanBeChosen) {
    SetInstalled({0, 2});
    CMessengerPage* page = Make();
    CCheckListCtrl* list = List(page);
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->RowCount(), 5);
    EXPECT_EQ(list->RowText(0).toStdString(), "MSN Instant Messenger (5.0 above)");
    EXPECT_EQ(list->RowText(1).toStdString(), "AOL Instant Messenger");
    EXPECT_EQ(list->RowText(2).toStdString(), "Yahoo! Instant Messenger");
    EXPECT_EQ(list->RowText(3).toStdString(), "Windows Messenger");
    EXPECT_EQ(list->RowText(4).toStdString(), "Daum Instant Messenger");
    EXPECT_FALSE(list->topLevelItem(0)->isDisabled());
    EXPECT_TRUE(list->topLevelItem(1)->isDisabled());
    EXPECT_FALSE(list->topLevelItem(2)->isDisabled());
}

TEST_F(MessengerPageTest, EachRowSavesItsOwnBitOfTheExtraWord) {
    SetInstalled({0, 1, 2, 3, 4});
    SetRegistered({kCode});
    for (int row = 0; row < 5; ++row) {
        SetSelect(0);
        SetExtra(0x3);
        CMessengerPage* page = Make();
        List(page)->SetRowChecked(row, true);
        page->Save();
        EXPECT_EQ(Extra(), 0x3U | kRowBits[row]) << row;
        delete page;
    }
}

TEST_F(MessengerPageTest, AStoredMessengerThatIsNotInstalledShowsUncheckedAndTheNextSaveDropsIt) {
    SetInstalled({0});
    SetSelect(0);
    SetExtra(0x100 | 0x400);
    CMessengerPage* page = Make();
    EXPECT_TRUE(RowChecked(page, 0));
    EXPECT_FALSE(RowChecked(page, 1));
    EXPECT_EQ(Extra(), 0x500U);  // the load cleared nothing
    page->Save();
    EXPECT_EQ(Extra(), 0x100U);
}

TEST_F(MessengerPageTest, ChoosingByHandOnlyMessengersThatAreNotInstalledIsRefused) {
    SetInstalled({0});
    SetRegistered({kCode});
    SetSelect(0);
    SetExtra(0x400);
    CMessengerPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kManualRadio));
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kChooseMessenger);
    EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
}

TEST_F(MessengerPageTest, AutoRecognitionDisablesTheListAndChoosingByHandEnablesIt) {
    SetInstalled({0, 2});
    SetRegistered({kCode});
    SetSelect(0x1);
    CMessengerPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kAutoRadio));
    EXPECT_FALSE(IsEnabled(page, kList));
    Click(page, kManualRadio);
    EXPECT_TRUE(IsEnabled(page, kList));
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect) & 0x1U, 0U);
}

TEST_F(MessengerPageTest, ChoosingAutoRecognitionChecksEveryInstalledMessenger) {
    SetInstalled({0, 2});
    SetRegistered({kCode});
    SetSelect(0);
    SetExtra(0);
    CMessengerPage* page = Make();
    Click(page, kAutoRadio);
    EXPECT_TRUE(RowChecked(page, 0));
    EXPECT_FALSE(RowChecked(page, 1));
    EXPECT_TRUE(RowChecked(page, 2));
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(Extra() & 0x14700U, 0x300U);
    EXPECT_EQ(Word(CES_Messenger, CEK_MessengerSelect) & 0x1U, 0x1U);
}

TEST_F(MessengerPageTest, TurningTheFunctionOnUnderAutoRecognitionChecksTheInstalledRows) {
    SetInstalled({3});
    SetSelect(0x1);
    SetExtra(0);
    CMessengerPage* page = Make();
    ASSERT_FALSE(IsChecked(page, kFunctionBox));
    Click(page, kFunctionBox);
    EXPECT_TRUE(RowChecked(page, 3));
    EXPECT_EQ(page->NeedApply(), 1);
    page->Save();
    EXPECT_NE(g_Siblings.GetPending() & 0x40U, 0U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_Scan) & 0x40U, 0x40U);
}

TEST_F(MessengerPageTest, AUsersClickOnARowMarksThePage) {
    SetInstalled({0});
    SetRegistered({kCode});
    SetSelect(0);
    CMessengerPage* page = Make();
    emit List(page)->rowCheckChanged(0);
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(MessengerPageTest, WithoutTheMessengerLibraryNoRowIsInstalled) {
    Install().Write("Q9IMcfg.ini", "[Installed]\n0=1\n");
    SetExtra(0x100);
    CMessengerPage* page = Make();
    EXPECT_TRUE(List(page)->topLevelItem(0)->isDisabled());
    EXPECT_FALSE(RowChecked(page, 0));
}

TEST_F(MessengerPageTest, ASystemThatCannotMonitorMessengersCoversThePage) {
    Install().Write("Q9SSCtrl.ini", "[Registrable]\n144=-1\n");
    CMessengerPage* page = Make();
    EXPECT_EQ(page->IsCovered(), 1);
    EXPECT_EQ(CoverText(page), "This system does not support Instant Messenger Monitoring.");
    SetExtra(0x100);
    page->Save();
    EXPECT_EQ(Extra(), 0x100U);
}

TEST_F(MessengerPageTest, AMissingMessengerProgramCoversThePageWithTheInstallNotice) {
    SetUnregistrable({kCode});
    CMessengerPage* page = Make();
    EXPECT_EQ(page->IsCovered(), 1);
    EXPECT_EQ(CoverText(page),
              "Unable to find the Instant Messenger program.\nPlease install the Instant "
              "Messenger program first and try again.");
}

TEST_F(MessengerPageTest, DefaultChecksTheInstalledRowsWhenTheDefaultPolicyBacksUp) {
    SetInstalled({1});
    WriteDefaults(
        "[CES_Switch]\nCEK_Switch_Scan=dword:00000040\n"
        "[CES_Messenger]\nCEK_MessengerSelect=dword:00000000\nCEK_ScanPolicy=dword:00000001\n");
    SetExtra(0);
    CMessengerPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(RowChecked(page, 1));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(MessengerPageTest, DefaultLeavesTheRowsWhenTheDefaultPolicyDoesNotBackUp) {
    SetInstalled({1});
    WriteDefaults(
        "[CES_Switch]\nCEK_Switch_Scan=dword:00000040\n"
        "[CES_Messenger]\nCEK_MessengerSelect=dword:00000001\nCEK_ScanPolicy=dword:00000000\n");
    SetExtra(0);
    CMessengerPage* page = Make();
    page->OnDefault();
    EXPECT_FALSE(RowChecked(page, 1));
}

}  // namespace
}  // namespace messenger_page_test
