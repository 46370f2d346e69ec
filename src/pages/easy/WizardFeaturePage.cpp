#include "pages/easy/WizardFeaturePage.h"

#include "options/ScanBits.h"
#include "options/ScanProfile.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/targets/ScanListDlg.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "targets/TargetRecords.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

namespace {

constexpr StoreAddress kScanWord = {CES_Switch, CEK_Switch_Scan};
constexpr StoreAddress kScanMask = {CES_Switch, CEK_Switch_ScanMask};
constexpr StoreAddress kMailWord = {CES_Switch, CEK_Switch_ScanMail};
constexpr StoreAddress kMailMask = {CES_Switch, CEK_Switch_ScanMailMask};
constexpr StoreAddress kGeneralWord = {CES_Switch, CEK_Switch_General};
constexpr StoreAddress kGeneralMask = {CES_Switch, CEK_Switch_GeneralMask};

// The bits of the switch words that the boxes stand for.
constexpr uint32_t kMonitorBit = 0x1;
constexpr uint32_t kInternetBit = 0x2;
constexpr uint32_t kOfficeBit = 0x4;
constexpr uint32_t kScreenSaverBit = 0x8;
constexpr uint32_t kExplorerBits = 0x10 | 0x20;  // shortcut menus and toolbars
constexpr uint32_t kMessengerBit = 0x40;
constexpr uint32_t kStartupBit = 0x80;
constexpr uint32_t kPop3Bit = 0x1000;
constexpr uint32_t kOutlookBits = 0x4000 | 0x8000;  // Outlook scan and monitoring
// The tray icon and the monitor's restart: on whatever the user chose.
constexpr uint32_t kGeneralBits = 0x300000;

// Every bit a box sets.
constexpr uint32_t kBoxBits = kMonitorBit | kInternetBit | kOfficeBit | kScreenSaverBit |
                              kExplorerBits | kMessengerBit | kStartupBit | kPop3Bit | kOutlookBits;

// The monitors whose functions an edition may lack: their scan word loses
// the bit of monitoring in force.
constexpr uint32_t kLightMonitorSections[] = {CES_Internet, CES_Messenger, CES_Startup};

}  // namespace

CWizardFeaturePage::CWizardFeaturePage() : CFormPage(kTemplateId, Applies::kNo) {}

std::vector<CWizardFeaturePage::RegisteredBox> CWizardFeaturePage::RegisteredBoxes() const {
    return {
        {m_ui.monitorBox, SSCT_SYSTEM_MONITOR},
        {m_ui.internetBox, SSCT_HTTP_PROXY},
        {m_ui.messengerBox, SSCT_MESSENGER},
        {m_ui.startupBox, SSCT_START_PROCESS},
        {m_ui.pop3Box, SSCT_POP3},
        {m_ui.outlookBox, SSCT_MANUAL_OUTLOOK},
        {m_ui.screenSaverBox, SSCT_SCRSAVER_SCAN},
    };
}

void CWizardFeaturePage::BindControls() {
    // Save writes the switch words and masks whole (the light edition sets
    // them to fixed values), the general word's two bits, the monitors' bit
    // of the functions an edition lacks, and the screen saver's list.
    for (const StoreAddress& word : {kScanWord, kScanMask, kMailWord, kMailMask, kGeneralMask})
        m_bind.Owns(word, kWholeWord);
    m_bind.Owns(kGeneralWord, kGeneralBits);
    for (uint32_t section : kLightMonitorSections)
        m_bind.Owns({section, CEK_ScanOptions}, kScanCarried16);
    m_bind.OwnsText({CES_ScreenSaver, kObjectListKey});
}

