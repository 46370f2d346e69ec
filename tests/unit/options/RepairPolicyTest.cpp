#include <gtest/gtest.h>

#include "options/RepairPolicy.h"
#include "options/ScanBits.h"

namespace {
// Bits no combo and no backup box owns.
constexpr uint32_t kOtherPolicyBits = kPolicyRecompress | 0x8000000u | 0x80000000u | 0x10u;
}  // namespace

TEST(BackupTest, OnWhenAnyOfTheThreeBitsIsSet) {
    EXPECT_FALSE(BackupOf(kOtherPolicyBits));
    EXPECT_TRUE(BackupOf(0x1u));
    EXPECT_TRUE(BackupOf(0x100u));
    EXPECT_TRUE(BackupOf(0x10000u));
}

TEST(BackupTest, CollectSetsAndClearsTheThreeTogether) {
    EXPECT_EQ(CollectBackup(0x100u | kOtherPolicyBits, true), 0x10101u | kOtherPolicyBits);
    EXPECT_EQ(CollectBackup(0x10001u | kOtherPolicyBits, false), kOtherPolicyBits);
}

TEST(RepairCombosTest, RepairableIsTestedRepairFirst) {
    EXPECT_EQ(RepairCombosOf(0).repairable, RepairableAction::LeaveAsIs);
    EXPECT_EQ(RepairCombosOf(kPolicyRepair).repairable, RepairableAction::Repair);
    EXPECT_EQ(RepairCombosOf(kPolicyDelete).repairable, RepairableAction::Delete);
    EXPECT_EQ(RepairCombosOf(kPolicyRepair | kPolicyDelete).repairable, RepairableAction::Repair);
}

TEST(RepairCombosTest, RepairAndDeleteSavesWithBit1Only) {
    const uint32_t policy = kPolicyRepair | kPolicyDelete | kOtherPolicyBits;
    EXPECT_EQ(CollectRepairCombos(policy, RepairCombosOf(policy)), kPolicyRepair | kOtherPolicyBits);
}

TEST(RepairCombosTest, RepairableChoicesAreExclusive) {
    RepairCombos combos;
    combos.repairable = RepairableAction::Delete;
    EXPECT_EQ(CollectRepairCombos(kPolicyRepair | kOtherPolicyBits, combos), kPolicyDelete | kOtherPolicyBits);
    combos.repairable = RepairableAction::LeaveAsIs;
    EXPECT_EQ(CollectRepairCombos(kPolicyRepair | kPolicyDelete | kOtherPolicyBits, combos), kOtherPolicyBits);
}

TEST(RepairCombosTest, UnrepairableAndCompressedFollowTheirBits) {
    const RepairCombos loaded = RepairCombosOf(kPolicyDeleteUnrepairable);
    EXPECT_TRUE(loaded.deleteUnrepairable);
    EXPECT_FALSE(loaded.deleteCompressed);
    EXPECT_TRUE(RepairCombosOf(kPolicyDeleteCompressed).deleteCompressed);

    RepairCombos combos;
    combos.deleteCompressed = true;
    EXPECT_EQ(CollectRepairCombos(kPolicyDeleteUnrepairable | kOtherPolicyBits, combos),
              kPolicyDeleteCompressed | kOtherPolicyBits);
}

TEST(RepairCombosTest, ExecutingIsTestedInTheOrder24To26) {
    EXPECT_EQ(RepairCombosOf(0).executing, ExecutingAction::LeaveAsIs);
    EXPECT_EQ(RepairCombosOf(kPolicyExecRestart).executing, ExecutingAction::Restart);
    EXPECT_EQ(RepairCombosOf(kPolicyExecForced | kPolicyExecRestart).executing,
              ExecutingAction::ForcedTermination);
    EXPECT_EQ(RepairCombosOf(kPolicyExecuting).executing, ExecutingAction::VerifyFirst);
}

TEST(RepairCombosTest, ExecutingChoicesAreExclusive) {
    RepairCombos combos;
    combos.executing = ExecutingAction::ForcedTermination;
    EXPECT_EQ(CollectRepairCombos(kPolicyExecuting | kOtherPolicyBits, combos), kPolicyExecForced | kOtherPolicyBits);
    combos.executing = ExecutingAction::VerifyFirst;
    EXPECT_EQ(CollectRepairCombos(kPolicyExecRestart, combos), kPolicyExecVerify);
    combos.executing = ExecutingAction::Restart;
    EXPECT_EQ(CollectRepairCombos(kPolicyExecVerify, combos), kPolicyExecRestart);
    combos.executing = ExecutingAction::LeaveAsIs;
    EXPECT_EQ(CollectRepairCombos(kPolicyExecuting | kOtherPolicyBits, combos), kOtherPolicyBits);
}

TEST(RepairCombosTest, BackupBitsAreNotTheCombos) {
    EXPECT_EQ(CollectRepairCombos(kPolicyBackup, RepairCombos{}), kPolicyBackup);
}
