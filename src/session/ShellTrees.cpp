#include "session/ShellTrees.h"

#include "q9cfgul.h"

namespace {

constexpr TreeRow Leaf(int page, int image) { return {TreeRowKind::kLeaf, page, image}; }
constexpr TreeRow Group(int page, int image) { return {TreeRowKind::kGroup, page, image}; }
constexpr TreeRow kClose = {TreeRowKind::kClose, -1, 0};
constexpr TreeRow kEnd = {TreeRowKind::kEnd, -1, 0};

constexpr TreeRow kNormalTree[] = {
    Leaf(23, 1),
    Group(0, 4), Leaf(1, 0), Leaf(4, 0), Leaf(3, 0), Leaf(5, 0), Leaf(7, 0), Leaf(24, 0),
        Leaf(25, 0), Leaf(16, 0), kClose,
    Group(8, 5), Leaf(13, 0), Leaf(12, 0), Leaf(11, 0), Leaf(9, 0), Leaf(26, 0), kClose,
    Leaf(18, 6),
    Leaf(17, 3),
    Leaf(15, 7),
    kEnd,
};

constexpr TreeRow kMasterTree[] = {
    Leaf(23, 1),
    Group(0, 4), Leaf(1, 0), Leaf(4, 0), Leaf(3, 0), Leaf(5, 0), Leaf(7, 0), Leaf(25, 0),
        Leaf(16, 0), kClose,
    Leaf(18, 6),
    Group(34, 9), Leaf(35, 0), kClose,
    Leaf(32, 8),
    Leaf(17, 3),
    Leaf(15, 7),
    kEnd,
};

// Its pictures differ from the other trees' on purpose.
constexpr TreeRow kLightTree[] = {
    Leaf(23, 3),
    Group(0, 6), Leaf(1, 1), Leaf(5, 1), kClose,
    Leaf(15, 3),
    Leaf(18, 11),
    kEnd,
};

bool Has(uint32_t flags, uint32_t flag) { return (flags & flag) != 0; }

}  // namespace

const TreeRow* TreeForFlags(uint32_t flags) {
    if (Has(flags, DMF_Master)) return kMasterTree;
    if (Has(flags, DMF_IsLight)) return kLightTree;
    return kNormalTree;
}

bool IsPageLeftOut(int page, uint32_t flags) {
    const bool noPop = Has(flags, DMF_RemovePopMon);
    const bool noOutlook = Has(flags, DMF_RemoveOutlookMon);
    switch (page) {
        case 6:
        case 7: return Has(flags, DMF_RemoveInternetMon);
        case 16: return Has(flags, DMF_RemoveNonScanSector);
        case 17: return Has(flags, DMF_RemoveSecurity);
        case 10:
        case 11: return noPop;
        case 12:
        case 13: return noOutlook;
        case 8:
        case 9:
        case 26: return noPop && noOutlook;
        default: return false;
    }
}
