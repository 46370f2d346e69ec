// The zone file as people and other processes see it: hand edits are read,
// odd paths survive, and a file that is not a zone is reported and kept.

#include <gtest/gtest.h>

#include <filesystem>

#include "OrvDMZ.h"
#include "ZoneTestSupport.h"
#include "support/DamagedContent.h"
#include "support/StderrCapture.h"

namespace {

class ZoneFileTest : public testing::Test {
protected:
    void SetUp() override { zone = OrvDMZ_Create(); }
    void TearDown() override { OrvDMZ_Destroy(zone); }

    void WriteZone(const std::string& text) const { install.Write("OrvDMZ.zone", text); }
    std::string ZoneText() const { return install.Read("OrvDMZ.zone"); }

    TemporaryInstallation install;
    void* zone = nullptr;
};

}  // namespace

TEST_F(ZoneFileTest, HandEditedFileIsReadAndWrittenBackPlainly) {
    WriteZone(
        "\n# the zone\r\n  OrvDMZ Zone 1  \r\n\n[Q9Pro2004]\n  record=1,0x102,\"/a\"\r\n"
        "[Other]\nrecord=0,0X10,\"/b\"\n# more of ours\n[Q9Pro2004]\nrecord=1,0x00000101,\"/c\"\n");
    const auto seen = EnumerateAll(zone, kOwner);
    ASSERT_EQ(seen.size(), 3u);
    EXPECT_EQ(seen[0], Record(1, 0x102, "/a", kOwner));
    EXPECT_EQ(seen[1], Record(1, 0x101, "/c", kOwner));
    EXPECT_EQ(seen[2], Record(0, 0x40000000, "/b", "Other"));

    const auto bytes = MakeBuffer({Record(1, 0x2, "/d")});
    ASSERT_EQ(OrvDMZ_AddDMZA(zone, "Other", nullptr, bytes.data()), 1);
    EXPECT_EQ(ZoneText(),
              "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x00000102,\"/a\"\nrecord=1,0x00000101,\"/c\"\n"
              "[Other]\nrecord=0,0x00000010,\"/b\"\nrecord=1,0x00000002,\"/d\"\n");
}

TEST_F(ZoneFileTest, PathsWithQuotesBackslashesCommasAndControlsSurvive) {
    const std::string odd = "/tmp/a \"quoted\", b\\c\nnew\tline\x7f\xc3\xa9";
    const auto bytes = MakeBuffer({Record(1, 0x2, odd)});
    ASSERT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 1);
    EXPECT_EQ(
        ZoneText(),
        "OrvDMZ Zone 1\n[Q9Pro2004]\n"
        "record=1,0x00000002,\"/tmp/a \\\"quoted\\\", b\\\\c\\x0Anew\\x09line\\x7F\xc3\xa9\"\n");
    EXPECT_EQ(EnumerateAll(zone, kOwner)[0].path, odd);
}

TEST_F(ZoneFileTest, HeaderOnlyFileIsAnEmptyZone) {
    for (const char* text : {"OrvDMZ Zone 1\n", "\n# hand-made\nOrvDMZ Zone 1\n[Owner]\n"}) {
        WriteZone(text);
        EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0) << text;
    }
}

TEST_F(ZoneFileTest, UnparseableFileIsReportedAndKept) {
    const std::vector<std::string> broken = {
        // The writer always writes the first line: a file without it was
        // emptied by something else.
        "",
        "\n\n",
        "# a comment alone\n",
        "not a zone\n",
        "OrvDMZ Zone 2\n",
        "OrvDMZ Zone 1\nrecord=1,0x2,\"/before any owner\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004\nrecord=1,0x2,\"/x\"\n",
        "OrvDMZ Zone 1\n[]\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,/unquoted\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,2,\"/no hex prefix\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=-1,0x2,\"/negative\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,\"\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,\"/bad \\q escape\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,\"/nul \\x00 inside\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,\"/short \\x4\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x2,\"/stray \" quote\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\nrecord=1,0x100000000,\"/too big\"\n",
        "OrvDMZ Zone 1\n[Q9Pro2004]\npath=\"/unknown key\"\n",
    };
    const auto bytes = MakeBuffer({Record(1, 0x2, "/new")});
    for (const auto& text : broken) {
        WriteZone(text);
        StderrCapture reported;
        EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0) << text;
        EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 0) << text;
        EXPECT_EQ(OrvDMZ_DeleteDMZA(zone, kOwner, kOwner, 0), 0) << text;
        EXPECT_NE(reported.Text().find("is not a zone file"), std::string::npos) << text;
        EXPECT_EQ(ZoneText(), text);
    }
}

TEST_F(ZoneFileTest, EveryDamageIsListedAsUnreadableAndRefusesChanges) {
    const std::string valid = "OrvDMZ Zone 1\n[Other]\nrecord=1,0x00000010,\"/opt/other\"\n";
    const auto bytes = MakeBuffer({Record(1, 0x2, "/new")});
    for (const Damage damage : kEveryDamage) {
        SCOPED_TRACE(NameOf(damage));
        const std::string text = Damaged(valid, CutInside(valid, "\"/opt/other"), damage);
        WriteZone(text);
        EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0);
        EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 0);
        EXPECT_TRUE(IsListedUnreadable(install.PathOf("OrvDMZ.zone")));
        EXPECT_TRUE(ZoneText() == text) << "the file is kept";
    }
    WriteZone(valid);
    EXPECT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 1);
    EXPECT_FALSE(IsListedUnreadable(install.PathOf("OrvDMZ.zone")));
}

TEST_F(ZoneFileTest, ZoneThatIsNotAFileIsReported) {
    std::filesystem::create_directories(install.PathOf("OrvDMZ.zone"));
    StderrCapture reported;
    EXPECT_EQ(OrvDMZ_EnumDMZA(zone, kOwner, kOwner, nullptr, 0), 0);
    EXPECT_NE(reported.Text().find("cannot read"), std::string::npos);
}
