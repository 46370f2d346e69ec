#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <thread>

#include "OrvDMZ.h"
#include "ZoneTestSupport.h"
#include "support/StderrCapture.h"

namespace {


class ZoneOperationsTest : public testing::Test {
protected:
    void SetUp() override { zone = OrvDMZ_Create(); }
    void TearDown() override { OrvDMZ_Destroy(zone); }

    std::string ZoneText() const { return install.Read("OrvDMZ.zone"); }
    bool ZoneExists() const { return install.Exists("OrvDMZ.zone"); }

    int32_t Add(const char* owner, const std::vector<TestRecord>& records) {
        const auto bytes = MakeBuffer(records);
        return OrvDMZ_AddDMZA(zone, owner, owner, bytes.data());
    }

    TemporaryInstallation install;
    void* zone = nullptr;
};

}  // namespace

TEST_F(ZoneOperationsTest, CreateGivesAHandle) { EXPECT_NE(zone, nullptr); }

TEST_F(ZoneOperationsTest, AbsentZoneIsEmptyAndReadingDoesNotCreateIt) {
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0);
    EXPECT_FALSE(ZoneExists());
}

TEST_F(ZoneOperationsTest, AddedRecordsComeBackInTheDocumentedLayout) {
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/home/user/private"), Record(0, 0x101, "/a/b.txt")}),
              1);

    const int32_t size = OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0);
    const int32_t expected = (18 + 541) + (8 + 541) + 4;
    ASSERT_EQ(size, expected);
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size), 0xAB);
    ASSERT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, bytes.data(), size), expected);

    const unsigned char* first = bytes.data();
    EXPECT_EQ(GetWord(first), 18u + 541u);
    EXPECT_EQ(GetWord(first + 4), 1u);
    EXPECT_EQ(GetWord(first + 8), 0x102u);
    EXPECT_EQ(GetWord(first + 12), 1u);
    EXPECT_STREQ(reinterpret_cast<const char*>(first + 16), kOwner);
    EXPECT_STREQ(reinterpret_cast<const char*>(first + 536), "/home/user/private");
    // The 4 bytes after the path's terminator are zero, not left over.
    EXPECT_EQ(GetWord(first + 536 + 19), 0u);
    EXPECT_EQ(ReadBuffer(bytes.data()),
              (std::vector<TestRecord>{Record(1, 0x102, "/home/user/private", kOwner),
                                       Record(0, 0x101, "/a/b.txt", kOwner)}));
    EXPECT_EQ(GetWord(bytes.data() + expected - 4), 0u);
}

TEST_F(ZoneOperationsTest, ZoneFileIsReadableTextGroupedByOwner) {
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/home/user/private")}), 1);
    ASSERT_EQ(Add("OtherProduct", {Record(1, 0x10, "/opt/other/cache")}), 1);
    EXPECT_EQ(ZoneText(),
              "OrvDMZ Zone 1\n"
              "[Q9Pro2004]\n"
              "record=1,0x00000102,\"/home/user/private\"\n"
              "[OtherProduct]\n"
              "record=1,0x00000010,\"/opt/other/cache\"\n");
}

TEST_F(ZoneOperationsTest, TooSmallBufferCopiesNothingAndTellsTheSizeNeeded) {
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/x")}), 1);
    const int32_t needed = 2 + 541 + 4;
    std::vector<unsigned char> bytes(static_cast<std::size_t>(needed), 0xAB);
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, bytes.data(), needed - 1), needed);
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](unsigned char b) { return b == 0xAB; }));
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, bytes.data(), -5), needed);
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](unsigned char b) { return b == 0xAB; }));
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, bytes.data(), needed), needed);
    EXPECT_EQ(GetWord(bytes.data()), 2u + 541u);
}

