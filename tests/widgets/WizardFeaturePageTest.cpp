// The configuration wizard's step of the functions against the built
// Q9SSCtrl: which boxes each edition shows, hides, moves and disables, what
// Load takes from the registrations, what Save writes into the switch words
// and their masks, the two questions, the screen saver's list, and the two
// links.

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/HyperLink.h"
#include "framework/DialogControls.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/NestedPageShell.h"
#include "pages/easy/WizardFeaturePage.h"
#include "pages/targets/ScanListDlg.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"

namespace wizard_feature_page_test {
namespace {

constexpr int kMonitor = 1005;
constexpr int kInternet = 1006;
constexpr int kMessenger = 1007;
constexpr int kStartup = 1008;
constexpr int kPop3 = 1009;
constexpr int kMore = 1051;
constexpr int kOutlook = 1069;
constexpr int kScreenSaver = 1033;
constexpr int kList = 1077;
constexpr int kOffice = 1011;
constexpr int kExplorer = 1035;

struct Box {
    int id;
    const char* caption;
    int32_t code;   // the function whose registration Load shows; -1 none
    uint32_t bits;  // what the box sets
    bool mail;      // in CEK_Switch_ScanMail, else CEK_Switch_Scan
};

// In the template's order.
constexpr std::array<Box, 9> kBoxes = {{
    {kMonitor, "System Monitoring", 32, 0x1, false},
    {kInternet, "Internet Monitoring ", 48, 0x2, false},
    {kMessenger, "Instant Messenger Monitoring", 144, 0x40, false},
    {kStartup, "Startup Program Monitoring ", 160, 0x80, false},
    {kPop3, "POP3 Monitoring", 64, 0x1000, true},
    {kOutlook, "Outlook Scan/Monitoring", 176, 0xC000, true},
    {kScreenSaver, "Screen Saver Scan", 16, 0x8, false},
    {kOffice, "Office Guard", -1, 0x4, false},
    {kExplorer, "Explorer Scan", -1, 0x30, false},
}};

const std::string kOfficeQuestion =
    "If Office Guard is selected, you may have to restart the system when files related to "
    "Office Guard are patched.\nDo you want to select the Office Guard?";
const std::string kExplorerQuestion =
    "If Explorer Scan is selected, you may have to restart the system when files related to "
    "Explorer Scan are patched.\nDo you want to select the Explorer Scan?";

// A nested dialog that records what the page asks of it.
struct NestedLog {
    int made = 0;
    PageId id = PageId::kNone;
    uint32_t flags = 0;
    QWidget* parent = nullptr;
    int runs = 0;
    int saves = 0;
    int applies = 0;
};

class RecordingNestedShell : public NestedPageShell {
public:
    explicit RecordingNestedShell(NestedLog* log) : m_log(log) {}
    int32_t Run() override { return ++m_log->runs, 1; }
    void SavePage() override { ++m_log->saves; }
    void ApplyPage() override { ++m_log->applies; }

private:
    NestedLog* m_log;
};

class WizardFeaturePageTest : public SwitchPageTest {
protected:
    WizardFeaturePageTest() {
        m_previousMaker = NestedPageShell::Install(
            [this](PageId id, uint32_t flags, QWidget* parent) -> std::unique_ptr<NestedPageShell> {
                ++m_nested.made;
                m_nested.id = id;
                m_nested.flags = flags;
                m_nested.parent = parent;
                return std::make_unique<RecordingNestedShell>(&m_nested);
            });
    }
    ~WizardFeaturePageTest() override { NestedPageShell::Install(std::move(m_previousMaker)); }

    CWizardFeaturePage* Make(uint32_t flags = 0) { return MakePage<CWizardFeaturePage>(flags); }

    static uint32_t ScanWord() { return Word(CES_Switch, CEK_Switch_Scan); }
    static uint32_t ScanMask() { return Word(CES_Switch, CEK_Switch_ScanMask); }
    static uint32_t MailWord() { return Word(CES_Switch, CEK_Switch_ScanMail); }
    static uint32_t MailMask() { return Word(CES_Switch, CEK_Switch_ScanMailMask); }

