#include "shell/PageShellDlg.h"

#include <QPushButton>
#include <algorithm>
#include <vector>

#include "pages/SettingsPage.h"
#include "session/StoreCommit.h"
#include "shell/ConfigWindow.h"
#include "shell/SaveFailure.h"

namespace {

constexpr int kPageTop = 5;
constexpr int kMargin = 8;
constexpr int kButtonGap = 8;
constexpr int kButtonSpacing = 8;

}  // namespace

CPageShellDlg::CPageShellDlg(int pageId, uint32_t flags, QWidget* parent, PageFactory factory)
    : CFormDialog(kTemplateId, parent),
      m_pageId(pageId),
      m_dlgFlags(flags),
      m_pages(std::move(factory)),
      m_pageIcons(ImageList::PageIcons()) {}

CPageShellDlg::~CPageShellDlg() { m_pages.DestroyAll(); }

bool CPageShellDlg::OnInitDialog() {
    if (m_ownsStore) m_window = std::make_unique<ConfigWindowRegistration>(this);
    CSettingsPage* page = m_pages.Attach(m_pageId, this);
    if (page) {
        page->Load();
    } else {
        page = m_pages.Create(m_pageId, m_dlgFlags, this);
    }
    if (m_ownsStore) BeginStoreEdit();
    if (page) {
        page->SetIcons(&m_pageIcons);
        setWindowTitle(QString::fromStdString(CPageTable::TitleOf(m_pageId)));
    }
    Arrange(page);
    m_unreadableFiles.ShowNewLater(this);
    return true;
}

// The page centred at the top, the buttons under it at the right; without
// defaults, OK and Cancel take the two places at the right and Default is
// hidden. The dialog takes the size that holds both, centred on its parent.
void CPageShellDlg::Arrange(CSettingsPage* page) {
    QWidget* byDefault = m_ui.defaultButton;
    const bool hasDefault = !page || page->CanDefault() != 0;
    byDefault->setVisible(hasDefault);
    std::vector<QWidget*> row = {m_ui.okButton, m_ui.cancelButton};
    if (hasDefault) row.push_back(byDefault);

    int rowWidth = -kButtonSpacing;
    for (const QWidget* button : row) rowWidth += button->width() + kButtonSpacing;
    const int pageWidth = page ? page->width() : 0;
    const int pageHeight = page ? page->height() : 0;
    const int width = std::max(pageWidth, rowWidth) + 2 * kMargin;
    const int top = kPageTop + pageHeight + kButtonGap;
    resize(width, top + row.front()->height() + kMargin);

    if (page) {
        page->move((width - pageWidth) / 2, kPageTop);
        page->setEnabled(true);
        page->show();
    }
    int x = width - kMargin - rowWidth;
    for (QWidget* button : row) {
        button->move(x, top);
        x += button->width() + kButtonSpacing;
    }
    if (parentWidget()) move(parentWidget()->geometry().center() - rect().center());
}

void CPageShellDlg::OnCommand(int id) {
    if (id == kDefaultButton) {
        if (CSettingsPage* page = Page()) page->OnDefault();
        return;
    }
    CDialog::OnCommand(id);
}

void CPageShellDlg::OnOK() {
    CSettingsPage* page = Page();
    if (page && page->Validate() != 0) return;
    if (page && page->IsModified()) {
        m_saved = 1;
        page->Save();
    }
    if (page && page->NeedApply()) m_applyPending = 1;
    m_unreadableFiles.ShowNew(this);
    if (m_ownsStore) {
        if (!CommitOrReport(this)) return;
        if (page && page->NeedApply()) page->Apply();
        AnnounceCommit();
    }
    EndDialog(1);
}

void CPageShellDlg::OnCancel() {
    if (m_ownsStore) DropWorkingCopy();
    EndDialog(2);
}

void CPageShellDlg::SavePage() {
    CSettingsPage* page = Page();
    if (page && page->IsModified()) page->Save();
}

void CPageShellDlg::ApplyPage() {
    CSettingsPage* page = Page();
    if (page && page->NeedApply()) page->Apply();
}

void CPageShellDlg::ServeNestedPages() {
    NestedPageShell::Install(
        [](PageId id, uint32_t flags, QWidget* parent) -> std::unique_ptr<NestedPageShell> {
            auto shell = std::make_unique<CPageShellDlg>(ToInt(id), flags, parent);
            shell->SetOwnsStore(0);
            return shell;
        });
}
