#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "platform/BatteryState.h"
#include "session/PowerWatch.h"
#include "support/TemporaryRegistry.h"

namespace {

namespace fs = std::filesystem;

// A power supply folder of the test's own, as the kernel lays it out.
class PowerWatchTest : public testing::Test {
protected:
    PowerWatchTest() : m_root(m_scratch.Base() + "/power_supply") {
        fs::create_directories(m_root);
    }

    void Supply(const std::string& name, const std::string& type, const std::string& status,
                const std::string& level) const {
        const fs::path folder = fs::path(m_root) / name;
        fs::create_directories(folder);
        std::ofstream(folder / "type") << type << "\n";
        std::ofstream(folder / "status") << status << "\n";
        std::ofstream(folder / "capacity_level") << level << "\n";
    }
    const std::string& Root() const { return m_root; }

private:
    TemporaryRegistry m_scratch;  // used for its temporary directory
    std::string m_root;
};

TEST_F(PowerWatchTest, ADischargingBatteryAtALowOrCriticalLevelIsLow) {
    Supply("AC", "Mains", "", "");
    Supply("BAT0", "Battery", "Discharging", "Normal");
    EXPECT_FALSE(platform::AnyBatteryLow(Root()));
    Supply("BAT0", "Battery", "Discharging", "Low");
    EXPECT_TRUE(platform::AnyBatteryLow(Root()));
    Supply("BAT0", "Battery", "Discharging", "Critical");
    EXPECT_TRUE(platform::AnyBatteryLow(Root()));
    Supply("BAT0", "Battery", "Charging", "Low");
    EXPECT_FALSE(platform::AnyBatteryLow(Root()));
}

TEST_F(PowerWatchTest, NoBatteryOrNoFolderIsNeverLow) {
    EXPECT_FALSE(platform::AnyBatteryLow(Root()));
    EXPECT_FALSE(platform::AnyBatteryLow(Root() + "/missing"));
}

TEST_F(PowerWatchTest, TheEventComesOnceEachTimeABatteryBecomesLow) {
    std::vector<int> events;
    PowerWatch watch([&events](int event) { events.push_back(event); }, Root());
    Supply("BAT0", "Battery", "Discharging", "Normal");
    watch.Start();
    watch.Check();
    EXPECT_TRUE(events.empty());
    Supply("BAT0", "Battery", "Discharging", "Low");
    watch.Check();
    watch.Check();
    EXPECT_EQ(events, std::vector<int>{PowerWatch::kLowBattery});
    Supply("BAT0", "Battery", "Charging", "Low");
    watch.Check();
    Supply("BAT0", "Battery", "Discharging", "Low");
    watch.Check();
    EXPECT_EQ(events.size(), 2u);
    watch.Stop();
}

TEST_F(PowerWatchTest, ABatteryLowAlreadyWhenTheDialogOpensIsNotTold) {
    std::vector<int> events;
    PowerWatch watch([&events](int event) { events.push_back(event); }, Root());
    Supply("BAT0", "Battery", "Discharging", "Critical");
    watch.Start();
    watch.Check();
    EXPECT_TRUE(events.empty());
}

}  // namespace
