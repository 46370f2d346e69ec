#include "pages/scan/SystemMonitorPage.h"

#include <QComboBox>
#include <QLineEdit>
#include <optional>
#include <string>

#include "options/ExtensionText.h"
#include "options/ScanBits.h"
#include "options/StoreKeys.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "options/SwitchWord.h"
#include "pages/scan/MonitorQuestion.h"
#include "pages/scan/ProfileCodecs.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kMonitorExtra = {CES_SystemMonitor, CEK_ScanExtra};
constexpr StoreAddress kMonitorOptions = {CES_SystemMonitor, CEK_MonitorOptions};
constexpr StoreAddress kBlockTypes = {CES_SystemMonitor, CEK_MonitorText};
constexpr StoreAddress kRestartInterval = {CES_SystemMonitor, CEK_MonitorRestart};

constexpr int kFunctionBox = 1005;
constexpr int kBlockCombo = 1032;
constexpr int kBlockTypesEdit = 1031;
constexpr int kAutoRestartBox = 1106;

// The interval in minutes; Default shows the usual one, as the store keeps
// no default for it.
constexpr int32_t kLeastInterval = 10;
constexpr int32_t kMostInterval = 10000;
constexpr int32_t kDefaultInterval = 60;

// The blocking methods in the combo's order, with their texts.
const std::vector<BlockMethod> kBlockItems = {BlockMethod::DoNotBlock, BlockMethod::ChangeExtension,
                                              BlockMethod::Delete, BlockMethod::Block};
constexpr uint32_t kBlockTexts[] = {603, 601, 600, 602};

ScanPageTraits SystemMonitorTraits() {
    ScanPageTraits traits;
    traits.section = CES_SystemMonitor;
    traits.advancedVariant = kAdvancedMonitor;
    traits.executing = MonitorExecutingItems();
    // The monitor's consumers expect bits 24 and 25; the scan setting mark
    // is not the monitor's.
    traits.forcedOptions = kScanMonitorForced;
    traits.enableFirst = kFunctionBox;
    traits.enableLast = kBlockTypesEdit;
    return traits;
}

// The minutes a text of digits stands for; none for another text or one too
// long to be a number of minutes.
std::optional<int32_t> MinutesOf(const std::string& text) {
    if (text.empty() || text.size() > 9 || text.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    return std::stoi(text);
}

}  // namespace

CSystemMonitorPage::CSystemMonitorPage() : CScanFormPage(kTemplateId, SystemMonitorTraits()) {}


std::vector<PageFunction> CSystemMonitorPage::Functions() {
    // Apply switches the restart before the monitor itself.
    return {{m_ui.autoRestartBox, SSCT_MONSYS_AUTO, CEK_Switch_General},
            {m_ui.functionBox, SSCT_SYSTEM_MONITOR, CEK_Switch_Scan}};
}

void CSystemMonitorPage::BindMore() {
    m_bind.Bit(m_ui.infectorBox, kMonitorExtra, kExtraInfector);
    m_bind.Combo(m_ui.blockCombo, kMonitorOptions, BlockMethodCodec(kBlockItems));
    m_bind.Text(m_ui.blockTypesEdit, kBlockTypes, static_cast<int32_t>(kMaxExtensionText),
                FieldCheck::kAlways);
    m_bind.Owns(kRestartInterval, kWholeWord);
    QObject::connect(m_ui.intervalEdit, &QLineEdit::textEdited, this, [this] {
        MarkModified();
        m_needApply = 1;
    });
}

void CSystemMonitorPage::PrepareControls() {
    CScanProfilePage::PrepareControls();
    for (const uint32_t text : kBlockTexts)
        m_ui.blockCombo->addItem(QString::fromStdString(LoadString(text)));
}

void CSystemMonitorPage::ShowMore(const StoreValues& values) {
    m_ui.intervalEdit->setText(QString::number(static_cast<int32_t>(values.Word(kRestartInterval))));
}

int32_t CSystemMonitorPage::OnDefault() {
    CScanProfilePage::OnDefault();
    m_ui.intervalEdit->setText(QString::number(kDefaultInterval));
    return 1;
}

void CSystemMonitorPage::SaveRelated() {
    // Validation let only a number within the limits through.
    int32_t minutes = 0;
    if (ReadInterval(minutes)) WriteWord(kRestartInterval, static_cast<uint32_t>(minutes));
}

bool CSystemMonitorPage::ReadInterval(int32_t& minutes) const {
    const std::optional<int32_t> read = MinutesOf(m_ui.intervalEdit->text().toStdString());
    if (!read || *read < kLeastInterval || *read > kMostInterval) return false;
    minutes = *read;
    return true;
}

int32_t CSystemMonitorPage::ValidateMore() {
    // Checked whether the restart is on or not.
    int32_t minutes = 0;
    if (ReadInterval(minutes)) return 0;
    const std::string text =
        FormatResource(LoadString(strings::kRangeMessage).c_str(),
                       std::to_string(kLeastInterval).c_str(), std::to_string(kMostInterval).c_str());
    ShowConfigurationError(this, text);
    m_ui.intervalEdit->setFocus();
    return 1;
}

void CSystemMonitorPage::UpdateEnables() {
    CScanProfilePage::UpdateEnables();
    if (FunctionOn() && m_ui.blockCombo->currentIndex() < 1)
        EnableRange(kBlockCombo, kBlockTypesEdit, false, false);
    EnableRange(kAutoRestartBox, -1, m_ui.autoRestartBox->isChecked(), false);
}

void CSystemMonitorPage::OnPageCommand(int id, ctl::Notification code) {
    if (id != kFunctionBox || code != ctl::Notification::kClicked) return;
    if (m_ui.functionBox->isChecked()) return;
    int minutes = -1;
    if (m_ui.autoRestartBox->isChecked())
        minutes = MinutesOf(m_ui.intervalEdit->text().toStdString()).value_or(0);
    if (!ConfirmMonitorOff(this, minutes)) m_ui.functionBox->setChecked(true);
}