TEST_F(ZoneOperationsTest, AddAppendsAfterTheOwnersRecords) {
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/one")}), 1);
    ASSERT_EQ(Add("OtherProduct", {Record(1, 0x2, "/other")}), 1);
    ASSERT_EQ(Add(kOwner, {Record(1, 0x101, "/two"), Record(1, 0x102, "/three")}), 1);
    const auto records = EnumerateAll(zone, kOwner);
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0].path, "/one");
    EXPECT_EQ(records[1].path, "/two");
    EXPECT_EQ(records[2].path, "/three");
    EXPECT_EQ(records[3].path, "/other");
}

TEST_F(ZoneOperationsTest, DeleteRemovesAllOfTheOwnersRecordsAndNoOthers) {
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/one"), Record(1, 0x10, "/fixed")}), 1);
    ASSERT_EQ(Add("OtherProduct", {Record(1, 0x2, "/other")}), 1);
    EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, kOwner, kOwner, 0), 1);
    EXPECT_EQ(ZoneText(), "OrvDMZ Zone 1\n[OtherProduct]\nrecord=1,0x00000002,\"/other\"\n");
}

TEST_F(ZoneOperationsTest, DeletingAnOwnerWithoutRecordsSucceedsAndWritesNothing) {
    EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, kOwner, kOwner, 0), 1);
    EXPECT_FALSE(ZoneExists());
}

TEST_F(ZoneOperationsTest, AddingNoRecordsSucceedsAndWritesNothing) {
    EXPECT_EQ(Add(kOwner, {}), 1);
    EXPECT_FALSE(ZoneExists());
}

TEST_F(ZoneOperationsTest, SecondTagCountsAsTheSameOwner) {
    ASSERT_EQ(Add("OldTag", {Record(1, 0x102, "/old")}), 1);
    ASSERT_EQ(Add("Q9Pro2004", {Record(1, 0x102, "/new")}), 1);

    const auto seen = EnumerateAll(zone, "Q9Pro2004", "OldTag");
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0], Record(1, 0x102, "/old", "OldTag"));
    EXPECT_EQ(seen[1], Record(1, 0x102, "/new", "Q9Pro2004"));

    // Replacing its records moves them all under the first tag.
    const auto bytes = MakeBuffer(seen);
    EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, "Q9Pro2004", "OldTag", 0), 1);
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, "Q9Pro2004", "OldTag", bytes.data()), 1);
    EXPECT_EQ(ZoneText(),
              "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x00000102,\"/old\"\n"
              "record=1,0x00000102,\"/new\"\n");
}

TEST_F(ZoneOperationsTest, NullOrEmptySecondTagMeansNone) {
    ASSERT_EQ(Add("Q9Pro2004", {Record(1, 0x102, "/mine")}), 1);
    for (const char* none : {static_cast<const char*>(nullptr), ""}) {
        const int32_t size = OrvDMZ_EnumDMZA(zone, kOwner, none, nullptr, 0);
        ASSERT_EQ(size, 5 + 541 + 4);
        std::vector<unsigned char> bytes(static_cast<std::size_t>(size));
        ASSERT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, none, bytes.data(), size), size);
        EXPECT_EQ(ReadBuffer(bytes.data())[0].flags, 0x102u);
    }
}

TEST_F(ZoneOperationsTest, BadHandlesAndTagsAnswerZero) {
    const auto bytes = MakeBuffer({Record(1, 0x102, "/x")});
    int notAHandle = 0;
    const std::string tooLong(520, 'a');
    for (void* handle : {static_cast<void*>(nullptr), static_cast<void*>(&notAHandle)}) {
        EXPECT_EQ(OrvDMZ_AddDMZA(handle, kOwner, kOwner, bytes.data()), 0);
        EXPECT_EQ(OrvDMZ_EnumDMZA(handle, kOwner, kOwner, nullptr, 0), 0);
        EXPECT_EQ(OrvDMZ_DeleteDMZA(handle, kOwner, kOwner, 0), 0);
    }
    for (const char* tag :
         {static_cast<const char*>(nullptr), "", "a]b", "[x", "line\nbreak", tooLong.c_str()}) {
        EXPECT_EQ(OrvDMZ_AddDMZA(zone, tag, kOwner, bytes.data()), 0);
        EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, tag && *tag ? tag : "a]", bytes.data()), 0);
        EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, tag, nullptr, 0), 0);
    }
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, nullptr), 0);
    EXPECT_FALSE(ZoneExists());
    // The longest tag that fits the record's field is taken.
    const std::string longest(519, 'a');
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, longest.c_str(), nullptr, bytes.data()), 1);
    EXPECT_EQ(EnumerateAll(zone, longest.c_str())[0].owner, longest);
}

