#include "controls/TargetTree.h"

#include <QCursor>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>

#include "framework/DialogControls.h"
#include "targets/NetworkPath.h"
#include "targets/TargetDrag.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

namespace {

constexpr uint32_t kNothingSelected = 1003;
constexpr uint32_t kDeleteAllQuestion = 1004;
constexpr uint32_t kAlreadyThere = 1005;
constexpr uint32_t kLocalHardDrives = 1204;

constexpr int kKindRole = Qt::UserRole;

uint8_t KindOf(const QTreeWidgetItem* node) {
    return static_cast<uint8_t>(node->data(0, kKindRole).toUInt());
}

void ShowNothingSelected(QWidget* owner) {
    ShowMessage(owner, LoadString(kNothingSelected), LoadString(strings::kConfigurationError),
                msg::kOk);
}

bool IsDescendantOf(const QTreeWidgetItem* node, const QTreeWidgetItem* ancestor) {
    for (const QTreeWidgetItem* up = node; up; up = up->parent()) {
        if (up == ancestor) return true;
    }
    return false;
}

// A drop the tree takes is a copy; any other is refused.
void AnswerDrop(QDropEvent* event, bool taken) {
    if (!taken) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

}  // namespace

CTargetTree::CTargetTree(QWidget* parent) : CNodeTree(parent) {
    setDragEnabled(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
}

void CTargetTree::Load(const std::string& title, const void* list, std::size_t size,
                       uint32_t options) {
    m_options = options;
    m_changed = false;
    m_dropChanged = false;
    clear();
    auto* root = new QTreeWidgetItem(this);
    root->setText(0, QString::fromStdString(title));
    root->setData(0, kKindRole, static_cast<uint>(kTargetRoot));
    root->setIcon(0, m_icons.icon(QAbstractFileIconProvider::Computer));
    for (const Target& target : ParseTargetList(list, list ? size : 0).targets) {
        const bool allDrives = target.kind == kTargetAllLocalDrives;
        InsertSorted(QString::fromStdString(allDrives ? LoadString(kLocalHardDrives) : target.text),
                     target.kind);
    }
    setCurrentItem(root);
    root->setExpanded(true);
}

QTreeWidgetItem* CTargetTree::InsertSorted(const QString& text, uint8_t kind) {
    QTreeWidgetItem* root = Root();
    int position = 0;
    while (position < root->childCount() &&
           QString::compare(root->child(position)->text(0), text, Qt::CaseInsensitive) <= 0) {
        ++position;
    }
    auto* node = new QTreeWidgetItem;
    node->setText(0, text);
    node->setData(0, kKindRole, static_cast<uint>(kind));
    node->setIcon(0, IconOf(text.toStdString(), kind));
    root->insertChild(position, node);
    return node;
}

QIcon CTargetTree::IconOf(const std::string& text, uint8_t kind) const {
    if (kind == kTargetAllLocalDrives) return m_icons.icon(QAbstractFileIconProvider::Drive);
    if (IsNetworkPathText(text)) return m_icons.icon(QAbstractFileIconProvider::Network);
    const QFileInfo file(QString::fromStdString(text));
    const bool isFile = file.exists() ? !file.isDir() : kind == kTargetFile;
    return m_icons.icon(isFile ? QAbstractFileIconProvider::File
                               : QAbstractFileIconProvider::Folder);
}

std::vector<Target> CTargetTree::Targets() const {
    std::vector<Target> targets;
    const QTreeWidgetItem* root = Root();
    if (!root) return targets;
    const QString allDrives = QString::fromStdString(LoadString(kLocalHardDrives));
    for (int i = 0; i < root->childCount(); ++i) {
        const QTreeWidgetItem* node = root->child(i);
        if (node->text(0) == allDrives) {
            targets.push_back(AllLocalDrivesTarget());
        } else {
            targets.push_back({KindOf(node), node->text(0).toStdString()});
        }
    }
    return targets;
}

int32_t CTargetTree::GetList(void* buffer, int32_t size) const {
    std::vector<Target> targets = Targets();
    if (targets.empty() && (m_options & kEmptyMeansAllDrives) != 0) {
        targets.push_back(AllLocalDrivesTarget());
    }
    return WriteTargetList(targets, buffer, size);
}

bool CTargetTree::Contains(const std::string& text, uint8_t kind,
                           const QTreeWidgetItem* parent) const {
    if (!parent) parent = Root();
    if (!parent) return false;
    const QString wanted = QString::fromStdString(text);
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* node = parent->child(i);
        if (KindOf(node) == kind && node->text(0).compare(wanted, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

QTreeWidgetItem* CTargetTree::AddTarget(const std::string& path, uint8_t kind) {
    if (path.empty()) {
        ShowNothingSelected(this);
        return nullptr;
    }
    if (!Root()) return nullptr;
    // A path on a network drive is kept by the drive's network path, never
    // by where the drive is mounted here.
    const std::string text =
        !IsNetworkPathText(path) && IsNetworkPath(path) ? GetUncPath(path) : path;
    if (Contains(text, kind)) {
        ShowMessage(this, LoadString(kAlreadyThere), "", msg::kOk);
        return nullptr;
    }
    QTreeWidgetItem* node = InsertSorted(QString::fromStdString(text), kind);
    Root()->setExpanded(true);
    setCurrentItem(node);
    AnnounceChange();
    return node;
}

bool CTargetTree::DeleteTarget(QTreeWidgetItem* node) {
    if (!node) {
        ShowNothingSelected(this);
        return false;
    }
    if (node == Root()) return DeleteAll();
    QTreeWidgetItem* neighbour = NeighbourOf(node);
    delete node;
    AnnounceChange();
    setCurrentItem(neighbour);
    return true;
}

// The next visible node that is no descendant of node, else the visible node
// above it.
QTreeWidgetItem* CTargetTree::NeighbourOf(const QTreeWidgetItem* node) const {
    QTreeWidgetItem* below = itemBelow(node);
    while (below && IsDescendantOf(below, node)) below = itemBelow(below);
    return below ? below : itemAbove(node);
}

bool CTargetTree::DeleteAll() {
    QTreeWidgetItem* root = Root();
    if (!root || root->childCount() == 0) return false;
    const int32_t answer = ShowApplicationMessage(this, LoadString(kDeleteAllQuestion),
                                                  msg::kYesNo | msg::kIconQuestion);
    if (answer != msg::kIdYes) return false;
    qDeleteAll(root->takeChildren());
    setCurrentItem(root);
    AnnounceChange();
    return true;
}

int CTargetTree::CountNetworkTargets() const {
    int count = 0;
    for (const Target& target : Targets()) {
        if (target.kind != kTargetAllLocalDrives && IsNetworkPath(target.text)) ++count;
    }
    return count;
}

void CTargetTree::AnnounceChange() { emit targetsChanged(ctl::IdOf(this)); }

bool CTargetTree::CanDrop(const QMimeData* mime) const {
    const std::optional<TargetDrag> target = GetTargetDrag(mime);
    return target && target->source == static_cast<uint32_t>(TargetDragSource::kShellTree);
}

bool CTargetTree::Drop(const QMimeData* mime) {
    if (!CanDrop(mime)) return false;
    const TargetDrag target = *GetTargetDrag(mime);
    if (!AddTarget(target.text, target.kind)) return false;
    m_dropChanged = true;
    return true;
}

void CTargetTree::dragEnterEvent(QDragEnterEvent* event) { dragMoveEvent(event); }

void CTargetTree::dragMoveEvent(QDragMoveEvent* event) {
    AnswerDrop(event, CanDrop(event->mimeData()));
}

void CTargetTree::dropEvent(QDropEvent* event) { AnswerDrop(event, Drop(event->mimeData())); }

QMimeData* CTargetTree::DragData(const QTreeWidgetItem* node) const {
    TargetDrag target;
    target.text = node->text(0).toStdString();
    target.kind = KindOf(node);
    target.source = static_cast<uint32_t>(TargetDragSource::kTargetTree);
    auto* mime = new QMimeData;
    SetTargetDrag(mime, target);
    return mime;
}

Qt::DropActions CTargetTree::DragActions() const { return Qt::CopyAction | Qt::MoveAction; }

void CTargetTree::OnDragEnded(QTreeWidgetItem* node, Qt::DropAction action) {
    EndDragOut(node, action, !rect().contains(mapFromGlobal(QCursor::pos())));
}

void CTargetTree::EndDragOut(QTreeWidgetItem* node, Qt::DropAction action, bool cursorOutside) {
    const bool gone = action == Qt::MoveAction || (action == Qt::IgnoreAction && cursorOutside);
    if (gone && DeleteTarget(node)) m_changed = true;
}
