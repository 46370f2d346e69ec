#pragma once

// The machine's folders as a tree, the source of new targets. Its top level:
//
//   Computer   the root file system and the mounted local drives
//   Home       the user's home folder
//   Network    the network drives, mounted or remembered, by mount point
//
// Computer and Network have no path: they are no file system nodes and have
// no check box. Every other node is a folder (plain files are never shown,
// hidden folders are), whose children are read when it first expands; a
// folder found empty loses its plus sign. Nodes drag out as new targets
// (copy only).

#include <QFileIconProvider>
#include <cstdint>
#include <string>

#include "controls/CheckTree.h"

class CShellTree : public CCheckTree {
    Q_OBJECT

public:
    // Bits of Build's mode.
    static constexpr uint32_t kHideNetwork = 0x1;

    explicit CShellTree(QWidget* parent = nullptr);

    // Fills the tree anew: Computer with its drives, expanded and selected,
    // Home, and Network unless mode hides it. A tree disabled by itself
    // stays empty, so that its owner builds it once it is enabled.
    void Build(uint32_t mode);

    // Whether node stands for a place in the file system (it has a path).
    bool IsFileSystemNode(const QTreeWidgetItem* node) const;

    // node's full path, and into *kind (when not null) what is there: 0 a
    // folder, 1 a file, 255 when the path cannot be examined. Empty text
    // (and 255) for a node without a path.
    std::string GetPath(const QTreeWidgetItem* node, uint8_t* kind) const;

    // A file system node drags as a new target: its path and kind, from
    // this tree.
    QMimeData* DragData(const QTreeWidgetItem* node) const override;

protected:
    void OnExpanding(QTreeWidgetItem* node) override;
    // With check boxes, a click on a node's icon or label toggles it too.
    bool ClickToggles(NodePart part) const override;

private:
    enum class NodeKind { kFolder, kComputer, kNetwork };

    QTreeWidgetItem* AddNode(QTreeWidgetItem* parent, const QString& text,
                             QAbstractFileIconProvider::IconType icon, const std::string& path,
                             NodeKind kind = NodeKind::kFolder);
    void AddDrives(QTreeWidgetItem* computer);
    void AddNetworkDrives(QTreeWidgetItem* network);
    void AddFolders(QTreeWidgetItem* node);

    uint32_t m_mode = 0;
    QFileIconProvider m_icons;
};
