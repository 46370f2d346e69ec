// Exclusion zone records: the layout, writing into buffers, and reading
// buffers that are whole, short or malformed.

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "targets/ZoneRecords.h"

namespace {

uint32_t WordIn(const std::string& bytes, std::size_t offset) {
    uint32_t word = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        word |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[offset + i])) << (8 * i);
    }
    return word;
}

void PutWordIn(std::string& bytes, std::size_t offset, uint32_t word) {
    for (std::size_t i = 0; i < 4; ++i) bytes[offset + i] = static_cast<char>(word >> (8 * i));
}

}  // namespace

TEST(ZoneRecords, ARecordHasItsFieldsAtTheirOffsets) {
    const std::string bytes = PackZoneRecord({0, 0x102, "Other", "/srv/x"});
    ASSERT_EQ(bytes.size(), 6u + 541u);
    EXPECT_EQ(WordIn(bytes, 0), 547u);
    EXPECT_EQ(WordIn(bytes, 4), 0u);
    EXPECT_EQ(WordIn(bytes, 8), 0x102u);
    EXPECT_EQ(WordIn(bytes, 12), 1u);
    EXPECT_STREQ(bytes.data() + 16, "Other");
    EXPECT_STREQ(bytes.data() + 536, "/srv/x");
    EXPECT_EQ(bytes.substr(542), std::string(5, '\0'));
}

TEST(ZoneRecords, WrittenAndReadBackGivesTheSameRecords) {
    const std::vector<ZoneRecord> records{{1, 0x102, "", "/home/user/cache"},
                                          {0, 0x101, "", "/srv/file.bin"},
                                          {1, 0x40000002, "Other", "//server/share"}};
    const std::string bytes = EncodeZoneRecords(records);
    const ParsedZoneRecords parsed = ParseZoneRecords(bytes.data(), bytes.size());
    EXPECT_EQ(parsed.problem, ZoneRecordsProblem::kNone);
    EXPECT_EQ(parsed.records, records);
}

TEST(ZoneRecords, ABufferOneByteTooSmallHoldsAnEmptyList) {
    const std::vector<ZoneRecord> records{{1, 0x102, "", "/a"}};
    const int32_t needed = WriteZoneRecords(records, nullptr, 0);
    EXPECT_EQ(needed, 2 + 541 + 4);
    std::string buffer(static_cast<std::size_t>(needed - 1), '\x55');
    WriteZoneRecords(records, buffer.data(), needed - 1);
    EXPECT_EQ(WordIn(buffer, 0), 0u);
    EXPECT_TRUE(ParseZoneRecords(buffer.data(), buffer.size()).records.empty());
}

TEST(ZoneRecords, BytesEndingBeforeTheTerminatorAreRefused) {
    const std::string whole = EncodeZoneRecords({{1, 0x102, "", "/a"}});
    EXPECT_EQ(ParseZoneRecords(whole.data(), whole.size() - 1).problem,
              ZoneRecordsProblem::kNoTerminator);
    EXPECT_EQ(ParseZoneRecords(whole.data(), 100).problem, ZoneRecordsProblem::kBadSize);
    EXPECT_EQ(ParseZoneRecords(nullptr, 0).problem, ZoneRecordsProblem::kNoTerminator);
}

TEST(ZoneRecords, ASizeTooSmallOrPastTheEndIsRefused) {
    std::string bytes = EncodeZoneRecords({{1, 0x102, "", "/a"}});
    PutWordIn(bytes, 0, 100);
    EXPECT_EQ(ParseZoneRecords(bytes.data(), bytes.size()).problem, ZoneRecordsProblem::kBadSize);
    PutWordIn(bytes, 0, 0xFFFFFFFF);
    EXPECT_EQ(ParseZoneRecords(bytes.data(), bytes.size()).problem, ZoneRecordsProblem::kBadSize);
}

TEST(ZoneRecords, APathWithoutItsNulIsRefused) {
    std::string bytes = EncodeZoneRecords({{1, 0x102, "", "/abc"}});
    // The record ends right behind the path's last letter.
    PutWordIn(bytes, 0, 536 + 4);
    bytes.resize(540);
    bytes.append(4, '\0');
    EXPECT_EQ(ParseZoneRecords(bytes.data(), bytes.size()).problem,
              ZoneRecordsProblem::kUnterminatedPath);
}

TEST(ZoneRecords, AnOwnerFillingItsFieldIsCutAtTheField) {
    std::string bytes = EncodeZoneRecords({{1, 0x102, "", "/a"}});
    std::memset(bytes.data() + 16, 'o', 520);
    const ParsedZoneRecords parsed = ParseZoneRecords(bytes.data(), bytes.size());
    ASSERT_EQ(parsed.records.size(), 1u);
    EXPECT_EQ(parsed.records[0].owner, std::string(520, 'o'));
    EXPECT_EQ(parsed.records[0].path, "/a");
}
