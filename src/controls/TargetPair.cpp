#include "controls/TargetPair.h"

#include "controls/ShellTree.h"
#include "controls/TargetTree.h"

namespace target_pair {

namespace {

// Adds the folder or file selected in folders; whether it was added.
bool AddSelected(const CShellTree& folders, CTargetTree& targets) {
    const QTreeWidgetItem* node = folders.currentItem();
    if (!folders.IsFileSystemNode(node)) return false;
    uint8_t kind = 0;
    const std::string path = folders.GetPath(node, &kind);
    return targets.AddTarget(path, kind) != nullptr;
}

}  // namespace

bool OnCommand(int id, const CShellTree& folders, CTargetTree& targets, bool* changed) {
    switch (id) {
        case kAddButton: *changed = AddSelected(folders, targets); return true;
        case kDeleteButton: *changed = targets.DeleteTarget(targets.currentItem()); return true;
        case kDeleteAllButton: *changed = targets.DeleteAll(); return true;
        default: return false;
    }
}

std::string ListOf(const CTargetTree& targets) {
    const int32_t size = targets.GetList(nullptr, 0);
    std::string list(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
    if (size > 0) targets.GetList(list.data(), size);
    return list;
}

}  // namespace target_pair
