// The data files the demo installation ships: every store file parses, and
// the values the documentation promises are there.
#include <gtest/gtest.h>

#include <string>

#include "Q9CfgE.h"
#include "options/StoreKeys.h"
#include "support/StderrCapture.h"
#include "support/TemporaryInstallation.h"
#include "support/TestPaths.h"

namespace {

std::string DataFile(const char* name) { return TestPath("demo_data") + "/" + name; }

// Reads words of one store file: the store is pointed at it, inside an empty
// installation of the test's own, so that no factory default fills a gap.
class StoreFileWords {
public:
    explicit StoreFileWords(const char* name) {
        Q9CfgE_SetStyleEx(257, DataFile(name).c_str(), 0);
    }
    ~StoreFileWords() { Q9CfgE_SetStyleEx(257, "", 0); }
    StoreFileWords(const StoreFileWords&) = delete;
    StoreFileWords& operator=(const StoreFileWords&) = delete;

    uint32_t Word(uint32_t section, uint32_t key) const { return Q9CfgE_GetDWEx(section, key); }

private:
    TemporaryInstallation m_install;
};

uint32_t SectionCount(Q9CfgEHandle file) {
    uint32_t count = 0;
    while (Q9CfgE_Enum(file, 0, static_cast<uint16_t>(count)) != 0) ++count;
    return count;
}

}  // namespace

TEST(DemoData, EveryStoreFileParsesWithoutAReport) {
    for (const char* name : {"Q9CfgDef.dat", "OrvHg.dat", "OrvMd.dat", "OrvLw.dat", "OrvIni.dat"}) {
        StderrCapture problems;
        Q9CfgEHandle file = Q9CfgE_Create(257, DataFile(name).c_str(), 0);
        ASSERT_NE(file, nullptr) << name;
        EXPECT_GT(SectionCount(file), 10u) << name;
        Q9CfgE_Close(file);
        EXPECT_EQ(problems.Text(), "") << name;
    }
}

TEST(DemoData, LevelsCarryTheirLevelAndLeaveTheUsersSectionsAlone) {
    const std::pair<const char*, uint32_t> levels[] = {
        {"OrvHg.dat", 1}, {"OrvMd.dat", 2}, {"OrvLw.dat", 4}};
    for (const auto& [name, level] : levels) {
        EXPECT_EQ(StoreFileWords(name).Word(CES_General, CEK_ProtectLevel), level) << name;
        Q9CfgEHandle file = Q9CfgE_Create(257, DataFile(name).c_str(), 0);
        ASSERT_NE(file, nullptr);
        for (uint16_t i = 0; uint32_t section = Q9CfgE_Enum(file, 0, i); ++i) {
            EXPECT_NE(section, uint32_t{CES_Authorization}) << name;
            EXPECT_NE(section, uint32_t{CES_Exclude}) << name;
            EXPECT_FALSE(section >= CES_Schedule && section < CES_ScheduleDefault) << name;
        }
        Q9CfgE_Close(file);
    }
}

TEST(DemoData, FactoryDefaultsAreMediumWithEveryFunctionUnderControl) {
    const StoreFileWords defaults("Q9CfgDef.dat");
    EXPECT_EQ(defaults.Word(CES_General, CEK_ProtectLevel), 2u);
    EXPECT_EQ(defaults.Word(CES_Pop3, CEK_Pop3Port), 110u);
    EXPECT_EQ(defaults.Word(CES_Authorization, CEK_AuthEnabled), 0u);
    for (uint32_t mask : {CEK_Switch_ScanMask, CEK_Switch_ScanMailMask, CEK_Switch_GeneralMask}) {
        EXPECT_EQ(defaults.Word(CES_Switch, mask), 0xFFFFFFFFu);
    }
}
