#include "pages/scan/ScreenSaverPage.h"

#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "targets/TargetRecords.h"

namespace {

constexpr int kListButton = 1120;

ScanPageTraits ScreenSaverTraits() {
    ScanPageTraits traits;
    traits.section = CES_ScreenSaver;
    traits.advancedVariant = kAdvancedBasic;
    traits.enableFirst = 1033;
    traits.enableLast = 1071;
    return traits;
}

}  // namespace

CScreenSaverPage::CScreenSaverPage() : CScanFormPage(kTemplateId, ScreenSaverTraits()) {}

std::vector<PageFunction> CScreenSaverPage::Functions() {
    return {{m_ui.functionBox, SSCT_SCRSAVER_SCAN, CEK_Switch_Scan}};
}

void CScreenSaverPage::BindMore() {
    // The object list: the page rewrites it whole when the user changed it.
    m_bind.OwnsText({CES_ScreenSaver, kObjectListKey});
}

void CScreenSaverPage::Load() {
    CScanProfilePage::Load();
    m_targets = ReadTargets(CES_ScreenSaver);
    m_targetsChanged = false;
}

void CScreenSaverPage::SaveRelated() {
    if (!m_targetsChanged) return;
    WriteObjectList(CES_ScreenSaver, TargetRecords(m_targets));
    m_targetsChanged = false;
}

void CScreenSaverPage::OnPageCommand(int id, ctl::Notification code) {
    if (id == kListButton && code == ctl::Notification::kClicked) EditTargets();
}

void CScreenSaverPage::EditTargets() {
    if (!CScanListDlg::EditTargets(&m_targets, this)) return;
    m_targetsChanged = true;
    MarkModified();
}
