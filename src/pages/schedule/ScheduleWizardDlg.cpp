#include "pages/schedule/ScheduleWizardDlg.h"

#include <QPixmap>

#include "framework/ImageList.h"
#include "pages/PageRegistry.h"
#include "pages/SettingsPage.h"
#include "pages/schedule/ScheduleEntryEditor.h"
#include "session/ProcessState.h"

namespace {

// The pages in order: timing and targets, then the scan options.
constexpr PageId kPages[] = {PageId::kScheduleTime, PageId::kScheduleScan};
// The page's top edge below the top of the space right of the picture.
constexpr int kPageTop = 5;

const char kPictureFile[] = "Resource/Schedule_Wizard.bmp";

}  // namespace

CScheduleWizardDlg::CScheduleWizardDlg(ScheduleEntry* entry, uint32_t pageFlags, QWidget* parent)
    : CFormDialog(kTemplateId, parent), m_entry(entry), m_flags(pageFlags) {}

// The pages go before the dialog's own children, whose parent they are.
CScheduleWizardDlg::~CScheduleWizardDlg() = default;

CSettingsPage* CScheduleWizardDlg::Page(int index) const {
    if (index < 0 || static_cast<size_t>(index) >= m_pages.size()) return nullptr;
    return m_pages[static_cast<size_t>(index)].get();
}

bool CScheduleWizardDlg::OnInitDialog() {
    LoadPicture();
    MakePages();
    for (const auto& page : m_pages) {
        if (auto* editor = dynamic_cast<ScheduleEntryEditor*>(page.get()))
            editor->LoadEntry(m_entry);
    }
    m_current = 0;
    m_changed = 0;
    ShowCurrent();
    return true;
}

void CScheduleWizardDlg::LoadPicture() {
    // A missing picture leaves the space empty.
    m_ui.picture->setPixmap(QPixmap(QString::fromStdString(g_szModuleDir + kPictureFile)));
}

void CScheduleWizardDlg::MakePages() {
    m_pages.clear();
    if (!m_icons) m_icons = std::make_unique<ImageList>(ImageList::PageIcons());
    for (PageId id : kPages) {
        const PageMaker make = PageRowOf(id).make;
        std::unique_ptr<CSettingsPage> page = make ? make() : nullptr;
        if (!page) continue;
        page->SetFlags(m_flags);
        page->SetContext(m_context);
        if (!page->Create(this)) continue;
        page->SetIcons(m_icons.get());
        PlacePage(page.get());
        page->hide();
        m_pages.push_back(std::move(page));
    }
}

void CScheduleWizardDlg::PlacePage(CSettingsPage* page) {
    const QRect space = m_ui.pageArea->geometry();
    page->move(space.left() + (space.width() - page->width()) / 2, space.top() + kPageTop);
}

void CScheduleWizardDlg::OnCommand(int id) {
    switch (id) {
        case kBackButton: Turn(-1); return;
        case kNextButton: Turn(1); return;
        default: CFormDialog::OnCommand(id);
    }
}

void CScheduleWizardDlg::Turn(int step) {
    const int next = m_current + step;
    if (next < 0 || next >= static_cast<int>(m_pages.size())) return;
    if (Page(m_current)->Validate() != 0) return;
    Page(m_current)->hide();
    m_current = next;
    ShowCurrent();
}

void CScheduleWizardDlg::ShowCurrent() {
    for (int i = 0; i < static_cast<int>(m_pages.size()); ++i) Page(i)->setVisible(i == m_current);
    const bool first = m_current == 0;
    m_ui.backButton->setEnabled(!first);
    m_ui.nextButton->setEnabled(first);
    m_ui.nextButton->setDefault(first);
    m_ui.finishButton->setDefault(!first);
}

void CScheduleWizardDlg::OnOK() {
    for (auto page = m_pages.rbegin(); page != m_pages.rend(); ++page) {
        if ((*page)->Validate() != 0) return;
    }
    for (auto page = m_pages.rbegin(); page != m_pages.rend(); ++page) {
        (*page)->Save();
        if ((*page)->IsModified() != 0) m_changed = 1;
    }
    CFormDialog::OnOK();
}
