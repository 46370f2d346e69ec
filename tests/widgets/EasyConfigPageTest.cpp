// The "Easy Configuration" page: the slider chooses a protection level, each
// level but Customized loads its file into the working copy at once, the
// page's texts say what the level means, and the dialog that carries the
// page hears of every change.

#include <Q9CfgE.h>

#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QSlider>
#include <QTreeWidget>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "framework/Dialog.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/easy/EasyConfigPage.h"
#include "session/ProcessState.h"
#include "session/ProtectionLevel.h"
#include "session/StoreCommit.h"

namespace easy_config_page_test {
namespace {

constexpr int kSlider = 1096;
constexpr int kTitle = 1122;
constexpr int kDescription = 1123;
constexpr int kReport = 1099;
constexpr int kIcon = 1119;

// What each level file puts into CEK_MacroOptions, so that a test sees which
// file was loaded last.
constexpr uint32_t kHighMark = 0x11;
constexpr uint32_t kMediumMark = 0x22;
constexpr uint32_t kLowMark = 0x44;
constexpr uint32_t kUntouched = 0x99;

constexpr char kPassword[] = "Kept-Pa55";

// A dialog that carries the page and records the messages it receives.
class RecordingDialog : public CDialog {
public:
    RecordingDialog() : CDialog(0, nullptr) {}
    void OnPageMessage(int message) override { messages.push_back(message); }

    std::vector<int> messages;
};

class EasyConfigPageTest : public SwitchPageTest {
protected:
    EasyConfigPageTest() {
        WriteLevelFile("OrvHg.dat", kProtectLevelHigh, kHighMark);
        WriteLevelFile("OrvMd.dat", kProtectLevelMedium, kMediumMark);
        WriteLevelFile("OrvLw.dat", kProtectLevelLow, kLowMark);
        SetWord(CES_Authorization, CEK_AuthEnabled, 1);
        SetWord(CES_Authorization, CEK_AuthItems, 0x6);
        EXPECT_EQ(Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, kPassword), 1);
        SetWord(CES_Macro, CEK_MacroOptions, kUntouched);
        g_bInWizard = 0;
        g_bLevelApplied = 0;
        BeginStoreEdit();
    }

    ~EasyConfigPageTest() override { DropWorkingCopy(); }

    // A level file that would also switch the password protection off and
    // set a password of its own.
    void WriteLevelFile(const std::string& name, uint32_t level, uint32_t mark) const {
        const std::string path = Install().PathOf(name);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, level);
        Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions, mark);
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthEnabled, 0);
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthItems, 0x1);
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, ("level-" + name).c_str());
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    }

    // The page made in a session whose level is level.
    CEasyConfigPage* Make(uint32_t level, QWidget* parent = nullptr) {
        g_nProtectLevel = level;
        auto* page = new CEasyConfigPage();
        EXPECT_TRUE(page->Create(parent != nullptr ? parent : &m_parent));
        return page;
    }

    static QSlider* SliderOf(const CEasyConfigPage* page) {
        return qobject_cast<QSlider*>(ctl::Find(page, kSlider));
    }
    static int Position(const CEasyConfigPage* page) { return SliderOf(page)->value(); }

    // A drag of the slider's thumb: pressed, moved through positions, and
    // (unless held) released.
    static void Drag(const CEasyConfigPage* page, std::vector<int> positions, bool release = true) {
        QSlider* slider = SliderOf(page);
        slider->setSliderDown(true);
        for (const int position : positions) slider->setSliderPosition(position);
        if (release) slider->setSliderDown(false);
    }
    // A move by keyboard or click: over at once.
    static void Step(const CEasyConfigPage* page, int position) {
        SliderOf(page)->setValue(position);
    }

    static std::string Title(const CEasyConfigPage* page) { return ctl::GetText(page, kTitle); }
    static std::string Description(const CEasyConfigPage* page) {
        return ctl::GetText(page, kDescription);
    }
    static uint32_t Mark() { return Word(CES_Macro, CEK_MacroOptions); }

    static void ExpectPasswordKept() {
        EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 1u);
        EXPECT_EQ(Word(CES_Authorization, CEK_AuthItems), 0x6u);
        EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), kPassword);
    }
};

