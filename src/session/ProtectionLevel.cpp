#include "session/ProtectionLevel.h"

#include "Q9CfgE.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "session/ProcessState.h"

namespace {

// The product's password protection, which no level may change.
struct PasswordProtection {
    uint32_t enabled = 0;
    uint32_t items = 0;
    std::string password;

    static PasswordProtection Read() {
        return {Q9CfgE_GetDWEx(CES_Authorization, CEK_AuthEnabled),
                Q9CfgE_GetDWEx(CES_Authorization, CEK_AuthItems),
                ReadEncText(CES_Authorization, CEK_AuthPassword)};
    }

    void Write() const {
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthEnabled, enabled);
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthItems, items);
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, password.c_str());
    }
};

}  // namespace

std::string LevelFileName(uint32_t level) {
    switch (level) {
        case kProtectLevelHigh: return "OrvHg.dat";
        case kProtectLevelMedium: return "OrvMd.dat";
        case kProtectLevelLow: return "OrvLw.dat";
        default: return {};
    }
}

void ApplyLevel(uint32_t level) {
    const std::string file = LevelFileName(level);
    if (file.empty()) return;
    const std::string path = g_szModuleDir + file;
    const PasswordProtection protection = PasswordProtection::Read();
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_EDIT);
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_RESUME);
    protection.Write();
    g_bLevelApplied = 1;
    g_bLevelPending = 1;
}
