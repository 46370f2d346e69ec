#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "common/ProfileFile.h"
#include "support/DamagedContent.h"
#include "support/ProblemCapture.h"
#include "support/TemporaryRegistry.h"

namespace {

using sibling::ProfileFile;

class ProfileFileTest : public testing::Test {
protected:
    std::string PathOf(const std::string& name) const { return scratch.Base() + "/" + name; }

    std::string Write(const std::string& name, const std::string& text) const {
        const std::string path = PathOf(name);
        std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
        return path;
    }

    static std::string Read(const std::string& path) { return TemporaryRegistry::ReadFile(path); }

    static bool SetOne(const std::string& path, const std::string& section, const std::string& key,
                       const std::string& value) {
        return ProfileFile::Update(
            path, [&](ProfileFile& profile) { return profile.Set(section, key, value); });
    }

    TemporaryRegistry scratch;  // used only for its temporary directory
    ProblemCapture problems;
};

const char* const kSample =
    "; comment lines start with ';' or '#'\n"
    "# another comment\n"
    "Key=Value\n"
    "\n"
    "[Section]\n"
    "  Other Key = value text  \n"
    "Formula = a=b ; still the value\n"
    "[Second]\n"
    "x=1\n";

}  // namespace

TEST_F(ProfileFileTest, MissingFileReadsAsEmpty) {
    const ProfileFile profile = ProfileFile::Load(PathOf("missing.ini"));
    EXPECT_TRUE(profile.IsIntact());
    EXPECT_FALSE(profile.Get("", "Key"));
    EXPECT_TRUE(profile.Sections().empty());
    EXPECT_TRUE(profile.Keys("").empty());
    EXPECT_EQ(profile.Text(), "");
    EXPECT_TRUE(problems.Lines().empty());
}

TEST_F(ProfileFileTest, ReadsUnnamedAndNamedSectionsWithTrimmedNamesAndValues) {
    const ProfileFile profile = ProfileFile::Load(Write("a.ini", kSample));
    ASSERT_TRUE(profile.IsIntact());
    EXPECT_EQ(profile.Get("", "Key"), "Value");
    EXPECT_EQ(profile.Get("Section", "Other Key"), "value text");
    EXPECT_EQ(profile.Get("Section", "Formula"), "a=b ; still the value");
    EXPECT_EQ(profile.Get("Second", "x"), "1");
    EXPECT_FALSE(profile.Get("Section", "Key"));
    EXPECT_FALSE(profile.Get("Nowhere", "x"));
}

TEST_F(ProfileFileTest, NamesCompareIgnoringCaseAndKeepTheirCaseAndOrder) {
    const ProfileFile profile = ProfileFile::Load(Write("a.ini", kSample));
    EXPECT_EQ(profile.Get("SECTION", "other KEY"), "value text");
    EXPECT_EQ(profile.Get("", "kEy"), "Value");
    EXPECT_EQ(profile.Sections(), (std::vector<std::string>{"Section", "Second"}));
    EXPECT_EQ(profile.Keys("section"), (std::vector<std::string>{"Other Key", "Formula"}));
    EXPECT_EQ(profile.Keys(""), (std::vector<std::string>{"Key"}));
    EXPECT_TRUE(profile.Keys("Nowhere").empty());
}

