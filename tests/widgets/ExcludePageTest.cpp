// The exclusions page with real widgets: what it shows from the store and
// the zone, the switch and its enable rule, adding, deleting, validating,
// saving, applying and testing a path.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>
#include <string>
#include <vector>

#include "Q9CfgE.h"
#include "caller/DialogDriver.h"
#include "framework/DialogControls.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/targets/ExcludeList.h"
#include "pages/targets/ExcludePage.h"
#include "platform/MountTable.h"
#include "q9cfgul.h"
#include "session/ExclusionZone.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "support/RecordingMessageService.h"
#include "support/SiblingTest.h"
#include "targets/ExclusionStore.h"

namespace {

constexpr int kSwitchBox = 1015;
constexpr int kList = 1090;
constexpr int kAddFolders = 1016;
constexpr int kAddFiles = 1019;
constexpr int kAddExtensions = 1020;
constexpr int kDelete = 1017;
constexpr int kDeleteAll = 1018;
constexpr int kTestPath = 1095;
constexpr int kRestoreBox = 1044;
constexpr int kExtensionEdit = 1092;
constexpr uint32_t kRestoreBit = 0x80000000;
constexpr char kOther[] = "OtherProduct";

class ExcludePageTest : public SiblingTest {
protected:
    ExcludePageTest() {
        AddSibling("OrvDMZ");
        m_savedXP = g_bWinXPOrLater;
        m_savedMe = g_bWinMeOrLater;
        m_savedPending = g_bLevelPending;
        g_bLevelPending = 0;
    }
    ~ExcludePageTest() override {
        g_bWinXPOrLater = m_savedXP;
        g_bWinMeOrLater = m_savedMe;
        g_bLevelPending = m_savedPending;
    }

    std::unique_ptr<CExcludePage> MakePage(uint32_t flags = 0) {
        auto page = std::make_unique<CExcludePage>();
        page->SetFlags(flags);
        EXPECT_TRUE(page->Create(&m_parent));
        return page;
    }

    static void PutInZone(const char* owner, const std::vector<ZoneRecord>& records) {
        ExclusionZone zone = g_Siblings.CreateExclusionZone();
        ASSERT_FALSE(zone.IsEmpty());
        const std::string buffer = EncodeZoneRecords(records);
        ASSERT_EQ(zone.Add(owner, owner, buffer.data()), 1);
    }

    static void Click(CSettingsPage* page, int id) {
        auto* button = qobject_cast<QAbstractButton*>(ctl::Find(page, id));
        ASSERT_NE(button, nullptr) << id;
        button->click();
    }

    static CExcludeList* ListOn(CSettingsPage* page) {
        return dynamic_cast<CExcludeList*>(ctl::Find(page, kList));
    }

    static std::vector<std::string> Shown(CSettingsPage* page) {
        std::vector<std::string> rows;
        CExcludeList* list = ListOn(page);
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            rows.push_back(list->topLevelItem(i)->text(0).toStdString() + " | " +
                           list->topLevelItem(i)->text(1).toStdString());
        }
        return rows;
    }

    static void Select(CSettingsPage* page, int row) {
        CExcludeList* list = ListOn(page);
        list->setCurrentItem(list->topLevelItem(row));
    }

    // Answers the next dialog: types text into its edit with id editId and
    // presses OK.
    static std::unique_ptr<DialogDriver> TypeAndOk(int editId, const QString& text) {
        return std::make_unique<DialogDriver>([editId, text](QDialog* dialog) {
            DialogDriver::Find<QLineEdit>(dialog, editId)->setText(text);
            DialogDriver::Find<QPushButton>(dialog, 1)->click();
        });
    }

    std::vector<std::string> MessageTexts() const {
        std::vector<std::string> texts;
        for (const RecordedMessage& message : m_messages.messages) texts.push_back(message.text);
        return texts;
    }

    RecordingMessageService m_messages;
    QWidget m_parent;
    int32_t m_savedXP = 0;
    int32_t m_savedMe = 0;
    int32_t m_savedPending = 0;
};

}  // namespace

TEST_F(ExcludePageTest, ShowsTheZonesRowsAndTheStoresExtensions) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, "tmp");
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/cache"},
                              {1, ExclusionList::kUserFolder | kZoneDerived, "", "//x/derived"}});
    PutInZone(kOther, {{0, kZoneFolder, "", "/opt/other"}});
    auto page = MakePage();
    EXPECT_EQ(Shown(page.get()), (std::vector<std::string>{"*.tmp | Use", "/opt/other | Do not use",
                                                           "/srv/cache | Use"}));
    EXPECT_TRUE(ctl::GetCheck(page.get(), kSwitchBox));
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->CanDefault(), 0);
}

