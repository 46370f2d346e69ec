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

CSystemScanPage::CSystemScanPage() : CScanFormPage(kTemplateId, SystemScanTraits()) {}


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
