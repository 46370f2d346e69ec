// The "E-mail Scan/Monitoring" page against the built Q9SSCtrl: the rows an
// edition leaves out or moves, and what Load, Save, Default and Apply do with
// the mail switch word and the registrations.

#include <array>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/DialogControls.h"
#include "options/StoreKeys.h"
#include "pages/scan/MailSwitchPage.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"

namespace {

constexpr int kPop3 = 1009;
constexpr int kOutlookScan = 1121;
constexpr int kOutlookMonitor = 1070;

struct MailBox {
    int id;
    int32_t code;
    uint32_t bit;
};

// In the template's order.
constexpr std::array<MailBox, 3> kMailBoxes = {{
    {kPop3, 64, 0x1000},
    {kOutlookScan, 176, 0x4000},
    {kOutlookMonitor, 192, 0x8000},
}};

class MailSwitchPageTest : public SwitchPageTest {
protected:
    CMailSwitchPage* Make(uint32_t flags = 0) { return MakePage<CMailSwitchPage>(flags); }

    std::vector<std::string> SaveAndApply(CMailSwitchPage* page) {
        page->Save();
        ClearJournal();
        page->Apply();
        return Journal();
    }

    // The positions of every control, in creation order.
    static std::vector<QPoint> Positions(const CMailSwitchPage* page) {
        std::vector<QPoint> positions;
        for (const QWidget* control : ctl::Children(page)) positions.push_back(control->pos());
        return positions;
    }
};

}  // namespace

// --- First display ---------------------------------------------------------

