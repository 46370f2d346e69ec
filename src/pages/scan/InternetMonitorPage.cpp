#include "pages/scan/InternetMonitorPage.h"

#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "options/SwitchWord.h"

namespace {

ScanPageTraits InternetMonitorTraits() {
    ScanPageTraits traits;
    traits.section = CES_Internet;
    traits.advancedVariant = kAdvancedFileTypesOnly;
    traits.enableFirst = 1006;
    traits.enableLast = 1068;
    return traits;
}

}  // namespace

CInternetMonitorPage::CInternetMonitorPage() : CScanFormPage(kTemplateId, InternetMonitorTraits()) {}


std::vector<PageFunction> CInternetMonitorPage::Functions() {
    return {{m_ui.functionBox, SSCT_HTTP_PROXY, CEK_Switch_Scan}};
}
