#include "pages/general/OtherConfigPage.h"

#include <QFileDialog>
#include <filesystem>
#include <system_error>

#include "framework/ImageList.h"
#include "framework/SoundPlayer.h"
#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "pages/RegisteredValues.h"
#include "q9cfgul.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kGeneralOptions = {CES_General, CEK_GeneralOptions};
constexpr StoreAddress kEventOptions = {CES_General, CEK_EventOptions};
constexpr StoreAddress kHomeAlarm = {CES_General, CEK_HomeAlarm};
constexpr StoreAddress kGeneralSwitch = {CES_Switch, CEK_Switch_General};
constexpr StoreAddress kGeneralMask = {CES_Switch, CEK_Switch_GeneralMask};

// CEK_GeneralOptions.
constexpr uint32_t kSaveScanLogs = 0x1;
constexpr uint32_t kAlertSound = 0x4;
constexpr uint32_t kLimitScanLogs = 0x10;
constexpr uint32_t kLimitEventLogs = 0x20;
constexpr uint32_t kLimitBackups = 0x40;
// CEK_EventOptions.
constexpr uint32_t kProductEvents = 0x1;
constexpr uint32_t kUpdateEvents = 0x2;
constexpr uint32_t kSecurityWarnings = 0x4;

// Every size and count field: 512 up to 22 bits.
constexpr int32_t kLeastSize = 512;
constexpr int32_t kMostSize = 0x3FFFFF;

// The urgent alarm is not offered in US English.
constexpr uint32_t kUsEnglish = 0x409;
constexpr const char* kDefaultProductName = "Q9Pro 2004";

constexpr uint32_t kMasterProductName = 57407;
constexpr uint32_t kNoFileExists = 1040;
constexpr uint32_t kTrayOffWarning = 57412;
constexpr uint32_t kNoSoundDevice = 57450;
constexpr uint32_t kNotASound = 57451;

// The pictures of the icon statics.
constexpr int kAlertPicture = 17;
constexpr int kRecordsPicture = 1;

}  // namespace

COtherConfigPage::COtherConfigPage() : CFormPage(kTemplateId, Applies::kNo) {}

void COtherConfigPage::BindControls() {
    m_bind.Bit(m_ui.homeAlarmBox, kHomeAlarm, 0x1);
    m_bind.Rebuilt(kHomeAlarm);
    m_bind.Bit(m_ui.trayBox, kGeneralSwitch, SwitchBitOf(SSCT_TRAY));
    m_bind.Bit(m_ui.productEventBox, kEventOptions, kProductEvents);
    m_bind.Bit(m_ui.updateEventBox, kEventOptions, kUpdateEvents);
    m_bind.Bit(m_ui.warningEventBox, kEventOptions, kSecurityWarnings);
    m_bind.Rebuilt(kEventOptions);
    m_bind.Bit(m_ui.soundBox, kGeneralOptions, kAlertSound);
    m_bind.Bit(m_ui.scanLogBox, kGeneralOptions, kSaveScanLogs);
    m_bind.Bit(m_ui.scanLogSpaceBox, kGeneralOptions, kLimitScanLogs);
    m_bind.Bit(m_ui.eventLogSpaceBox, kGeneralOptions, kLimitEventLogs);
    m_bind.Bit(m_ui.backupSpaceBox, kGeneralOptions, kLimitBackups);
    // The numbers are checked whether their boxes are checked or not, and
    // before the sound file.
    m_ui.scanLogSizeSpin->SetBuddy(m_ui.scanLogSizeEdit);
    m_ui.eventLogCountSpin->SetBuddy(m_ui.eventLogCountEdit);
    m_ui.backupSizeSpin->SetBuddy(m_ui.backupSizeEdit);
    m_bind.Number(m_ui.scanLogSizeSpin, {CES_General, CEK_ScanLogSize}, kLeastSize, kMostSize,
                  FieldCheck::kAlways);
    m_bind.Number(m_ui.eventLogCountSpin, {CES_General, CEK_EventLogCount}, kLeastSize, kMostSize,
                  FieldCheck::kAlways);
    m_bind.Number(m_ui.backupSizeSpin, {CES_General, CEK_BackupSize}, kLeastSize, kMostSize,
                  FieldCheck::kAlways);
    m_bind.Text(m_ui.soundEdit, {CES_General, CEK_AlertSound}, kMaxPathLength);
    m_bind.Owns(kGeneralMask, kWholeWord);

    m_bind.EnableWhen(m_ui.trayBox,
                      {m_ui.productEventBox, m_ui.updateEventBox, m_ui.warningEventBox});
    m_bind.EnableWhen(m_ui.soundBox, {m_ui.soundEdit, m_ui.browseButton, m_ui.playButton});
    m_bind.EnableWhen(m_ui.scanLogSpaceBox,
                      {m_ui.scanLogSizeEdit, m_ui.scanLogSizeSpin, m_ui.scanLogSizeUnit});
    m_bind.EnableWhen(m_ui.eventLogSpaceBox,
                      {m_ui.eventLogCountEdit, m_ui.eventLogCountSpin, m_ui.eventLogCountUnit});
    m_bind.EnableWhen(m_ui.backupSpaceBox,
                      {m_ui.backupSizeEdit, m_ui.backupSizeSpin, m_ui.backupSizeUnit});
}