TEST_F(MailSwitchPageTest, TemplateHasEveryBoxWithItsCaptionAndADescriptionAfterIt) {
    const std::array<const char*, 3> captions = {"POP3 Monitoring", "Outlook Scan",
                                                 "Outlook Monitoring"};
    CMailSwitchPage* page = Make();
    for (size_t i = 0; i < kMailBoxes.size(); ++i) {
        EXPECT_EQ(ctl::GetText(page, kMailBoxes[i].id), captions[i]);
        QWidget* description = ControlAfter(page, kMailBoxes[i].id);
        ASSERT_NE(description, nullptr) << kMailBoxes[i].id;
        EXPECT_EQ(ctl::IdOf(description), ctl::kNoId) << kMailBoxes[i].id;
    }
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(MailSwitchPageTest, NormalEditionShowsEveryRowEnabled) {
    CMailSwitchPage* page = Make();
    for (const MailBox& box : kMailBoxes) {
        EXPECT_TRUE(IsShown(page, box.id)) << box.id;
        EXPECT_TRUE(IsEnabled(page, box.id)) << box.id;
        EXPECT_FALSE(ControlAfter(page, box.id)->isHidden()) << box.id;
    }
    const std::vector<std::string> expected = {"64\t-\t1", "176\t-\t1", "176\t-\t1"};
    EXPECT_EQ(CallsOf("Q9SSCtrl_CanBeRegister"), expected);
}

TEST_F(MailSwitchPageTest, WithoutPop3ItsRowIsHiddenAndTheOutlookRowsMoveUpIntoItsPlace) {
    const std::vector<QPoint> before = Positions(Make());
    const QPoint pop3 = PositionOf(Make(), kPop3);
    const QPoint distance = pop3 - PositionOf(Make(), kOutlookScan);
    ASSERT_LT(distance.y(), 0);

    CMailSwitchPage* page = Make(DMF_RemovePopMon);
    EXPECT_FALSE(IsShown(page, kPop3));
    EXPECT_TRUE(ControlAfter(page, kPop3)->isHidden());
    EXPECT_EQ(PositionOf(page, kOutlookScan), pop3);
    const std::vector<QPoint> after = Positions(page);
    const std::vector<QWidget*> children = ctl::Children(page);
    ASSERT_EQ(after.size(), before.size());
    bool moved = false;
    for (size_t i = 0; i < children.size(); ++i) {
        if (ctl::IdOf(children[i]) == kOutlookScan) moved = true;
        EXPECT_EQ(after[i], moved ? before[i] + distance : before[i]) << i;
    }
    for (int id : {kOutlookScan, kOutlookMonitor}) {
        EXPECT_TRUE(IsShown(page, id)) << id;
        EXPECT_FALSE(ControlAfter(page, id)->isHidden()) << id;
    }
}

TEST_F(MailSwitchPageTest, WithoutOutlookTheOutlookRowsAreHidden) {
    const std::vector<QPoint> before = Positions(Make());
    CMailSwitchPage* page = Make(DMF_RemoveOutlookMon);
    EXPECT_TRUE(IsShown(page, kPop3));
    EXPECT_FALSE(ControlAfter(page, kPop3)->isHidden());
    bool after = false;
    for (QWidget* control : ctl::Children(page)) {
        if (ctl::IdOf(control) == kOutlookScan) after = true;
        if (after) {
            EXPECT_TRUE(control->isHidden()) << ctl::IdOf(control);
        }
    }
    EXPECT_TRUE(after);
    EXPECT_EQ(Positions(page), before);
}

TEST_F(MailSwitchPageTest, WithoutPop3TheOutlookRowsStayEvenWithoutOutlook) {
    CMailSwitchPage* page = Make(DMF_RemovePopMon | DMF_RemoveOutlookMon);
    EXPECT_FALSE(IsShown(page, kPop3));
    EXPECT_TRUE(IsShown(page, kOutlookScan));
    EXPECT_TRUE(IsShown(page, kOutlookMonitor));
}

TEST_F(MailSwitchPageTest, BothOutlookRowsFollowTheOutlookScansTest) {
    SetUnregistrable({176});
    CMailSwitchPage* page = Make();
    EXPECT_TRUE(IsEnabled(page, kPop3));
    EXPECT_FALSE(IsEnabled(page, kOutlookScan));
    EXPECT_FALSE(IsEnabled(page, kOutlookMonitor));
    delete page;

    SetUnregistrable({192});
    page = Make();
    EXPECT_TRUE(IsEnabled(page, kOutlookScan));
    EXPECT_TRUE(IsEnabled(page, kOutlookMonitor));
}

TEST_F(MailSwitchPageTest, Pop3BoxIsDisabledWhenPop3CannotRun) {
    SetUnregistrable({64});
    CMailSwitchPage* page = Make();
    EXPECT_FALSE(IsEnabled(page, kPop3));
    EXPECT_TRUE(IsEnabled(page, kOutlookScan));
    EXPECT_TRUE(IsEnabled(page, kOutlookMonitor));
}

// --- Load -------------------------------------------------------------------

TEST_F(MailSwitchPageTest, LoadChecksTheRegisteredFunctions) {
    SetRegistered({64, 192});
    CMailSwitchPage* page = Make();
    EXPECT_TRUE(IsChecked(page, kPop3));
    EXPECT_FALSE(IsChecked(page, kOutlookScan));
    EXPECT_TRUE(IsChecked(page, kOutlookMonitor));
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(MailSwitchPageTest, LoadLeavesDisabledAndHiddenBoxesAlone) {
    SetRegistered({64, 176, 192});
    SetUnregistrable({176});
    CMailSwitchPage* page = Make(DMF_RemovePopMon);
    EXPECT_FALSE(IsChecked(page, kPop3));
    EXPECT_FALSE(IsChecked(page, kOutlookScan));
    EXPECT_FALSE(IsChecked(page, kOutlookMonitor));
}

// --- Clicks and Apply -------------------------------------------------------

TEST_F(MailSwitchPageTest, ClickSetsModifiedAndNeedApplyWithoutAQuestion) {
    for (const MailBox& box : kMailBoxes) {
        CMailSwitchPage* page = Make();
        Click(page, box.id);
        EXPECT_TRUE(IsChecked(page, box.id)) << box.id;
        EXPECT_EQ(page->IsModified(), 1) << box.id;
        EXPECT_EQ(page->NeedApply(), 1) << box.id;
        delete page;
    }
    EXPECT_TRUE(m_messages.messages.empty());
}

TEST_F(MailSwitchPageTest, ApplySwitchesOnlyTheClickedFunctions) {
    for (const MailBox& box : kMailBoxes) {
        CMailSwitchPage* page = Make();
        Click(page, box.id);
        EXPECT_EQ(SaveAndApply(page), std::vector<std::string>{Registered(box.code)}) << box.id;
        delete page;
    }
}

TEST_F(MailSwitchPageTest, ApplySwitchesInOrderByTheStoredWord) {
    CMailSwitchPage* page = Make();
    for (const MailBox& box : kMailBoxes) Click(page, box.id);
    page->Save();
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x8000);
    ClearJournal();
    page->Apply();
    const std::vector<std::string> expected = {Unregistered(64), Unregistered(176),
                                               Registered(192)};
    EXPECT_EQ(Journal(), expected);
}

TEST_F(MailSwitchPageTest, UntouchedPageAppliesNothing) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xF000);
    CMailSwitchPage* page = Make();
    ClearJournal();
    page->Apply();
    EXPECT_TRUE(Journal().empty());
}

