#include "pages/schedule/SchedulePage.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <vector>

#include "pages/schedule/ScheduleWizardDlg.h"
#include "schedule/ScheduleText.h"
#include "session/ProcessState.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

namespace {

constexpr int kAddButton = 1034;
constexpr int kDeleteButton = 1072;
constexpr int kEditButton = 1073;

constexpr uint32_t kIntervalTitle = 300;
constexpr uint32_t kTargetsTitle = 301;
constexpr uint32_t kItemsExist = 1005;
constexpr uint32_t kIncorrectInterval = 57345;

// The tick a row showed last, to tell a change of the tick from others.
constexpr int kTickRole = Qt::UserRole;

QString Text(const std::string& text) { return QString::fromStdString(text); }

std::string IntervalText(const ScheduleEntry& entry, int32_t* valid) {
    return FormatInterval(entry.m_nStyle, &entry.m_time, valid);
}

}  // namespace

CSchedulePage::CSchedulePage() : CFormPage(kTemplateId, Applies::kNo) {}

CSchedulePage::~CSchedulePage() = default;

void CSchedulePage::PrepareControls() {
    QTreeWidget* list = List();
    list->setColumnCount(2);
    list->setHeaderLabels({Text(LoadString(kIntervalTitle)), Text(LoadString(kTargetsTitle))});
    list->setRootIsDecorated(false);
    list->setSortingEnabled(false);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->header()->setSectionsClickable(false);
    list->header()->setStretchLastSection(false);
    const int half = (list->width() - 2 * list->frameWidth()) / 2;
    list->setColumnWidth(0, half);
    list->setColumnWidth(1, half);
    QObject::connect(list, &QTreeWidget::itemChanged, this,
                     [this](QTreeWidgetItem* item) { OnItemChanged(item); });
    QObject::connect(list, &QTreeWidget::itemDoubleClicked, this, [this] { EditSelected(); });
    list->installEventFilter(this);
}

int CSchedulePage::RowCount() const { return List()->topLevelItemCount(); }

const ScheduleEntry* CSchedulePage::EntryAt(int row) const {
    if (row < 0 || row >= static_cast<int>(m_entries.size())) return nullptr;
    return m_entries[static_cast<size_t>(row)].get();
}

bool CSchedulePage::IsTicked(int row) const {
    const QTreeWidgetItem* item = List()->topLevelItem(row);
    return item != nullptr && item->checkState(0) == Qt::Checked;
}

int CSchedulePage::SelectedRow() const {
    for (int row = 0; row < RowCount(); ++row) {
        if (List()->topLevelItem(row)->isSelected()) return row;
    }
    return -1;
}

void CSchedulePage::MarkChanged() {
    m_modified = 1;
    m_needApply = 1;
}

void CSchedulePage::Load() {
    while (RowCount() > 0) RemoveRow(RowCount() - 1);
    for (std::unique_ptr<ScheduleEntry>& entry : ListScheduleEntries()) {
        // A duplicate or an interval that cannot be shown drops silently.
        if (AddRow(std::move(entry)) == kRefused) break;
    }
    m_modified = 0;
}