    // The function codes of the calls of one entry point, in order.
    std::vector<int32_t> CodesOf(const std::string& entryPoint) const {
        std::vector<int32_t> codes;
        for (const std::string& call : CallsOf(entryPoint))
            codes.push_back(std::stoi(call.substr(0, call.find('\t'))));
        return codes;
    }

    static void ClickLink(CSettingsPage* page, int id) {
        QTest::mouseClick(ctl::Find(page, id), Qt::LeftButton);
    }

    static int Top(const CSettingsPage* page, int id) { return PositionOf(page, id).y(); }

    // Answers the list dialog the page opens: deletes every target, then OK.
    static void EmptyTheListWhenItOpens() {
        QTimer::singleShot(0, [] {
            auto* dialog = dynamic_cast<CScanListDlg*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            qobject_cast<QAbstractButton*>(ctl::Find(dialog, 1018))->click();
            qobject_cast<QAbstractButton*>(ctl::Find(dialog, 1))->click();
        });
    }

    NestedLog m_nested;
    NestedPageShell::Maker m_previousMaker;
};

// --- The template --------------------------------------------------------------

TEST_F(WizardFeaturePageTest, EveryBoxHasItsCaptionAndADescriptionAfterIt) {
    CWizardFeaturePage* page = Make();
    for (const Box& box : kBoxes) {
        EXPECT_EQ(ctl::GetText(page, box.id), box.caption) << box.id;
        QWidget* description = ControlAfter(page, box.id);
        ASSERT_NE(description, nullptr) << box.id;
        EXPECT_EQ(ctl::IdOf(description), ctl::kNoId) << box.id;
        EXPECT_GT(description->y(), Top(page, box.id)) << box.id;
    }
}

TEST_F(WizardFeaturePageTest, TheTwoLinksReportTheirClicksToThePage) {
    CWizardFeaturePage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kMore), "more...");
    EXPECT_EQ(ctl::GetText(page, kList), "Set List to Scan");
    for (int id : {kMore, kList}) {
        auto* link = dynamic_cast<CHyperLink*>(ctl::Find(page, id));
        ASSERT_NE(link, nullptr) << id;
        EXPECT_TRUE(link->ReportsClick()) << id;
    }
}

TEST_F(WizardFeaturePageTest, ControlsStandInTheOrderTheRangesWalk) {
    // 0: a description without an id. "more..." follows the POP3 row, "Set
    // List to Scan" the screen saver's.
    const std::vector<int> expected = {
        kMonitor, 0, kInternet,    0, kMessenger, 0,       kStartup, 0,         kPop3, 0, kMore,
        kOutlook, 0, kScreenSaver, 0, kList,      kOffice, 0,        kExplorer, 0};
    std::vector<int> ids;
    for (const QWidget* control : ctl::Children(Make())) {
        const int id = ctl::IdOf(control);
        ids.push_back(id == ctl::kNoId ? 0 : id);
    }
    EXPECT_EQ(ids, expected);
}

// --- Start-up --------------------------------------------------------------------

TEST_F(WizardFeaturePageTest, NormalEditionShowsAndEnablesEveryBox) {
    CWizardFeaturePage* page = Make();
    for (const Box& box : kBoxes) {
        EXPECT_TRUE(IsShown(page, box.id)) << box.id;
        EXPECT_TRUE(IsEnabled(page, box.id)) << box.id;
    }
    EXPECT_TRUE(IsShown(page, kMore));
    EXPECT_TRUE(IsShown(page, kList));
}

TEST_F(WizardFeaturePageTest, StartUpAsksWhichFunctionsCanRunInOrder) {
    Make();
    EXPECT_EQ(CodesOf("Q9SSCtrl_CanBeRegister"),
              (std::vector<int32_t>{48, 96, 0, 144, 160, 64, 176}));
}