const std::string kHighText =
    "- Fully block virus intrusions\n"
    "- Recommended for systems with high risk of virus infection\n"
    "- System performance can be affected\n";
const std::string kMediumText =
    "- Properly block virus intrusions\n"
    "- Suggested for general user system\n"
    "- System performance can be slightly affected\n";
const std::string kLowText =
    "- Block virus intrusions at the lowest level\n"
    "- Recommended for systems with low risk of virus infection\n"
    "- System performance is not affected\n";
const std::string kCustomizedFirstLine =
    "- Block viruses according to configuration by function specified by the user\n";
const std::string kCustomizedText =
    kCustomizedFirstLine + "- Use the menu at the left to change configuration by function\n";
const std::string kCustomizedWizardText =
    kCustomizedFirstLine + "- Click [Next] to change configuration by function.\n";

TEST_F(EasyConfigPageTest, TheFormHasAVerticalSliderOfFourLevelsWithHighAtTheTop) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    QSlider* slider = SliderOf(page);
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->orientation(), Qt::Vertical);
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 3);
    // Position 0 stands at the top.
    EXPECT_TRUE(slider->invertedAppearance());
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(EasyConfigPageTest, TheTitleIsBoldAndTheReportListHasTheButtonFaceBackground) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    EXPECT_EQ(ctl::Find(page, kTitle)->font().weight(), 700);
    EXPECT_NE(ctl::Find(page, kDescription)->font().weight(), 700);
    auto* report = qobject_cast<QTreeWidget*>(ctl::Find(page, kReport));
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->palette().color(QPalette::Base), report->palette().color(QPalette::Button));
    EXPECT_EQ(report->topLevelItemCount(), 0);
}

TEST_F(EasyConfigPageTest, TheSliderIsNamedForScreenReaders) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    EXPECT_EQ(SliderOf(page)->accessibleName().toStdString(), "Protection Level");
}

TEST_F(EasyConfigPageTest, SetIconsGivesPicture13) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, kIcon))->Index(), 13);
}

TEST_F(EasyConfigPageTest, EachLevelShowsItsTitleAndDescription) {
    struct Shown {
        uint32_t level;
        int position;
        std::string title;
        std::string description;
    };
    const Shown levels[] = {
        {kProtectLevelHigh, 0, "Protection Level - High", kHighText},
        {kProtectLevelMedium, 1, "Protection Level - Medium", kMediumText},
        {kProtectLevelLow, 2, "Protection Level - Low", kLowText},
        {kProtectLevelCustomized, 3, "Protection Level - Customized", kCustomizedText},
    };
    for (const Shown& shown : levels) {
        SCOPED_TRACE(shown.level);
        CEasyConfigPage* page = Make(shown.level);
        EXPECT_EQ(Position(page), shown.position);
        EXPECT_EQ(Title(page), shown.title);
        EXPECT_EQ(Description(page), shown.description);
    }
}

TEST_F(EasyConfigPageTest, InTheWizardCustomizedPointsToTheNextButton) {
    g_bInWizard = 1;
    CEasyConfigPage* page = Make(kProtectLevelCustomized);
    EXPECT_EQ(Description(page), kCustomizedWizardText);
    g_nProtectLevel = kProtectLevelHigh;
    page->Load();
    EXPECT_EQ(Description(page), kHighText) << "only Customized reads differently";
}

TEST_F(EasyConfigPageTest, TheTextsFollowTheSlider) {
    CEasyConfigPage* page = Make(kProtectLevelHigh);
    Step(page, 2);
    EXPECT_EQ(Title(page), "Protection Level - Low");
    EXPECT_EQ(Description(page), kLowText);
    Step(page, 3);
    EXPECT_EQ(Title(page), "Protection Level - Customized");
    EXPECT_EQ(Description(page), kCustomizedText);
}

