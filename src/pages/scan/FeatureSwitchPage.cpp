#include "pages/scan/FeatureSwitchPage.h"

#include <string>

#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/scan/MonitorQuestion.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "text/StringTable.h"

namespace {

// The bit of the default word that checks Office Guard.
constexpr uint32_t kOfficeDefaultBit = 0x4;

// What Save writes besides the switch word.
constexpr StoreAddress kMessengerSelect = {CES_Messenger, CEK_MessengerSelect};
constexpr StoreAddress kMessengerExtra = {CES_Messenger, CEK_ScanExtra};
constexpr StoreAddress kStartupExtra = {CES_Startup, CEK_ScanExtra};
constexpr StoreAddress kScanMask = {CES_Switch, CEK_Switch_ScanMask};

}  // namespace

CFeatureSwitchPage::CFeatureSwitchPage() : CFormPage(kTemplateId, CEK_Switch_Scan) {}

std::vector<CSwitchPage::Row> CFeatureSwitchPage::Rows() {
    // In the order Apply registers; the Screen Saver Scan has no clicked flag
    // and is registered or unregistered at every Apply.
    return {
        {m_ui.shellBox, SSCT_Q9SHELLEX, &m_bShellClicked, strings::kExplorerScanQuestion},
        {m_ui.barBox, SSCT_Q9BAR, &m_bBarClicked, strings::kExplorerScanQuestion},
        {m_ui.monitorBox, SSCT_SYSTEM_MONITOR, &m_bMonitorClicked, 0},
        {m_ui.internetBox, SSCT_HTTP_PROXY, &m_bInternetClicked, 0},
        {m_ui.messengerBox, SSCT_MESSENGER, &m_bMessengerClicked, 0},
        {m_ui.startupBox, SSCT_START_PROCESS, &m_bStartupClicked, 0},
        {m_ui.officeBox, SSCT_OFFICE_GUARD, &m_bOfficeClicked, strings::kOfficeGuardQuestion},
        {m_ui.screenSaverBox, SSCT_SCRSAVER_SCAN, nullptr, 0},
    };
}

void CFeatureSwitchPage::BindControls() {
    CSwitchPage::BindControls();
    m_bind.Owns(kMessengerSelect, kMessengerAutoRecognition);
    m_bind.Owns(kMessengerExtra, kExtraMessengers);
    m_bind.Owns(kStartupExtra, kExtraStartupItems);
    m_bind.Owns(kScanMask, kWholeWord);
}

bool CFeatureSwitchPage::IsLight() const { return (m_flags & DMF_IsLight) != 0; }

void CFeatureSwitchPage::PrepareControls() {
    DisableUnlessRegistrable(m_ui.monitorBox, SSCT_SYSTEM_MONITOR);
    // The boxes disabled when their functions cannot run, in the order asked,
    // in the master edition and, after the messenger's box, in the others.
    const auto disableUnregistrable = [this] {
        DisableUnlessRegistrable(m_ui.startupBox, SSCT_START_PROCESS);
        DisableUnlessRegistrable(m_ui.officeBox, SSCT_OFFICE_GUARD);
        DisableUnlessRegistrable(m_ui.screenSaverBox, SSCT_SCRSAVER_SCAN);
        DisableUnlessRegistrable(m_ui.shellBox, SSCT_Q9SHELLEX);
        DisableUnlessRegistrable(m_ui.barBox, SSCT_Q9BAR);
    };
    const int internetBox = ctl::IdOf(m_ui.internetBox);
    if (IsLight()) {
        // Only System Monitoring stays; with the rest hidden, Load and Default
        // set that box alone.
        ShowRange(internetBox, -1, false, true);
    } else if ((m_flags & DMF_Master) != 0) {
        // The master edition has no messenger row: the box and its description.
        ShowCount(ctl::IdOf(m_ui.messengerBox), 2, false, true);
        disableUnregistrable();
    } else {
        DisableUnlessRegistrable(m_ui.messengerBox, SSCT_MESSENGER);
        disableUnregistrable();
        if ((m_flags & DMF_RemoveInternetMon) != 0) {
            ShowCount(internetBox, 2, false, true);
        } else {
            DisableUnlessRegistrable(m_ui.internetBox, SSCT_HTTP_PROXY);
        }
    }
}

bool CFeatureSwitchPage::AppliesRow(const Row& row) const {
    // The light edition sets the office flag only through Default, so the
    // monitor's registration is changed here only after a Default.
    if (IsLight()) {
        return row.code == SSCT_SYSTEM_MONITOR && m_bMonitorClicked != 0 && m_bOfficeClicked != 0;
    }
    return CSwitchPage::AppliesRow(row);
}

void CFeatureSwitchPage::OnRowClicked(const Row& row) {
    if (row.box == m_ui.monitorBox && !m_ui.monitorBox->isChecked()) ConfirmMonitorOff();
}

void CFeatureSwitchPage::ConfirmMonitorOff() {
    int minutes = -1;
    if (Context().Siblings().ServiceControl(SC_IsRegistered, SSCT_MONSYS_AUTO, kServiceOption) !=
        0)
        minutes = static_cast<int>(StoreValues().Word({CES_SystemMonitor, CEK_MonitorRestart}));
    if (!::ConfirmMonitorOff(this, minutes)) m_ui.monitorBox->setChecked(true);
}

void CFeatureSwitchPage::SaveRelated() {
    const StoreValues store;
    if (m_ui.messengerBox->isChecked()) {
        // Switching the function on with no messenger chosen turns on Auto
        // Recognition, and Auto Recognition means every messenger.
        uint32_t select = store.Word(kMessengerSelect);
        const uint32_t extra = store.Word(kMessengerExtra);
        if ((extra & kExtraMessengers) == 0) {
            select |= kMessengerAutoRecognition;
            WriteWord(kMessengerSelect, select);
        }
        if ((select & kMessengerAutoRecognition) != 0)
            WriteWord(kMessengerExtra, extra | kExtraMessengers);
    }
    if (m_ui.startupBox->isChecked()) {
        const uint32_t extra = store.Word(kStartupExtra);
        if ((extra & kExtraStartupItems) == 0) WriteWord(kStartupExtra, extra | kExtraStartupItems);
    }
    if (const auto mask = PageSwitchMasks(m_flags).scan) WriteWord(kScanMask, *mask);
}

void CFeatureSwitchPage::AfterDefault(uint32_t word) {
    // Office Guard and the shell functions are set without their questions.
    if ((word & kOfficeDefaultBit) == 0) {
        m_ui.officeBox->setChecked(false);
        m_bOfficeClicked = 1;
    }
    if ((m_flags & DMF_Master) != 0) {
        m_ui.shellBox->setChecked(false);
        m_ui.barBox->setChecked(false);
        m_bShellClicked = 1;
        m_bBarClicked = 1;
    }
    m_bMonitorClicked = 1;
    m_bInternetClicked = 1;
    m_bMessengerClicked = 1;
    m_bStartupClicked = 1;
}
