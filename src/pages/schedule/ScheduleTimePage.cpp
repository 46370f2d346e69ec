#include "pages/schedule/ScheduleTimePage.h"

#include "controls/DateEdit.h"
#include "controls/TargetPair.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "q9cfgul.h"
#include "text/StringTable.h"

namespace {

constexpr int kIntervalCombo = 1004;
constexpr int kAuthorizationButton = 1084;

constexpr uint32_t kItemsToScan = 700;
// The interval combo's rows, in order.
constexpr uint32_t kIntervalTexts[] = {310, 311, 312, 313, 317};

// The date control of each interval that shows one: its label and format.
struct DateLook {
    int32_t interval;
    uint32_t label;
    uint32_t format;
};
constexpr DateLook kDateLooks[] = {
    {kScheduleEveryWeek, 304, 314},   // "Day of the week :", "%a"
    {kScheduleEveryMonth, 303, 315},  // "Day :", "%dDay"
    {kScheduleOnce, 305, 316},        // "Date :", "%YYear %mMonth %dDay"
};

// A date in August 1999, which begins on a Sunday, so that day of week + 1
// is a day that falls on that weekday.
constexpr uint16_t kWeekYear = 1999;
constexpr uint16_t kWeekMonth = 8;
// January 1999: a month of 31 days for the day of the month.
constexpr uint16_t kMonthYear = 1999;
constexpr uint16_t kMonthMonth = 1;

QString Text(uint32_t id) { return QString::fromStdString(LoadString(id)); }

}  // namespace

CScheduleTimePage::CScheduleTimePage() : CFormPage(kTemplateId, Applies::kNo) {}

void CScheduleTimePage::PrepareControls() {
    for (uint32_t text : kIntervalTexts) m_ui.intervalCombo->addItem(Text(text));
    m_ui.folderTree->setEnabled(true);
    m_ui.folderTree->Build(0);
    QObject::connect(m_ui.dateEdit, &CDateEdit::edited, this, [this] { m_modified = 1; });
    QObject::connect(m_ui.timeEdit, &CDateEdit::edited, this, [this] { m_modified = 1; });
}

int32_t CScheduleTimePage::IntervalOfRow(int row) { return row == 0 ? kScheduleAtStartup : row; }

int CScheduleTimePage::RowOfInterval(int32_t interval) {
    return interval == kScheduleAtStartup ? 0 : interval;
}

void CScheduleTimePage::LoadEntry(ScheduleEntry* entry) {
    m_entry = entry;
    if (entry == nullptr) return;
    m_nInterval = entry->m_nStyle;
    m_time = LocalTimeNow();
    m_time.wHour = entry->m_time.wHour;
    m_time.wMinute = entry->m_time.wMinute;
    m_onceDate = m_monthDate = m_weekDate = LocalTimeNow();
    m_monthDate.wMonth = kMonthMonth;
    switch (entry->m_nStyle) {
        case kScheduleEveryWeek:
            m_weekDate.wYear = kWeekYear;
            m_weekDate.wMonth = kWeekMonth;
            m_weekDate.wDay = static_cast<uint16_t>(entry->m_time.wDayOfWeek + 1);
            m_weekDate.wDayOfWeek = entry->m_time.wDayOfWeek;
            break;
        case kScheduleEveryMonth:
            m_monthDate.wYear = kMonthYear;
            m_monthDate.wDay = entry->m_time.wDay;
            break;
        case kScheduleOnce: m_onceDate = entry->m_time; break;
        default: break;
    }
    m_ui.timeEdit->Exchange(&m_time, false);
    m_ui.intervalCombo->setCurrentIndex(RowOfInterval(m_nInterval));
    ShowInterval();
    const std::string list = EncodeTargetList(entry->m_targets);
    m_ui.targetTree->Load(LoadString(kItemsToScan), list.data(), list.size(),
                          CTargetTree::kEmptyMeansAllDrives);
    m_ui.authorizationButton->setEnabled(AccountsAvailable());
    if (AccountsAvailable()) {
        m_strUser = entry->m_strUser;
        m_strPassword = entry->m_strPassword;
        m_strNetUser = entry->m_strNetUser;
        m_strNetPassword = entry->m_strNetPassword;
    }
    m_ui.dateEdit->ClearChanged();
    m_ui.timeEdit->ClearChanged();
    m_modified = 0;
}

bool CScheduleTimePage::AccountsAvailable() const {
    return Context().IsNT() || (m_flags & DMF_AssumeNT) != 0;
}