void CWizardFeaturePage::PrepareControls() {
    m_ui.moreLink->SetReportsClick(true);
    m_ui.listLink->SetReportsClick(true);
    const int internetBox = ctl::IdOf(m_ui.internetBox);
    if (Has(DMF_IsLight)) {
        ShowRange(internetBox, -1, false, true);
        return;
    }
    if (Has(DMF_RemoveInternetMon)) {
        ShowCount(internetBox, 2, false, true);
    } else {
        DisableUnlessRegistrable(m_ui.internetBox, SSCT_HTTP_PROXY);
    }
    DisableUnlessRegistrable(m_ui.officeBox, SSCT_OFFICE_GUARD);
    DisableUnlessRegistrable(m_ui.shellBox, SSCT_Q9SHELLEX);
    DisableUnlessRegistrable(m_ui.messengerBox, SSCT_MESSENGER);
    DisableUnlessRegistrable(m_ui.startupBox, SSCT_START_PROCESS);
    HideMissingRows();
    DisableUnlessRegistrable(m_ui.pop3Box, SSCT_POP3);
    DisableUnlessRegistrable(m_ui.outlookBox, SSCT_MANUAL_OUTLOOK);
}

void CWizardFeaturePage::HideMissingRows() {
    const int messengerBox = ctl::IdOf(m_ui.messengerBox);
    const int startupBox = ctl::IdOf(m_ui.startupBox);
    const int pop3Box = ctl::IdOf(m_ui.pop3Box);
    const int screenSaverBox = ctl::IdOf(m_ui.screenSaverBox);
    // The heights of the messenger's row and of the two mail rows.
    const int messengerRow = m_ui.startupBox->y() - m_ui.messengerBox->y();
    const int mailRows = m_ui.screenSaverBox->y() - m_ui.pop3Box->y();
    if (Has(DMF_Master)) {
        ShowCount(messengerBox, 2, false, true);
        ShowCount(pop3Box, 5, false, true);
        MoveRange(startupBox, -1, 0, -messengerRow);
        MoveRange(screenSaverBox, -1, 0, -mailRows);
        m_ui.officeBox->setChecked(false);
        m_ui.shellBox->setChecked(false);
    } else if (Has(DMF_RemovePopMon) && Has(DMF_RemoveOutlookMon)) {
        ShowCount(pop3Box, 5, false, true);
        MoveRange(screenSaverBox, -1, 0, -mailRows);
    } else if (Has(DMF_RemovePopMon)) {
        ShowCount(pop3Box, 3, false, true);
    } else if (Has(DMF_RemoveOutlookMon)) {
        ShowCount(ctl::IdOf(m_ui.outlookBox), 2, false, true);
    }
}

void CWizardFeaturePage::DisableUnlessRegistrable(QWidget* control, int32_t code) {
    if (Context().Siblings().ServiceControl(SC_CanBeRegister, code, kServiceOption) == 0)
        control->setEnabled(false);
}

void CWizardFeaturePage::Load() {
    CFormPage::Load();
    for (const RegisteredBox& row : RegisteredBoxes()) {
        if (IsEnabledAndVisible(ctl::IdOf(row.box)) == 0) continue;
        row.box->setChecked(
            Context().Siblings().ServiceControl(SC_IsRegistered, row.code, kServiceOption) != 0);
    }
    if (Has(DMF_Master)) {
        m_ui.officeBox->setChecked(false);
        m_ui.shellBox->setChecked(false);
    }
    m_targets = ReadTargets(CES_ScreenSaver);
    m_foundTargets = m_targets;
}

void CWizardFeaturePage::OnControlCommand(int id, ctl::Notification code) {
    if (code != ctl::Notification::kClicked) return;
    if (id == ctl::IdOf(m_ui.moreLink)) {
        OpenPop3Config();
        return;
    }
    if (id == ctl::IdOf(m_ui.listLink)) {
        EditScreenSaverList();
        return;
    }
    if (id == ctl::IdOf(m_ui.shellBox)) {
        KeepIfYes(m_ui.shellBox, strings::kExplorerScanQuestion,
                  msg::kYesNo | msg::kIconInformation);
    } else if (id == ctl::IdOf(m_ui.officeBox)) {
        // Only an OK button: the box never stays set by a click.
        KeepIfYes(m_ui.officeBox, strings::kOfficeGuardQuestion, msg::kOk | msg::kIconInformation);
    }
    MarkModified();
}