TEST_F(WizardFeaturePageTest, ABoxOfAFunctionThatCannotRunIsDisabled) {
    const std::array<std::pair<int, int32_t>, 7> boxes = {{{kInternet, 48},
                                                           {kOffice, 96},
                                                           {kExplorer, 0},
                                                           {kMessenger, 144},
                                                           {kStartup, 160},
                                                           {kPop3, 64},
                                                           {kOutlook, 176}}};
    for (const auto& [id, code] : boxes) {
        SetUnregistrable({code});
        CWizardFeaturePage* page = Make();
        EXPECT_FALSE(IsEnabled(page, id)) << id;
        for (const Box& other : kBoxes) {
            if (other.id != id) {
                EXPECT_TRUE(IsEnabled(page, other.id)) << id << " " << other.id;
            }
        }
    }
}

TEST_F(WizardFeaturePageTest, SystemMonitoringAndScreenSaverAreNeverDisabled) {
    SetUnregistrable({32, 16});
    CWizardFeaturePage* page = Make();
    EXPECT_TRUE(IsEnabled(page, kMonitor));
    EXPECT_TRUE(IsEnabled(page, kScreenSaver));
}

TEST_F(WizardFeaturePageTest, LightEditionShowsSystemMonitoringAlone) {
    CWizardFeaturePage* page = Make(DMF_IsLight);
    EXPECT_TRUE(IsShown(page, kMonitor));
    EXPECT_TRUE(ControlAfter(page, kMonitor)->isVisibleTo(page));
    for (const Box& box : kBoxes) {
        if (box.id != kMonitor) {
            EXPECT_FALSE(IsShown(page, box.id)) << box.id;
        }
    }
    EXPECT_FALSE(IsShown(page, kMore));
    EXPECT_FALSE(IsShown(page, kList));
    EXPECT_TRUE(CodesOf("Q9SSCtrl_CanBeRegister").empty());
}

TEST_F(WizardFeaturePageTest, WithoutInternetMonitoringItsRowIsHiddenAndNotAsked) {
    CWizardFeaturePage* page = Make(DMF_RemoveInternetMon);
    EXPECT_FALSE(IsShown(page, kInternet));
    EXPECT_TRUE(ControlAfter(page, kInternet)->isHidden());
    EXPECT_TRUE(IsShown(page, kMessenger));
    EXPECT_EQ(CodesOf("Q9SSCtrl_CanBeRegister"), (std::vector<int32_t>{96, 0, 144, 160, 64, 176}));
}

TEST_F(WizardFeaturePageTest, MasterEditionHidesMessengerAndMailRowsAndClosesTheGaps) {
    const CWizardFeaturePage* normal = Make();
    const int messengerTop = Top(normal, kMessenger);
    const int startupTop = Top(normal, kStartup);
    const int pop3Top = Top(normal, kPop3);
    const int screenSaverTop = Top(normal, kScreenSaver);
    const int officeTop = Top(normal, kOffice);

    CWizardFeaturePage* page = Make(DMF_Master);
    for (int id : {kMessenger, kPop3, kMore, kOutlook}) EXPECT_FALSE(IsShown(page, id)) << id;
    EXPECT_TRUE(ControlAfter(page, kMessenger)->isHidden());
    EXPECT_TRUE(ControlAfter(page, kPop3)->isHidden());
    EXPECT_TRUE(ControlAfter(page, kOutlook)->isHidden());
    // Startup takes the messenger's place; the lower block follows it.
    EXPECT_EQ(Top(page, kStartup), messengerTop);
    EXPECT_EQ(Top(page, kScreenSaver), startupTop);
    EXPECT_EQ(Top(page, kOffice), pop3Top);
    EXPECT_EQ(Top(page, kList), Top(page, kScreenSaver));
    EXPECT_EQ(Top(page, kExplorer) - Top(page, kOffice), officeTop - screenSaverTop);
    for (int id : {kStartup, kScreenSaver, kOffice, kExplorer})
        EXPECT_TRUE(IsShown(page, id)) << id;
}

