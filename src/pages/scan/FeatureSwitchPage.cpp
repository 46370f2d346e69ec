#include "pages/scan/FeatureSwitchPage.h"

#include <Q9CfgE.h>

#include <array>
#include <string>
#include <utility>

#include "framework/MessageService.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"
#include "resources/StringTable.h"
#include "session/SiblingLibs.h"
#include "session/TextFormat.h"

namespace {

constexpr int kMonitorBox = 1005;
constexpr int kInternetBox = 1006;
constexpr int kMessengerBox = 1007;
constexpr int kStartupBox = 1008;
constexpr int kOfficeBox = 1011;
constexpr int kScreenSaverBox = 1033;
constexpr int kShellBox = 1035;
constexpr int kBarBox = 1036;

// The bit of the default word that checks Office Guard.
constexpr uint32_t kOfficeDefaultBit = 0x4;

using Registrable = std::pair<int, int32_t>;

// The boxes disabled when their functions cannot run, in the order asked, in
// the master edition and, after the messenger's box, in the others.
constexpr std::array<Registrable, 5> kRegistrableBoxes = {{
    {kStartupBox, SSCT_START_PROCESS},
    {kOfficeBox, SSCT_OFFICE_GUARD},
    {kScreenSaverBox, SSCT_SCRSAVER_SCAN},
    {kShellBox, SSCT_Q9SHELLEX},
    {kBarBox, SSCT_Q9BAR},
}};

}  // namespace

CFeatureSwitchPage::CFeatureSwitchPage(int templateId) : CSwitchPage(templateId, CEK_Switch_Scan) {
    // In the order Apply registers; the Screen Saver Scan has no clicked flag
    // and is registered or unregistered at every Apply.
    SetRows({
        {kShellBox, SSCT_Q9SHELLEX, &m_bShellClicked, strings::kExplorerScanQuestion},
        {kBarBox, SSCT_Q9BAR, &m_bBarClicked, strings::kExplorerScanQuestion},
        {kMonitorBox, SSCT_SYSTEM_MONITOR, &m_bMonitorClicked, 0},
        {kInternetBox, SSCT_HTTP_PROXY, &m_bInternetClicked, 0},
        {kMessengerBox, SSCT_MESSENGER, &m_bMessengerClicked, 0},
        {kStartupBox, SSCT_START_PROCESS, &m_bStartupClicked, 0},
        {kOfficeBox, SSCT_OFFICE_GUARD, &m_bOfficeClicked, strings::kOfficeGuardQuestion},
        {kScreenSaverBox, SSCT_SCRSAVER_SCAN, nullptr, 0},
    });
}

bool CFeatureSwitchPage::IsLight() const { return (m_flags & DMF_IsLight) != 0; }

bool CFeatureSwitchPage::OnInitDialog() {
    DisableUnlessRegistrable(kMonitorBox, SSCT_SYSTEM_MONITOR);
    if (IsLight()) {
        // Only System Monitoring stays; with the rest hidden, Load and Default
        // set that box alone.
        ShowRange(kInternetBox, -1, false, true);
    } else if ((m_flags & DMF_Master) != 0) {
        // The master edition has no messenger row: the box and its description.
        ShowCount(kMessengerBox, 2, false, true);
        for (const auto& [id, code] : kRegistrableBoxes) DisableUnlessRegistrable(id, code);
    } else {
        DisableUnlessRegistrable(kMessengerBox, SSCT_MESSENGER);
        for (const auto& [id, code] : kRegistrableBoxes) DisableUnlessRegistrable(id, code);
        if ((m_flags & DMF_RemoveInternetMon) != 0) {
            ShowCount(kInternetBox, 2, false, true);
        } else {
            DisableUnlessRegistrable(kInternetBox, SSCT_HTTP_PROXY);
        }
    }
    Load();
    return true;
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
    if (row.id == kMonitorBox && GetCheck(kMonitorBox) == 0) ConfirmMonitorOff();
}

void CFeatureSwitchPage::ConfirmMonitorOff() {
    std::string text;
    if (g_Siblings.ServiceControl(SC_IsRegistered, SSCT_MONSYS_AUTO, kServiceOption) != 0) {
        const auto minutes =
            static_cast<int>(Q9CfgE_GetDWEx(CES_SystemMonitor, CEK_MonitorRestart));
        text = FormatResource(LoadString(strings::kCloseMonitorRestartQuestion), minutes);
    } else {
        text = LoadString(strings::kCloseMonitorQuestion);
    }
    if (ShowApplicationMessage(this, text, msg::kYesNo | msg::kIconQuestion) != msg::kIdYes) {
        SetCheck(kMonitorBox, 1);
    }
}

void CFeatureSwitchPage::SaveRelated() {
    if (GetCheck(kMessengerBox) != 0) {
        // Switching the function on with no messenger chosen turns on Auto
        // Recognition, and Auto Recognition means every messenger.
        uint32_t select = Q9CfgE_GetDWEx(CES_Messenger, CEK_MessengerSelect);
        const uint32_t extra = Q9CfgE_GetDWEx(CES_Messenger, CEK_ScanExtra);
        if ((extra & kExtraMessengers) == 0) {
            select |= kMessengerAutoRecognition;
            Q9CfgE_SetDWEx(CES_Messenger, CEK_MessengerSelect, select);
        }
        if ((select & kMessengerAutoRecognition) != 0) {
            Q9CfgE_SetDWEx(CES_Messenger, CEK_ScanExtra, extra | kExtraMessengers);
        }
    }
    if (GetCheck(kStartupBox) != 0) {
        const uint32_t extra = Q9CfgE_GetDWEx(CES_Startup, CEK_ScanExtra);
        if ((extra & kExtraStartupItems) == 0) {
            Q9CfgE_SetDWEx(CES_Startup, CEK_ScanExtra, extra | kExtraStartupItems);
        }
    }
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMask, *PageSwitchMasks(m_flags).scan);
}

void CFeatureSwitchPage::AfterDefault(uint32_t word) {
    // Office Guard and the shell functions are set without their questions.
    if ((word & kOfficeDefaultBit) == 0) {
        SetCheck(kOfficeBox, 0);
        m_bOfficeClicked = 1;
    }
    if ((m_flags & DMF_Master) != 0) {
        SetCheck(kShellBox, 0);
        SetCheck(kBarBox, 0);
        m_bShellClicked = 1;
        m_bBarClicked = 1;
    }
    m_bMonitorClicked = 1;
    m_bInternetClicked = 1;
    m_bMessengerClicked = 1;
    m_bStartupClicked = 1;
}
