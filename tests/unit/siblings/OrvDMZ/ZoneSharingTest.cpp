// How this product shares the zone with the other products of the
// installation: it sees their records on its exclusions page, cannot delete
// them, and its rewrites of its own records (Enum, Delete, Add) leave them
// exactly as they were. The tests replay the two rewrites the system makes:
// the exclusions page's Apply and the silent policy step's synchronisation.

#include <gtest/gtest.h>

#include "OrvDMZ.h"
#include "ZoneTestSupport.h"

namespace {


const std::string kOtherProducts =
    "[OtherProduct]\n"
    "record=1,0x00000010,\"/opt/other/cache\"\n"
    "record=0,0x00000102,\"/opt/other/user\"\n"
    "record=1,0x00000021,\"\\\\\\\\server\\\\share\\\\file\"\n"
    "[ThirdProduct]\n"
    "record=1,0x00010100,\"tmp\"\n";

class ZoneSharingTest : public testing::Test {
protected:
    void SetUp() override {
        WriteZone(
            "OrvDMZ Zone 1\n"
            "[Q9Pro2004]\n"
            "record=1,0x00000102,\"/home/user/private\"\n"
            "record=1,0x00000010,\"/opt/q9/quarantine\"\n"
            "record=1,0x00000122,\"\\\\\\\\nas\\\\home\\\\user\"\n" +
            kOtherProducts);
        zone = OrvDMZ_Create();
    }
    void TearDown() override { OrvDMZ_Destroy(zone); }

    void WriteZone(const std::string& text) const { install.Write("OrvDMZ.zone", text); }
    std::string ZoneText() const { return install.Read("OrvDMZ.zone"); }

    void Rewrite(const std::vector<TestRecord>& records) {
        const auto bytes = MakeBuffer(records);
        ASSERT_EQ(OrvDMZ_DeleteDMZA(zone, kOwner, kOwner, 0), 1);
        ASSERT_EQ(OrvDMZ_AddDMZA(zone, kOwner, kOwner, bytes.data()), 1);
    }

    TemporaryInstallation install;
    void* zone = nullptr;
};

}  // namespace

TEST_F(ZoneSharingTest, OwnRecordsComeFirstAsStoredThenOtherProductsRecords) {
    const auto seen = EnumerateAll(zone, kOwner);
    ASSERT_EQ(seen.size(), 7u);
    EXPECT_EQ(seen[0], Record(1, 0x102, "/home/user/private", kOwner));
    EXPECT_EQ(seen[1], Record(1, 0x10, "/opt/q9/quarantine", kOwner));
    EXPECT_EQ(seen[2], Record(1, 0x122, "\\\\nas\\home\\user", kOwner));
    // Others' records: fixed, derived and user bits cleared, foreign bit set.
    EXPECT_EQ(seen[3], Record(1, 0x40000000, "/opt/other/cache", "OtherProduct"));
    EXPECT_EQ(seen[4], Record(0, 0x40000002, "/opt/other/user", "OtherProduct"));
    EXPECT_EQ(seen[5], Record(1, 0x40000001, "\\\\server\\share\\file", "OtherProduct"));
    EXPECT_EQ(seen[6], Record(1, 0x40010000, "tmp", "ThirdProduct"));
}

TEST_F(ZoneSharingTest, TheOtherProductSeesThisProductsRecordsAsForeign) {
    const auto seen = EnumerateAll(zone, "OtherProduct");
    ASSERT_EQ(seen.size(), 7u);
    EXPECT_EQ(seen[0], Record(1, 0x10, "/opt/other/cache", "OtherProduct"));
    EXPECT_EQ(seen[3], Record(1, 0x40000002, "/home/user/private", kOwner));
}

// The exclusions page: records without a 0x30 bit are shown and written back
// whole; records with one are kept aside, and of those only this product's
// own that are not network paths are written back.
TEST_F(ZoneSharingTest, ExclusionsPageRewriteLeavesOtherProductsRecordsAlone) {
    const auto seen = EnumerateAll(zone, kOwner);
    std::vector<TestRecord> shown;
    std::vector<TestRecord> keptAside;
    for (const auto& record : seen) (record.flags & 0x30 ? keptAside : shown).push_back(record);
    // Every other product's record is shown, and none can be deleted there.
    for (const auto& record : seen) {
        if (record.owner == kOwner) continue;
        EXPECT_EQ(record.flags & 0x130, 0u) << record.path;
    }
    std::vector<TestRecord> output = shown;
    for (const auto& record : keptAside) {
        if (record.path[0] != '\\' && record.owner == kOwner) output.push_back(record);
    }

    const std::string expected = "OrvDMZ Zone 1\n" + kOtherProducts +
                                 "[Q9Pro2004]\n"
                                 "record=1,0x00000102,\"/home/user/private\"\n"
                                 "record=1,0x00000010,\"/opt/q9/quarantine\"\n";
    Rewrite(output);
    EXPECT_EQ(ZoneText(), expected);
    // Doing it again changes nothing.
    Rewrite(output);
    EXPECT_EQ(ZoneText(), expected);
}

// The silent policy step: every record with 0x10 is kept (only the numbers
// and the path are copied), the rest is this product's and rebuilt.
TEST_F(ZoneSharingTest, PolicySynchronisationLeavesOtherProductsRecordsAlone) {
    std::vector<TestRecord> output;
    for (const auto& record : EnumerateAll(zone, kOwner)) {
        if (record.flags & 0x10) output.push_back(Record(record.inUse, record.flags, record.path));
    }
    output.push_back(Record(1, 0x102, "/srv/new"));

    Rewrite(output);
    Rewrite(output);

    EXPECT_EQ(ZoneText(), "OrvDMZ Zone 1\n" + kOtherProducts +
                              "[Q9Pro2004]\n"
                              "record=1,0x00000010,\"/opt/q9/quarantine\"\n"
                              "record=1,0x00000102,\"/srv/new\"\n");
}

TEST_F(ZoneSharingTest, AddSkipsRecordsMarkedForeign) {
    const auto bytes =
        MakeBuffer({Record(1, 0x40000002, "/opt/other/user"), Record(1, 0x2, "/mine")});
    ASSERT_EQ(OrvDMZ_AddDMZA(zone, "Fourth", nullptr, bytes.data()), 1);
    const auto seen = EnumerateAll(zone, "Fourth");
    ASSERT_EQ(seen.size(), 8u);
    EXPECT_EQ(seen[0], Record(1, 0x2, "/mine", "Fourth"));
}