TEST_F(WizardFeaturePageTest, WithoutPop3AndOutlookTheirRowsGoAndTheLowerBlockMovesUp) {
    const CWizardFeaturePage* normal = Make();
    const int pop3Top = Top(normal, kPop3);
    const int outlookTop = Top(normal, kOutlook);
    CWizardFeaturePage* page = Make(DMF_RemovePopMon | DMF_RemoveOutlookMon);
    for (int id : {kPop3, kMore, kOutlook}) EXPECT_FALSE(IsShown(page, id)) << id;
    EXPECT_TRUE(ControlAfter(page, kOutlook)->isHidden());
    EXPECT_EQ(Top(page, kScreenSaver), pop3Top);
    EXPECT_EQ(Top(page, kOffice), outlookTop);
    EXPECT_TRUE(IsShown(page, kMessenger));
}

TEST_F(WizardFeaturePageTest, WithoutPop3ItsRowAndMoreGoAndNothingMoves) {
    const CWizardFeaturePage* normal = Make();
    const int screenSaverTop = Top(normal, kScreenSaver);
    CWizardFeaturePage* page = Make(DMF_RemovePopMon);
    EXPECT_FALSE(IsShown(page, kPop3));
    EXPECT_TRUE(ControlAfter(page, kPop3)->isHidden());
    EXPECT_FALSE(IsShown(page, kMore));
    EXPECT_TRUE(IsShown(page, kOutlook));
    EXPECT_EQ(Top(page, kScreenSaver), screenSaverTop);
}

TEST_F(WizardFeaturePageTest, WithoutOutlookItsRowGoesAndMoreStays) {
    CWizardFeaturePage* page = Make(DMF_RemoveOutlookMon);
    EXPECT_FALSE(IsShown(page, kOutlook));
    EXPECT_TRUE(ControlAfter(page, kOutlook)->isHidden());
    EXPECT_TRUE(IsShown(page, kPop3));
    EXPECT_TRUE(IsShown(page, kMore));
    EXPECT_TRUE(IsShown(page, kScreenSaver));
}

// --- Load ----------------------------------------------------------------------------

TEST_F(WizardFeaturePageTest, EachBoxShowsTheRegistrationOfItsFirstFunction) {
    for (const Box& box : kBoxes) {
        if (box.code < 0) continue;
        SetRegistered({box.code});
        CWizardFeaturePage* page = Make();
        for (const Box& other : kBoxes)
            EXPECT_EQ(IsChecked(page, other.id), other.id == box.id) << box.id << " " << other.id;
    }
}

TEST_F(WizardFeaturePageTest, OutlookFollowsItsScanNotItsMonitoring) {
    SetRegistered({192});
    EXPECT_FALSE(IsChecked(Make(), kOutlook));
}

TEST_F(WizardFeaturePageTest, OfficeGuardAndExplorerScanAreNotLoadedFromTheRegistrations) {
    SetRegistered({96, 0, 1});
    CWizardFeaturePage* page = Make();
    EXPECT_FALSE(IsChecked(page, kOffice));
    EXPECT_FALSE(IsChecked(page, kExplorer));
    m_messages.answers = {msg::kIdYes};
    Click(page, kExplorer);
    page->Load();
    EXPECT_TRUE(IsChecked(page, kExplorer));
}

TEST_F(WizardFeaturePageTest, ABoxThatIsDisabledOrHiddenIsNotLoaded) {
    SetUnregistrable({48});
    SetRegistered({48, 144, 64, 176});
    ClearJournal();
    CWizardFeaturePage* page = Make(DMF_Master);
    EXPECT_FALSE(IsChecked(page, kInternet));
    EXPECT_FALSE(IsChecked(page, kMessenger));
    EXPECT_FALSE(IsChecked(page, kPop3));
    EXPECT_FALSE(IsChecked(page, kOutlook));
    EXPECT_EQ(CodesOf("Q9SSCtrl_IsRegistered"), (std::vector<int32_t>{32, 160, 16}));
}

TEST_F(WizardFeaturePageTest, MasterEditionClearsOfficeGuardAndExplorerScanAtEveryLoad) {
    CWizardFeaturePage* page = Make(DMF_Master);
    m_messages.answers = {msg::kIdYes};
    Click(page, kExplorer);
    ASSERT_TRUE(IsChecked(page, kExplorer));
    ctl::SetCheck(page, kOffice, 1);
    page->Load();
    EXPECT_FALSE(IsChecked(page, kExplorer));
    EXPECT_FALSE(IsChecked(page, kOffice));
}

