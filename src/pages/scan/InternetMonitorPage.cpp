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

CInternetMonitorPage::CInternetMonitorPage() : CFormPage(kTemplateId, InternetMonitorTraits()) {}

ScanBlock CInternetMonitorPage::Block() {
    ScanBlock block;
    block.autoRepair = m_ui.autoRepairBox;
    block.executableFiles = m_ui.executableRadio;
    block.allFiles = m_ui.allFilesRadio;
    block.advanced = m_ui.advancedButton;
    block.backup = m_ui.backupBox;
    block.repairable = m_ui.repairableCombo;
    block.unrepairable = m_ui.unrepairableCombo;
    return block;
}

std::vector<PageFunction> CInternetMonitorPage::Functions() {
    return {{m_ui.functionBox, SSCT_HTTP_PROXY, CEK_Switch_Scan}};
}