void CWizardFeaturePage::KeepIfYes(QAbstractButton* box, uint32_t textId, uint32_t type) {
    if (!box->isChecked()) return;
    if (ShowMessage(this, LoadString(textId), LoadString(strings::kInformation), type) !=
        msg::kIdYes)
        box->setChecked(false);
}

void CWizardFeaturePage::SaveMore() {
    const uint32_t scanWord = ScanWordOfBoxes();
    if (Has(DMF_IsLight)) {
        WriteLightEditionSwitches();
    } else {
        WriteScanSwitches(scanWord, m_flags);
        SaveMailWord();
    }
    WriteWord(kGeneralWord, StoreValues().Word(kGeneralWord) | kGeneralBits);
    WriteWord(kGeneralMask, kWholeWord);
    if (!Has(DMF_IsLight)) SaveScreenSaverList();
    // Until the wizard's end registers them, the functions answer from the
    // store, so that this step shows the user's choice when it is entered
    // again.
    Context().Siblings().MarkPending(kBoxBits, 0);
    if (m_pop3Config) m_pop3Config->SavePage();
}

uint32_t CWizardFeaturePage::ScanWordOfBoxes() const {
    uint32_t word = StoreValues().Word(kScanWord);
    word = SetBits(word, kMonitorBit, m_ui.monitorBox->isChecked());
    word = SetBits(word, kInternetBit, m_ui.internetBox->isChecked());
    word = SetBits(word, kMessengerBit, m_ui.messengerBox->isChecked());
    word = SetBits(word, kStartupBit, m_ui.startupBox->isChecked());
    word = SetBits(word, kScreenSaverBit, m_ui.screenSaverBox->isChecked());
    word = SetBits(word, kOfficeBit, m_ui.officeBox->isChecked());
    return SetBits(word, kExplorerBits, m_ui.shellBox->isChecked());
}

void CWizardFeaturePage::SaveMailWord() {
    uint32_t word = StoreValues().Word(kMailWord);
    word = SetBits(word, kPop3Bit, m_ui.pop3Box->isChecked());
    word = SetBits(word, kOutlookBits, m_ui.outlookBox->isChecked());
    uint32_t mask = kWholeWord;
    if (Has(DMF_RemovePopMon)) {
        word &= ~kPop3Bit;
        mask &= ~kPop3Bit;
    }
    if (Has(DMF_RemoveOutlookMon)) {
        word &= ~kOutlookBits;
        mask &= ~kOutlookBits;
    }
    WriteWord(kMailWord, word);
    WriteWord(kMailMask, mask);
}

// Rewritten only when the user changed the list. Emptying the list may clear
// the section's profile keys with it, so they are read before and written
// again between the emptying and the records.
void CWizardFeaturePage::SaveScreenSaverList() {
    if (m_targets == m_foundTargets) return;
    ScanProfile keys;
    keys.LoadProfile(CES_ScreenSaver);
    WriteObjectList(CES_ScreenSaver, {});
    keys.SaveScanKeys(CES_ScreenSaver);
    WriteObjectRecords(CES_ScreenSaver, TargetRecords(m_targets));
    m_foundTargets = m_targets;
}

void CWizardFeaturePage::OpenPop3Config() {
    if (!m_pop3Config) m_pop3Config = NestedPageShell::Make(PageId::kPop3Config, m_flags, this);
    if (m_pop3Config) m_pop3Config->Run();
}

void CWizardFeaturePage::EditScreenSaverList() {
    if (CScanListDlg::EditTargets(&m_targets, this)) MarkModified();
}

void CWizardFeaturePage::Apply() {
    if (m_pop3Config) m_pop3Config->ApplyPage();
}