TEST_F(ExcludePageTest, TheSwitchEnablesTheFiveButtonsAndTheUseColumn) {
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/cache"}});
    PutInZone(kOther, {{1, kZoneFolder, "", "/opt/other"}});
    auto page = MakePage();
    ASSERT_FALSE(ctl::GetCheck(page.get(), kSwitchBox));
    for (int id : {kAddFolders, kAddFiles, kAddExtensions, kDelete, kDeleteAll}) {
        EXPECT_FALSE(ctl::IsEnabled(page.get(), id)) << id;
    }
    EXPECT_TRUE(ctl::IsEnabled(page.get(), kTestPath));
    EXPECT_EQ(Shown(page.get()),
              (std::vector<std::string>{"/opt/other | Use", "/srv/cache | Do not use"}));

    Click(page.get(), kSwitchBox);
    for (int id : {kAddFolders, kAddFiles, kAddExtensions, kDelete, kDeleteAll}) {
        EXPECT_TRUE(ctl::IsEnabled(page.get(), id)) << id;
    }
    EXPECT_EQ(Shown(page.get()),
              (std::vector<std::string>{"/opt/other | Use", "/srv/cache | Use"}));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(ExcludePageTest, TheSystemRestoreBoxMarksThePageChanged) {
    g_bWinXPOrLater = 1;
    auto page = MakePage();
    Click(page.get(), kRestoreBox);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(ExcludePageTest, TickingTheSwitchWithAnEmptyListIsRefused) {
    auto page = MakePage();
    Click(page.get(), kSwitchBox);
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1u);
    EXPECT_EQ(m_messages.messages[0].text.substr(0, 54),
              "You haven't specified the sectors to be excluded from ");
    EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
    Click(page.get(), kSwitchBox);
    EXPECT_EQ(page->Validate(), 0);
}

TEST_F(ExcludePageTest, AddingDmpAndTmpWhenTmpExistsAddsOneRowAndSaysSoOnce) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, "tmp");
    auto page = MakePage();
    const auto driver = TypeAndOk(kExtensionEdit, "dmp/tmp");
    Click(page.get(), kAddExtensions);
    EXPECT_TRUE(driver->Done());
    EXPECT_EQ(Shown(page.get()), (std::vector<std::string>{"*.dmp | Use", "*.tmp | Use"}));
    EXPECT_EQ(MessageTexts(), (std::vector<std::string>{"The items already exist."}));
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(ExcludePageTest, AnotherProductsRowCannotBeDeletedAndStaysThroughDeleteAll) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, "tmp");
    PutInZone(kOther, {{1, kZoneFolder, "", "/opt/other"}});
    auto page = MakePage();
    Select(page.get(), 1);
    Click(page.get(), kDelete);
    ASSERT_EQ(m_messages.messages.size(), 1u);
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
    EXPECT_EQ(Shown(page.get()).size(), 2u);
    EXPECT_EQ(page->IsModified(), 0);

    m_messages.answers = {msg::kIdNo};
    Click(page.get(), kDeleteAll);
    EXPECT_EQ(Shown(page.get()).size(), 2u);
    m_messages.answers = {msg::kIdYes};
    Click(page.get(), kDeleteAll);
    EXPECT_EQ(Shown(page.get()), (std::vector<std::string>{"/opt/other | Use"}));
    EXPECT_EQ(m_messages.messages.back().type & msg::kButtonMask, msg::kYesNo);
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(ExcludePageTest, DeleteWithoutASelectionDoesNothing) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, "tmp");
    auto page = MakePage();
    Click(page.get(), kDelete);
    EXPECT_EQ(Shown(page.get()).size(), 1u);
    Select(page.get(), 0);
    Click(page.get(), kDelete);
    EXPECT_TRUE(Shown(page.get()).empty());
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(ExcludePageTest, AddingAnExistingFileThroughTheFileDialogAddsAFileRow) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Install().Write("big.iso", "x");
    auto page = MakePage();
    const QString file = QString::fromStdString(Install().PathOf("big.iso"));
    DialogDriver driver([&file](QDialog* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        ASSERT_NE(files, nullptr);
        files->selectFile(file);
        static_cast<QDialog*>(files)->accept();
    });
    Click(page.get(), kAddFiles);
    EXPECT_TRUE(driver.Done());
    ASSERT_EQ(page->List().Rows().size(), 1u);
    EXPECT_EQ(page->List().Rows()[0].text, file.toStdString());
    EXPECT_EQ(page->List().Rows()[0].flags, ExclusionList::kUserFile);
}

