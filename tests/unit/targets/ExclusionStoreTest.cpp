// The exclusion list's homes kept in step: the store's section, the shared
// zone of the reference zone library (with another product's records in it)
// and the monitors' scan words.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Q9CfgE.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "platform/MountTable.h"
#include "session/ExclusionZone.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "support/ProblemCapture.h"
#include "support/ScopedVariable.h"
#include "support/SiblingTest.h"
#include "targets/ExclusionStore.h"

namespace {

constexpr char kOtherOwner[] = "OtherProduct";
constexpr uint32_t kRestoreBit = 0x80000000;

class ExclusionStoreTest : public SiblingTest {
protected:
    ExclusionStoreTest() {
        AddSibling("OrvDMZ");
        Install().Write("mounts",
                        "/dev/sda1 / ext4 rw 0 0\n//server/share /mnt/share cifs rw 0 0\n");
        m_savedWinNT = g_bWinNT;
    }
    ~ExclusionStoreTest() override { g_bWinNT = m_savedWinNT; }

    static void PutInZone(const char* owner, const std::vector<ZoneRecord>& records) {
        ExclusionZone zone = g_Siblings.CreateExclusionZone();
        ASSERT_FALSE(zone.IsEmpty());
        const std::string buffer = EncodeZoneRecords(records);
        ASSERT_EQ(zone.Add(owner, owner, buffer.data()), 1);
    }

    static std::vector<std::string> PathsOf(const std::vector<ZoneRecord>& records) {
        std::vector<std::string> paths;
        for (const ZoneRecord& record : records) paths.push_back(record.path);
        return paths;
    }

    static ExclusionList ListOf(const std::vector<std::string>& folders,
                                const std::string& extensions) {
        ExclusionList list;
        for (const std::string& folder : folders)
            list.Add(folder, ExclusionList::kUserFolder, true);
        list.Add(extensions, ExclusionList::kUserExtensions, true);
        return list;
    }

    ScopedVariable m_mountTable{platform::kMountTableVariable, Install().PathOf("mounts").c_str()};
    int32_t m_savedWinNT = 0;
};

}  // namespace

TEST_F(ExclusionStoreTest, OnlyFoldersLeaveTheSystemMonitorBitClearAndTheInternetBitSet) {
    SetWord(CES_SystemMonitor, CEK_ScanOptions, kScanExclusions);
    SaveExclusions(ListOf({"/srv/cache"}, ""), {true, false});
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions) & kScanExclusions, kScanExclusions);
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions) & kScanExclusions, 0u);
    EXPECT_EQ(Word(CES_Exclude, CEK_ExcludeEnable), 1u);
}

TEST_F(ExclusionStoreTest, FoldersAndExtensionsSetBothMonitorsBits) {
    SaveExclusions(ListOf({"/srv/cache"}, "dmp/tmp"), {true, false});
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions) & kScanExclusions, kScanExclusions);
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions) & kScanExclusions, kScanExclusions);
    EXPECT_EQ(ReadStoreText(CES_Exclude, CEK_ExcludeText), "dmp/tmp");
}

TEST_F(ExclusionStoreTest, AListOutOfForceClearsBothBitsAndLeavesOthers) {
    SetWord(CES_SystemMonitor, CEK_ScanOptions, 0xFFFFFFFF);
    SetWord(CES_Internet, CEK_ScanOptions, 0xFFFFFFFF);
    SaveExclusions(ListOf({"/srv/cache"}, "dmp"), {false, false});
    EXPECT_EQ(Word(CES_SystemMonitor, CEK_ScanOptions), 0xFFFFFFFF & ~kScanExclusions);
    EXPECT_EQ(Word(CES_Internet, CEK_ScanOptions), 0xFFFFFFFF & ~kScanExclusions);
    EXPECT_EQ(Word(CES_Exclude, CEK_ExcludeEnable), 0u);
}

TEST_F(ExclusionStoreTest, TheSystemRestoreBitFollowsTheChoiceAlone) {
    SetWord(CES_Macro, CEK_MacroOptions, 0x5);
    SaveExclusions(ListOf({}, ""), {false, true});
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x5 | kRestoreBit);
    SaveExclusions(ListOf({}, ""), {false, false});
    EXPECT_EQ(Word(CES_Macro, CEK_MacroOptions), 0x5u);
}

TEST_F(ExclusionStoreTest, SavingTwiceGivesTheSameStoreList) {
    ExclusionList list = ListOf({"/srv/a", "/srv/b"}, "");
    list.Add("/srv/file.bin", ExclusionList::kUserFile, true);
    SaveExclusions(list, {true, false});
    const std::vector<ObjectRecord> first = ReadObjectList(CES_Exclude);
    SaveExclusions(list, {true, false});
    EXPECT_EQ(ReadObjectList(CES_Exclude), first);
    EXPECT_EQ(first,
              (std::vector<ObjectRecord>{{0, "/srv/a"}, {0, "/srv/b"}, {1, "/srv/file.bin"}}));
}