ScheduleTime* CScheduleTimePage::DateOf(int32_t interval) {
    switch (interval) {
        case kScheduleEveryWeek: return &m_weekDate;
        case kScheduleEveryMonth: return &m_monthDate;
        case kScheduleOnce: return &m_onceDate;
        default: return nullptr;
    }
}

void CScheduleTimePage::ShowInterval() {
    const bool showsTime = m_nInterval != kScheduleAtStartup;
    m_ui.timeLabel->setVisible(showsTime);
    m_ui.timeEdit->setVisible(showsTime);
    const DateLook* look = nullptr;
    for (const DateLook& candidate : kDateLooks) {
        if (candidate.interval == m_nInterval) look = &candidate;
    }
    m_ui.dateLabel->setVisible(look != nullptr);
    m_ui.dateEdit->setVisible(look != nullptr);
    if (look == nullptr) return;
    m_ui.dateLabel->setText(Text(look->label));
    m_ui.dateEdit->SetWindowText(Text(look->format));
    m_ui.dateEdit->Exchange(DateOf(m_nInterval), false);
}

void CScheduleTimePage::OnIntervalChanged() {
    if (ScheduleTime* date = DateOf(m_nInterval)) m_ui.dateEdit->Exchange(date, true);
    const int row = m_ui.intervalCombo->currentIndex();
    if (row >= 0) m_nInterval = IntervalOfRow(row);
    ShowInterval();
    m_modified = 1;
}

void CScheduleTimePage::OnControlCommand(int id, ctl::Notification code) {
    if (id == kIntervalCombo && code == ctl::Notification::kSelChanged) {
        OnIntervalChanged();
        return;
    }
    if (id == kAuthorizationButton) {
        EditAccounts();
        return;
    }
    bool changed = false;
    target_pair::OnCommand(id, *m_ui.folderTree, *m_ui.targetTree, &changed);
    if (changed) m_modified = 1;
}

void CScheduleTimePage::EditAccounts() {
    CAuthorizationDlg dialog(this);
    dialog.SetUser(m_strUser);
    dialog.SetPassword(m_strPassword);
    dialog.SetNetUser(m_strNetUser);
    dialog.SetNetPassword(m_strNetPassword);
    if (dialog.DoModal() != 1) return;
    m_strUser = dialog.GetUser();
    m_strPassword = dialog.GetPassword();
    m_strNetUser = dialog.GetNetUser();
    m_strNetPassword = dialog.GetNetPassword();
    if (dialog.IsChanged()) m_modified = 1;
}

int32_t CScheduleTimePage::IsModified() {
    const bool changed = m_modified != 0 || m_ui.targetTree->IsChanged() ||
                         m_ui.dateEdit->IsChanged() || m_ui.timeEdit->IsChanged();
    return changed ? 1 : 0;
}

void CScheduleTimePage::TakeDate(ScheduleTime& time) const {
    ScheduleTime date;
    m_ui.dateEdit->Exchange(&date, true);
    switch (m_nInterval) {
        case kScheduleEveryWeek: time.wDayOfWeek = date.wDayOfWeek; break;
        case kScheduleEveryMonth: time.wDay = date.wDay; break;
        case kScheduleOnce:
            time.wYear = date.wYear;
            time.wMonth = date.wMonth;
            time.wDay = date.wDay;
            time.wDayOfWeek =
                static_cast<uint16_t>(DayOfWeekOf(date.wYear, date.wMonth, date.wDay));
            break;
        default: break;
    }
}

void CScheduleTimePage::SaveMore() {
    if (m_entry == nullptr) return;
    const int row = m_ui.intervalCombo->currentIndex();
    if (row >= 0) m_nInterval = IntervalOfRow(row);
    m_time = ScheduleTime();
    m_ui.timeEdit->Exchange(&m_time, true);
    TakeDate(m_time);
    m_entry->m_nStyle = m_nInterval;
    m_entry->m_time = m_time;
    if (AccountsAvailable()) {
        m_entry->m_strUser = m_strUser;
        m_entry->m_strPassword = m_strPassword;
        m_entry->m_strNetUser = m_strNetUser;
        m_entry->m_strNetPassword = m_strNetPassword;
    }
    const std::string list = target_pair::ListOf(*m_ui.targetTree);
    m_entry->m_targets = ParseTargetList(list.data(), list.size()).targets;
}