// --- The two questions -------------------------------------------------------------

TEST_F(WizardFeaturePageTest, ExplorerScanAsksAndYesKeepsIt) {
    CWizardFeaturePage* page = Make();
    m_messages.answers = {msg::kIdYes};
    Click(page, kExplorer);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kExplorerQuestion);
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
    EXPECT_EQ(m_messages.messages[0].type, 68U);
    EXPECT_TRUE(IsChecked(page, kExplorer));
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(WizardFeaturePageTest, ExplorerScanAsksAndNoClearsIt) {
    CWizardFeaturePage* page = Make();
    m_messages.answers = {msg::kIdNo};
    Click(page, kExplorer);
    EXPECT_EQ(m_messages.messages.size(), 1U);
    EXPECT_FALSE(IsChecked(page, kExplorer));
}

TEST_F(WizardFeaturePageTest, OfficeGuardsBoxHasOnlyOkAndAlwaysEndsCleared) {
    CWizardFeaturePage* page = Make();
    Click(page, kOffice);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kOfficeQuestion);
    EXPECT_EQ(m_messages.messages[0].caption, "Information");
    EXPECT_EQ(m_messages.messages[0].type, 64U);
    EXPECT_FALSE(IsChecked(page, kOffice));
    Click(page, kOffice);
    EXPECT_EQ(m_messages.messages.size(), 2U);
    EXPECT_FALSE(IsChecked(page, kOffice));
}

TEST_F(WizardFeaturePageTest, ClearingABoxAsksNothing) {
    CWizardFeaturePage* page = Make();
    m_messages.answers = {msg::kIdYes};
    Click(page, kExplorer);
    Click(page, kExplorer);
    EXPECT_EQ(m_messages.messages.size(), 1U);
    EXPECT_FALSE(IsChecked(page, kExplorer));
}

// --- Save ------------------------------------------------------------------------------

TEST_F(WizardFeaturePageTest, EachBoxSetsAndClearsItsBitsAndKeepsTheOthers) {
    for (const Box& box : kBoxes) {
        for (bool on : {true, false}) {
            // The words start opposite to the box, the other boxes stand
            // opposite to it too: only the box's bits come out its way.
            const uint32_t start = on ? 0 : 0xFFFFFFFF;
            SetWord(CES_Switch, CEK_Switch_Scan, start);
            SetWord(CES_Switch, CEK_Switch_ScanMail, start);
            CWizardFeaturePage* page = Make();
            for (const Box& other : kBoxes) ctl::SetCheck(page, other.id, on ? 0 : 1);
            ctl::SetCheck(page, box.id, on ? 1 : 0);
            page->Save();
            const uint32_t scanBits = box.mail ? 0 : box.bits;
            const uint32_t mailBits = box.mail ? box.bits : 0;
            EXPECT_EQ(ScanWord(), on ? scanBits : ~scanBits) << box.id << " " << on;
            EXPECT_EQ(MailWord(), on ? mailBits : ~mailBits) << box.id << " " << on;
        }
    }
}

TEST_F(WizardFeaturePageTest, NormalEditionWritesEveryMaskWholeAndTheGeneralBits) {
    SetAllSwitchWords(0);
    SetWord(CES_Switch, CEK_Switch_General, 0x4);
    CWizardFeaturePage* page = Make();
    page->Save();
    EXPECT_EQ(ScanMask(), 0xFFFFFFFFU);
    EXPECT_EQ(MailMask(), 0xFFFFFFFFU);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0x300004U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0xFFFFFFFFU);
}

