// Which row excludes a path: a table of paths against folders, files,
// extensions and other products' records.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "targets/ExclusionMatch.h"

namespace {

const std::vector<ExclusionRow> kRows{
    {"/data/tmp", ExclusionList::kUserFolder, true, ""},
    {"/data/tmp/deep", ExclusionList::kUserFolder, true, ""},
    {"/data/keep.bin", ExclusionList::kUserFile, true, ""},
    {"*.dmp", ExclusionList::kUserExtensions, true, ""},
    {"/opt/other", kZoneFolder | kZoneForeign, true, "Other"},
    {"/off", ExclusionList::kUserFolder, false, ""},
};

struct MatchCase {
    const char* path;
    const char* row;  // null: not excluded
    ExclusionKind kind;
};

class ExclusionMatchTable : public testing::TestWithParam<MatchCase> {};

}  // namespace

TEST_P(ExclusionMatchTable, FindsTheRowThatExcludesThePath) {
    const MatchCase& sample = GetParam();
    const std::optional<ExclusionMatch> match = FindExclusion(kRows, sample.path);
    if (!sample.row) {
        EXPECT_FALSE(match.has_value()) << match->row.text;
        return;
    }
    ASSERT_TRUE(match.has_value());
    EXPECT_EQ(match->row.text, sample.row);
    EXPECT_EQ(match->kind, sample.kind);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ExclusionMatchTable,
    testing::Values(MatchCase{"/data/tmp", "/data/tmp", ExclusionKind::kFolder},
                    MatchCase{"/data/tmp/a/b.txt", "/data/tmp", ExclusionKind::kFolder},
                    MatchCase{"/data/tmpfiles/a", nullptr, ExclusionKind::kFolder},
                    MatchCase{"/data/tmp/deep/x", "/data/tmp/deep", ExclusionKind::kFolder},
                    MatchCase{"/data/keep.bin", "/data/keep.bin", ExclusionKind::kFile},
                    MatchCase{"/data/keep.bin.old", nullptr, ExclusionKind::kFile},
                    MatchCase{"/home/u/core.DMP", "*.dmp", ExclusionKind::kExtension},
                    MatchCase{"/home/u/.dmp", nullptr, ExclusionKind::kExtension},
                    MatchCase{"/home/u/dmp", nullptr, ExclusionKind::kExtension},
                    MatchCase{"/data/tmp/core.dmp", "/data/tmp", ExclusionKind::kFolder},
                    MatchCase{"/opt/other/bin/x", "/opt/other", ExclusionKind::kFolder},
                    MatchCase{"/off/x", nullptr, ExclusionKind::kFolder},
                    MatchCase{"/Data/Tmp/x", nullptr, ExclusionKind::kFolder}));

TEST(ExclusionMatch, AFolderWithATrailingSlashCoversItsContents) {
    const std::vector<ExclusionRow> rows{{"/srv/", ExclusionList::kUserFolder, true, ""}};
    EXPECT_TRUE(FindExclusion(rows, "/srv/x").has_value());
    EXPECT_TRUE(FindExclusion(rows, "/srv").has_value());
    EXPECT_FALSE(FindExclusion(rows, "/srvx").has_value());
}

TEST(ExclusionMatch, TheRootFolderCoversEverything) {
    const std::vector<ExclusionRow> rows{{"/", ExclusionList::kUserFolder, true, ""}};
    EXPECT_TRUE(FindExclusion(rows, "/etc/passwd").has_value());
}

TEST(ExclusionMatch, TheFileRowWinsOverTheFolderAndTheExtension) {
    const std::vector<ExclusionRow> rows{{"*.bin", ExclusionList::kUserExtensions, true, ""},
                                         {"/data", ExclusionList::kUserFolder, true, ""},
                                         {"/data/a.bin", ExclusionList::kUserFile, true, ""}};
    const std::optional<ExclusionMatch> match = FindExclusion(rows, "/data/a.bin");
    ASSERT_TRUE(match.has_value());
    EXPECT_EQ(match->kind, ExclusionKind::kFile);
}

TEST(ExclusionMatch, ARowWithoutKindOrTooShortExtensionCoversNothing) {
    const std::vector<ExclusionRow> rows{{"/data", kZoneUser, true, ""},
                                         {"*.", ExclusionList::kUserExtensions, true, ""},
                                         {"", ExclusionList::kUserExtensions, true, ""}};
    EXPECT_FALSE(FindExclusion(rows, "/data/x.").has_value());
}
