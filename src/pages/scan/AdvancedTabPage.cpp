#include "pages/scan/AdvancedTabPage.h"

#include "text/MessageService.h"
#include "text/StringTable.h"

CAdvancedTabPage::CAdvancedTabPage(int templateId) : CBoundPage(templateId, Applies::kNo) {
    m_bind.SetHome(&m_values);
}

int32_t CAdvancedTabPage::Refuse(QWidget* control, const std::string& text) {
    ShowMessage(this, text, LoadString(strings::kConfigurationError), msg::kOk);
    control->setFocus();
    return 1;
}
