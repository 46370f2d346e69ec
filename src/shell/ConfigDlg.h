#pragma once

// The configuration dialog: a tree of pages on the left, a header bar above
// the current page, and OK, Cancel and Default. It puts the store into edit
// mode at start-up; OK commits the working copy and lets the pages apply
// what lies outside the store, Cancel drops it.

#include <cstdint>
#include <memory>

#include "framework/FormDialog.h"
#include "framework/ImageList.h"
#include "shell/PageTable.h"
#include "shell/UnreadableFilesNotice.h"
#include "ui_Dialog102.h"

class ConfigWindowRegistration;
class QTreeWidgetItem;

class CConfigDlg : public CFormDialog<Ui::Dialog102> {
public:
    static constexpr int kTemplateId = 102;
    static constexpr int kDefaultButton = 1034;

    CConfigDlg(int startPage, uint32_t flags, QWidget* parent,
               PageFactory factory = CPageTable::ProgramPages());
    ~CConfigDlg() override;

    // The page shown last; -1 while none was shown.
    int CurrentPage() const { return m_curPage; }
    CPageTable& Pages() { return m_pages; }
    QTreeWidget* Tree() const { return m_ui.pageTree; }
    CHeaderStatic* Header() const { return m_ui.headerBar; }

    void OnCommand(int id) override;
    // The private message that destroys the page objects (from id 40 down to
    // 0), except while the Easy Configuration page is the current page.
    void DestroyPagesOnRequest();

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    void BuildTree();
    void OnSelectionChanged();
    void SelectWithoutSwitch(QTreeWidgetItem* item);
    bool LeaveCurrentPage();
    bool ValidateAndSaveCurrent();
    void EnterPage(QTreeWidgetItem* item);
    CSettingsPage* ShowNewPage(int id);
    void ApplyPages();

    ImageList m_treeImages;
    ImageList m_pageIcons;
    CPageTable m_pages;
    int m_startPage;
    int m_curPage = -1;
    uint32_t m_dlgFlags;
    QTreeWidgetItem* m_selected = nullptr;  // the item whose page is shown
    bool m_reverting = false;
    std::unique_ptr<ConfigWindowRegistration> m_window;
    CUnreadableFilesNotice m_unreadableFiles;
};