void COtherConfigPage::PrepareControls() {
    const std::string format = m_ui.productEventBox->text().toStdString();
    m_ui.productEventBox->setText(
        QString::fromStdString(FormatResource(format.c_str(), ProductName().c_str())));
    if (Context().Siblings().GetLanguageId() == kUsEnglish) m_ui.homeAlarmBox->setEnabled(false);
}

std::string COtherConfigPage::ProductName() const {
    if ((m_flags & DMF_Master) != 0) return LoadString(kMasterProductName);
    return Context().Siblings().GetProductString(nullptr, "ProductName", kDefaultProductName);
}

void COtherConfigPage::SetIcons(const ImageList* icons) {
    m_ui.alertIcon->SetImage(icons, kAlertPicture);
    m_ui.logIcon->SetImage(icons, kRecordsPicture);
}

void COtherConfigPage::Load() {
    LoadFrom(RegisteredValues(Context().Siblings(), kGeneralSwitch, {SSCT_TRAY}));
}

int32_t COtherConfigPage::OnDefault() {
    CFormPage::OnDefault();
    m_needApply = 1;
    return 1;
}

void COtherConfigPage::SaveMore() {
    WriteWord(kGeneralMask, kWholeWord);
    Context().Siblings().MarkPending(SwitchBitOf(SSCT_TRAY), 0);
}

void COtherConfigPage::Apply() {
    RegisterAsSwitched(Context().Siblings(), SSCT_TRAY, StoreValues().Word(kGeneralSwitch));
}

int32_t COtherConfigPage::ValidateMore() {
    return m_ui.soundBox->isChecked() ? CheckSoundPath() : 0;
}

std::string COtherConfigPage::SoundPath() const { return m_ui.soundEdit->text().toStdString(); }

int32_t COtherConfigPage::CheckSoundPath() {
    const std::string path = SoundPath();
    std::error_code error;
    if (ValidateLength(this, path, kMaxPathLength) == 0) {
        const std::filesystem::path file(path);
        if (std::filesystem::exists(file, error) && !std::filesystem::is_directory(file, error))
            return 0;
        ShowMessage(this, LoadString(kNoFileExists), LoadString(strings::kConfigurationError),
                    msg::kOk);
    }
    m_ui.soundEdit->setFocus();
    return 1;
}

void COtherConfigPage::OnControlCommand(int id, ctl::Notification code) {
    if (code != ctl::Notification::kClicked) return;
    if (id == ctl::IdOf(m_ui.browseButton)) ChooseSoundFile();
    if (id == ctl::IdOf(m_ui.playButton)) PlaySound();
    if (id == ctl::IdOf(m_ui.trayBox)) OnTrayClicked();
}

void COtherConfigPage::OnTrayClicked() {
    m_needApply = 1;
    if ((m_flags & DMF_Master) != 0 && !m_ui.trayBox->isChecked()) {
        ShowMessage(this, LoadString(kTrayOffWarning), LoadString(strings::kInformation),
                    msg::kOk | msg::kIconInformation);
    }
}

void COtherConfigPage::ChooseSoundFile() {
    const QString file =
        QFileDialog::getOpenFileName(this, QString(), m_ui.soundEdit->text(), "*.wav");
    if (file.isEmpty()) return;
    m_ui.soundEdit->setText(file);
    MarkModified();
}

void COtherConfigPage::PlaySound() {
    if (CheckSoundPath() != 0) return;
    switch (SoundPlayer::Play(SoundPath())) {
        case SoundPlayer::Result::kPlaying: return;
        case SoundPlayer::Result::kNoDevice:
            ShowMessage(this, LoadString(kNoSoundDevice), LoadString(strings::kInformation),
                        msg::kOk | msg::kIconInformation);
            return;
        case SoundPlayer::Result::kNotASound:
            ShowMessage(this, LoadString(kNotASound), LoadString(strings::kConfigurationError),
                        msg::kOk);
            return;
    }
}
