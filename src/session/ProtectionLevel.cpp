#include "session/ProtectionLevel.h"

#include "Q9CfgE.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "session/ProcessState.h"
#include "session/StoreCommit.h"
#include "text/StringTable.h"
#include "text/TextFormat.h"

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

// The texts of a level: its name and the lines of its description.
struct LevelTexts {
    uint32_t level;
    uint32_t name;
    uint32_t lines[3];
};

constexpr uint32_t kProtectionLevelText = 1439;
constexpr uint32_t kCustomizedInWizardText = 1451;

constexpr LevelTexts kLevels[kLevelPositions] = {
    {kProtectLevelHigh, 1428, {1440, 1441, 1442}},
    {kProtectLevelMedium, 1429, {1443, 1444, 1445}},
    {kProtectLevelLow, 1430, {1446, 1447, 1448}},
    {kProtectLevelCustomized, 1431, {1449, 1450, 0}},
};

const LevelTexts& TextsOf(uint32_t level) {
    const int position = PositionOfLevel(level);
    return kLevels[position < 0 ? kLevelPositions - 1 : position];
}

}  // namespace

uint32_t LevelAtPosition(int position) {
    if (position < 0 || position >= kLevelPositions) return kProtectLevelCustomized;
    return kLevels[position].level;
}

int PositionOfLevel(uint32_t level) {
    for (int position = 0; position < kLevelPositions; ++position) {
        if (kLevels[position].level == level) return position;
    }
    return -1;
}

std::string LevelTitle(uint32_t level) {
    return FormatText("%s - %s", LoadString(kProtectionLevelText).c_str(),
                      LoadString(TextsOf(level).name).c_str());
}

std::string LevelDescription(uint32_t level, bool inWizard) {
    const LevelTexts& texts = TextsOf(level);
    const std::string first = LoadString(texts.lines[0]);
    if (texts.level == kProtectLevelCustomized) {
        const uint32_t second = inWizard ? kCustomizedInWizardText : texts.lines[1];
        return FormatText("- %s\n- %s\n", first.c_str(), LoadString(second).c_str());
    }
    return FormatText("- %s\n- %s\n- %s\n", first.c_str(), LoadString(texts.lines[1]).c_str(),
                      LoadString(texts.lines[2]).c_str());
}

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