TEST_F(MailSwitchPageTest, ApplyLeavesPop3AloneWithoutPop3) {
    CMailSwitchPage* page = Make(DMF_RemovePopMon);
    for (const MailBox& box : kMailBoxes) Click(page, box.id);
    const std::vector<std::string> expected = {Registered(176), Registered(192)};
    EXPECT_EQ(SaveAndApply(page), expected);
}

TEST_F(MailSwitchPageTest, ApplyLeavesOutlookAloneWithoutOutlook) {
    CMailSwitchPage* page = Make(DMF_RemoveOutlookMon);
    for (const MailBox& box : kMailBoxes) Click(page, box.id);
    EXPECT_EQ(SaveAndApply(page), std::vector<std::string>{Registered(64)});
}

// --- Save -------------------------------------------------------------------

TEST_F(MailSwitchPageTest, SaveWritesTheBoxesIntoTheWordAndKeepsItsOtherBits) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x12342000 | 0x4000);
    SetRegistered({64, 192});
    CMailSwitchPage* page = Make();
    page->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x12342000U | 0x1000U | 0x8000U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0xFFFFFFFFU);
    EXPECT_EQ(g_Siblings.GetPending(), 0xD000U);
    EXPECT_EQ(page->NeedApply(), 1);
}

// The table of who writes the mask words rules: in the light edition the
// page leaves the mail mask as it stands.
TEST_F(MailSwitchPageTest, SaveWritesTheMaskOfTheEdition) {
    SetWord(CES_Switch, CEK_Switch_ScanMask, 0x77);
    const std::array<std::pair<uint32_t, uint32_t>, 5> masks = {{
        {DMF_RemovePopMon, 0xC000},
        {DMF_RemoveOutlookMon, 0x1000},
        {DMF_RemovePopMon | DMF_RemoveOutlookMon, 0xC000},
        {DMF_IsLight, 0x77},
        {DMF_Master, 0xFFFFFFFF},
    }};
    for (const auto& [flags, mask] : masks) {
        SetWord(CES_Switch, CEK_Switch_ScanMailMask, 0x77);
        CMailSwitchPage* page = Make(flags);
        page->Save();
        EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), mask) << flags;
        delete page;
    }
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMask), 0x77U);
}

TEST_F(MailSwitchPageTest, CoveredPagePassesValidationAndSavesNothing) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x5000);
    SetWord(CES_Switch, CEK_Switch_ScanMailMask, 0x77);
    CMailSwitchPage* page = Make();
    page->CoverWithNotice("notice");
    EXPECT_EQ(page->Validate(), 0);
    page->Save();
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x5000U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMailMask), 0x77U);
    EXPECT_EQ(g_Siblings.GetPending(), 0U);
}

// --- Default ----------------------------------------------------------------

TEST_F(MailSwitchPageTest, DefaultShowsTheDefaultWordAndCountsNoClick) {
    WriteDefaults("[CES_Switch]\nCEK_Switch_ScanMail=dword:00005000\n");
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x8000);
    SetRegistered({192});
    CMailSwitchPage* page = Make();
    page->OnDefault();
    EXPECT_TRUE(IsChecked(page, kPop3));
    EXPECT_TRUE(IsChecked(page, kOutlookScan));
    EXPECT_FALSE(IsChecked(page, kOutlookMonitor));
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x8000U);
    EXPECT_TRUE(SaveAndApply(page).empty());
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_ScanMail), 0x5000U);
}
