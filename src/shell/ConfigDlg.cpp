#include "shell/ConfigDlg.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTreeWidget>

#include "controls/HeaderStatic.h"
#include "pages/SettingsPage.h"
#include "q9cfgul.h"
#include "session/PageId.h"
#include "session/ProcessState.h"
#include "session/ShellTrees.h"
#include "session/StoreCommit.h"
#include "shell/ConfigWindow.h"
#include "shell/SaveFailure.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

namespace {

// The Easy Configuration page: the one page whose saving keeps the
// protection level it chose.
constexpr int kEasyConfigPage = ToInt(PageId::kEasyConfig);
// The gap between the header bar and the page below it.
constexpr int kPageGap = 3;

int PageOf(const QTreeWidgetItem* item) { return item ? item->data(0, Qt::UserRole).toInt() : -1; }

}  // namespace

CConfigDlg::CConfigDlg(int startPage, uint32_t flags, QWidget* parent, PageFactory factory)
    : CFormDialog(kTemplateId, parent),
      m_treeImages(ImageList::TreeImages()),
      m_pageIcons(ImageList::PageIcons()),
      m_pages(std::move(factory)),
      m_startPage(startPage),
      m_dlgFlags(flags) {}

CConfigDlg::~CConfigDlg() {
    // Pages go first: they may still reach the dialog's controls.
    m_pages.DestroyAll();
}

bool CConfigDlg::OnInitDialog() {
    m_window = std::make_unique<ConfigWindowRegistration>(this);
    m_ui.pageTree->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_ui.pageTree, &QTreeWidget::itemSelectionChanged, this,
            [this] { OnSelectionChanged(); });
    BeginStoreEdit();
    BuildTree();
    return true;
}

// The rows are made first and handed to the tree at once, which lays the
// tree out once instead of at every row.
void CConfigDlg::BuildTree() {
    QList<QTreeWidgetItem*> topLevel;
    QList<QTreeWidgetItem*> closed;  // groups whose close row was met
    QTreeWidgetItem* parent = nullptr;
    QTreeWidgetItem* toSelect = nullptr;
    for (const TreeRow* row = TreeForFlags(m_dlgFlags); row->kind != TreeRowKind::kEnd; ++row) {
        if (row->kind == TreeRowKind::kClose) {
            if (parent) closed.append(parent);
            parent = parent ? parent->parent() : nullptr;
            continue;
        }
        if (IsPageLeftOut(row->page, m_dlgFlags)) continue;
        auto* item = new QTreeWidgetItem();
        item->setText(0, QString::fromStdString(CPageTable::TitleOf(ToInt(row->page))));
        item->setIcon(0, m_treeImages.Icon(row->image));
        item->setData(0, Qt::UserRole, ToInt(row->page));
        if (parent) {
            parent->addChild(item);
        } else {
            topLevel.append(item);
        }
        if (ToInt(row->page) == m_startPage && !toSelect) toSelect = item;
        if (row->kind == TreeRowKind::kGroup) parent = item;
    }
    m_ui.pageTree->addTopLevelItems(topLevel);
    // Expanding needs the rows in the tree.
    for (QTreeWidgetItem* group : closed) group->setExpanded(true);
    if (toSelect) m_ui.pageTree->setCurrentItem(toSelect);
}

void CConfigDlg::OnSelectionChanged() {
    if (m_reverting) return;
    const QList<QTreeWidgetItem*> selected = m_ui.pageTree->selectedItems();
    QTreeWidgetItem* item = selected.isEmpty() ? nullptr : selected.first();
    if (item == m_selected) return;
    if (!LeaveCurrentPage()) {
        SelectWithoutSwitch(m_selected);
        return;
    }
    if (!item) return;
    m_selected = item;
    EnterPage(item);
}

void CConfigDlg::SelectWithoutSwitch(QTreeWidgetItem* item) {
    m_reverting = true;
    if (item) {
        m_ui.pageTree->setCurrentItem(item);
    } else {
        m_ui.pageTree->clearSelection();
    }
    m_reverting = false;
}

// The page being left is validated and saved; false holds the user on it.
bool CConfigDlg::LeaveCurrentPage() {
    if (!m_selected || PageOf(m_selected) == -1) return true;
    if (!ValidateAndSaveCurrent()) return false;
    if (m_curPage == kEasyConfigPage && g_nProtectLevel != kProtectLevelCustomized) {
        ShowMessage(this, LoadString(strings::kSwitchToCustomized),
                    LoadString(strings::kInformation), msg::kOk);
    }
    return true;
}

bool CConfigDlg::ValidateAndSaveCurrent() {
    CSettingsPage* page = m_pages.Find(m_curPage);
    if (!page) return true;
    if (page->Validate() != 0) return false;
    if (page->IsModified()) {
        page->Save();
        if (m_curPage != kEasyConfigPage) g_nProtectLevel = kProtectLevelCustomized;
    }
    return true;
}

void CConfigDlg::EnterPage(QTreeWidgetItem* item) {
    const int id = PageOf(item);
    if (id == -1 || id == m_curPage) return;
    if (CSettingsPage* old = m_pages.Find(m_curPage)) old->hide();
    if (CSettingsPage* page = ShowNewPage(id)) {
        page->show();
        page->repaint();
        m_ui.defaultButton->setEnabled(page->CanDefault() != 0);
    }
    // The page has read its files by now.
    m_unreadableFiles.ShowNewLater(this);
    m_ui.headerBar->SetText(item->text(0));
    if (m_dlgFlags & DMF_TitleShowsPage) {
        const QString caption =
            QString::fromStdString(LoadString(strings::kApplicationName)) + ": " + item->text(0);
        setWindowTitle(caption);
        QCoreApplication::setApplicationName(caption);
    }
    m_curPage = id;
}

// The page of id loaded again, or made and placed under the header bar.
CSettingsPage* CConfigDlg::ShowNewPage(int id) {
    if (CSettingsPage* page = m_pages.Find(id)) {
        page->Load();
        return page;
    }
    CSettingsPage* page = m_pages.Create(id, m_dlgFlags, this);
    if (!page) return nullptr;
    const QRect bar = m_ui.headerBar->geometry();
    page->SetIcons(&m_pageIcons);
    page->move(bar.left(), bar.top() + bar.height() + kPageGap);
    page->setEnabled(true);
    return page;
}

void CConfigDlg::OnCommand(int id) {
    if (id == kDefaultButton) {
        if (CSettingsPage* page = m_pages.Find(m_curPage)) page->OnDefault();
        return;
    }
    CDialog::OnCommand(id);
}

void CConfigDlg::OnOK() {
    if (!ValidateAndSaveCurrent()) return;
    m_unreadableFiles.ShowNew(this);
    if (!CommitOrReport(this)) return;
    ApplyPages();
    AnnounceCommit();
    EndDialog(1);
}

// Higher ids first: pages rely on that order.
void CConfigDlg::ApplyPages() {
    for (int id = kPageCount - 1; id >= 0; --id) {
        CSettingsPage* page = m_pages.Find(id);
        if (page && page->NeedApply()) page->Apply();
    }
}

void CConfigDlg::OnCancel() {
    DropWorkingCopy();
    EndDialog(2);
}

void CConfigDlg::DestroyPagesOnRequest() {
    if (m_curPage == kEasyConfigPage) return;
    m_pages.DestroyAll();
}