TEST_F(WizardFeaturePageTest, LightEditionWritesSystemMonitoringAloneAndNoMail) {
    SetAllSwitchWords(0xFFFFFFFF);
    for (uint32_t section : {CES_Internet, CES_Messenger, CES_Startup, CES_SystemMonitor})
        SetWord(section, CEK_ScanOptions, 0x10010);
    CWizardFeaturePage* page = Make(DMF_IsLight);
    ctl::SetCheck(page, kMonitor, 0);
    page->Save();
    EXPECT_EQ(ScanWord(), 1U);
    EXPECT_EQ(ScanMask(), 1U);
    EXPECT_EQ(MailWord(), 0U);
    EXPECT_EQ(MailMask(), 0U);
    for (uint32_t section : {CES_Internet, CES_Messenger, CES_Startup})
        EXPECT_EQ(Word(section, CEK_ScanOptions), 0x10U) << section;
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions), 0x10010U);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_General), 0xFFFFFFFFU);
    EXPECT_EQ(Word(CES_Switch, CEK_Switch_GeneralMask), 0xFFFFFFFFU);
}

TEST_F(WizardFeaturePageTest, WithoutInternetMonitoringItsBitAndMaskBitGo) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x2);
    SetWord(CES_Internet, CEK_ScanOptions, 0x10010);
    SetWord(CES_Messenger, CEK_ScanOptions, 0x10010);
    CWizardFeaturePage* page = Make(DMF_RemoveInternetMon);
    page->Save();
    EXPECT_EQ(ScanWord() & 0x2U, 0U);
    EXPECT_EQ(ScanMask(), 0xFFFFFFFDU);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions), 0x10U);
    EXPECT_EQ(Word(CES_Messenger, CEK_ScanOptions), 0x10010U);
    EXPECT_EQ(MailMask(), 0xFFFFFFFFU);
}

TEST_F(WizardFeaturePageTest, WithInternetMonitoringItsMonitorKeepsItsBit) {
    SetWord(CES_Internet, CEK_ScanOptions, 0x10010);
    Make()->Save();
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions), 0x10010U);
}

TEST_F(WizardFeaturePageTest, WithoutPop3ItsBitLeavesWordAndMask) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0x3000);
    CWizardFeaturePage* page = Make(DMF_RemovePopMon);
    ctl::SetCheck(page, kOutlook, 1);
    page->Save();
    EXPECT_EQ(MailWord(), 0xE000U);
    EXPECT_EQ(MailMask(), 0xFFFFEFFFU);
}

TEST_F(WizardFeaturePageTest, WithoutOutlookItsBitsLeaveWordAndMask) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xE000);
    CWizardFeaturePage* page = Make(DMF_RemoveOutlookMon);
    ctl::SetCheck(page, kPop3, 1);
    page->Save();
    EXPECT_EQ(MailWord(), 0x3000U);
    EXPECT_EQ(MailMask(), 0xFFFF3FFFU);
}

TEST_F(WizardFeaturePageTest, WithoutBothMailFunctionsNeitherIsLeft) {
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xF000);
    CWizardFeaturePage* page = Make(DMF_RemovePopMon | DMF_RemoveOutlookMon);
    page->Save();
    EXPECT_EQ(MailWord(), 0x2000U);
    EXPECT_EQ(MailMask(), 0xFFFF2FFFU);
}

TEST_F(WizardFeaturePageTest, MasterEditionSavesOfficeGuardAndExplorerScanOff) {
    SetWord(CES_Switch, CEK_Switch_Scan, 0x34);
    SetWord(CES_Switch, CEK_Switch_ScanMail, 0xD000);
    CWizardFeaturePage* page = Make(DMF_Master);
    page->Save();
    EXPECT_EQ(ScanWord() & 0x34U, 0U);
    // The hidden mail boxes were not loaded: their functions are saved off.
    EXPECT_EQ(MailWord(), 0U);
    EXPECT_EQ(MailMask(), 0xFFFFFFFFU);
}

TEST_F(WizardFeaturePageTest, SavedChoicesAreWhatTheStepShowsWhenEnteredAgain) {
    SetRegistered({32, 160});
    CWizardFeaturePage* page = Make();
    Click(page, kMonitor);
    Click(page, kInternet);
    page->Save();
    page->Load();
    EXPECT_FALSE(IsChecked(page, kMonitor));
    EXPECT_TRUE(IsChecked(page, kInternet));
    EXPECT_TRUE(IsChecked(page, kStartup));
}

// --- The screen saver's list ------------------------------------------------------------

