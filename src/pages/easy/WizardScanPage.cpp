#include "pages/easy/WizardScanPage.h"

#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"

namespace {

ScanPageTraits WizardScanTraits() {
    ScanPageTraits traits;
    traits.section = CES_SystemScan;
    traits.advancedVariant = kAdvancedBasic;
    return traits;
}

// The sections the wizard's profile goes to, and what each of them keeps of
// it besides the word, the extensions and the policy.
struct ProfileTarget {
    uint32_t section;
    bool archive;     // keys 11 and 12
    bool extensions;  // key 13
};

constexpr ProfileTarget kTargets[] = {
    {CES_SystemScan, true, true},     {CES_ExplorerScan, true, false},
    {CES_ScreenSaver, true, true},    {CES_ScheduleDefault, true, true},
    {CES_SystemMonitor, false, true}, {CES_Messenger, true, true},
    {CES_Startup, true, true},        {CES_Internet, true, true},
    {CES_Pop3, true, true},           {CES_OutlookScan, true, true},
    {CES_OutlookMonitor, true, true},
};

}  // namespace

CWizardScanPage::CWizardScanPage()
    : CScanFormPage(kTemplateId, WizardScanTraits()), m_values(CES_SystemScan) {
    m_bind.SetHome(&m_values);
}

void CWizardScanPage::BindMore() {
    // What the distribution writes to every scanning function.
    for (const ProfileTarget& target : kTargets) {
        m_bind.Owns({target.section, CEK_ScanOptions}, kWholeWord);
        m_bind.Owns({target.section, CEK_ScanPolicy}, kWholeWord);
        if (target.archive) {
            m_bind.Owns({target.section, CEK_ScanArchive}, kWholeWord);
            m_bind.Owns({target.section, CEK_ScanArchiveKinds}, kWholeWord);
        }
        if (target.extensions) m_bind.OwnsText({target.section, CEK_ScanExtensions});
    }
}

void CWizardScanPage::OnSave() {
    CollectProfile();
    ApplyProfileToAllSections(m_values.Profile());
}

void CWizardScanPage::CollectProfile() {
    m_values.Reload();
    m_bind.Save();
    WriteForcedOptions();
}

void CWizardScanPage::SaveScheduleDefaults() {
    CollectProfile();
    m_values.Profile().SaveScanKeys(CES_ScheduleDefault);
}
