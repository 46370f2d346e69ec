#include "pages/scan/ScanOptionTabPage.h"

#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"
#include "text/StringTable.h"

namespace {

// The monitor's own defaults, whichever function the dialog edits.
constexpr StoreAddress kOptions = {CES_SystemMonitor, CEK_ScanOptions};
constexpr StoreAddress kExtra = {CES_SystemMonitor, CEK_ScanExtra};

constexpr uint32_t kNoLocalDriveScan = 1034;

}  // namespace

const AdvancedScanShare CScanOptionTabPage::kShare = {
    .options = kScanFloppyBoot | kScanFloppyOnClose | kScanNtWarning,
    .extra = kExtraLocalRead | kExtraLocalWrite | kExtraNetworkRead | kExtraNetworkWrite};

CScanOptionTabPage::CScanOptionTabPage() : CFormPage(kTemplateId) {}

void CScanOptionTabPage::BindControls() {
    m_bind.Bit(m_ui.floppyBootBox, kOptions, kScanFloppyBoot);
    m_bind.Bit(m_ui.floppyCloseBox, kOptions, kScanFloppyOnClose);
    m_bind.Bit(m_ui.localReadBox, kExtra, kExtraLocalRead);
    m_bind.Bit(m_ui.localWriteBox, kExtra, kExtraLocalWrite);
    m_bind.Bit(m_ui.networkReadBox, kExtra, kExtraNetworkRead);
    m_bind.Bit(m_ui.networkWriteBox, kExtra, kExtraNetworkWrite);
    // A box the host cannot use keeps the state it has.
    m_bind.Bit(m_ui.warningBox, kOptions, kScanNtWarning, BitSense::kCheckedWhenSet,
               BitShow::kWhenAvailable);
}

void CScanOptionTabPage::PrepareControls() {
    const bool nt = Context().IsNT() || (m_flags & DMF_AssumeNT) != 0;
    // In the master edition the warnings come through the tray icon.
    const uint32_t general = StoreValues().Word({CES_Switch, CEK_Switch_General});
    const bool tray = (general & SwitchBitOf(SSCT_TRAY)) != 0;
    const bool master = (m_flags & DMF_Master) != 0;
    m_ui.warningBox->setEnabled(nt && (tray || !master));
}

int32_t CScanOptionTabPage::ValidateMore() {
    if (m_ui.localReadBox->isChecked() || m_ui.localWriteBox->isChecked()) return 0;
    return Refuse(m_ui.localReadBox, LoadString(kNoLocalDriveScan));
}
