#include "pages/scan/MailSwitchPage.h"

#include <Q9CfgE.h>

#include <QPoint>
#include <QWidget>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"

namespace {

constexpr int kPop3Box = 1009;
constexpr int kOutlookScanBox = 1121;
constexpr int kOutlookMonitorBox = 1070;

// The mail mask words written at save, by edition.
constexpr uint32_t kMaskWithoutPop3 = 0xC000;
constexpr uint32_t kMaskWithoutOutlook = 0x1000;
constexpr uint32_t kMaskOfAll = 0xFFFFFFFF;

}  // namespace

CMailSwitchPage::CMailSwitchPage(int templateId) : CSwitchPage(templateId, CEK_Switch_ScanMail) {
    SetRows({
        {kPop3Box, SSCT_POP3, &m_bPop3Clicked, 0},
        {kOutlookScanBox, SSCT_MANUAL_OUTLOOK, &m_bOutlookScanClicked, 0},
        {kOutlookMonitorBox, SSCT_REALTIME_OUTLOOK, &m_bOutlookMonClicked, 0},
    });
}

bool CMailSwitchPage::OnInitDialog() {
    if ((m_flags & DMF_RemovePopMon) != 0) {
        // The POP3 row (box and description) goes; the rows below take its place.
        ShowCount(kPop3Box, 2, false, true);
        const QPoint distance = Control(kPop3Box)->pos() - Control(kOutlookScanBox)->pos();
        MoveRange(kOutlookScanBox, -1, distance.x(), distance.y());
    } else if ((m_flags & DMF_RemoveOutlookMon) != 0) {
        ShowRange(kOutlookScanBox, -1, false, true);
    }
    DisableUnlessRegistrable(kPop3Box, SSCT_POP3);
    // Both Outlook functions stand or fall with the scan's test.
    DisableUnlessRegistrable(kOutlookScanBox, SSCT_MANUAL_OUTLOOK);
    DisableUnlessRegistrable(kOutlookMonitorBox, SSCT_MANUAL_OUTLOOK);
    Load();
    return true;
}

bool CMailSwitchPage::AppliesRow(const Row& row) const {
    if (row.code == SSCT_POP3 && (m_flags & DMF_RemovePopMon) != 0) return false;
    if (row.code != SSCT_POP3 && (m_flags & DMF_RemoveOutlookMon) != 0) return false;
    return CSwitchPage::AppliesRow(row);
}

void CMailSwitchPage::SaveRelated() {
    uint32_t mask = kMaskOfAll;
    if ((m_flags & DMF_RemovePopMon) != 0) {
        mask = kMaskWithoutPop3;
    } else if ((m_flags & DMF_RemoveOutlookMon) != 0) {
        mask = kMaskWithoutOutlook;
    }
    Q9CfgE_SetDWEx(CES_Switch, CEK_Switch_ScanMailMask, mask);
}
