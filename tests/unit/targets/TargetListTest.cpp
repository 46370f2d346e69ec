// Target lists: the record layout byte for byte, writing into buffers of
// every size, and reading lists that are whole, short or malformed.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "targets/TargetList.h"

namespace {

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (int value : values) bytes.push_back(static_cast<char>(value));
    return bytes;
}

std::string WrittenInto(const std::vector<Target>& targets, int32_t size) {
    std::string buffer(static_cast<std::size_t>(size), '\x55');
    WriteTargetList(targets, buffer.data(), size);
    return buffer;
}

}  // namespace

TEST(TargetList, ARecordIsLengthKindOneTextNulAndASpareByte) {
    EXPECT_EQ(PackTarget({kTargetFolder, "/a"}), Bytes({8, 0, 0, 1, '/', 'a', 0, 0}));
    EXPECT_EQ(PackTarget({kTargetFile, "/data/x"}).size(), 7u + 6u);
    EXPECT_EQ(PackTarget({kTargetFile, "/data/x"})[2], 1);
}

TEST(TargetList, AllLocalDrivesIsOneRecordOfKindFour) {
    const std::string bytes = EncodeTargetList({AllLocalDrivesTarget()});
    EXPECT_EQ(bytes, Bytes({22, 0, 4, 1}) + "LOCAL_HARD_DRIVE" + Bytes({0, 0, 0, 0}));
}

TEST(TargetList, AnEmptyListIsTheTerminatorAlone) {
    EXPECT_EQ(EncodeTargetList({}), Bytes({0, 0}));
    EXPECT_EQ(WriteTargetList({}, nullptr, 0), 2);
    EXPECT_EQ(WrittenInto({}, 2), Bytes({0, 0}));
}

TEST(TargetList, WritingWithoutABufferAnswersTheSizeNeeded) {
    const std::vector<Target> targets{{kTargetFolder, "/a"}, {kTargetFile, "/b/c"}};
    EXPECT_EQ(WriteTargetList(targets, nullptr, 0), 8 + 10 + 2);
}

TEST(TargetList, ABufferOfTheSizeNeededHoldsTheWholeList) {
    const std::vector<Target> targets{{kTargetFolder, "/a"}, {kTargetFile, "/b/c"}};
    EXPECT_EQ(WrittenInto(targets, 20), EncodeTargetList(targets));
}

TEST(TargetList, ABufferOneByteTooSmallHoldsAnEmptyList) {
    const std::vector<Target> targets{{kTargetFolder, "/a"}, {kTargetFile, "/b/c"}};
    const std::string buffer = WrittenInto(targets, 19);
    const ParsedTargetList parsed = ParseTargetList(buffer.data(), buffer.size());
    EXPECT_EQ(parsed.problem, TargetListProblem::kNone);
    EXPECT_TRUE(parsed.targets.empty());
}

TEST(TargetList, ATinyBufferIsLeftAlone) {
    const std::string buffer = WrittenInto({{kTargetFolder, "/a"}}, 3);
    EXPECT_EQ(buffer, std::string(3, '\x55'));
}

TEST(TargetList, WrittenAndReadBackGivesTheSameRecords) {
    const std::vector<Target> targets{{kTargetFolder, "/home/user"},
                                      {kTargetFile, "/srv/data/file name.txt"},
                                      AllLocalDrivesTarget(),
                                      {kTargetUnexamined, "//server/share/x"},
                                      {kTargetFolder, "/média/ü"}};
    const std::string bytes = EncodeTargetList(targets);
    const ParsedTargetList parsed = ParseTargetList(bytes.data(), bytes.size());
    EXPECT_EQ(parsed.problem, TargetListProblem::kNone);
    EXPECT_EQ(parsed.targets, targets);
}

TEST(TargetList, RecordsWithoutTheSpareByteAreRead) {
    const std::string bytes = Bytes({7, 0, 0, 1, '/', 'a', 0, 0, 0});
    const ParsedTargetList parsed = ParseTargetList(bytes.data(), bytes.size());
    EXPECT_EQ(parsed.problem, TargetListProblem::kNone);
    EXPECT_EQ(parsed.targets, (std::vector<Target>{{kTargetFolder, "/a"}}));
}

TEST(TargetList, BytesEndingBeforeTheTerminatorAreRefused) {
    const std::string whole = EncodeTargetList({{kTargetFolder, "/a"}});
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const ParsedTargetList parsed = ParseTargetList(whole.data(), size);
        EXPECT_NE(parsed.problem, TargetListProblem::kNone) << size;
    }
    EXPECT_EQ(ParseTargetList(whole.data(), whole.size() - 2).problem,
              TargetListProblem::kNoTerminator);
    EXPECT_EQ(ParseTargetList(nullptr, 0).problem, TargetListProblem::kNoTerminator);
}

TEST(TargetList, ALengthPastTheEndIsRefusedWithTheRecordsBeforeIt) {
    const std::string bytes =
        EncodeTargetList({{kTargetFolder, "/a"}}).substr(0, 8) + Bytes({200, 0, 0, 1, 'x', 0});
    const ParsedTargetList parsed = ParseTargetList(bytes.data(), bytes.size());
    EXPECT_EQ(parsed.problem, TargetListProblem::kBadLength);
    EXPECT_EQ(parsed.targets, (std::vector<Target>{{kTargetFolder, "/a"}}));
}

TEST(TargetList, ALengthTooShortForTheHeaderIsRefused) {
    for (int length = 1; length < 5; ++length) {
        const std::string bytes = Bytes({length, 0, 0, 1, 0, 0, 0, 0});
        EXPECT_EQ(ParseTargetList(bytes.data(), bytes.size()).problem,
                  TargetListProblem::kBadLength)
            << length;
    }
}

TEST(TargetList, ATextWithoutItsNulIsRefused) {
    const std::string bytes = Bytes({6, 0, 0, 1, 'a', 'b', 0, 0});
    EXPECT_EQ(ParseTargetList(bytes.data(), bytes.size()).problem,
              TargetListProblem::kUnterminatedText);
}

TEST(TargetList, ATextTooLongForALengthIsCut) {
    const std::string record = PackTarget({kTargetFolder, std::string(70000, 'a')});
    EXPECT_EQ(record.size(), 0xFFFFu);
    const std::string bytes = record + Bytes({0, 0});
    const ParsedTargetList parsed = ParseTargetList(bytes.data(), bytes.size());
    ASSERT_EQ(parsed.targets.size(), 1u);
    EXPECT_EQ(parsed.targets[0].text.size(), 0xFFFFu - 6u);
}
