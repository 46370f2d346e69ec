// The data of a target dragged between the trees: its block, and the MIME
// data that carries it.

#include <gtest/gtest.h>

#include <QMimeData>
#include <string>

#include "targets/TargetDrag.h"
#include "targets/TargetList.h"

namespace {

using namespace std::string_literals;

TargetDrag FolderFromShellTree() {
    return {"/data/docs", kTargetFolder, static_cast<uint32_t>(TargetDragSource::kShellTree)};
}

}  // namespace

TEST(TargetDragTest, TheBlockIsTheTextAndThreeLittleEndianWords) {
    const TargetDrag drag = {"/a", kTargetFile,
                             static_cast<uint32_t>(TargetDragSource::kTargetTree)};
    EXPECT_EQ(EncodeTargetDrag(drag),
              "/a\0"s
              "\x01\0\0\0"s
              "\x01\0\0\0"s
              "\0\0\0\0"s);
    const TargetDrag unexamined = {"x", kTargetUnexamined, 0};
    EXPECT_EQ(EncodeTargetDrag(unexamined),
              "x\0"s
              "\0\0\0\0"s
              "\xFF\0\0\0"s
              "\0\0\0\0"s);
}

TEST(TargetDragTest, ABlockGivesBackWhatWasEncoded) {
    const TargetDrag drag = FolderFromShellTree();
    EXPECT_EQ(DecodeTargetDrag(EncodeTargetDrag(drag)), drag);
    const TargetDrag fromList = {"LOCAL_HARD_DRIVE", kTargetAllLocalDrives, 1};
    EXPECT_EQ(DecodeTargetDrag(EncodeTargetDrag(fromList)), fromList);
}

TEST(TargetDragTest, TheTextEndsAtItsFirstNul) {
    const TargetDrag drag = {"/a\0b"s, kTargetFolder, 0};
    EXPECT_EQ(EncodeTargetDrag(drag).size(), 2u + 13u);
    EXPECT_EQ(DecodeTargetDrag(EncodeTargetDrag(drag))->text, "/a");
}

TEST(TargetDragTest, ABlockShorterThanTheTextAndThirteenBytesIsRefused) {
    const std::string block = EncodeTargetDrag(FolderFromShellTree());
    EXPECT_TRUE(DecodeTargetDrag(block).has_value());
    EXPECT_FALSE(DecodeTargetDrag(block.substr(0, block.size() - 1)).has_value());
    EXPECT_FALSE(DecodeTargetDrag("/data/docs"s).has_value());  // no NUL at all
    EXPECT_FALSE(DecodeTargetDrag(""s).has_value());
    // Bytes behind the block do not matter.
    EXPECT_EQ(DecodeTargetDrag(block + "more"s), FolderFromShellTree());
}

TEST(TargetDragTest, MimeDataCarriesTheBlockAndThePlainText) {
    QMimeData data;
    SetTargetDrag(&data, FolderFromShellTree());
    EXPECT_TRUE(data.hasFormat(kTargetDragMimeType));
    const QByteArray block = data.data(kTargetDragMimeType);
    EXPECT_EQ(std::string(block.constData(), static_cast<size_t>(block.size())),
              EncodeTargetDrag(FolderFromShellTree()));
    EXPECT_EQ(data.text(), "/data/docs");
    EXPECT_EQ(GetTargetDrag(&data), FolderFromShellTree());
}

TEST(TargetDragTest, MimeDataWithoutAGoodBlockIsNoTarget) {
    QMimeData text;
    text.setText("/data/docs");
    EXPECT_FALSE(GetTargetDrag(&text).has_value());
    QMimeData shortBlock;
    shortBlock.setData(kTargetDragMimeType, QByteArray("/data/docs\0\0\0\0", 14));
    EXPECT_FALSE(GetTargetDrag(&shortBlock).has_value());
    EXPECT_FALSE(GetTargetDrag(nullptr).has_value());
}