// Edge case: a stored level of 3 leaves the slider untouched and shows the
// Customized texts.
TEST_F(EasyConfigPageTest, AStoredValueThatIsNoLevelShowsCustomizedAndLeavesTheSlider) {
    CEasyConfigPage* page = Make(kProtectLevelLow);
    ASSERT_EQ(Position(page), 2);
    g_nProtectLevel = 3;
    page->Load();
    EXPECT_EQ(Position(page), 2);
    EXPECT_EQ(Title(page), "Protection Level - Customized");
    EXPECT_EQ(Description(page), kCustomizedText);
    EXPECT_EQ(g_nProtectLevel, 3u);
    EXPECT_EQ(page->LastLevel(), 3u);
    EXPECT_EQ(Mark(), kUntouched) << "showing a level loads nothing";
}

// Edge case: moving the slider from High to Customized and on, with the drag
// ended at High, reloads "OrvHg.dat" at the Customized position.
TEST_F(EasyConfigPageTest, CustomizedReloadsTheLevelWhereTheLastDragEnded) {
    CEasyConfigPage* page = Make(kProtectLevelLow);
    Drag(page, {1, 0});
    ASSERT_EQ(page->LastLevel(), kProtectLevelHigh);
    ASSERT_EQ(Mark(), kHighMark);

    Drag(page, {1, 2}, false);
    EXPECT_EQ(Mark(), kLowMark) << "every position a drag passes loads its file";
    SliderOf(page)->setSliderPosition(3);
    EXPECT_EQ(g_nProtectLevel, kProtectLevelCustomized);
    EXPECT_EQ(Mark(), kHighMark) << "Customized restores the level of the last drag's end";
    EXPECT_EQ(page->LastLevel(), kProtectLevelHigh);
    SliderOf(page)->setSliderDown(false);
    EXPECT_EQ(page->LastLevel(), kProtectLevelCustomized);
}

// Edge case: the password survives any level change.
TEST_F(EasyConfigPageTest, ThePasswordSurvivesEveryLevelChange) {
    CEasyConfigPage* page = Make(kProtectLevelCustomized);
    // Customized at the end restores Low, where the move before ended.
    const std::pair<int, uint32_t> moves[] = {
        {0, kHighMark}, {1, kMediumMark}, {2, kLowMark}, {3, kLowMark}};
    for (const auto& [position, mark] : moves) {
        SCOPED_TRACE(position);
        Step(page, position);
        EXPECT_EQ(Mark(), mark) << "the level's file was loaded";
        ExpectPasswordKept();
    }
    page->OnDefault();
    EXPECT_EQ(Mark(), kMediumMark);
    ExpectPasswordKept();
    CommitWorkingCopy();
    ExpectPasswordKept();
}

// Edge case: Default always gives Medium, even if the product was on High.
TEST_F(EasyConfigPageTest, DefaultGivesMediumWithItsFileEvenFromHigh) {
    CEasyConfigPage* page = Make(kProtectLevelHigh);
    ASSERT_EQ(page->IsModified(), 0);
    EXPECT_EQ(page->CanDefault(), 1);
    page->OnDefault();
    EXPECT_EQ(g_nProtectLevel, kProtectLevelMedium);
    EXPECT_EQ(Position(page), 1);
    EXPECT_EQ(Title(page), "Protection Level - Medium");
    EXPECT_EQ(Mark(), kMediumMark);
    EXPECT_EQ(page->LastLevel(), kProtectLevelMedium);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    EXPECT_EQ(g_bLevelPending, 1);
}