TEST_F(ExclusionStoreTest, TheStoreIsTheSourceOnceSavedAndTheZoneCopiesAreLeftOut) {
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/old"}});
    PutInZone(kOtherOwner, {{1, kZoneFolder, "", "/opt/other"}});
    EXPECT_EQ(PathsOf(ReadExclusionRecords(false).shown),
              (std::vector<std::string>{"/srv/old", "/opt/other"}));
    SaveExclusions(ListOf({"/srv/new"}, ""), {true, false});
    const ExclusionRecords fromStore = ReadExclusionRecords(true);
    EXPECT_EQ(PathsOf(fromStore.shown), (std::vector<std::string>{"/srv/new", "/opt/other"}));
    EXPECT_TRUE(fromStore.zoneAvailable);
}

TEST_F(ExclusionStoreTest, ApplyRewritesTheProductsRecordsAndLeavesAnotherProducts) {
    PutInZone(kZoneOwnerTag, {{1, ExclusionList::kUserFolder, "", "/srv/old"},
                              {1, kZoneFolder | kZoneFixed, "", "/opt/product"}});
    PutInZone(kOtherOwner, {{1, kZoneFolder, "", "/opt/other"}});
    SaveExclusions(ListOf({"/srv/new"}, ""), {true, false});
    ASSERT_TRUE(ApplyExclusions());

    const std::vector<ZoneRecord> zone = *ReadZone();
    EXPECT_EQ(PathsOf(zone), (std::vector<std::string>{"/srv/new", "/opt/product", "/opt/other"}));
    EXPECT_EQ(zone[2].owner, kOtherOwner);
    // Applying again changes nothing.
    ASSERT_TRUE(ApplyExclusions());
    EXPECT_EQ(*ReadZone(), zone);
}

TEST_F(ExclusionStoreTest, AFolderOnAMappedDriveGivesTheZoneTwoRecordsAndTheStoreOne) {
    g_bWinNT = 0;
    SaveExclusions(ListOf({"/mnt/share/docs"}, ""), {true, false});
    ASSERT_TRUE(ApplyExclusions());
    const std::vector<ZoneRecord> zone = *ReadZone();
    EXPECT_EQ(PathsOf(zone), (std::vector<std::string>{"/mnt/share/docs", "//server/share/docs"}));
    EXPECT_EQ(zone[1].flags, ExclusionList::kUserFolder | kZoneDerived);
    EXPECT_EQ(ReadObjectList(CES_Exclude).size(), 1u);
    // The derived record is kept aside: the list shows one row.
    EXPECT_EQ(PathsOf(ReadExclusionRecords(true).shown),
              (std::vector<std::string>{"/mnt/share/docs"}));
    ASSERT_TRUE(ApplyExclusions());
    EXPECT_EQ(ReadZone()->size(), 2u);
}

TEST_F(ExclusionStoreTest, OnTheNtFamilyALinkedMountPointGivesAThirdRecord) {
    namespace fs = std::filesystem;
    const fs::path real = fs::path(Install().Directory()) / "real";
    const fs::path linked = fs::path(Install().Directory()) / "linked";
    fs::create_directories(real / "docs");
    fs::create_directory_symlink(real, linked);
    Install().Write(
        "mounts", "/dev/sda1 / ext4 rw 0 0\n//server/share " + linked.string() + " cifs rw 0 0\n");
    g_bWinNT = 1;
    SaveExclusions(ListOf({(linked / "docs").string()}, ""), {true, false});
    ASSERT_TRUE(ApplyExclusions());
    EXPECT_EQ(PathsOf(*ReadZone()),
              (std::vector<std::string>{(linked / "docs").string(), "//server/share/docs",
                                        fs::canonical(real / "docs").string()}));
}

TEST_F(ExclusionStoreTest, WithoutTheZoneLibraryTheStoreAloneIsShownAndApplyDoesNothing) {
    RemoveLibrary("OrvDMZ");
    SaveExclusions(ListOf({"/srv/new"}, ""), {true, false});
    const ExclusionRecords records = ReadExclusionRecords(true);
    EXPECT_FALSE(records.zoneAvailable);
    EXPECT_EQ(PathsOf(records.shown), (std::vector<std::string>{"/srv/new"}));
    EXPECT_FALSE(ApplyExclusions());
    EXPECT_FALSE(ReadZone().has_value());
}

TEST_F(ExclusionStoreTest, TheLoadedListIsInUseWhileTheSwitchIsOn) {
    SaveExclusions(ListOf({"/srv/a"}, "dmp"), {false, false});
    PutInZone(kOtherOwner, {{1, kZoneFolder, "", "/opt/other"}});
    const ExclusionList off = LoadExclusionList(true);
    ASSERT_EQ(off.Rows().size(), 3u);
    for (const ExclusionRow& row : off.Rows())
        EXPECT_EQ(row.use, row.owner == kOtherOwner) << row.text;
    SaveExclusions(ListOf({"/srv/a"}, "dmp"), {true, false});
    const ExclusionList on = LoadExclusionList(true);
    for (const ExclusionRow& row : on.Rows()) EXPECT_TRUE(row.use) << row.text;
}