TEST_F(ProfileFileTest, RepeatedSectionContinuesTheFirstAndFirstDuplicateKeyWins) {
    const ProfileFile profile =
        ProfileFile::Load(Write("a.ini", "[A]\nk=1\n[B]\nm=2\n[a]\nk=3\nn=4\n"));
    EXPECT_EQ(profile.Sections(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(profile.Keys("A"), (std::vector<std::string>{"k", "n"}));
    EXPECT_EQ(profile.Get("A", "k"), "1");
    EXPECT_EQ(profile.Get("A", "n"), "4");
}

TEST_F(ProfileFileTest, FileWithoutFinalLineEndOrWithCarriageReturnsReads) {
    const ProfileFile profile = ProfileFile::Load(Write("a.ini", "a=1\r\n[S]\r\nb = two \r\nc=3"));
    EXPECT_EQ(profile.Get("", "a"), "1");
    EXPECT_EQ(profile.Get("S", "b"), "two");
    EXPECT_EQ(profile.Get("S", "c"), "3");
}

TEST_F(ProfileFileTest, GetIntReadsDecimalAndHexWithinThirtyTwoBits) {
    const ProfileFile profile =
        ProfileFile::Load(Write("n.ini",
                                "d=42\nneg=-7\nplus=+5\nhex=0x1F\nHEX=0XfF\nall=0xFFFFFFFF\nbig="
                                "4294967295\nmin=-2147483648\n"
                                "text=12abc\nempty=\ntoobig=4294967296\ntoolow=-"
                                "2147483649\nlonghex=0x123456789\nbarehex=0x\n"));
    EXPECT_EQ(profile.GetInt("", "d"), 42);
    EXPECT_EQ(profile.GetInt("", "neg"), -7);
    EXPECT_EQ(profile.GetInt("", "plus"), 5);
    EXPECT_EQ(profile.GetInt("", "hex"), 31);
    EXPECT_EQ(profile.GetInt("", "all"), -1);
    EXPECT_EQ(profile.GetInt("", "big"), -1);
    EXPECT_EQ(profile.GetInt("", "min"), INT32_MIN);
    EXPECT_FALSE(profile.GetInt("", "text"));
    EXPECT_FALSE(profile.GetInt("", "empty"));
    EXPECT_FALSE(profile.GetInt("", "toobig"));
    EXPECT_FALSE(profile.GetInt("", "toolow"));
    EXPECT_FALSE(profile.GetInt("", "longhex"));
    EXPECT_FALSE(profile.GetInt("", "barehex"));
    EXPECT_FALSE(profile.GetInt("", "absent"));
}

TEST_F(ProfileFileTest, UpdateCreatesAMissingFile) {
    const std::string path = PathOf("new.ini");
    ASSERT_TRUE(ProfileFile::Update(path, [](ProfileFile& profile) {
        return profile.Set("", "Top", "1") && profile.Set("Mail", "Server", "smtp.example.org");
    }));
    EXPECT_EQ(Read(path), "Top=1\n\n[Mail]\nServer=smtp.example.org\n");
    EXPECT_EQ(ProfileFile::Load(path).Get("mail", "server"), "smtp.example.org");
}

TEST_F(ProfileFileTest, UpdateChangesOnlyTheLinesItTouches) {
    const std::string path = Write("a.ini", kSample);
    ASSERT_TRUE(SetOne(path, "section", "other key", "new text"));
    std::string expected = kSample;
    expected.replace(expected.find("  Other Key = value text  "), 26, "Other Key=new text");
    EXPECT_EQ(Read(path), expected);
}

TEST_F(ProfileFileTest, NewKeyFollowsTheSectionsLastKeyAndNewSectionGoesLast) {
    const std::string path = Write("a.ini", "; top\n\n[A]\nk=1\n\n[B]\n");
    ASSERT_TRUE(ProfileFile::Update(path, [](ProfileFile& profile) {
        return profile.Set("A", "m", "2") && profile.Set("", "u", "0") &&
               profile.Set("B", "b", "3") && profile.Set("C", "c", "4");
    }));
    EXPECT_EQ(Read(path), "; top\nu=0\n\n[A]\nk=1\nm=2\n\n[B]\nb=3\n\n[C]\nc=4\n");
}

TEST_F(ProfileFileTest, BlanksAroundAWrittenValueAreNotKept) {
    const std::string path = PathOf("a.ini");
    ASSERT_TRUE(SetOne(path, "S", "k", "  padded  "));
    EXPECT_EQ(ProfileFile::Load(path).Get("S", "k"), "padded");
}

TEST_F(ProfileFileTest, SetRefusesLineEndsAndKeysThatWouldNotReadBack) {
    ProfileFile profile = ProfileFile::Load(Write("a.ini", "k=1\n"));
    EXPECT_FALSE(profile.Set("", "k", "two\nlines"));
    EXPECT_FALSE(profile.Set("", "k", "cr\rhere"));
    EXPECT_FALSE(profile.Set("", "a\nb", "1"));
    EXPECT_FALSE(profile.Set("S\n", "k", "1"));
    EXPECT_FALSE(profile.Set("", "", "1"));
    EXPECT_FALSE(profile.Set("", "a=b", "1"));
    EXPECT_FALSE(profile.Set("", ";k", "1"));
    EXPECT_FALSE(profile.Set("", "#k", "1"));
    EXPECT_FALSE(profile.Set("", "[k", "1"));
    EXPECT_FALSE(profile.Set("", " k", "1"));
    EXPECT_FALSE(profile.Set(" S", "k", "1"));
    EXPECT_EQ(profile.Text(), "k=1\n");
}

TEST_F(ProfileFileTest, UpdateRefusingAValueWithALineEndLeavesTheFileAlone) {
    const std::string path = Write("a.ini", "k=1\n");
    EXPECT_FALSE(SetOne(path, "", "k", "two\nlines"));
    EXPECT_EQ(Read(path), "k=1\n");
}

TEST_F(ProfileFileTest, RemoveDeletesEveryLineOfTheKey) {
    const std::string path = Write("a.ini", "[A]\nk=1\nm=2\nK=3\n");
    bool removed = false;
    ASSERT_TRUE(ProfileFile::Update(path, [&](ProfileFile& profile) {
        removed = profile.Remove("a", "k");
        return !profile.Remove("A", "absent") && !profile.Remove("Nowhere", "k");
    }));
    EXPECT_TRUE(removed);
    EXPECT_EQ(Read(path), "[A]\nm=2\n");
}

TEST_F(ProfileFileTest, ChangeThatGivesUpWritesNothing) {
    const std::string path = PathOf("a.ini");
    EXPECT_FALSE(ProfileFile::Update(path, [](ProfileFile& profile) {
        profile.Set("", "k", "1");
        return false;
    }));
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ProfileFileTest, UpdateWithoutChangeDoesNotCreateTheFile) {
    const std::string path = PathOf("a.ini");
    EXPECT_TRUE(ProfileFile::Update(path, [](ProfileFile&) { return true; }));
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ProfileFileTest, LineWithoutEqualsMakesTheFileUnparseableReportedOnceAndNeverWritten) {
    const std::string text = "a=1\n[S]\nno equals sign here\nb=2\n";
    const std::string path = Write("bad.ini", text);
    const ProfileFile profile = ProfileFile::Load(path);
    EXPECT_FALSE(profile.IsIntact());
    EXPECT_FALSE(profile.Get("", "a"));
    EXPECT_TRUE(profile.Sections().empty());
    ASSERT_EQ(problems.Lines().size(), 1u);
    EXPECT_NE(problems.Lines()[0].find(path + ":3"), std::string::npos) << problems.Lines()[0];

    ProfileFile::Load(path);
    EXPECT_EQ(problems.Lines().size(), 1u);  // the same file is not reported again

    EXPECT_FALSE(SetOne(path, "", "a", "5"));
    EXPECT_EQ(Read(path), text);
}

// An empty profile is a valid profile without values (its writer writes one
// so); every other damage is listed as unreadable and refuses changes.
TEST_F(ProfileFileTest, EveryDamageButEmptinessIsListedAsUnreadableAndRefusesChanges) {
    const std::string valid = "[Installed]\n0=1\n";
    const std::string path = PathOf("damaged.ini");
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "[Installed]"), damage);
        Write("damaged.ini", text);
        const ProfileFile profile = ProfileFile::Load(path);
        if (damage == Damage::kEmpty) {
            EXPECT_TRUE(profile.IsIntact());
            EXPECT_FALSE(IsListedUnreadable(path));
            continue;
        }
        EXPECT_FALSE(profile.IsIntact());
        EXPECT_TRUE(IsListedUnreadable(path));
        EXPECT_FALSE(SetOne(path, "Installed", "1", "1"));
        EXPECT_TRUE(Read(path) == text) << "the file is kept";
    }
    Write("damaged.ini", valid);
    EXPECT_TRUE(SetOne(path, "Installed", "1", "1"));
    EXPECT_FALSE(IsListedUnreadable(path));
}

