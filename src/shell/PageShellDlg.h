#pragma once

// One page alone in a dialog with OK, Cancel and Default: the session's
// single-page mode, or a dialog that a page opens for a page of its own
// (nested: SetOwnsStore(0), inside a session that owns the store already).

#include <cstdint>
#include <memory>

#include "framework/FormDialog.h"
#include "framework/ImageList.h"
#include "pages/NestedPageShell.h"
#include "shell/PageTable.h"
#include "shell/UnreadableFilesNotice.h"
#include "ui_Dialog1001.h"

class ConfigWindowRegistration;

class CPageShellDlg : public CFormDialog<Ui::Dialog1001>, public NestedPageShell {
public:
    static constexpr int kTemplateId = 1001;
    static constexpr int kDefaultButton = 1034;

    CPageShellDlg(int pageId, uint32_t flags, QWidget* parent,
                  PageFactory factory = CPageTable::ProgramPages());
    ~CPageShellDlg() override;

    // 0: a nested dialog of an open session, which leaves the store and the
    // commit to its opener.
    void SetOwnsStore(int32_t ownsStore) { m_ownsStore = ownsStore; }
    int32_t OwnsStore() const { return m_ownsStore; }
    // Whether OK saved the page, and whether its Apply is still to run.
    int32_t Saved() const { return m_saved; }
    int32_t ApplyPending() const { return m_applyPending; }

    // The page, or null when it could not be made.
    CSettingsPage* Page() const { return m_pages.Find(m_pageId); }
    // For the opener of a nested shell: after the opener's Save, the page's
    // Save if it is modified; from the opener's Apply, the page's Apply if it
    // needs one.
    void SavePage() override;
    void ApplyPage() override;
    int32_t Run() override { return DoModal(); }

    // Makes this shell, nested, the dialog that pages open for pages of
    // their own (NestedPageShell::Make).
    static void ServeNestedPages();

    void OnCommand(int id) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

private:
    void Arrange(CSettingsPage* page);

    int m_pageId;
    uint32_t m_dlgFlags;
    CPageTable m_pages;
    int32_t m_ownsStore = 1;
    int32_t m_saved = 0;
    int32_t m_applyPending = 0;
    ImageList m_pageIcons;
    std::unique_ptr<ConfigWindowRegistration> m_window;
    CUnreadableFilesNotice m_unreadableFiles;
};