TEST_F(ZoneOperationsTest, DestroyedHandleIsNoLongerAccepted) {
    void* other = OrvDMZ_Create();
    ASSERT_NE(other, nullptr);
    OrvDMZ_Destroy(other);
    EXPECT_EQ(OrvDMZ_DeleteDMZA(other, kOwner, kOwner, 0), 0);
    OrvDMZ_Destroy(other);  // a second release is ignored
    OrvDMZ_Destroy(nullptr);
}

TEST_F(ZoneOperationsTest, MalformedRecordStoresNothing) {
    auto shortRecord = MakeBuffer({Record(1, 0x102, "/ok"), Record(1, 0x102, "/x")});
    PutWord(shortRecord, 3 + 541, 540);
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, shortRecord.data()), 0);

    auto unterminated = MakeBuffer({Record(1, 0x102, "/abc")});
    unterminated[536 + 4] = 'd';  // overwrites the path's terminator
    unterminated[536 + 5] = 'e';
    unterminated[536 + 6] = 'f';
    unterminated[536 + 7] = 'g';
    unterminated[536 + 8] = 'h';
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, unterminated.data()), 0);

    const auto emptyPath = MakeBuffer({Record(1, 0x102, "")});
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, emptyPath.data()), 0);

    auto huge = MakeBuffer({Record(1, 0x102, "/x")});
    PutWord(huge, 0, 541 + 4096);
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, huge.data()), 0);
    EXPECT_FALSE(ZoneExists());
}

TEST_F(ZoneOperationsTest, HandleKeepsTheInstallationItWasCreatedIn) {
    TemporaryInstallation elsewhere;
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/x")}), 1);
    EXPECT_TRUE(ZoneExists());
    EXPECT_FALSE(std::filesystem::exists(elsewhere.PathOf("OrvDMZ.zone")));
}

TEST_F(ZoneOperationsTest, HandlesShareTheZoneThroughTheFile) {
    void* second = OrvDMZ_Create();
    ASSERT_NE(second, nullptr);
    ASSERT_EQ(Add(kOwner, {Record(1, 0x102, "/first")}), 1);
    EXPECT_EQ(EnumerateAll(second, kOwner).size(), 1u);
    EXPECT_EQ(OrvDMZ_DeleteDMZA(second, kOwner, kOwner, 0), 1);
    EXPECT_TRUE(EnumerateAll(zone, kOwner).empty());
    OrvDMZ_Destroy(second);
}

TEST_F(ZoneOperationsTest, ConcurrentAddsAreAllKept) {
    constexpr int kThreads = 6;
    constexpr int kAddsEach = 8;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t] {
            void* own = OrvDMZ_Create();
            const std::string owner = "Owner" + std::to_string(t);
            for (int i = 0; i < kAddsEach; ++i) {
                const auto bytes = MakeBuffer({Record(1, 0x2, "/p" + std::to_string(i))});
                EXPECT_EQ(OrvDMZ_AddDMZA(own, owner.c_str(), nullptr, bytes.data()), 1);
            }
            OrvDMZ_Destroy(own);
        });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(EnumerateAll(zone, kOwner).size(), static_cast<std::size_t>(kThreads * kAddsEach));
}

TEST_F(ZoneOperationsTest, ChangesFailWhenTheInstallationDirectoryIsGone) {
    std::filesystem::remove_all(install.Directory());
    const auto bytes = MakeBuffer({Record(1, 0x102, "/x")});
    StderrCapture reported;
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 0);
    EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, kOwner, kOwner, 0), 0);
    EXPECT_NE(reported.Text().find("cannot lock"), std::string::npos);
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0);
}
