#include "pages/targets/ScanListDlg.h"

#include <utility>

#include "text/StringTable.h"

namespace {

constexpr uint32_t kItemsToScan = 700;

}  // namespace

CScanListDlg::CScanListDlg(std::string list, QWidget* parent)
    : CFormDialog(kTemplateId, parent), m_list(std::move(list)) {}

bool CScanListDlg::OnInitDialog() {
    m_ui.folderTree->Build(0);
    m_ui.targetTree->Load(LoadString(kItemsToScan), m_list.data(), m_list.size(),
                          CTargetTree::kEmptyMeansAllDrives);
    m_changed = false;
    return true;
}

void CScanListDlg::OnCommand(int id) {
    bool changed = false;
    switch (id) {
        case kAddButton: changed = AddSelected(); break;
        case kDeleteButton:
            changed = m_ui.targetTree->DeleteTarget(m_ui.targetTree->currentItem());
            break;
        case kDeleteAllButton: changed = m_ui.targetTree->DeleteAll(); break;
        default: CFormDialog::OnCommand(id); return;
    }
    if (changed) m_changed = true;
}

bool CScanListDlg::AddSelected() {
    const QTreeWidgetItem* node = m_ui.folderTree->currentItem();
    if (!m_ui.folderTree->IsFileSystemNode(node)) return false;
    uint8_t kind = 0;
    const std::string path = m_ui.folderTree->GetPath(node, &kind);
    return m_ui.targetTree->AddTarget(path, kind) != nullptr;
}

void CScanListDlg::OnOK() {
    const int32_t size = m_ui.targetTree->GetList(nullptr, 0);
    if (size != 0) {
        std::string list(static_cast<std::size_t>(size), '\0');
        m_ui.targetTree->GetList(list.data(), size);
        m_list = std::move(list);
    }
    if (m_ui.targetTree->IsChanged()) m_changed = true;
    CFormDialog::OnOK();
}
