// The edition bits the secure profile "Q9Sec.dat" adds to the session flags,
// read through the built OrvInst, and the master type they leave behind.

#include <cstdint>
#include <string>

#include "BindingTest.h"
#include "q9cfgul.h"
#include "session/EditionFlags.h"
#include "session/ProcessState.h"

namespace {

// Bits of the session flags that no profile value stands for.
constexpr uint32_t kCallerBits = DMF_ModeSinglePage | DMF_TitleShowsPage | DMF_NoAuthenticate;

struct ProfileValue {
    const char* key;
    uint32_t bit;
};

constexpr ProfileValue kProfileValues[] = {
    {"IsLight", DMF_IsLight},
    {"RemoveNonScanSector", DMF_RemoveNonScanSector},
    {"RemoveSecurity", DMF_RemoveSecurity},
    {"RemovePopMon", DMF_RemovePopMon},
    {"RemoveOutlookMon", DMF_RemoveOutlookMon},
    {"RemoveInternetMon", DMF_RemoveInternetMon},
};

// g_nMasterType is set to something else before each test, so that every
// test sees it written.
class EditionFlagsTest : public BindingTest {
protected:
    EditionFlagsTest() : m_savedMasterType(g_nMasterType) { g_nMasterType = -1; }
    ~EditionFlagsTest() override { g_nMasterType = m_savedMasterType; }

    void WriteProfile(const std::string& text) const { Install().Write("Q9Sec.dat", text); }

private:
    int32_t m_savedMasterType;
};

class EditionFlagsFromTheProfileTest : public EditionFlagsTest {
protected:
    EditionFlagsFromTheProfileTest() { AddSibling("OrvInst"); }
};

using EditionFlagsWithoutLibraryTest = EditionFlagsTest;

}  // namespace

TEST_F(EditionFlagsFromTheProfileTest, EachValueAddsItsBitToTheCallersFlags) {
    for (const ProfileValue& value : kProfileValues) {
        WriteProfile(std::string(value.key) + "=1\n");
        EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits | value.bit) << value.key;
        EXPECT_EQ(g_nMasterType, 0) << value.key;
    }
}

TEST_F(EditionFlagsFromTheProfileTest, AnyValueOtherThanZeroCounts) {
    WriteProfile("IsLight=5\nRemovePopMon=-1\nRemoveSecurity=0x10\nRemoveOutlookMon=0\n");
    EXPECT_EQ(AddEditionFlags(0), DMF_IsLight | DMF_RemovePopMon | DMF_RemoveSecurity);
}

TEST_F(EditionFlagsFromTheProfileTest, MasterTypeTwoIsTheMasterEdition) {
    WriteProfile("MasterType=2\n");
    EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits | DMF_Master);
    EXPECT_EQ(g_nMasterType, 2);
}

TEST_F(EditionFlagsFromTheProfileTest, AnyOtherMasterTypeIsNotTheMasterEdition) {
    for (const char* type : {"0", "1", "3", "-2", "0x12"}) {
        g_nMasterType = -1;
        WriteProfile(std::string("MasterType=") + type + "\n");
        EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits) << type;
        EXPECT_EQ(g_nMasterType, 0) << type;
    }
}

TEST_F(EditionFlagsFromTheProfileTest, EveryValueTogether) {
    WriteProfile(
        "IsLight=1\nRemoveNonScanSector=1\nRemoveSecurity=1\nRemovePopMon=1\n"
        "RemoveOutlookMon=1\nRemoveInternetMon=1\nMasterType=2\n");
    EXPECT_EQ(AddEditionFlags(DMF_ModeDialog),
              DMF_IsLight | DMF_RemoveNonScanSector | DMF_RemoveSecurity | DMF_RemovePopMon |
                  DMF_RemoveOutlookMon | DMF_RemoveInternetMon | DMF_Master);
    EXPECT_EQ(g_nMasterType, 2);
}

// A profile value of 0 never takes away a bit the caller passed; the master
// type tells whether the master edition came from the profile, so a caller's
// own master bit leaves it at 0.
TEST_F(EditionFlagsFromTheProfileTest, BitsAreAddedNeverRemoved) {
    WriteProfile(
        "IsLight=0\nRemoveNonScanSector=0\nRemoveSecurity=0\nRemovePopMon=0\n"
        "RemoveOutlookMon=0\nRemoveInternetMon=0\nMasterType=0\n");
    const uint32_t all = kCallerBits | DMF_IsLight | DMF_RemoveNonScanSector | DMF_RemoveSecurity |
                         DMF_RemovePopMon | DMF_RemoveOutlookMon | DMF_RemoveInternetMon |
                         DMF_Master;
    EXPECT_EQ(AddEditionFlags(all), all);
    EXPECT_EQ(g_nMasterType, 0);
}

TEST_F(EditionFlagsFromTheProfileTest, OnlyTheUnnamedSectionOfTheSecureProfileCounts) {
    WriteProfile("[Edition]\nMasterType=2\nIsLight=1\n");
    Install().Write("Q9WM.dat", "MasterType=2\nIsLight=1\n");
    EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits);
    EXPECT_EQ(g_nMasterType, 0);
}

TEST_F(EditionFlagsFromTheProfileTest, NoProfileAddsNothing) {
    EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits);
    EXPECT_EQ(g_nMasterType, 0);
}

TEST_F(EditionFlagsWithoutLibraryTest, TheProfileIsNotReadAndNothingIsAdded) {
    WriteProfile("IsLight=1\nMasterType=2\n");
    EXPECT_EQ(AddEditionFlags(kCallerBits), kCallerBits);
    EXPECT_EQ(g_nMasterType, 0);
}
