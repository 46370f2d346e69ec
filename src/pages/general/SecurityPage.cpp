#include "pages/general/SecurityPage.h"

#include "framework/ImageList.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr StoreAddress kEnabled = {CES_Authorization, CEK_AuthEnabled};
constexpr StoreAddress kItems = {CES_Authorization, CEK_AuthItems};
constexpr StoreAddress kPassword = {CES_Authorization, CEK_AuthPassword};

// CEK_AuthItems: the actions that need the password.
constexpr uint32_t kStopMonitoringItem = 0x2;
constexpr uint32_t kUninstallItem = 0x4;

constexpr uint32_t kInvalidPassword = 1001;

// The pictures of the icon statics.
constexpr int kPasswordPicture = 2;
constexpr int kActionsPicture = 3;

}  // namespace

CSecurityPage::CSecurityPage() : CFormPage(kTemplateId, Applies::kNo) {}

void CSecurityPage::BindControls() {
    m_bind.Bit(m_ui.securityBox, kEnabled, 0x1);
    m_bind.Rebuilt(kEnabled);
    m_bind.Bit(m_ui.monitorActionBox, kItems, kStopMonitoringItem);
    m_bind.Bit(m_ui.uninstallActionBox, kItems, kUninstallItem);
    m_bind.OwnsText(kPassword);
    m_bind.EnableWhen(m_ui.securityBox,
                      {m_ui.actionLabel, m_ui.monitorActionBox, m_ui.uninstallActionBox,
                       m_ui.passwordLabel, m_ui.passwordEdit, m_ui.confirmLabel, m_ui.confirmEdit});
    // A user's typing in either field changes the page, as a click does.
    for (QLineEdit* field : {m_ui.passwordEdit, m_ui.confirmEdit})
        connect(field, &QLineEdit::textEdited, this, [this] { MarkModified(); });
}

void CSecurityPage::SetIcons(const ImageList* icons) {
    m_ui.passwordIcon->SetImage(icons, kPasswordPicture);
    m_ui.actionIcon->SetImage(icons, kActionsPicture);
}

void CSecurityPage::Load() {
    CFormPage::Load();
    const QString password = QString::fromStdString(ReadEncText(kPassword.section, kPassword.key));
    m_ui.passwordEdit->setText(password);
    m_ui.confirmEdit->setText(password);
}

std::string CSecurityPage::Password() const { return m_ui.passwordEdit->text().toStdString(); }

int32_t CSecurityPage::ValidateMore() {
    if (!m_ui.securityBox->isChecked()) return 0;
    const std::string password = Password();
    if (password.empty() || password != m_ui.confirmEdit->text().toStdString())
        return RefusePassword(LoadString(kInvalidPassword));
    if (ExceedsLength(password, kMaxPathLength))
        return RefusePassword(LengthMessageText(kMaxPathLength));
    return 0;
}

int32_t CSecurityPage::RefusePassword(const std::string& text) {
    ShowMessage(this, text, LoadString(strings::kConfigurationError), msg::kOk);
    m_ui.passwordEdit->setFocus();
    return 1;
}

void CSecurityPage::SaveMore() {
    WriteEncText(kPassword, m_ui.securityBox->isChecked() ? Password() : std::string());
}