// Only the last reported state of each file is remembered, so that a
// process whose files keep changing does not collect a report for every
// state they ever had: a file that goes back to an earlier broken content is
// reported again.
TEST_F(ProfileFileTest, FileBackToAnEarlierBrokenContentIsReportedAgain) {
    const std::string first = "no equals sign\n";
    const std::string second = "[unterminated\n";
    const std::string path = Write("bad.ini", first);
    ProfileFile::Load(path);
    Write("bad.ini", second);
    ProfileFile::Load(path);
    ProfileFile::Load(path);
    Write("bad.ini", first);
    ProfileFile::Load(path);
    ASSERT_EQ(problems.Lines().size(), 3u);
    EXPECT_NE(problems.Lines()[0].find(path + ":1"), std::string::npos);
    EXPECT_EQ(problems.Lines()[2], problems.Lines()[0]);
}

TEST_F(ProfileFileTest, UnterminatedOrEmptySectionHeaderMakesTheFileUnparseable) {
    for (const std::string text : {"[Section\nk=1\n", "k=1\n[]\n", "[S] trailing\n", "= value\n"}) {
        const std::string path = Write("bad.ini", text);
        ProfileFile profile = ProfileFile::Load(path);
        EXPECT_FALSE(profile.IsIntact()) << text;
        EXPECT_FALSE(profile.Set("", "k", "2")) << text;
        EXPECT_FALSE(SetOne(path, "", "k", "2")) << text;
        EXPECT_EQ(Read(path), text);
    }
}

