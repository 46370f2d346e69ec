#pragma once

// The list of what a scan covers, as a tree: one root (kind 2) with the
// list's title, and under it one node per target, sorted by text ignoring
// case; a node's kind is its target's kind. "All local hard drives" (kind 4)
// is shown as "Local hard drives".
//
// Targets come in by AddTarget, or dropped from the folder tree; a target
// dragged out of the tree and dropped elsewhere (or let go outside it) is
// removed. Each change made through AddTarget, DeleteTarget or DeleteAll is
// announced by targetsChanged.

#include <QFileIconProvider>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "controls/NodeTree.h"
#include "targets/TargetList.h"

class CTargetTree : public CNodeTree {
    Q_OBJECT

public:
    // Bits of Load's options.
    static constexpr uint32_t kEmptyMeansAllDrives = 0x1;

    explicit CTargetTree(QWidget* parent = nullptr);

    // Fills the tree with title as its root and the records of list (a
    // target list of size bytes; null for none), then selects and expands
    // the root. The tree starts unchanged.
    void Load(const std::string& title, const void* list, std::size_t size, uint32_t options);

    // Writes the targets as a target list into buffer of size bytes (see
    // WriteTargetList; null for none) and answers the bytes the whole list
    // needs. A target whose text is "Local hard drives" is written as the
    // record for all local hard drives. With no target and the option
    // kEmptyMeansAllDrives, that record is the list.
    int32_t GetList(void* buffer, int32_t size) const;

    // Whether a child of parent (null: the root) has this kind and text; the
    // text compares ignoring case.
    bool Contains(const std::string& text, uint8_t kind,
                  const QTreeWidgetItem* parent = nullptr) const;

    // Adds a target under the root and selects it; answers its node, or null
    // when refused (and before Load, without a root). An empty path is refused with "You haven't
    // selected any items."; a path on a network drive is kept by its network path; a target the
    // tree holds already is refused with "The items already exist.".
    QTreeWidgetItem* AddTarget(const std::string& path, uint8_t kind);

    // Deletes node and selects its neighbour; the root stands for all
    // targets (DeleteAll). No node: "You haven't selected any items.".
    // Whether something was deleted.
    bool DeleteTarget(QTreeWidgetItem* node);

    // Deletes every target when the user says yes to the question; whether
    // something was deleted.
    bool DeleteAll();

    // Whether a drop added a target or a drag out removed one since Load.
    bool IsChanged() const { return m_changed || m_dropChanged; }

    // How many targets lie on network drives.
    int CountNetworkTargets() const;

    // The root; null before Load.
    QTreeWidgetItem* Root() const { return topLevelItem(0); }

    // Whether mime is a target the tree takes: one from the folder tree. A
    // target of this tree dropped on it is not.
    bool CanDrop(const QMimeData* mime) const;
    // Adds the target mime carries when the tree takes it; whether one was
    // added.
    bool Drop(const QMimeData* mime);
    // After node was dragged out: the drop took it (action Move), or it was
    // let go outside the tree (action Ignore, cursorOutside): it goes.
    void EndDragOut(QTreeWidgetItem* node, Qt::DropAction action, bool cursorOutside);

    // A node drags as a target of this tree: its text and kind.
    QMimeData* DragData(const QTreeWidgetItem* node) const override;

signals:
    // The targets changed; controlId is the tree's control id.
    void targetsChanged(int controlId);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    Qt::DropActions DragActions() const override;
    void OnDragEnded(QTreeWidgetItem* node, Qt::DropAction action) override;

private:
    std::vector<Target> Targets() const;
    QTreeWidgetItem* InsertSorted(const QString& text, uint8_t kind);
    QIcon IconOf(const std::string& text, uint8_t kind) const;
    QTreeWidgetItem* NeighbourOf(const QTreeWidgetItem* node) const;
    void AnnounceChange();

    uint32_t m_options = 0;
    bool m_changed = false;      // a target was dragged out
    bool m_dropChanged = false;  // a target was dropped in
    QFileIconProvider m_icons;
};
