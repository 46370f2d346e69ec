// Applying a protection level: the level file's values reach the working
// copy, the product's password protection stays as it was.

#include "Q9CfgE.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "session/ProcessState.h"
#include "session/ProtectionLevel.h"
#include "session/StoreCommit.h"
#include "support/DamagedContent.h"
#include "support/SiblingTest.h"

namespace {

class ProtectionLevelTest : public SiblingTest {
protected:
    ProtectionLevelTest() {
        WriteLevelFile("OrvHg.dat", kProtectLevelHigh, 0x11);
        WriteLevelFile("OrvMd.dat", kProtectLevelMedium, 0x22);
        WriteLevelFile("OrvLw.dat", kProtectLevelLow, 0x44);
        SetWord(CES_Authorization, CEK_AuthEnabled, 1);
        SetWord(CES_Authorization, CEK_AuthItems, 0x6);
        EXPECT_EQ(Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, "Kept-Pa55"), 1);
        BeginStoreEdit();
    }

    ~ProtectionLevelTest() override {
        DropWorkingCopy();
        g_bLevelApplied = 0;
    }

    // A level file that would also switch the password protection off and
    // set a password of its own, which a level must never do.
    void WriteLevelFile(const std::string& name, uint32_t level, uint32_t macro) const {
        const std::string path = Install().PathOf(name);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetDWEx(CES_General, CEK_ProtectLevel, level);
        Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions, macro);
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthEnabled, 0);
        Q9CfgE_SetDWEx(CES_Authorization, CEK_AuthItems, 0x1);
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, ("level-" + name).c_str());
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    }

    static void ExpectProtectionKept() {
        EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 1u);
        EXPECT_EQ(Word(CES_Authorization, CEK_AuthItems), 0x6u);
        EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), "Kept-Pa55");
    }
};

TEST(LevelFileNameTest, NamesTheFileOfEachLevelAndNoneForOtherValues) {
    EXPECT_EQ(LevelFileName(kProtectLevelHigh), "OrvHg.dat");
    EXPECT_EQ(LevelFileName(kProtectLevelMedium), "OrvMd.dat");
    EXPECT_EQ(LevelFileName(kProtectLevelLow), "OrvLw.dat");
    EXPECT_EQ(LevelFileName(kProtectLevelCustomized), "");
    EXPECT_EQ(LevelFileName(3), "");
    EXPECT_EQ(LevelFileName(0), "");
}

TEST(LevelPositionTest, TheSliderRunsFromHighAtTheTopToCustomized) {
    EXPECT_EQ(LevelAtPosition(0), kProtectLevelHigh);
    EXPECT_EQ(LevelAtPosition(1), kProtectLevelMedium);
    EXPECT_EQ(LevelAtPosition(2), kProtectLevelLow);
    EXPECT_EQ(LevelAtPosition(3), kProtectLevelCustomized);
    for (int position = 0; position < kLevelPositions; ++position)
        EXPECT_EQ(PositionOfLevel(LevelAtPosition(position)), position);
}

TEST(LevelPositionTest, AValueThatIsNoLevelHasNoPosition) {
    for (const uint32_t value : {0u, 3u, 5u, 16u}) EXPECT_EQ(PositionOfLevel(value), -1) << value;
    EXPECT_EQ(LevelAtPosition(-1), kProtectLevelCustomized);
    EXPECT_EQ(LevelAtPosition(4), kProtectLevelCustomized);
}

TEST(LevelTextTest, AValueThatIsNoLevelReadsAsCustomized) {
    EXPECT_EQ(LevelTitle(3), "Protection Level - Customized");
    EXPECT_EQ(LevelDescription(3, false), LevelDescription(kProtectLevelCustomized, false));
    EXPECT_EQ(LevelTitle(kProtectLevelLow), "Protection Level - Low");
}

TEST(LevelTextTest, OnlyCustomizedHasTwoLinesAndAWizardVariant) {
    EXPECT_EQ(LevelDescription(kProtectLevelCustomized, true),
              "- Block viruses according to configuration by function specified by the user\n"
              "- Click [Next] to change configuration by function.\n");
    EXPECT_EQ(LevelDescription(kProtectLevelHigh, true),
              LevelDescription(kProtectLevelHigh, false));
}

TEST_F(ProtectionLevelTest, LoadsTheLevelFileIntoTheWorkingCopyAndMarksTheSession) {
    ApplyLevel(kProtectLevelHigh);
    EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), kProtectLevelHigh);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x11u);
    EXPECT_EQ(g_bLevelApplied, 1);
    EXPECT_EQ(g_bLevelPending, 1);
}

TEST_F(ProtectionLevelTest, ThePasswordProtectionSurvivesEveryLevelChange) {
    for (const uint32_t level : {kProtectLevelHigh, kProtectLevelLow, kProtectLevelMedium}) {
        ApplyLevel(level);
        EXPECT_EQ(Word(CES_General, CEK_ProtectLevel), level);
        ExpectProtectionKept();
    }
    CommitWorkingCopy();
    ExpectProtectionKept();
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x22u);
}

TEST_F(ProtectionLevelTest, AnEmptyPasswordStaysEmptyAndSwitchedOff) {
    SetWord(CES_Authorization, CEK_AuthEnabled, 0);
    SetWord(CES_Authorization, CEK_AuthItems, 0);
    ASSERT_EQ(Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, ""), 1);
    ApplyLevel(kProtectLevelLow);
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 0u);
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthItems), 0u);
    EXPECT_EQ(ReadEncText(CES_Authorization, CEK_AuthPassword), "");
}

TEST_F(ProtectionLevelTest, ADamagedLevelFileLoadsNothingIsListedAsUnreadableAndKept) {
    const std::string path = Install().PathOf("OrvHg.dat");
    const std::string valid = Install().Read("OrvHg.dat");
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "[CES_"), damage);
        Install().Write("OrvHg.dat", text);
        SetWord(CES_Macro, CEK_MacroOptions, 0x99);
        ApplyLevel(kProtectLevelHigh);
        EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x99u) << "the working copy is kept";
        ExpectProtectionKept();
        EXPECT_TRUE(IsListedUnreadable(path));
        EXPECT_TRUE(Install().Read("OrvHg.dat") == text) << "the file is kept";
    }
    Install().Write("OrvHg.dat", valid);
    ApplyLevel(kProtectLevelHigh);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x11u);
    EXPECT_FALSE(IsListedUnreadable(path));
}

TEST_F(ProtectionLevelTest, CustomizedAndOtherValuesLoadNothingAndLeaveTheSessionAlone) {
    g_bLevelApplied = 0;
    g_bLevelPending = 0;
    SetWord(CES_Macro, CEK_MacroOptions, 0x99);
    for (const uint32_t level : {kProtectLevelCustomized, 3u, 0u}) ApplyLevel(level);
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x99u);
    EXPECT_EQ(g_bLevelApplied, 0);
    EXPECT_EQ(g_bLevelPending, 0);
}

}  // namespace
