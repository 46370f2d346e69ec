// The owned exclusion zone handle: against the built library, against the
// handle probe (which records every handle made and destroyed), without the
// library and against a library without its entry points.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "BindingTest.h"
#include "ZoneRecords.h"
#include "session/ExclusionZone.h"
#include "session/SiblingLibs.h"

namespace {

constexpr const char* kOwner = "Q9Pro2004";

class ExclusionZoneTest : public BindingTest {};

using Lines = std::vector<std::string>;

}  // namespace

TEST_F(ExclusionZoneTest, AddsEnumeratesAndDeletesRecords) {
    AddSibling("OrvDMZ");
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    ASSERT_FALSE(zone.IsEmpty());
    const std::vector<uint8_t> record = ZoneRecord("/home/user/private", 0x102);
    EXPECT_EQ(zone.Add(kOwner, kOwner, ZoneBuffer(record).data()), 1);

    const int32_t size = zone.Enumerate(kOwner, kOwner, nullptr, 0);
    ASSERT_EQ(size, static_cast<int32_t>(record.size() + 4));
    std::vector<uint8_t> read(static_cast<size_t>(size), 0xEE);
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, read.data(), size), size);
    EXPECT_STREQ(reinterpret_cast<const char*>(read.data() + 536), "/home/user/private");

    EXPECT_EQ(zone.Delete(kOwner, kOwner), 1);
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, nullptr, 0), 0);
}

TEST_F(ExclusionZoneTest, HandleIsDestroyedOnceWhenItGoes) {
    AddHandleProbeAs("OrvDMZ");
    {
        ExclusionZone zone = g_Siblings.CreateExclusionZone();
        EXPECT_FALSE(zone.IsEmpty());
        EXPECT_EQ(Handles(), Lines{"OrvDMZ_Create 1"});
    }
    EXPECT_EQ(Handles(), (Lines{"OrvDMZ_Create 1", "OrvDMZ_Destroy 1", "unload libOrvDMZ.so"}));
}

TEST_F(ExclusionZoneTest, MovingAndAssigningOverDestroyEachHandleOnce) {
    AddHandleProbeAs("OrvDMZ");
    {
        ExclusionZone first = g_Siblings.CreateExclusionZone();
        ExclusionZone second(std::move(first));
        EXPECT_TRUE(first.IsEmpty());
        second = g_Siblings.CreateExclusionZone();
        EXPECT_EQ(Handles(), (Lines{"OrvDMZ_Create 1", "OrvDMZ_Create 2", "OrvDMZ_Destroy 1"}));
    }
    EXPECT_EQ(Handles(), (Lines{"OrvDMZ_Create 1", "OrvDMZ_Create 2", "OrvDMZ_Destroy 1",
                                "OrvDMZ_Destroy 2", "unload libOrvDMZ.so"}));
}

TEST_F(ExclusionZoneTest, HandleKeepsItsLibraryLoadedAcrossRelease) {
    AddHandleProbeAs("OrvDMZ");
    {
        ExclusionZone zone = g_Siblings.CreateExclusionZone();
        g_Siblings.LoadDMZ();
        g_Siblings.Release();
        RemoveLibrary("OrvDMZ");
        EXPECT_EQ(Handles(), Lines{"OrvDMZ_Create 1"});
    }
    EXPECT_EQ(Handles(), (Lines{"OrvDMZ_Create 1", "OrvDMZ_Destroy 1", "unload libOrvDMZ.so"}));
}

TEST_F(ExclusionZoneTest, MissingLibraryGivesAnEmptyHarmlessHandle) {
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    EXPECT_TRUE(zone.IsEmpty());
    const std::vector<uint8_t> buffer = ZoneBuffer(ZoneRecord("/home/user/private", 0x102));
    EXPECT_EQ(zone.Add(kOwner, kOwner, buffer.data()), 0);
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, nullptr, 0), 0);
    EXPECT_EQ(zone.Delete(kOwner, kOwner), 0);
    AddHandleProbeAs("OrvDMZ");
    zone = ExclusionZone();
    EXPECT_TRUE(Handles().empty());
}

TEST_F(ExclusionZoneTest, LibraryWithoutEntryPointsGivesAnEmptyHandleAndIsLetGo) {
    AddProbeAs("OrvDMZ");
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    EXPECT_TRUE(zone.IsEmpty());
    EXPECT_EQ(zone.Enumerate(kOwner, kOwner, nullptr, 0), 0);
    EXPECT_EQ(Unloads(), Lines{"libOrvDMZ.so"});
}
