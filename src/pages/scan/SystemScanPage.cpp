#include "pages/scan/SystemScanPage.h"

#include "options/ScanBits.h"
#include "options/ScanProfile.h"
#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"

namespace {

ScanPageTraits SystemScanTraits() {
    ScanPageTraits traits;
    traits.section = CES_SystemScan;
    traits.advancedVariant = kAdvancedSystemScan;
    return traits;
}

}  // namespace

CSystemScanPage::CSystemScanPage() : CFormPage(kTemplateId, SystemScanTraits()) {}

ScanBlock CSystemScanPage::Block() {
    ScanBlock block;
    block.closeView = m_ui.closeViewBox;
    block.autoRepair = m_ui.autoRepairBox;
    block.compressed = m_ui.compressedBox;
    block.executableFiles = m_ui.executableRadio;
    block.allFiles = m_ui.allFilesRadio;
    block.advanced = m_ui.advancedButton;
    block.backup = m_ui.backupBox;
    block.repairable = m_ui.repairableCombo;
    block.unrepairable = m_ui.unrepairableCombo;
    block.compressedFiles = m_ui.compressedCombo;
    block.recompress = m_ui.recompressBox;
    block.executing = m_ui.executingCombo;
    return block;
}

int32_t CSystemScanPage::OnDefault() {
    // The harmful kinds go back to their defaults only through the Default
    // of the advanced dialog's tab.
    const uint32_t harmful = Held().harmful;
    CScanProfilePage::OnDefault();
    Held().harmful = harmful;
    return 1;
}

void CSystemScanPage::BindMore() {
    // The explorer scan's profile, written beside this one.
    m_bind.Owns({CES_ExplorerScan, CEK_ScanOptions}, ~(kScanCarried16 | kScanCarried17));
    for (const uint32_t key : {CEK_ScanArchive, CEK_ScanArchiveKinds, CEK_ScanPolicy})
        m_bind.Owns({CES_ExplorerScan, key}, kWholeWord);
}

void CSystemScanPage::SaveRelated() {
    const StoreValues stored;
    WriteExplorerScan(stored.Word(Address(CEK_ScanOptions)), stored.Word(Address(CEK_ScanPolicy)));
}
