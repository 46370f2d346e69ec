#include <gtest/gtest.h>

#include "options/FileTypes.h"
#include "options/ScanBits.h"

namespace {
// Bits the file types never touch.
constexpr uint32_t kOtherScanBits = kScanCloseView | kScanCompressed | kScanCarried16 | 0x80000000u;
}  // namespace

TEST(FileTypeRadioTest, AllFilesExactlyWhenBit8IsSet) {
    EXPECT_EQ(FileTypeRadioOf(kScanAllFiles), kFileTypesAll);
    EXPECT_EQ(FileTypeRadioOf(kScanAllFiles | kScanCustomized), kFileTypesAll);
    EXPECT_EQ(FileTypeRadioOf(0), kFileTypesExecutable);
    EXPECT_EQ(FileTypeRadioOf(kScanTypeKinds | kOtherScanBits), kFileTypesExecutable);
}

TEST(FileTypeRadioTest, AllFilesSetsBit8AndClearsTheDefaultKinds) {
    EXPECT_EQ(
        CollectFileTypes(kScanScripts | kScanExecutables | kScanMacros | kOtherScanBits, kFileTypesAll),
        kScanAllFiles | kOtherScanBits);
}

TEST(FileTypeRadioTest, AllFilesKeepsCustomized) {
    EXPECT_EQ(CollectFileTypes(kScanCustomized | kScanExecutables, kFileTypesAll),
              kScanAllFiles | kScanCustomized);
    EXPECT_EQ(CollectFileTypes(kScanAllFiles | kScanCustomized, kFileTypesAll),
              kScanAllFiles | kScanCustomized);
}

TEST(FileTypeRadioTest, ExecutableFilesWithoutAnyKindGetsTheDefaultKinds) {
    EXPECT_EQ(CollectFileTypes(kOtherScanBits, kFileTypesExecutable), kOtherScanBits | 0x680u);
    EXPECT_EQ(CollectFileTypes(kScanAllFiles | kOtherScanBits, kFileTypesExecutable), kOtherScanBits | 0x680u);
}

TEST(FileTypeRadioTest, ExecutableFilesKeepsTheKindsItHas) {
    EXPECT_EQ(CollectFileTypes(kScanAllFiles | kScanMacros, kFileTypesExecutable), kScanMacros);
    EXPECT_EQ(CollectFileTypes(kScanCustomized | kOtherScanBits, kFileTypesExecutable),
              kScanCustomized | kOtherScanBits);
}

TEST(FileTypeBoxesTest, AllFilesLoadsAloneWhateverElseIsSet) {
    EXPECT_EQ(FileTypeBoxesOf(kScanAllFiles | kScanTypeKinds),
              (FileTypeBoxes{true, false, false, false, false}));
}

TEST(FileTypeBoxesTest, WithoutAllFilesEachBoxFollowsItsBit) {
    EXPECT_EQ(FileTypeBoxesOf(kScanExecutables), (FileTypeBoxes{false, true, false, false, false}));
    EXPECT_EQ(FileTypeBoxesOf(kScanMacros), (FileTypeBoxes{false, false, true, false, false}));
    EXPECT_EQ(FileTypeBoxesOf(kScanScripts), (FileTypeBoxes{false, false, false, true, false}));
    EXPECT_EQ(FileTypeBoxesOf(kScanCustomized), (FileTypeBoxes{false, false, false, false, true}));
    EXPECT_EQ(FileTypeBoxesOf(0), (FileTypeBoxes{}));
}

TEST(FileTypeBoxesTest, AllFilesClearsTheOtherFourIncludingCustomized) {
    const FileTypeBoxes boxes{true, true, true, true, true};
    EXPECT_EQ(CollectFileTypes(kScanTypeKinds | kOtherScanBits, boxes), kScanAllFiles | kOtherScanBits);
}

TEST(FileTypeBoxesTest, WithoutAllFilesEachBitFollowsItsBox) {
    EXPECT_EQ(CollectFileTypes(kScanAllFiles | kScanMacros | kOtherScanBits,
                               FileTypeBoxes{false, true, false, true, true}),
              kScanExecutables | kScanScripts | kScanCustomized | kOtherScanBits);
    // The boxes alone decide: no default kinds are added.
    EXPECT_EQ(CollectFileTypes(kScanTypeKinds, FileTypeBoxes{}), 0u);
}