TEST_F(ExcludePageTest, SavingWritesTheStoreAndTheMonitorsBitsAndTwiceGivesTheSameList) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, "tmp");
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/a"},
                              {1, ExclusionList::kUserFile, "", "/srv/b.bin"}});
    PutInZone(kOther, {{1, kZoneFolder, "", "/opt/other"}});
    auto page = MakePage();
    page->Save();
    const std::vector<ObjectRecord> first = ReadObjectList(CES_Exclude);
    EXPECT_EQ(first, (std::vector<ObjectRecord>{{0, "/srv/a"}, {1, "/srv/b.bin"}}));
    EXPECT_EQ(ReadStoreText(CES_Exclude, CEK_ExcludeText), "tmp");
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions) & kScanExclusions, kScanExclusions);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions) & kScanExclusions, kScanExclusions);
    page->Load();
    page->Save();
    EXPECT_EQ(ReadObjectList(CES_Exclude), first);
}

TEST_F(ExcludePageTest, OnceSavedTheStoreIsTheSourceOfTheUsersRows) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/a"}});
    auto page = MakePage();
    Select(page.get(), 0);
    Click(page.get(), kDelete);
    page->Save();
    page->Load();
    // The zone still holds /srv/a until Apply; the page shows the store.
    EXPECT_EQ(Shown(page.get()), (std::vector<std::string>{}));
    page->Apply();
    EXPECT_TRUE(ReadZone()->empty());
}

TEST_F(ExcludePageTest, ApplyRewritesTheZoneAndLeavesOtherProductsRecords) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    PutInZone(kOther, {{1, kZoneFolder, "", "/opt/other"}});
    auto page = MakePage();
    const auto driver = TypeAndOk(kExtensionEdit, "iso");
    Click(page.get(), kAddExtensions);
    page->Save();
    page->Apply();
    ASSERT_TRUE(ReadZone().has_value());
    const std::vector<ZoneRecord> zone = *ReadZone();
    ASSERT_EQ(zone.size(), 1u);
    EXPECT_EQ(zone[0].owner, kOther);
    EXPECT_EQ(ReadStoreText(CES_Exclude, CEK_ExcludeText), "iso");
}

TEST_F(ExcludePageTest, TheSystemRestoreBoxFollowsTheHostAndTheEdition) {
    SetWord(CES_Macro, CEK_MacroOptions, kRestoreBit | 0x3);
    g_bWinXPOrLater = 1;
    auto shown = MakePage();
    EXPECT_TRUE(ctl::GetCheck(shown.get(), kRestoreBox));
    EXPECT_TRUE(ctl::IsEnabled(shown.get(), kRestoreBox));

    auto master = MakePage(DMF_Master);
    EXPECT_FALSE(ctl::IsShown(master.get(), kRestoreBox));

    g_bWinXPOrLater = 0;
    g_bWinMeOrLater = 0;
    auto older = MakePage();
    EXPECT_FALSE(ctl::IsEnabled(older.get(), kRestoreBox));
    EXPECT_FALSE(ctl::GetCheck(older.get(), kRestoreBox));
    older->Save();
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x3u);

    auto assumed = MakePage(DMF_AssumeNT | DMF_Master);
    EXPECT_TRUE(ctl::IsShown(assumed.get(), kRestoreBox));
    EXPECT_TRUE(ctl::IsEnabled(assumed.get(), kRestoreBox));
}

TEST_F(ExcludePageTest, TestingAPathNamesTheRowThatExcludesIt) {
    SetWord(CES_Exclude, CEK_ExcludeEnable, 1);
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/cache"}});
    auto page = MakePage();
    Select(page.get(), 0);
    QString offered;
    DialogDriver driver([&offered](QDialog* dialog) {
        auto* input = qobject_cast<QInputDialog*>(dialog);
        ASSERT_NE(input, nullptr);
        offered = input->textValue();
        input->setTextValue("/srv/cache/a/b");
        input->accept();
    });
    Click(page.get(), kTestPath);
    EXPECT_EQ(offered, "/srv/cache");
    ASSERT_EQ(m_messages.messages.size(), 1u);
    EXPECT_EQ(m_messages.messages[0].caption, "Test a path");
    EXPECT_EQ(m_messages.messages[0].text,
              "\"/srv/cache/a/b\" is excluded from scans by the folder \"/srv/cache\".\n\n"
              "This row belongs to this product.");
}

TEST_F(ExcludePageTest, TestingAPathThatNothingExcludesSaysSo) {
    auto page = MakePage();
    DialogDriver driver([](QDialog* dialog) {
        auto* input = qobject_cast<QInputDialog*>(dialog);
        ASSERT_NE(input, nullptr);
        input->setTextValue("/home/user/a.txt");
        input->accept();
    });
    Click(page.get(), kTestPath);
    ASSERT_EQ(m_messages.messages.size(), 1u);
    EXPECT_EQ(m_messages.messages[0].text, "\"/home/user/a.txt\" is not excluded from scans.");
}
