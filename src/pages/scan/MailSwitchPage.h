#pragma once

// "E-mail Scan/Monitoring": switches the mail functions whose bits lie in
// CEK_Switch_ScanMail. A profile without POP3 monitoring drops the POP3 row
// and moves the Outlook rows up into its place; one without Outlook
// monitoring drops both Outlook rows.

#include <cstdint>

#include "pages/scan/SwitchPage.h"

class CMailSwitchPage : public CSwitchPage {
public:
    explicit CMailSwitchPage(int templateId);

protected:
    bool OnInitDialog() override;
    bool AppliesRow(const Row& row) const override;
    void SaveRelated() override;

private:
    int32_t m_bPop3Clicked = 0;
    int32_t m_bOutlookScanClicked = 0;
    int32_t m_bOutlookMonClicked = 0;
};
