#include "pages/scan/StartupPage.h"

#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kStartupExtra = {CES_Startup, CEK_ScanExtra};

constexpr uint32_t kNotSupported = 1047;
constexpr uint32_t kNothingToMonitor = 1037;

ScanPageTraits StartupTraits() {
    ScanPageTraits traits;
    traits.section = CES_Startup;
    traits.executing = MonitorExecutingItems();
    traits.forcedOptions = 0;
    traits.enableFirst = 1008;
    traits.enableLast = 1071;
    traits.thirdPicture = 15;
    return traits;
}

}  // namespace

CStartupPage::CStartupPage() : CScanFormPage(kTemplateId, StartupTraits()) {}


std::vector<PageFunction> CStartupPage::Functions() {
    return {{m_ui.functionBox, SSCT_START_PROCESS, CEK_Switch_Scan}};
}

void CStartupPage::BindMore() {
    m_bind.Hold(Address(CEK_ScanOptions), kScanCarried16, &m_carried);
    m_bind.Bit(m_ui.registriesBox, kStartupExtra, kExtraRegistries);
    m_bind.Bit(m_ui.foldersBox, kStartupExtra, kExtraStartupFolders);
    m_bind.Bit(m_ui.systemFilesBox, kStartupExtra, kExtraSystemFiles);
}

void CStartupPage::PrepareControls() {
    if (Context().Siblings().ServiceControl(SC_CanBeRegister, SSCT_START_PROCESS,
                                            kServiceOption) == 0)
        CoverWithNotice(LoadString(kNotSupported));
    CScanProfilePage::PrepareControls();
}

int32_t CStartupPage::OnDefault() {
    CScanProfilePage::OnDefault();
    m_needApply = 1;
    return 1;
}

int32_t CStartupPage::ValidateMore() {
    const bool anyItem = m_ui.registriesBox->isChecked() || m_ui.foldersBox->isChecked() ||
                         m_ui.systemFilesBox->isChecked();
    if (!m_ui.functionBox->isChecked() || anyItem) return 0;
    return ShowConfigurationError(this, LoadString(kNothingToMonitor));
}
