#include "pages/scan/MailSwitchPage.h"

#include <QPoint>

#include "options/StoreKeys.h"
#include "options/SwitchWord.h"
#include "q9cfgul.h"

namespace {

constexpr StoreAddress kMailMask = {CES_Switch, CEK_Switch_ScanMailMask};

}  // namespace

CMailSwitchPage::CMailSwitchPage() : CFormPage(kTemplateId, CEK_Switch_ScanMail) {}

std::vector<CSwitchPage::Row> CMailSwitchPage::Rows() {
    return {
        {m_ui.pop3Box, SSCT_POP3, &m_bPop3Clicked, 0},
        {m_ui.outlookScanBox, SSCT_MANUAL_OUTLOOK, &m_bOutlookScanClicked, 0},
        {m_ui.outlookMonitorBox, SSCT_REALTIME_OUTLOOK, &m_bOutlookMonClicked, 0},
    };
}

void CMailSwitchPage::BindControls() {
    CSwitchPage::BindControls();
    // The light edition leaves the mail mask alone.
    if (PageSwitchMasks(m_flags).scanMail) m_bind.Owns(kMailMask, kWholeWord);
}

void CMailSwitchPage::PrepareControls() {
    if ((m_flags & DMF_RemovePopMon) != 0) {
        // The POP3 row (box and description) goes; the rows below take its place.
        ShowCount(ctl::IdOf(m_ui.pop3Box), 2, false, true);
        const QPoint distance = m_ui.pop3Box->pos() - m_ui.outlookScanBox->pos();
        MoveRange(ctl::IdOf(m_ui.outlookScanBox), -1, distance.x(), distance.y());
    } else if ((m_flags & DMF_RemoveOutlookMon) != 0) {
        ShowRange(ctl::IdOf(m_ui.outlookScanBox), -1, false, true);
    }
    DisableUnlessRegistrable(m_ui.pop3Box, SSCT_POP3);
    // Both Outlook functions stand or fall with the scan's test.
    DisableUnlessRegistrable(m_ui.outlookScanBox, SSCT_MANUAL_OUTLOOK);
    DisableUnlessRegistrable(m_ui.outlookMonitorBox, SSCT_MANUAL_OUTLOOK);
}

bool CMailSwitchPage::AppliesRow(const Row& row) const {
    if (row.code == SSCT_POP3 && (m_flags & DMF_RemovePopMon) != 0) return false;
    if (row.code != SSCT_POP3 && (m_flags & DMF_RemoveOutlookMon) != 0) return false;
    return CSwitchPage::AppliesRow(row);
}

void CMailSwitchPage::SaveRelated() {
    // The one table of who writes the mask words decides, as for the other
    // function selection page.
    if (const auto mask = PageSwitchMasks(m_flags).scanMail) WriteWord(kMailMask, *mask);
}