// Edge case: level 8 with the last drag ended at 8 loads no file and leaves
// g_bLevelPending as it was.
TEST_F(EasyConfigPageTest, CustomizedAfterADragThatEndedAtCustomizedLoadsNothing) {
    CEasyConfigPage* page = Make(kProtectLevelCustomized);
    ASSERT_EQ(page->LastLevel(), kProtectLevelCustomized);
    Drag(page, {2}, false);
    ASSERT_EQ(Mark(), kLowMark);
    SetWord(CES_Macro, CEK_MacroOptions, kUntouched);
    g_bLevelPending = 0;
    g_bLevelApplied = 0;
    SliderOf(page)->setSliderPosition(3);
    EXPECT_EQ(g_nProtectLevel, kProtectLevelCustomized);
    EXPECT_EQ(Mark(), kUntouched);
    EXPECT_EQ(g_bLevelPending, 0);
    EXPECT_EQ(g_bLevelApplied, 0);
    EXPECT_EQ(page->IsModified(), 1);
}

TEST_F(EasyConfigPageTest, OnlyTheEndOfADragMovesTheLastLevel) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    Drag(page, {2, 3, 0}, false);
    EXPECT_EQ(g_nProtectLevel, kProtectLevelHigh);
    EXPECT_EQ(page->LastLevel(), kProtectLevelMedium);
    SliderOf(page)->setSliderDown(false);
    EXPECT_EQ(page->LastLevel(), kProtectLevelHigh);
}

TEST_F(EasyConfigPageTest, AMoveByKeyboardIsOverAtOnce) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    SliderOf(page)->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(g_nProtectLevel, kProtectLevelLow);
    EXPECT_EQ(page->LastLevel(), kProtectLevelLow);
    EXPECT_EQ(Mark(), kLowMark);
    Step(page, 3);
    EXPECT_EQ(page->LastLevel(), kProtectLevelCustomized);
    EXPECT_EQ(Mark(), kLowMark) << "Customized restored Low, where the last move ended";
}

TEST_F(EasyConfigPageTest, ALevelChangeMarksThePageAndTheSession) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    ASSERT_EQ(page->IsModified(), 0);
    ASSERT_EQ(page->NeedApply(), 0);
    ASSERT_EQ(g_bLevelPending, 0);
    Step(page, 0);
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(page->NeedApply(), 1);
    EXPECT_EQ(g_bLevelPending, 1);
    EXPECT_EQ(g_bLevelApplied, 1);
    page->Load();
    EXPECT_EQ(page->IsModified(), 0) << "Load clears the change";
    EXPECT_EQ(page->NeedApply(), 1);
}

TEST_F(EasyConfigPageTest, EveryLevelChangeReachesTheDialogThatCarriesThePage) {
    RecordingDialog dialog;
    CEasyConfigPage* page = Make(kProtectLevelMedium, &dialog);
    EXPECT_TRUE(dialog.messages.empty()) << "showing the level is no change";
    Drag(page, {2, 3});
    EXPECT_EQ(dialog.messages, (std::vector<int>{0x464, 0x464}));
    dialog.messages.clear();
    page->OnDefault();
    EXPECT_TRUE(dialog.messages.empty());
    Step(page, 1);
    EXPECT_TRUE(dialog.messages.empty()) << "the slider stands on the level already";
}

TEST_F(EasyConfigPageTest, SaveAndValidateLeaveTheWorkingCopyAsTheLevelMadeIt) {
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    Step(page, 0);
    EXPECT_EQ(page->Validate(), 0);
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelHigh);
    EXPECT_EQ(Mark(), kHighMark);
    g_nProtectLevel = kProtectLevelLow;
    page->Save();
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelHigh)
        << "the shell writes the level, not the page";
}

TEST_F(EasyConfigPageTest, ApplyBringsTheProductIntoLineWithTheStore) {
    SetUnregistrable({});
    CEasyConfigPage* page = Make(kProtectLevelMedium);
    ClearJournal();
    SetWord(CES_Switch, CEK_Switch_General, 0x100000);
    SetWord(CES_Switch, CEK_Switch_GeneralMask, 0x100000);
    page->Apply();
    const std::vector<std::string> calls = Journal();
    EXPECT_NE(std::find(calls.begin(), calls.end(), Registered(112)), calls.end());
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back(), JournalLine("Q9SSCtrl_SetCfgChanged", 32, "", 1));
}

}  // namespace
}  // namespace easy_config_page_test
