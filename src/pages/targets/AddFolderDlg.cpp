#include "pages/targets/AddFolderDlg.h"

#include <optional>

#include "platform/RememberedConnections.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "text/MessageService.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

namespace {

constexpr uint32_t kDriveNotConnected = 1044;
constexpr uint32_t kRemoteNameCapacity = 0x400;

}  // namespace

CAddFolderDlg::CAddFolderDlg(QWidget* parent) : CFormDialog(kTemplateId, parent) {}

bool CAddFolderDlg::OnInitDialog() {
    m_ui.folderTree->Build(0);
    return true;
}

void CAddFolderDlg::OnOK() {
    const QTreeWidgetItem* node = m_ui.folderTree->currentItem();
    if (!m_ui.folderTree->IsFileSystemNode(node)) return;
    const std::string path = m_ui.folderTree->GetPath(node, nullptr);
    // Remembered network drives only come back this way on the NT family.
    if (g_bWinNT && !ReconnectDriveOf(path)) return;
    m_path = path;
    CFormDialog::OnOK();
}

bool CAddFolderDlg::ReconnectDriveOf(const std::string& path) {
    const std::optional<platform::RememberedConnection> drive =
        platform::RememberedConnectionOf(path);
    if (!drive) return true;
    char remoteName[kRemoteNameCapacity] = {};
    uint32_t length = sizeof remoteName;
    const char* localName = drive->mountPoint.c_str();
    if (g_Siblings.GetConnection(localName, remoteName, &length) != kNetConnectionUnavail) {
        return true;
    }
    NetResource resource;
    resource.type = kNetResourceTypeDisk;
    resource.localName = localName;
    resource.remoteName = remoteName;
    if (g_Siblings.AddConnection(resource, nullptr, nullptr, kConnectRedirect) == kNetNoError) {
        return true;
    }
    ShowMessage(this, FormatResource(LoadString(kDriveNotConnected).c_str(), localName),
                LoadString(strings::kConfigurationError), msg::kOk);
    return false;
}
