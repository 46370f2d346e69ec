#pragma once

// "E-mail Scan/Monitoring": switches the mail functions whose bits lie in
// CEK_Switch_ScanMail. A profile without POP3 monitoring drops the POP3 row
// and moves the Outlook rows up into its place; one without Outlook
// monitoring drops both Outlook rows.

#include <cstdint>
#include <vector>

#include "pages/FormPage.h"
#include "pages/scan/SwitchPage.h"
#include "ui_Dialog1014.h"

class CMailSwitchPage : public CFormPage<Ui::Dialog1014, CSwitchPage> {
public:
    static constexpr int kTemplateId = 1014;

    CMailSwitchPage();

protected:
    std::vector<Row> Rows() override;
    void BindControls() override;
    void PrepareControls() override;
    bool AppliesRow(const Row& row) const override;
    void SaveRelated() override;

private:
    int32_t m_bPop3Clicked = 0;
    int32_t m_bOutlookScanClicked = 0;
    int32_t m_bOutlookMonClicked = 0;
};
