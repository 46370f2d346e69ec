#include "pages/schedule/ScheduleScanPage.h"

#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "q9cfgul.h"

namespace {

// The bits the scheduler's fixed behaviour sets on a locked page: close the
// scan view, scan in the background, auto repair.

ScanPageTraits ScheduleScanTraits() {
    ScanPageTraits traits;
    traits.section = CES_ScheduleDefault;
    traits.advancedVariant = kAdvancedBasic;
    traits.executing = MonitorExecutingItems();
    return traits;
}

}  // namespace

CScheduleScanPage::CScheduleScanPage() : CScanFormPage(kTemplateId, ScheduleScanTraits()) {
    m_bind.SetHome(&m_values);
}

bool CScheduleScanPage::Locked() const { return Context().IsNT() && (m_flags & DMF_AssumeNT) == 0; }

void CScheduleScanPage::LoadEntry(ScheduleEntry* entry) {
    m_values.SetEntry(entry);
    Load();
}

void CScheduleScanPage::Load() { CBoundPage::Load(); }

ScanBlock CScheduleScanPage::Block() {
    ScanBlock block = CScanFormPage::Block();
    if (Locked()) {
        block.closeView = nullptr;
        block.autoRepair = nullptr;
    }
    return block;
}

void CScheduleScanPage::BindMore() {
    if (!Locked()) m_bind.Bit(m_ui.backgroundBox, Address(CEK_ScanOptions), kScanBackground);
}

void CScheduleScanPage::PrepareControls() {
    CScanFormPage::PrepareControls();
    for (QAbstractButton* box : {m_ui.closeViewBox, m_ui.backgroundBox, m_ui.autoRepairBox}) {
        box->setEnabled(!Locked());
        if (Locked()) box->setChecked(true);
    }
}

void CScheduleScanPage::SaveRelated() {
    if (!Locked()) return;
    const StoreAddress options = Address(CEK_ScanOptions);
    m_bind.Home().Write(options, m_bind.Home().Word(options) | kScanUnattendedNT);
}

void CScheduleScanPage::UpdateEnables() {
    CScanFormPage::UpdateEnables();
    if (Locked()) return;
    const bool background = m_ui.backgroundBox->isChecked();
    if (background) m_ui.closeViewBox->setChecked(true);
    m_ui.closeViewBox->setEnabled(!background);
}
