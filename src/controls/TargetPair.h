#pragma once

// The machine's folders beside a target list, as every editor of a target
// list shows them: "Add  >>" adds the selected folder or file, "<< Delete"
// deletes the selected target (the root: all of them), "Delete All" deletes
// all of them. The buttons carry the same ids wherever the pair stands.

#include <string>

class CShellTree;
class CTargetTree;

namespace target_pair {

constexpr int kAddButton = 1016;
constexpr int kDeleteButton = 1017;
constexpr int kDeleteAllButton = 1018;

// Runs the command of button id on the pair. Answers whether id is one of
// the pair's buttons; *changed tells whether the target list changed.
bool OnCommand(int id, const CShellTree& folders, CTargetTree& targets, bool* changed);

// The list the target tree holds now, as a target list block.
std::string ListOf(const CTargetTree& targets);

}  // namespace target_pair
