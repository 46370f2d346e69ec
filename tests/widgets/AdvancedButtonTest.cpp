// "Advanced..." on the pages of the scan profile family: the dialog opens
// with the page's current choices in the variant of the page, its OK brings
// the values back into the page (and the page's next save into the store),
// and its Cancel changes nothing.

#include <Q9CfgE.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <functional>
#include <string>

#include "SwitchPageTest.h"
#include "caller/DialogDriver.h"
#include "framework/DialogControls.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/scan/InternetMonitorPage.h"
#include "pages/scan/ScreenSaverPage.h"
#include "pages/scan/SystemMonitorPage.h"
#include "pages/scan/SystemScanPage.h"

namespace advanced_button_test {
namespace {

constexpr int kAdvancedButton = 1066;
constexpr int kOk = 1;
constexpr int kCancel = 2;

template <typename Control>
Control* In(QDialog* dialog, int id) {
    Control* control = DialogDriver::Find<Control>(dialog, id);
    EXPECT_NE(control, nullptr) << id;
    return control;
}

void Press(QDialog* dialog, int id) { In<QAbstractButton>(dialog, id)->click(); }

void SelectTab(QDialog* dialog, int index) {
    QTabBar* tabs = dialog->findChild<QTabBar*>();
    ASSERT_NE(tabs, nullptr);
    tabs->setCurrentIndex(index);
}

int TabCount(QDialog* dialog) {
    const QTabBar* tabs = dialog->findChild<QTabBar*>();
    return tabs ? tabs->count() : -1;
}

void TypeCustomTypes(QDialog* dialog, const char* text) {
    auto* edit = In<QLineEdit>(dialog, 1050);
    edit->setText(text);
    emit edit->textEdited(text);
}

class AdvancedButtonTest : public SwitchPageTest {
protected:
    // Clicks "Advanced..." on page and acts on the dialog with steps.
    static void RunAdvanced(CSettingsPage* page, const std::function<void(QDialog*)>& steps) {
        DialogDriver driver(steps);
        Click(page, kAdvancedButton);
        EXPECT_TRUE(driver.Done());
    }
    static uint32_t Scan(uint32_t key) { return Word(CES_SystemScan, key); }
};

TEST_F(AdvancedButtonTest, TheDialogOpensWithThePagesFileTypesAndItsOkComesBackIntoThePage) {
    SetWord(CES_SystemScan, CEK_ScanOptions, 0x680 | 0x10 | 0x80000000);
    CSystemScanPage* page = MakePage<CSystemScanPage>(0);
    Click(page, 1058);  // "All files" on the page: the dialog opens with it
    int tabs = 0;
    bool allFilesShown = false;
    RunAdvanced(page, [&](QDialog* dialog) {
        tabs = TabCount(dialog);
        allFilesShown = In<QAbstractButton>(dialog, 1058)->isChecked();
        Press(dialog, 1058);  // off: the default kinds come back
        Press(dialog, 1049);  // and the customized types
        TypeCustomTypes(dialog, " doc / xls ");
        Press(dialog, kOk);
    });
    EXPECT_EQ(tabs, 4);
    EXPECT_TRUE(allFilesShown);
    EXPECT_TRUE(IsChecked(page, 1065));
    EXPECT_EQ(page->IsModified(), 1);
    page->Save();
    EXPECT_EQ(Scan(CEK_ScanOptions) & 0xF80U, 0xE80U);
    EXPECT_EQ(Scan(CEK_ScanOptions) & 0x80000010U, 0x80000010U);
    EXPECT_EQ(ReadStoreText(CES_SystemScan, CEK_ScanExtensions), "doc/xls");
}

TEST_F(AdvancedButtonTest, CancelLeavesThePageAndTheStoreAsTheyWere) {
    SetWord(CES_SystemScan, CEK_ScanOptions, 0x680);
    Q9CfgE_SetStrEx(CES_SystemScan, CEK_ScanExtensions, "exe");
    CSystemScanPage* page = MakePage<CSystemScanPage>(0);
    RunAdvanced(page, [](QDialog* dialog) {
        Press(dialog, 1058);
        Press(dialog, kCancel);
    });
    EXPECT_EQ(page->IsModified(), 0);
    EXPECT_TRUE(IsChecked(page, 1065));
    page->Save();
    EXPECT_EQ(Scan(CEK_ScanOptions) & 0xF80U, 0x680U);
    EXPECT_EQ(ReadStoreText(CES_SystemScan, CEK_ScanExtensions), "exe");
}

TEST_F(AdvancedButtonTest, ADepthAboveTenShowsUnlimitedAndIsStoredAsZeroAfterTheTabsOk) {
    SetWord(CES_SystemScan, CEK_ScanOptions, 0x680 | 0x10);  // compressed files scanned
    SetWord(CES_SystemScan, CEK_ScanArchive, 15);
    SetWord(CES_SystemScan, CEK_ScanArchiveKinds, 0xFFFFFFFF);
    CSystemScanPage* page = MakePage<CSystemScanPage>(0);
    page->Save();
    EXPECT_EQ(Scan(CEK_ScanArchive), 15U);  // kept while nobody looked at it
    int shownDepth = -1;
    RunAdvanced(page, [&](QDialog* dialog) {
        SelectTab(dialog, 1);
        shownDepth = In<QComboBox>(dialog, 1054)->currentIndex();
        Press(dialog, 1052);  // a change on the tab
        Press(dialog, kOk);
    });
    EXPECT_EQ(shownDepth, 0);
    page->Save();
    EXPECT_EQ(Scan(CEK_ScanArchive), 0U);
    EXPECT_EQ(Scan(CEK_ScanArchiveKinds), 0xFFFFFFFFU);
}

TEST_F(AdvancedButtonTest, TheHarmfulKindsGoToTheProductsWordAndKeepItsOtherBits) {
    SetWord(CES_Macro, CEK_MacroOptions, 0x1F01);
    CSystemScanPage* page = MakePage<CSystemScanPage>(0);
    RunAdvanced(page, [](QDialog* dialog) {
        SelectTab(dialog, 3);
        Press(dialog, 1125);  // "Scan possible harmful programs"
        Press(dialog, 1097);  // "Joke"
        Press(dialog, kOk);
    });
    page->Save();
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x1F01U | 0x10000U);
    EXPECT_EQ(Scan(CEK_ScanOptions) & 0x40000000U, 0x40000000U);
    // The explorer scan follows the harmful programs bit.
    EXPECT_EQ(Word(CES_ExplorerScan, CEK_ScanOptions) & 0x40000000U, 0x40000000U);
}

TEST_F(AdvancedButtonTest, EachPageOpensItsVariant) {
    SetRegistered({16, 32, 48});
    int tabs = 0;
    const auto count = [&tabs](QDialog* dialog) {
        tabs = TabCount(dialog);
        Press(dialog, kCancel);
    };
    RunAdvanced(MakePage<CScreenSaverPage>(0), count);
    EXPECT_EQ(tabs, 2);
    RunAdvanced(MakePage<CSystemMonitorPage>(0), count);
    EXPECT_EQ(tabs, 2);
    RunAdvanced(MakePage<CInternetMonitorPage>(0), count);
    EXPECT_EQ(tabs, 1);
}

TEST_F(AdvancedButtonTest, TheMonitorsScanOptionsComeBackIntoItsExtraWord) {
    SetRegistered({32});
    SetWord(CES_SystemMonitor, CEK_ScanExtra, 0x1 | 0x40 | 0x80);
    CSystemMonitorPage* page = MakePage<CSystemMonitorPage>(0);
    RunAdvanced(page, [](QDialog* dialog) {
        SelectTab(dialog, 1);
        Press(dialog, 1029);  // "Scan network drive reading"
        Press(dialog, kOk);
    });
    page->Save();
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanExtra), 0x1U | 0x4U | 0x40U | 0x80U);
}

TEST_F(AdvancedButtonTest, TheInternetPageWritesTheDialogsTypesAndNoArchiveValues) {
    SetRegistered({48});
    SetWord(CES_Internet, CEK_ScanOptions, 0x680);
    SetWord(CES_Internet, CEK_ScanArchive, 12);
    CInternetMonitorPage* page = MakePage<CInternetMonitorPage>(0);
    RunAdvanced(page, [](QDialog* dialog) {
        Press(dialog, 1060);  // "Macros" off
        Press(dialog, kOk);
    });
    page->Save();
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions) & 0xF80U, 0x280U);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanArchive), 12U);
}

}  // namespace
}  // namespace advanced_button_test
