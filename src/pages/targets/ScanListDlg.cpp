#include "pages/targets/ScanListDlg.h"

#include <utility>

#include "controls/TargetPair.h"
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
    if (!target_pair::OnCommand(id, *m_ui.folderTree, *m_ui.targetTree, &changed)) {
        CFormDialog::OnCommand(id);
        return;
    }
    if (changed) m_changed = true;
}

void CScanListDlg::OnOK() {
    std::string list = target_pair::ListOf(*m_ui.targetTree);
    if (!list.empty()) m_list = std::move(list);
    if (m_ui.targetTree->IsChanged()) m_changed = true;
    CFormDialog::OnOK();
}

bool CScanListDlg::EditTargets(std::vector<Target>* targets, QWidget* parent) {
    CScanListDlg dialog(EncodeTargetList(*targets), parent);
    if (dialog.DoModal() != 1 || !dialog.IsChanged()) return false;
    const std::string& list = dialog.GetList();
    *targets = ParseTargetList(list.data(), list.size()).targets;
    return true;
}
