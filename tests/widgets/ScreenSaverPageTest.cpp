// The "Screensaver Scan" page: its function box and the range it enables,
// its switch kept pending for the rest of the session, and the folders it
// scans, rewritten only when the user changed them.

#include <QApplication>
#include <QTimer>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/scan/FeatureSwitchPage.h"
#include "pages/scan/ScreenSaverPage.h"
#include "pages/targets/ScanListDlg.h"
#include "session/SiblingLibs.h"

namespace screen_saver_page_test {
namespace {

constexpr int kFunctionBox = 1033;
constexpr int kListButton = 1120;
constexpr int32_t kCode = 16;
constexpr uint32_t kSwitchBit = 0x8;

class ScreenSaverPageTest : public SwitchPageTest {
protected:
    CScreenSaverPage* Make() { return MakePage<CScreenSaverPage>(0); }
    static uint32_t ScanSwitch() { return Word(CES_Switch, CEK_Switch_Scan); }

    // Answers the list dialog the page opens: deletes every target, then OK.
    void EmptyTheListWhenItOpens() {
        QTimer::singleShot(0, [] {
            auto* dialog = dynamic_cast<CScanListDlg*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            qobject_cast<QAbstractButton*>(ctl::Find(dialog, 1018))->click();
            qobject_cast<QAbstractButton*>(ctl::Find(dialog, 1))->click();
        });
    }
};

TEST_F(ScreenSaverPageTest, TheBoxShowsTheRegistrationAndEnablesTheRange) {
    SetRegistered({kCode});
    CScreenSaverPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kFunctionBox));
    for (int id : {kListButton, 1064, 1065, 1058, 1066, 1061, 1062, 1038, 1067, 1068, 1069, 1070,
                   1071})
        EXPECT_TRUE(IsEnabled(page, id)) << id;
    Click(page, kFunctionBox);
    for (int id : {kListButton, 1064, 1065, 1058, 1066, 1061, 1062, 1038, 1067, 1071})
        EXPECT_FALSE(IsEnabled(page, id)) << id;
    EXPECT_TRUE(IsEnabled(page, kFunctionBox));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(ScreenSaverPageTest, AFunctionThatCannotRunDisablesTheBoxAndItsRange) {
    SetUnregistrable({kCode});
    SetRegistered({kCode});
    CScreenSaverPage* page = Make();
    EXPECT_FALSE(IsEnabled(page, kFunctionBox));
    EXPECT_FALSE(IsChecked(page, kFunctionBox));
    EXPECT_FALSE(IsEnabled(page, 1064));
}

TEST_F(ScreenSaverPageTest, ABoxThatIsOffStillSavesTheDisabledControls) {
    SetWord(CES_ScreenSaver, CEK_ScanOptions, 0x680 | 0x1);
    CScreenSaverPage* page = Make();
    ASSERT_FALSE(IsChecked(page, kFunctionBox));
    ASSERT_FALSE(IsEnabled(page, 1061));
    ctl::SetCheck(page, 1061, 0);
    page->Save();
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanOptions) & 0x1U, 0U);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanOptions) & 0x2000U, 0x2000U);
}

TEST_F(ScreenSaverPageTest, SaveSwitchesTheWordAndKeepsItPendingForTheFunctionPage) {
    SetRegistered({kCode});
    SetWord(CES_Switch, CEK_Switch_Scan, kSwitchBit | 0x1);
    CScreenSaverPage* page = Make();
    Click(page, kFunctionBox);
    page->Save();
    EXPECT_EQ(ScanSwitch(), 0x1U);
    EXPECT_NE(g_Siblings.GetPending() & kSwitchBit, 0U);
    // The function selection page of the same session shows the choice,
    // not the registration that is still in force.
    CFeatureSwitchPage* switches = MakePage<CFeatureSwitchPage>(0);
    EXPECT_FALSE(IsChecked(switches, kFunctionBox));
    ClearJournal();
    page->Apply();
    EXPECT_EQ(CallsOf("Q9SSCtrl_Unregister").size(), 1U);
    EXPECT_EQ(Journal().back(), Unregistered(kCode));
}

TEST_F(ScreenSaverPageTest, TheTargetListIsKeptUnlessTheUserChangesIt) {
    WriteObjectList(CES_ScreenSaver, {{0, "/home/a"}, {0, "/srv/b"}});
    CScreenSaverPage* page = Make();
    ASSERT_EQ(page->Targets().size(), 2U);
    EXPECT_EQ(page->Targets()[1].text, "/srv/b");
    page->Save();
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver).size(), 2U);
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(ScreenSaverPageTest, TheListDialogsChangeIsWrittenAtSave) {
    SetRegistered({kCode});
    WriteObjectList(CES_ScreenSaver, {{0, "/home/a"}, {0, "/srv/b"}});
    CScreenSaverPage* page = Make();
    EmptyTheListWhenItOpens();
    Click(page, kListButton);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver).size(), 2U);
    page->Save();
    // A list emptied by the user stands for every local hard drive.
    const std::vector<ObjectRecord> records = ReadObjectList(CES_ScreenSaver);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].kind, kTargetAllLocalDrives);
    EXPECT_EQ(records[0].text, kAllLocalDrivesText);
}

}  // namespace
}  // namespace screen_saver_page_test
