#include "pages/scan/ScanMethodTabPage.h"

#include "options/ScanBits.h"
#include "options/StoreKeys.h"

namespace {

constexpr StoreAddress kExtra = {CES_SystemScan, CEK_ScanExtra};

}  // namespace

const AdvancedScanShare CScanMethodTabPage::kShare = {.extra =
                                                          kExtraUnshareFirst | kExtraCloseShells};

CScanMethodTabPage::CScanMethodTabPage() : CFormPage(kTemplateId) {}

void CScanMethodTabPage::BindControls() {
    m_bind.Bit(m_ui.unshareBox, kExtra, kExtraUnshareFirst);
    m_bind.Bit(m_ui.closeShellsBox, kExtra, kExtraCloseShells);
}
