#include "pages/scan/MessengerPage.h"

#include <QTreeWidgetItem>
#include <cerrno>

#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "options/SwitchWord.h"
#include "session/RegistrationBinding.h"
#include "session/SiblingLibs.h"
#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kMessengerExtra = {CES_Messenger, CEK_ScanExtra};
constexpr StoreAddress kMessengerSelect = {CES_Messenger, CEK_MessengerSelect};
constexpr StoreAddress kMessengerPolicy = {CES_Messenger, CEK_ScanPolicy};
constexpr StoreAddress kScanSwitch = {CES_Switch, CEK_Switch_Scan};

constexpr int kFunctionBox = 1007;
constexpr int kAutoRadio = 1117;
constexpr int kManualRadio = 1044;
constexpr int kMessengerList = 1101;

constexpr uint32_t kAutoRecognition = 0x1;  // (15,61)
constexpr uint32_t kNotSupported = 1046;
constexpr uint32_t kNoMessenger = 1028;
constexpr uint32_t kChooseMessenger = 1036;

// The rows in list order: the text, and the bit of (15,53). Rows 1 and 2
// stand in the word the other way round.
struct MessengerRow {
    uint32_t text;
    uint32_t bit;
};
constexpr MessengerRow kRows[] = {{1300, kExtraMsn},
                                  {1301, kExtraAol},
                                  {1302, kExtraYahoo},
                                  {1303, kExtraWindowsMessenger},
                                  {1308, kExtraDaum}};
constexpr int kRowCount = 5;
// Room in a row for its check box and margins, beside the text.
constexpr int kCheckRoom = 48;

// Radio 0 "Auto Recognition" is bit 0 set; radio 1 chooses by hand.
WordCodec AutoRecognitionCodec() {
    return {[](uint32_t select) { return (select & kAutoRecognition) != 0 ? 0 : 1; },
            [](uint32_t select, int index) { return SetBits(select, kAutoRecognition, index == 0); },
            kAutoRecognition};
}

ScanPageTraits MessengerTraits() {
    ScanPageTraits traits;
    traits.section = CES_Messenger;
    traits.advancedVariant = kAdvancedBasic;
    traits.executing = MonitorExecutingItems();
    traits.enableFirst = kFunctionBox;
    traits.enableLast = 1071;
    return traits;
}

}  // namespace

CMessengerPage::CMessengerPage() : CScanFormPage(kTemplateId, MessengerTraits()) {}


std::vector<PageFunction> CMessengerPage::Functions() {
    return {{m_ui.functionBox, SSCT_MESSENGER, CEK_Switch_Scan}};
}

void CMessengerPage::BindMore() {
    m_bind.Radios({m_ui.autoRadio, m_ui.manualRadio}, kMessengerSelect, AutoRecognitionCodec());
    m_bind.Hold(kMessengerExtra, kExtraMessengers, &m_messengers);
    QObject::connect(m_ui.messengerList, &CCheckListCtrl::rowCheckChanged, this,
                     [this] { MarkModified(); });
}

void CMessengerPage::PrepareControls() {
    if (CoverIfUnavailable()) return;
    AddRows();
    CScanProfilePage::PrepareControls();
}

bool CMessengerPage::CoverIfUnavailable() {
    CSiblingLibs& siblings = Context().Siblings();
    if (siblings.ServiceControl(SC_CanBeRegister, SSCT_MESSENGER, kServiceOption) != 0)
        return false;
    CoverWithNotice(LoadString(siblings.LastError() == ENOTSUP ? kNotSupported : kNoMessenger));
    return true;
}

void CMessengerPage::AddRows() {
    int widest = 0;
    for (int row = 0; row < kRowCount; ++row) {
        const QString text = QString::fromStdString(LoadString(kRows[row].text));
        m_ui.messengerList->AddRow(text);
        m_installed[row] = Context().Siblings().GetIMInstall(row) != 0;
        // A messenger that is not installed cannot be chosen.
        m_ui.messengerList->topLevelItem(row)->setDisabled(!m_installed[row]);
        widest = std::max(widest, m_ui.messengerList->ColumnWidthFor(text, kCheckRoom));
    }
    m_ui.messengerList->FitColumnTo(widest);
}

void CMessengerPage::ShowMore(const StoreValues& values) {
    m_nAuto = m_ui.manualRadio->isChecked() ? 1 : 0;
    const uint32_t extra = values.Word(kMessengerExtra);
    for (int row = 0; row < kRowCount; ++row) {
        // A stored messenger that is not installed keeps the row as it is.
        if ((extra & kRows[row].bit) == 0)
            m_ui.messengerList->SetRowChecked(row, false);
        else if (m_installed[row])
            m_ui.messengerList->SetRowChecked(row, true);
    }
}

int32_t CMessengerPage::OnDefault() {
    if (!Works()) return 1;
    CScanProfilePage::OnDefault();
    const DefaultValues defaults;
    // Not Auto Recognition's bit but the policy's backup bit decides, as the
    // product has always done.
    if ((defaults.Word(kScanSwitch) & SwitchBitOf(SSCT_MESSENGER)) != 0 &&
        (defaults.Word(kMessengerPolicy) & 0x1) != 0)
        CheckInstalledRows();
    m_needApply = 1;
    return 1;
}

void CMessengerPage::CheckInstalledRows() {
    for (int row = 0; row < kRowCount; ++row) {
        if (m_installed[row]) m_ui.messengerList->SetRowChecked(row, true);
    }
}

uint32_t CMessengerPage::CheckedBits() const {
    uint32_t bits = 0;
    for (int row = 0; row < kRowCount; ++row) {
        if (m_ui.messengerList->IsRowChecked(row)) bits |= kRows[row].bit;
    }
    return bits;
}

void CMessengerPage::OnSave() {
    m_messengers = CheckedBits();
    CScanProfilePage::OnSave();
}

int32_t CMessengerPage::ValidateMore() {
    if (!m_ui.functionBox->isChecked() || m_nAuto != 1 || CheckedBits() != 0) return 0;
    return ShowConfigurationError(this, LoadString(kChooseMessenger));
}

void CMessengerPage::UpdateEnables() {
    CScanProfilePage::UpdateEnables();
    if (FunctionOn() && m_nAuto != 1) EnableRange(kManualRadio, kMessengerList, false, false);
}

void CMessengerPage::OnPageCommand(int id, ctl::Notification code) {
    if (code != ctl::Notification::kClicked) return;
    if (id == kFunctionBox && m_ui.functionBox->isChecked() && m_nAuto == 0) CheckInstalledRows();
    if (id == kAutoRadio && m_nAuto == 1) CheckInstalledRows();
    if (id == kAutoRadio || id == kManualRadio) m_nAuto = id == kAutoRadio ? 0 : 1;
}
