#include <gtest/gtest.h>

#include <string>

#include "options/ArchiveKinds.h"

TEST(ArchiveKindsTest, TwentySevenRowsInTheirFixedOrder) {
    const char* expected[] = {"Ace", "Alz", "Arc", "Arj", "B64", "Bh",  "Bhx", "Bz2", "Cab",
                              "Enc", "Gz",  "Ha",  "Hqx", "Ice", "Jar", "Lha", "Lzh", "Mime",
                              "Pak", "Rar", "Tar", "Uue", "Xxe", "Z",   "Zip", "Zoo", "SFX"};
    ASSERT_EQ(kArchiveKindRows, 27);
    for (int row = 0; row < kArchiveKindRows; ++row) {
        EXPECT_EQ(std::string(ArchiveKindName(row)), expected[row]) << "row " << row;
    }
    EXPECT_EQ(ArchiveKindName(-1), nullptr);
    EXPECT_EQ(ArchiveKindName(27), nullptr);
}

TEST(ArchiveDepthTest, DepthUpToTenIsItsOwnItem) {
    for (uint32_t depth = 0; depth <= 10; ++depth) EXPECT_EQ(DepthComboIndex(depth), depth);
}

TEST(ArchiveDepthTest, DepthAboveTenIsShownAsUnlimited) {
    EXPECT_EQ(DepthComboIndex(11), 0u);
    EXPECT_EQ(DepthComboIndex(0xFFFFFFFFu), 0u);
}

TEST(ArchiveKindsTest, AllKindsShowEveryRowCheckedUnderAllTypes) {
    const ArchiveKindsView view = ArchiveKindsViewOf(0xFFFFFFFFu);
    EXPECT_TRUE(view.allTypes);
    EXPECT_EQ(view.checkedRows, 0x7FFFFFFu);
}

TEST(ArchiveKindsTest, ZeroChoosesTheRowsWithNoneChecked) {
    EXPECT_EQ(ArchiveKindsViewOf(0), (ArchiveKindsView{false, 0}));
}

TEST(ArchiveKindsTest, OtherValuesCheckTheRowsByTheirBits) {
    EXPECT_EQ(ArchiveKindsViewOf(0x1000005u), (ArchiveKindsView{false, 0x1000005u}));
    // Every row but without the bits beyond them is not "all kinds".
    EXPECT_EQ(ArchiveKindsViewOf(0x7FFFFFFu), (ArchiveKindsView{false, 0x7FFFFFFu}));
    EXPECT_EQ(ArchiveKindsViewOf(0xFFFFFFFEu), (ArchiveKindsView{false, 0x7FFFFFEu}));
}

TEST(ArchiveKindsTest, AllTypesStoresAllKindsWhateverTheRowsShow) {
    EXPECT_EQ(CollectArchiveKinds({true, 0}), 0xFFFFFFFFu);
    EXPECT_EQ(CollectArchiveKinds({true, 0x5u}), 0xFFFFFFFFu);
}

TEST(ArchiveKindsTest, RowsStoreTheMaskOfCheckedRows) {
    EXPECT_EQ(CollectArchiveKinds({false, 0x1000005u}), 0x1000005u);
    EXPECT_EQ(CollectArchiveKinds({false, 0}), 0u);
    EXPECT_EQ(CollectArchiveKinds({false, 0xFFFFFFFFu}), 0x7FFFFFFu);
}
