#include "pages/general/PolicyPage.h"

#include "framework/ImageList.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"

namespace {

constexpr StoreAddress kMacroOptions = {CES_Macro, CEK_MacroOptions};
constexpr StoreAddress kMonitorExtra = {CES_SystemMonitor, CEK_ScanExtra};

// Radio 0 repairs macro viruses, radio 1 forbids macros. Only "forbid"
// alone reads as radio 1; any other pair, both bits included, as radio 0.
WordCodec MacroChoice() {
    return {[](uint32_t word) { return (word & kMacroChoice) == kMacroForbid ? 1 : 0; },
            [](uint32_t word, int index) {
                return ReplaceBits(word, index == 1 ? kMacroForbid : kMacroRepair, kMacroChoice);
            },
            kMacroChoice};
}

// The pictures of the icon statics.
constexpr int kMacroPicture = 9;
constexpr int kAreaPicture = 7;
constexpr int kProtectPicture = 14;

}  // namespace

CPolicyPage::CPolicyPage() : CFormPage(kTemplateId, Applies::kNo) {}

void CPolicyPage::BindControls() {
    m_bind.Radios({m_ui.repairMacroRadio, m_ui.forbidMacroRadio}, kMacroOptions, MacroChoice());
    m_bind.Bit(m_ui.memoryBox, kMacroOptions, kAreaMemory);
    m_bind.Bit(m_ui.selfScanBox, kMacroOptions, kAreaSelfScan);
    m_bind.Bit(m_ui.bootSectorBox, kMacroOptions, kAreaBootSector);
    m_bind.Bit(m_ui.processBox, kMacroOptions, kAreaProcesses);
    m_bind.Bit(m_ui.startupBox, kMacroOptions, kAreaStartup);
    m_bind.Bit(m_ui.selfProtectBox, kMonitorExtra, kExtraSelfProtect);
    m_bind.Bit(m_ui.protectAlertBox, kMonitorExtra, kExtraSelfProtectAlerts);
    m_bind.EnableWhen(m_ui.selfProtectBox, {m_ui.protectAlertBox});
}

void CPolicyPage::UpdateEnables() {
    // In the master edition the alerts come through the tray icon: without
    // it there is nobody to tell.
    const uint32_t general = StoreValues().Word({CES_Switch, CEK_Switch_General});
    if ((m_flags & DMF_Master) != 0 && (general & SwitchBitOf(SSCT_TRAY)) == 0)
        m_ui.protectAlertBox->setEnabled(false);
}

void CPolicyPage::SetIcons(const ImageList* icons) {
    m_ui.macroIcon->SetImage(icons, kMacroPicture);
    m_ui.areaIcon->SetImage(icons, kAreaPicture);
    m_ui.protectIcon->SetImage(icons, kProtectPicture);
}
