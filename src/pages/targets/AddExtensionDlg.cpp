#include "pages/targets/AddExtensionDlg.h"

#include "options/ExtensionText.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/ValidatorMessages.h"

namespace {

// Here an empty text asks for the file types not to scan.
constexpr uint32_t kNoExtensions = 57346;

std::string MessageOf(ExtensionTextProblem problem) {
    switch (problem) {
        case ExtensionTextProblem::Empty: return LoadString(kNoExtensions);
        case ExtensionTextProblem::TooLong: return LengthMessageText(kMaxExtensionText);
        default: return LoadString(ExtensionTextMessageId(problem));
    }
}

}  // namespace

CAddExtensionDlg::CAddExtensionDlg(QWidget* parent) : CFormDialog(kTemplateId, parent) {}

void CAddExtensionDlg::OnOK() {
    if (CheckText() == 0) CFormDialog::OnOK();
}

int32_t CAddExtensionDlg::CheckText() {
    const std::string text = m_ui.extensionEdit->text().toStdString();
    const ExtensionTextProblem problem = CheckExtensionText(text);
    if (problem != ExtensionTextProblem::None) {
        ShowMessage(this, MessageOf(problem), LoadString(strings::kConfigurationError), msg::kOk);
        m_ui.extensionEdit->setFocus();
        return 1;
    }
    m_text = NormalizeExtensionText(text);
    m_ui.extensionEdit->setText(QString::fromStdString(m_text));
    return 0;
}
