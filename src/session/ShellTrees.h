#pragma once

// The page trees of the configuration dialog, one per edition, as tables of
// rows ended by an end row, and the rows the session flags leave out.

#include <cstdint>

#include "session/PageId.h"

enum class TreeRowKind : int8_t {
    kEnd = -1,
    kLeaf = 0,
    kGroup = 1,  // a node of its own whose page shows when it is selected
    kClose = 2,  // closes the open group and expands it
};

struct TreeRow {
    TreeRowKind kind;
    PageId page;
    int image;  // index in the 16 by 16 tree pictures, selected or not
};

// The master tree for DMF_Master (it wins over DMF_IsLight), the light tree
// for DMF_IsLight, else the normal tree.
const TreeRow* TreeForFlags(uint32_t flags);

// Whether the flags leave the row of a leaf or group out of the tree.
bool IsPageLeftOut(PageId page, uint32_t flags);