TEST_F(WizardFeaturePageTest, AnUnchangedListIsNotRewritten) {
    WriteObjectList(CES_ScreenSaver, {{0, "/home/a"}, {0, "/srv/b"}});
    CWizardFeaturePage* page = Make();
    ASSERT_EQ(page->Targets().size(), 2U);
    // Changed by someone else after the page read it: Save leaves it so.
    WriteObjectList(CES_ScreenSaver, {{0, "/other"}});
    page->Save();
    const std::vector<ObjectRecord> records = ReadObjectList(CES_ScreenSaver);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].text, "/other");
}

TEST_F(WizardFeaturePageTest, AListChangedInTheDialogIsRewrittenWithTheProfileKeysKept) {
    WriteObjectList(CES_ScreenSaver, {{0, "/home/a"}, {0, "/srv/b"}});
    SetWord(CES_ScreenSaver, CEK_ScanOptions, 0x2680);
    SetWord(CES_ScreenSaver, CEK_ScanArchive, 3);
    SetWord(CES_ScreenSaver, CEK_ScanArchiveKinds, 0x7);
    SetWord(CES_ScreenSaver, CEK_ScanPolicy, 0x121);
    CWizardFeaturePage* page = Make();
    EmptyTheListWhenItOpens();
    ClickLink(page, kList);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver).size(), 2U);
    page->Save();
    // A list emptied by the user stands for every local hard drive.
    const std::vector<ObjectRecord> records = ReadObjectList(CES_ScreenSaver);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].kind, kTargetAllLocalDrives);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanOptions), 0x2680U);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanArchive), 3U);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanArchiveKinds), 0x7U);
    EXPECT_EQ(Word(CES_ScreenSaver, CEK_ScanPolicy), 0x121U);
    // Saved once: a second Save leaves a list changed since alone.
    WriteObjectList(CES_ScreenSaver, {{0, "/other"}});
    page->Save();
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver).size(), 1U);
    EXPECT_EQ(ReadObjectList(CES_ScreenSaver)[0].text, "/other");
}

TEST_F(WizardFeaturePageTest, LightEditionNeverRewritesTheList) {
    WriteObjectList(CES_ScreenSaver, {{0, "/home/a"}});
    CWizardFeaturePage* page = Make(DMF_IsLight);
    EmptyTheListWhenItOpens();
    // The link is hidden in this edition; its command still reaches the page.
    ClickLink(page, kList);
    page->Save();
    const std::vector<ObjectRecord> records = ReadObjectList(CES_ScreenSaver);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].text, "/home/a");
}

// --- "more..." -----------------------------------------------------------------------------

TEST_F(WizardFeaturePageTest, MoreOpensThePop3PageInOneNestedDialogKeptByThePage) {
    CWizardFeaturePage* page = Make(DMF_RemoveOutlookMon);
    ClickLink(page, kMore);
    ClickLink(page, kMore);
    EXPECT_EQ(m_nested.made, 1);
    EXPECT_EQ(m_nested.runs, 2);
    EXPECT_EQ(m_nested.id, PageId::kPop3Config);
    EXPECT_EQ(m_nested.flags, uint32_t{DMF_RemoveOutlookMon});
    EXPECT_EQ(m_nested.parent, page);
}

TEST_F(WizardFeaturePageTest, SaveAndApplyAreForwardedToTheNestedDialogOnceItExists) {
    CWizardFeaturePage* page = Make();
    page->Save();
    page->Apply();
    EXPECT_EQ(m_nested.made, 0);
    ClickLink(page, kMore);
    page->Save();
    page->Apply();
    EXPECT_EQ(m_nested.saves, 1);
    EXPECT_EQ(m_nested.applies, 1);
}

TEST_F(WizardFeaturePageTest, WithoutANestedDialogMoreDoesNothing) {
    NestedPageShell::Install(nullptr);
    CWizardFeaturePage* page = Make();
    ClickLink(page, kMore);
    EXPECT_EQ(m_nested.made, 0);
    EXPECT_TRUE(m_messages.messages.empty());
}

}  // namespace
}  // namespace wizard_feature_page_test
