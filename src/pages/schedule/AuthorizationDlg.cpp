#include "pages/schedule/AuthorizationDlg.h"

#include <array>
#include <utility>

#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

constexpr uint32_t kInvalidPassword = 1002;

std::string TextOf(const QLineEdit* edit) { return edit->text().toStdString(); }

// Shows an account; the confirmation starts as a copy of the password, so
// that an untouched dialog passes.
void ShowAccount(const std::array<QLineEdit*, 3>& edits, const std::string& user,
                 const std::string& password) {
    const auto& [userEdit, passwordEdit, confirmEdit] = edits;
    userEdit->setText(QString::fromStdString(user));
    passwordEdit->setText(QString::fromStdString(password));
    confirmEdit->setText(passwordEdit->text());
}

}  // namespace

CAuthorizationDlg::CAuthorizationDlg(QWidget* parent) : CFormDialog(kTemplateId, parent) {}

bool CAuthorizationDlg::BuildControls() {
    CFormDialog::BuildControls();
    // Only the user's typing counts as a change; the dialog's own filling
    // at start-up does not signal textEdited.
    for (QLineEdit* edit : {m_ui.userEdit, m_ui.passwordEdit, m_ui.confirmEdit, m_ui.netUserEdit,
                            m_ui.netPasswordEdit, m_ui.netConfirmEdit})
        connect(edit, &QLineEdit::textEdited, this, [this] { m_changed = 1; });
    return true;
}

bool CAuthorizationDlg::OnInitDialog() {
    ShowAccount({m_ui.userEdit, m_ui.passwordEdit, m_ui.confirmEdit}, m_strUser, m_strPassword);
    ShowAccount({m_ui.netUserEdit, m_ui.netPasswordEdit, m_ui.netConfirmEdit}, m_strNetUser,
                m_strNetPassword);
    m_changed = 0;
    return true;
}

void CAuthorizationDlg::OnOK() {
    if (!CheckLengths() || !CheckConfirmations()) return;
    m_strUser = TextOf(m_ui.userEdit);
    m_strPassword = TextOf(m_ui.passwordEdit);
    m_strNetUser = TextOf(m_ui.netUserEdit);
    m_strNetPassword = TextOf(m_ui.netPasswordEdit);
    CFormDialog::OnOK();
}

bool CAuthorizationDlg::CheckLengths() {
    const std::array<QLineEdit*, 6> order = {m_ui.passwordEdit,    m_ui.userEdit,
                                             m_ui.netPasswordEdit, m_ui.netUserEdit,
                                             m_ui.confirmEdit,     m_ui.netConfirmEdit};
    for (QLineEdit* edit : order) {
        if (!ExceedsLength(TextOf(edit), kMaxPathLength)) continue;
        ShowLengthMessage(this, kMaxPathLength);
        edit->setFocus();
        return false;
    }
    return true;
}

bool CAuthorizationDlg::CheckConfirmations() {
    const std::array<std::pair<QLineEdit*, QLineEdit*>, 2> pairs = {
        {{m_ui.passwordEdit, m_ui.confirmEdit}, {m_ui.netPasswordEdit, m_ui.netConfirmEdit}}};
    for (const auto& [password, confirm] : pairs) {
        if (password->text() == confirm->text()) continue;
        ShowConfigurationError(this, LoadString(kInvalidPassword));
        confirm->setFocus();
        return false;
    }
    return true;
}
