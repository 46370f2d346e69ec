// The configuration wizard with the program's own pages: the level page it
// starts on, its slider opening and closing the way on, and a walk through
// every step to Finish.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <QPushButton>
#include <QSlider>
#include <memory>
#include <string>

#include "ShellTestSupport.h"
#include "framework/DialogControls.h"
#include "options/StoreKeys.h"
#include "session/ProcessState.h"
#include "session/ProtectionLevel.h"
#include "session/StoreCommit.h"
#include "shell/WizardDlg.h"

namespace wizard_steps_test {
namespace {

constexpr int kSlider = 1096;
constexpr int kCustomizedPosition = 3;
constexpr int kMediumPosition = 1;
// What each level file puts into CEK_MacroOptions.
constexpr uint32_t kHighMark = 0x11;
constexpr uint32_t kMediumMark = 0x22;

class WizardStepsTest : public ShellTest {
protected:
    WizardStepsTest() {
        WriteLevelFile("OrvHg.dat", kProtectLevelHigh, kHighMark);
        WriteLevelFile("OrvMd.dat", kProtectLevelMedium, kMediumMark);
        // The product was on High before the wizard ran.
        SetWord(CES_General, CEK_ProtectLevel, kProtectLevelHigh);
        SetWord(CES_Macro, CEK_MacroOptions, kHighMark);
        g_nProtectLevel = kProtectLevelHigh;
        g_bInWizard = 1;
    }
    ~WizardStepsTest() override {
        dialog.reset();
        DropWorkingCopy();
    }

    void WriteLevelFile(const std::string& name, uint32_t level, uint32_t mark) const {
        const std::string path = Install().PathOf(name);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, level);
        Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions, mark);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    }

    CWizardDlg& Open(uint32_t flags = 0) {
        dialog = std::make_unique<CWizardDlg>(flags, nullptr);
        EXPECT_TRUE(dialog->Create());
        dialog->show();
        return *dialog;
    }

    QSlider* Slider() const {
        return dialog->CurrentPage()
                   ? qobject_cast<QSlider*>(ctl::Find(dialog->CurrentPage(), kSlider))
                   : nullptr;
    }
    QPushButton* Button(int id) const { return qobject_cast<QPushButton*>(dialog->Control(id)); }
    bool NextIsOpen() const {
        return Button(CWizardDlg::kNextButton)->isEnabled() &&
               Button(CWizardDlg::kNextButton)->isDefault();
    }

    std::unique_ptr<CWizardDlg> dialog;
};

TEST_F(WizardStepsTest, OpeningTheWizardAndPressingFinishAtOnceAppliesMedium) {
    Open();
    ASSERT_NE(Slider(), nullptr);
    EXPECT_EQ(Slider()->value(), kMediumPosition);
    Button(1)->click();

    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelMedium);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), kMediumMark) << "the Medium file was committed";
}

TEST_F(WizardStepsTest, MovingTheSliderToCustomizedOpensNextAndMovingItBackClosesIt) {
    Open();
    ASSERT_FALSE(NextIsOpen());
    Slider()->setValue(kCustomizedPosition);
    EXPECT_TRUE(NextIsOpen());
    Slider()->setValue(kMediumPosition);
    EXPECT_FALSE(NextIsOpen());
    EXPECT_TRUE(Button(1)->isDefault());
}

TEST_F(WizardStepsTest, ACustomizedWalkThroughEveryStepEndsWithTheLevelCustomized) {
    Open();
    Slider()->setValue(kCustomizedPosition);
    while (Button(CWizardDlg::kNextButton)->isEnabled()) Button(CWizardDlg::kNextButton)->click();
    EXPECT_EQ(dialog->CurrentStep(), dialog->StepCount() - 1);
    ASSERT_NE(dialog->CurrentPage(), nullptr) << "the schedule step";
    Button(1)->click();

    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelCustomized);
    // Customized keeps the configuration of the level where the drag ended.
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), kMediumMark);
    // The scan step handed its profile on to the template of new schedule
    // entries as the wizard left it.
    EXPECT_EQ(Word(CES_ScheduleDefault, CEK_ScanOptions), Word(CES_SystemScan, CEK_ScanOptions));
}

}  // namespace
}  // namespace wizard_steps_test
