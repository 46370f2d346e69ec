#pragma once

// "Add extensions": takes a text of extensions to leave out of scans, such
// as "dmp/tmp". OK closes only on a text that passes the checks of
// ExtensionText.h; each refusal says why and keeps what the user typed. On
// success the text, each extension without the blanks around it, is shown
// and kept.

#include <string>

#include "framework/FormDialog.h"
#include "ui_Dialog1029.h"

class CAddExtensionDlg : public CFormDialog<Ui::Dialog1029> {
public:
    static constexpr int kTemplateId = 1029;

    explicit CAddExtensionDlg(QWidget* parent);

    // The extensions OK took; empty before.
    const std::string& GetText() const { return m_text; }

protected:
    void OnOK() override;

private:
    // 0 when the text passes (it is then kept and shown as kept), else 1
    // after the user was told why.
    int32_t CheckText();

    std::string m_text;
};
