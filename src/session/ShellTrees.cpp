#include "session/ShellTrees.h"

#include "q9cfgul.h"

namespace {

using enum PageId;

constexpr TreeRow Leaf(PageId page, int image) { return {TreeRowKind::kLeaf, page, image}; }
constexpr TreeRow Group(PageId page, int image) { return {TreeRowKind::kGroup, page, image}; }
constexpr TreeRow kClose = {TreeRowKind::kClose, kNone, 0};
constexpr TreeRow kEnd = {TreeRowKind::kEnd, kNone, 0};

// clang-format off
constexpr TreeRow kNormalTree[] = {
    Leaf(kEasyConfig, 1),
    Group(kFeatureSwitch, 4),
        Leaf(kSystemScan, 0), Leaf(kSchedule, 0), Leaf(kScreenSaverScan, 0),
        Leaf(kSystemMonitor, 0), Leaf(kInternetMonitor, 0), Leaf(kMessenger, 0),
        Leaf(kStartup, 0), Leaf(kExclude, 0),
        kClose,
    Group(kMailSwitch, 5),
        Leaf(kOutlookScan, 0), Leaf(kOutlookMonitor, 0), Leaf(kPop3Scan, 0),
        Leaf(kWarnMail, 0), Leaf(kSpam, 0),
        kClose,
    Leaf(kPolicy, 6),
    Leaf(kSecurity, 3),
    Leaf(kOtherConfig, 7),
    kEnd,
};

constexpr TreeRow kMasterTree[] = {
    Leaf(kEasyConfig, 1),
    Group(kFeatureSwitch, 4),
        Leaf(kSystemScan, 0), Leaf(kSchedule, 0), Leaf(kScreenSaverScan, 0),
        Leaf(kSystemMonitor, 0), Leaf(kInternetMonitor, 0), Leaf(kStartup, 0),
        Leaf(kExclude, 0),
        kClose,
    Leaf(kPolicy, 6),
    Group(kBlockNetwork, 9),
        Leaf(kPortBlock, 0),
        kClose,
    Leaf(kAlarmMail, 8),
    Leaf(kSecurity, 3),
    Leaf(kOtherConfig, 7),
    kEnd,
};

// Its pictures differ from the other trees' on purpose.
constexpr TreeRow kLightTree[] = {
    Leaf(kEasyConfig, 3),
    Group(kFeatureSwitch, 6),
        Leaf(kSystemScan, 1), Leaf(kSystemMonitor, 1),
        kClose,
    Leaf(kOtherConfig, 3),
    Leaf(kPolicy, 11),
    kEnd,
};
// clang-format on

bool Has(uint32_t flags, uint32_t flag) { return (flags & flag) != 0; }

}  // namespace

const TreeRow* TreeForFlags(uint32_t flags) {
    if (Has(flags, DMF_Master)) return kMasterTree;
    if (Has(flags, DMF_IsLight)) return kLightTree;
    return kNormalTree;
}

bool IsPageLeftOut(PageId page, uint32_t flags) {
    const bool noPop = Has(flags, DMF_RemovePopMon);
    const bool noOutlook = Has(flags, DMF_RemoveOutlookMon);
    switch (page) {
        case kInternetMonitorSpare:
        case kInternetMonitor: return Has(flags, DMF_RemoveInternetMon);
        case kExclude: return Has(flags, DMF_RemoveNonScanSector);
        case kSecurity: return Has(flags, DMF_RemoveSecurity);
        case kPop3Config:
        case kPop3Scan: return noPop;
        case kOutlookMonitor:
        case kOutlookScan: return noOutlook;
        case kMailSwitch:
        case kWarnMail:
        case kSpam: return noPop && noOutlook;
        default: return false;
    }
}