int CSchedulePage::FindRow(const ScheduleEntry& entry) const {
    int32_t valid = 1;
    const QString interval = Text(IntervalText(entry, &valid));
    const QString targets = Text(FormatTargets(entry.m_targets));
    for (int row = 0; row < RowCount(); ++row) {
        const QTreeWidgetItem* item = List()->topLevelItem(row);
        if (item->text(0).compare(interval, Qt::CaseInsensitive) == 0 &&
            item->text(1).compare(targets, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

int CSchedulePage::AddRow(std::unique_ptr<ScheduleEntry> entry) {
    if (!entry) return kRefused;
    if (FindRow(*entry) >= 0) return kDuplicate;
    int32_t valid = 1;
    const std::string interval = IntervalText(*entry, &valid);
    if (valid == 0) return kInvalidInterval;
    const QSignalBlocker quiet(List());
    auto* item = new QTreeWidgetItem(List());
    item->setText(0, Text(interval));
    item->setText(1, Text(FormatTargets(entry->m_targets)));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    const Qt::CheckState tick = entry->m_bOn != 0 ? Qt::Checked : Qt::Unchecked;
    item->setCheckState(0, tick);
    item->setData(0, kTickRole, static_cast<int>(tick));
    m_entries.push_back(std::move(entry));
    List()->setCurrentItem(item);
    return RowCount() - 1;
}

void CSchedulePage::RemoveRow(int row) {
    const QSignalBlocker quiet(List());
    delete List()->takeTopLevelItem(row);
    m_entries.erase(m_entries.begin() + row);
    MarkChanged();
}

void CSchedulePage::OnItemChanged(QTreeWidgetItem* item) {
    const int tick = static_cast<int>(item->checkState(0));
    if (item->data(0, kTickRole).toInt() == tick) return;
    item->setData(0, kTickRole, tick);
    MarkChanged();
}

bool CSchedulePage::RunWizard(ScheduleEntry* entry, bool* changed) {
    CScheduleWizardDlg wizard(entry, m_flags, this);
    wizard.SetContext(Context());
    const bool finished = wizard.DoModal() == 1;
    *changed = wizard.IsChanged() != 0;
    return finished;
}

void CSchedulePage::Refuse(uint32_t text) {
    ShowMessage(this, LoadString(text), LoadString(strings::kConfigurationError), msg::kOk);
}

void CSchedulePage::AddEntry() {
    auto entry = std::make_unique<ScheduleEntry>();
    bool changed = false;
    if (!RunWizard(entry.get(), &changed)) return;
    switch (AddRow(std::move(entry))) {
        case kRefused: return;
        case kDuplicate: Refuse(kItemsExist); return;
        case kInvalidInterval: Refuse(kIncorrectInterval); return;
        default: MarkChanged();
    }
}

void CSchedulePage::EditSelected() {
    const int row = SelectedRow();
    if (row < 0 || !m_entries[static_cast<size_t>(row)]) return;
    auto copy = std::make_unique<ScheduleEntry>();
    copy->CopyFrom(m_entries[static_cast<size_t>(row)].get());
    bool changed = false;
    if (!RunWizard(copy.get(), &changed)) return;
    const int same = FindRow(*copy);
    if (same >= 0 && same != row) {
        Refuse(kItemsExist);
        return;
    }
    int32_t valid = 1;
    const std::string interval = IntervalText(*copy, &valid);
    if (valid == 0) {
        Refuse(kIncorrectInterval);
        return;
    }
    QTreeWidgetItem* item = List()->topLevelItem(row);
    const QSignalBlocker quiet(List());
    item->setText(0, Text(interval));
    item->setText(1, Text(FormatTargets(copy->m_targets)));
    m_entries[static_cast<size_t>(row)] = std::move(copy);
    if (changed) MarkChanged();
}

void CSchedulePage::DeleteSelected() {
    // The rows are chosen before any goes: the view selects a neighbour of
    // a row that is taken away.
    std::vector<int> selected;
    for (int row = RowCount() - 1; row >= 0; --row) {
        if (List()->topLevelItem(row)->isSelected()) selected.push_back(row);
    }
    int deleted = -1;
    for (int row : selected) {
        RemoveRow(row);
        deleted = row;
    }
    if (deleted < 0 || RowCount() == 0) return;
    List()->setCurrentItem(List()->topLevelItem(std::min(deleted, RowCount() - 1)));
}

void CSchedulePage::OnControlCommand(int id, ctl::Notification code) {
    if (code != ctl::Notification::kClicked) return;
    switch (id) {
        case kAddButton: AddEntry(); break;
        case kEditButton: EditSelected(); break;
        case kDeleteButton: DeleteSelected(); break;
        default: break;
    }
}

bool CSchedulePage::eventFilter(QObject* watched, QEvent* event) {
    if (watched == List() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            EditSelected();
            return true;
        }
    }
    return CFormPage::eventFilter(watched, event);
}

void CSchedulePage::SaveMore() {
    WipeStoreEntries();
    for (int row = 0; row < RowCount(); ++row) {
        if (const ScheduleEntry* entry = EntryAt(row))
            entry->SaveToStore(row, IsTicked(row) ? 1 : 0, m_flags);
    }
    g_bScheduleDirty = 1;
}

void CSchedulePage::Apply() {
    WipeRegistryEntries();
    for (int row = 0; row < RowCount(); ++row) {
        if (const ScheduleEntry* entry = EntryAt(row))
            entry->SaveToRegistry(row, IsTicked(row) ? 1 : 0, m_flags);
    }
}
