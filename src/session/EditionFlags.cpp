#include "session/EditionFlags.h"

#include "q9cfgul.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"

namespace {

struct EditionValue {
    const char* name;
    uint32_t bit;
};

// In the order the profile is read.
constexpr EditionValue kEditionValues[] = {
    {"IsLight", DMF_IsLight},
    {"RemoveNonScanSector", DMF_RemoveNonScanSector},
    {"RemoveSecurity", DMF_RemoveSecurity},
    {"RemovePopMon", DMF_RemovePopMon},
    {"RemoveOutlookMon", DMF_RemoveOutlookMon},
    {"RemoveInternetMon", DMF_RemoveInternetMon},
};

// "MasterType" must read exactly 2; the others count when not 0.
constexpr int32_t kMasterEdition = 2;

}  // namespace

uint32_t AddEditionFlags(uint32_t flags) {
    for (const EditionValue& value : kEditionValues) {
        if (g_Siblings.GetSecInt(nullptr, value.name, 0) != 0) flags |= value.bit;
    }
    const bool master = g_Siblings.GetSecInt(nullptr, "MasterType", 0) == kMasterEdition;
    g_nMasterType = master ? kMasterEdition : 0;
    if (master) flags |= DMF_Master;
    return flags;
}
