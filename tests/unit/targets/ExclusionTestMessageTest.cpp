// What "Test a path..." says for each kind of row, owner and network match.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "targets/ExclusionTestMessage.h"

TEST(ExclusionTestMessage, NamesTheFolderAndThisProduct) {
    const ExclusionMatch match{
        {"/data/tmp", ExclusionList::kUserFolder, true, ""}, ExclusionKind::kFolder, ""};
    EXPECT_EQ(ExclusionTestMessage("/data/tmp/a", match),
              "\"/data/tmp/a\" is excluded from scans by the folder \"/data/tmp\".\n\n"
              "This row belongs to this product.");
}

TEST(ExclusionTestMessage, NamesAnotherProductAndTheNetworkPath) {
    const ExclusionMatch match{{"//srv/s", kZoneFolder | kZoneForeign, true, "OtherProduct"},
                               ExclusionKind::kFolder,
                               "//srv/s/x"};
    EXPECT_EQ(ExclusionTestMessage("/mnt/s/x", match),
              "\"/mnt/s/x\" is excluded from scans by the folder \"//srv/s\".\n\n"
              "This row belongs to another product (OtherProduct).\n"
              "It matched the network path \"//srv/s/x\".");
}

TEST(ExclusionTestMessage, NamesFilesAndExtensions) {
    const ExclusionMatch file{
        {"/a.bin", ExclusionList::kUserFile, true, kZoneOwnerTag}, ExclusionKind::kFile, ""};
    EXPECT_EQ(ExclusionTestMessage("/a.bin", file),
              "\"/a.bin\" is excluded from scans by the file \"/a.bin\".\n\n"
              "This row belongs to this product.");
    const ExclusionMatch extension{
        {"*.dmp", ExclusionList::kUserExtensions, true, ""}, ExclusionKind::kExtension, ""};
    EXPECT_NE(ExclusionTestMessage("/x.dmp", extension).find("by the extension \"*.dmp\""),
              std::string::npos);
}

TEST(ExclusionTestMessage, SaysWhenNothingExcludesThePath) {
    EXPECT_EQ(ExclusionTestMessage("/home/u/a", std::nullopt),
              "\"/home/u/a\" is not excluded from scans.");
}
