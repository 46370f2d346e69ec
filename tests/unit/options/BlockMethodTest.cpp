#include <gtest/gtest.h>

#include "options/BlockMethod.h"
#include "options/ScanBits.h"

namespace {
constexpr uint32_t kOtherMonitorBits = 0x8000000Fu;
}  // namespace

TEST(BlockMethodTest, NoneOfTheBitsIsDoNotBlock) {
    EXPECT_EQ(BlockMethodOf(kOtherMonitorBits), BlockMethod::DoNotBlock);
}

TEST(BlockMethodTest, BitsAreTestedInTheOrder29To28To30) {
    EXPECT_EQ(BlockMethodOf(kMonitorBlock), BlockMethod::Block);
    EXPECT_EQ(BlockMethodOf(kMonitorDelete | kMonitorBlock), BlockMethod::Delete);
    EXPECT_EQ(BlockMethodOf(kMonitorMethods), BlockMethod::ChangeExtension);
}

TEST(BlockMethodTest, CollectLeavesOneMethodBitAndKeepsTheRest) {
    EXPECT_EQ(CollectBlockMethod(kMonitorMethods | kOtherMonitorBits, BlockMethod::Delete),
              kMonitorDelete | kOtherMonitorBits);
    EXPECT_EQ(CollectBlockMethod(kOtherMonitorBits, BlockMethod::ChangeExtension),
              kMonitorChangeExtension | kOtherMonitorBits);
    EXPECT_EQ(CollectBlockMethod(kMonitorDelete, BlockMethod::Block), kMonitorBlock);
    EXPECT_EQ(CollectBlockMethod(kMonitorMethods | kOtherMonitorBits, BlockMethod::DoNotBlock), kOtherMonitorBits);
}
