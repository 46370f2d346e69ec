#include "controls/ShellTree.h"

#include <QDir>
#include <QMimeData>
#include <filesystem>
#include <set>

#include "platform/MountTable.h"
#include "platform/RememberedConnections.h"
#include "targets/TargetDrag.h"
#include "targets/TargetList.h"
#include "text/StringTable.h"

namespace {

// Names of the top-level nodes.
constexpr uint32_t kComputerName = 1210;
constexpr uint32_t kNetworkName = 1211;
constexpr uint32_t kHomeName = 1212;

constexpr int kPathRole = Qt::UserRole + 1;
constexpr int kNodeKindRole = Qt::UserRole + 2;
constexpr int kReadRole = Qt::UserRole + 3;  // the children have been read

constexpr char kRootFolder[] = "/";

QString TextOf(uint32_t id) { return QString::fromStdString(LoadString(id)); }

uint8_t KindAt(const std::string& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (error || !std::filesystem::exists(status)) return kTargetUnexamined;
    return std::filesystem::is_directory(status) ? kTargetFolder : kTargetFile;
}

}  // namespace

CShellTree::CShellTree(QWidget* parent) : CCheckTree(parent) {
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
}

void CShellTree::Build(uint32_t mode) {
    clear();
    m_mode = mode;
    if (!isEnabledTo(parentWidget())) return;
    QTreeWidgetItem* computer =
        AddNode(nullptr, TextOf(kComputerName), QAbstractFileIconProvider::Computer, {},
                NodeKind::kComputer);
    AddNode(nullptr, TextOf(kHomeName), QAbstractFileIconProvider::Folder,
            QDir::homePath().toStdString());
    if ((m_mode & kHideNetwork) == 0) {
        AddNode(nullptr, TextOf(kNetworkName), QAbstractFileIconProvider::Network, {},
                NodeKind::kNetwork);
    }
    computer->setExpanded(true);
    setCurrentItem(computer);
}

QTreeWidgetItem* CShellTree::AddNode(QTreeWidgetItem* parent, const QString& text,
                                     QAbstractFileIconProvider::IconType icon,
                                     const std::string& path, NodeKind kind) {
    auto* node = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    node->setText(0, text);
    node->setIcon(0, m_icons.icon(icon));
    node->setData(0, kPathRole, QString::fromStdString(path));
    node->setData(0, kNodeKindRole, static_cast<int>(kind));
    node->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    SetNodeValue(node, IsFileSystemNode(node) ? kUnticked : kNoCheckBox);
    return node;
}

bool CShellTree::IsFileSystemNode(const QTreeWidgetItem* node) const {
    return node && !node->data(0, kPathRole).toString().isEmpty();
}

std::string CShellTree::GetPath(const QTreeWidgetItem* node, uint8_t* kind) const {
    const std::string path = node ? node->data(0, kPathRole).toString().toStdString() : "";
    if (kind) *kind = path.empty() ? uint8_t{kTargetUnexamined} : KindAt(path);
    return path;
}

void CShellTree::OnExpanding(QTreeWidgetItem* node) {
    if (node->data(0, kReadRole).toBool()) return;
    node->setData(0, kReadRole, true);
    switch (static_cast<NodeKind>(node->data(0, kNodeKindRole).toInt())) {
        case NodeKind::kComputer: AddDrives(node); break;
        case NodeKind::kNetwork: AddNetworkDrives(node); break;
        case NodeKind::kFolder: AddFolders(node); break;
    }
    if (node->childCount() == 0 && node->parent()) {
        node->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
    }
}

// The root file system first, then every other local drive by its mount
// point.
void CShellTree::AddDrives(QTreeWidgetItem* computer) {
    AddNode(computer, kRootFolder, QAbstractFileIconProvider::Drive, kRootFolder);
    for (const platform::MountEntry& drive : platform::MountTable::FromSystem().LocalDrives()) {
        if (drive.mountPoint == kRootFolder) continue;
        AddNode(computer, QString::fromStdString(drive.mountPoint),
                QAbstractFileIconProvider::Drive, drive.mountPoint);
    }
}

// The mounted network drives, then the remembered ones that are not mounted
// now, each once, by mount point.
void CShellTree::AddNetworkDrives(QTreeWidgetItem* network) {
    std::set<std::string> shown;
    const auto add = [&](const std::string& mountPoint) {
        if (!shown.insert(mountPoint).second) return;
        AddNode(network, QString::fromStdString(mountPoint), QAbstractFileIconProvider::Network,
                mountPoint);
    };
    for (const platform::MountEntry& drive : platform::MountTable::FromSystem().NetworkDrives()) {
        add(drive.mountPoint);
    }
    for (const platform::RememberedConnection& drive : platform::RememberedConnections()) {
        add(drive.mountPoint);
    }
}

void CShellTree::AddFolders(QTreeWidgetItem* node) {
    const QDir folder(node->data(0, kPathRole).toString());
    const QFileInfoList entries = folder.entryInfoList(
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& entry : entries) {
        AddNode(node, entry.fileName(), QAbstractFileIconProvider::Folder,
                entry.absoluteFilePath().toStdString());
    }
}

bool CShellTree::ClickToggles(NodePart part) const {
    return part == NodePart::kIcon || part == NodePart::kLabel;
}

QMimeData* CShellTree::DragData(const QTreeWidgetItem* node) const {
    if (!IsFileSystemNode(node)) return nullptr;
    TargetDrag target;
    target.text = GetPath(node, &target.kind);
    target.source = static_cast<uint32_t>(TargetDragSource::kShellTree);
    auto* mime = new QMimeData;
    SetTargetDrag(mime, target);
    return mime;
}