TEST_F(ProfileFileTest, UnreadableFileIsReportedAndNotWritten) {
    const std::string path = PathOf("dir.ini");
    std::filesystem::create_directory(path);
    EXPECT_FALSE(ProfileFile::Load(path).IsIntact());
    EXPECT_FALSE(SetOne(path, "", "k", "1"));
    ASSERT_FALSE(problems.Lines().empty());
    EXPECT_NE(problems.Lines()[0].find(path), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST_F(ProfileFileTest, UpdateInAMissingDirectoryFailsAndIsReported) {
    EXPECT_FALSE(SetOne(PathOf("no/such/dir/a.ini"), "", "k", "1"));
    ASSERT_EQ(problems.Lines().size(), 1u);
    EXPECT_NE(problems.Lines()[0].find("a.ini.lock"), std::string::npos);
}

TEST_F(ProfileFileTest, UpdateTakesTheLockFileBesideTheFile) {
    const std::string path = PathOf("a.ini");
    ASSERT_TRUE(SetOne(path, "", "k", "1"));
    EXPECT_TRUE(std::filesystem::exists(path + ".lock"));
}

TEST_F(ProfileFileTest, ConcurrentUpdatesEachSeeTheOthersChanges) {
    const std::string path = PathOf("count.ini");
    const auto increment = [&] {
        for (int i = 0; i < 25; ++i) {
            ProfileFile::Update(path, [](ProfileFile& profile) {
                return profile.Set("", "n",
                                   std::to_string(profile.GetInt("", "n").value_or(0) + 1));
            });
        }
    };
    std::thread first(increment);
    std::thread second(increment);
    first.join();
    second.join();
    EXPECT_EQ(ProfileFile::Load(path).GetInt("", "n"), 50);
}
