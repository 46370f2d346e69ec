// A schedule entry in the scheduler's home, the job keys of the registry
// stand-in: the values written, the defaults of a key that lacks them, the
// run-as account in the scrambled value, other jobs that survive every
// wipe, and the listing in the registry's order.

#include <Q9CfgE.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <memory>
#include <string>
#include <vector>

#include "schedule/AccountValue.h"
#include "schedule/ScheduleEntry.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "support/SiblingTest.h"
#include "support/TemporaryRegistry.h"

namespace {

class ScheduleRegistryTest : public SiblingTest {
protected:
    ScheduleRegistryTest() : m_savedModuleDir(g_szModuleDir) { g_szModuleDir = "/opt/q9/"; }
    ~ScheduleRegistryTest() override { g_szModuleDir = m_savedModuleDir; }

    static std::unique_ptr<ScheduleEntry> MakeEntry(uint16_t hour, const char* user) {
        auto entry = std::make_unique<ScheduleEntry>();
        entry->m_nStyle = kScheduleEveryWeek;
        entry->m_time = {2026, 11, 3, 25, hour, 30, 0, 0};
        entry->m_strUser = user;
        entry->m_strPassword = "run-secret";
        return entry;
    }
    static uint32_t JobWord(int32_t number, const char* value) {
        return RegReadDword(platform::LocalMachine(), ScheduleJobKey(number).c_str(), value,
                            0xDEAD);
    }
    static std::string JobText(int32_t number, const char* value) {
        return RegReadString(platform::LocalMachine(), ScheduleJobKey(number).c_str(), value, "");
    }
    static void AddOtherJob(const char* name) {
        RegWriteDword(platform::LocalMachine(), RegJoinPath(kScheduleKey, name).c_str(), "On", 1);
    }
    static std::vector<std::string> JobNames() {
        std::vector<std::string> names;
        for (uint32_t i = 0;; ++i) {
            const std::string name = RegSubkeyName(platform::LocalMachine(), kScheduleKey, i);
            if (name.empty()) return names;
            names.push_back(name);
        }
    }

    TemporaryRegistry m_registry;

private:
    std::string m_savedModuleDir;
};

TEST_F(ScheduleRegistryTest, SaveWritesTheJobsValuesAndItsCommandLine) {
    MakeEntry(6, "runner")->SaveToRegistry(4, 1, 0);
    EXPECT_EQ(JobWord(4, "On"), 1U);
    EXPECT_EQ(JobWord(4, "Style"), 2U);
    EXPECT_EQ(JobWord(4, "Year"), 2026U);
    EXPECT_EQ(JobWord(4, "DayOfWeek"), 3U);
    EXPECT_EQ(JobWord(4, "Hour"), 6U);
    EXPECT_EQ(JobWord(4, "Minute"), 30U);
    EXPECT_EQ(JobText(4, "CmdLine"), "\"/opt/q9/q9medic\" /o:10000004");
    EXPECT_EQ(JobText(4, "CurDir"), "/opt/q9/");
}

TEST_F(ScheduleRegistryTest, TheRunAsAccountComesBackOnlyFromTheRegistry) {
    const auto saved = MakeEntry(6, "runner");
    saved->m_strNetUser = "share";
    saved->SaveToStore(0, 1, 0);
    saved->SaveToRegistry(0, 1, 0);
    ScheduleEntry fromRegistry;
    fromRegistry.Load(ScheduleJobKey(0).c_str(), 0);
    EXPECT_EQ(fromRegistry.m_strUser, "runner");
    EXPECT_EQ(fromRegistry.m_strPassword, "run-secret");
    EXPECT_EQ(fromRegistry.m_strNetUser, "share");
    // Seconds and milliseconds are kept nowhere.
    ScheduleTime stored = fromRegistry.m_time;
    stored.wSecond = 0;
    stored.wMilliseconds = 0;
    EXPECT_EQ(stored, saved->m_time);
    ScheduleEntry fromStore;
    fromStore.Load(nullptr, 0);
    EXPECT_TRUE(fromStore.m_strUser.empty());
    EXPECT_EQ(fromStore.m_strNetUser, "share");
}

TEST_F(ScheduleRegistryTest, EveryStyleComesBackFromTheRegistryWithItsAccounts) {
    for (int32_t style : {1, 2, 3, 4, 5, 6}) {
        const auto saved = MakeEntry(static_cast<uint16_t>(style + 3), "runner");
        saved->m_nStyle = style;
        saved->m_strNetUser = "share";
        saved->m_strNetPassword = "net-secret";
        saved->m_dwScanPolicy = 0x2000002;
        WipeStoreEntries();
        WipeRegistryEntries();
        saved->SaveToStore(0, 0, 0);
        saved->SaveToRegistry(0, 0, 0);
        const std::vector<std::unique_ptr<ScheduleEntry>> jobs = LoadRegistryEntries();
        ASSERT_EQ(jobs.size(), 1U) << style;
        const ScheduleEntry& loaded = *jobs[0];
        EXPECT_EQ(loaded.m_nStyle, style);
        EXPECT_EQ(loaded.m_bOn, 0) << style;
        EXPECT_EQ(loaded.m_time.wHour, saved->m_time.wHour);
        EXPECT_EQ(loaded.m_time.wDayOfWeek, saved->m_time.wDayOfWeek);
        EXPECT_EQ(loaded.m_time.wDay, saved->m_time.wDay);
        EXPECT_EQ(loaded.m_time.wMonth, saved->m_time.wMonth);
        EXPECT_EQ(loaded.m_time.wYear, saved->m_time.wYear);
        EXPECT_EQ(loaded.m_targets, saved->m_targets);
        EXPECT_EQ(loaded.m_dwScanPolicy, 0x2000002U);
        EXPECT_EQ(loaded.m_strUser, "runner");
        EXPECT_EQ(loaded.m_strPassword, "run-secret");
        EXPECT_EQ(loaded.m_strNetUser, "share");
        EXPECT_EQ(loaded.m_strNetPassword, "net-secret");
    }
}

// Values of the wrong type read as missing; numbers out of range are read
// as they stand (the list page drops what it cannot show).
TEST_F(ScheduleRegistryTest, WronglyTypedAndOutOfRangeValuesAreReadWithoutHarm) {
    const std::string key = ScheduleJobKey(0);
    const RegKey root = platform::LocalMachine();
    RegWriteString(root, key.c_str(), "Style", "weekly");
    RegWriteDword(root, key.c_str(), "Month", 13);
    RegWriteDword(root, key.c_str(), "DayOfWeek", 7);
    RegWriteString(root, key.c_str(), "Hour", "nine");
    const unsigned char truncated[] = {6, 0, 0, 0, 'r', 'u'};
    RegWriteBinary(root, key.c_str(), "AI", truncated, sizeof truncated);
    const std::vector<std::unique_ptr<ScheduleEntry>> jobs = LoadRegistryEntries();
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0]->m_nStyle, 0);
    EXPECT_EQ(jobs[0]->m_time.wMonth, 13);
    EXPECT_EQ(jobs[0]->m_time.wDayOfWeek, 7);
    EXPECT_EQ(jobs[0]->m_time.wHour, 0);
    EXPECT_EQ(jobs[0]->m_strUser, "");
}

TEST_F(ScheduleRegistryTest, AKeyWithoutValuesGivesTheDefaults) {
    AddOtherJob("Q9SScan7");
    ScheduleEntry entry;
    entry.Load(RegJoinPath(kScheduleKey, "Q9SScan7").c_str(), 7);
    EXPECT_EQ(entry.m_nStyle, 0);
    EXPECT_EQ(entry.m_time.wYear, 2000);
    EXPECT_EQ(entry.m_time.wMonth, 1);
    EXPECT_EQ(entry.m_time.wDay, 1);
    EXPECT_EQ(entry.m_time.wHour, 0);
    EXPECT_TRUE(entry.m_strUser.empty());
}

TEST_F(ScheduleRegistryTest, TheAccountValueIsScrambledAndReplacedAtEachSave) {
    MakeEntry(6, "first")->SaveToRegistry(0, 1, 0);
    MakeEntry(6, "second")->SaveToRegistry(0, 1, 0);
    std::string user;
    std::string password;
    ASSERT_EQ(ScheduleEntry::ReadAccountValue(0, user, password, 0), 1);
    EXPECT_EQ(user, "second");
    const std::string hive = TemporaryRegistry::ReadFile(m_registry.PathOf("HKLM.reg"));
    ASSERT_FALSE(hive.empty());
    EXPECT_EQ(hive.find("run-secret"), std::string::npos);
    EXPECT_EQ(hive.find("second"), std::string::npos);
}

TEST_F(ScheduleRegistryTest, ReadingWithDeleteTakesTheValueAway) {
    MakeEntry(6, "runner")->SaveToRegistry(0, 1, 0);
    std::string user = "kept";
    std::string password = "kept";
    EXPECT_EQ(ScheduleEntry::ReadAccountValue(0, user, password, 1), 1);
    EXPECT_EQ(user, "runner");
    EXPECT_EQ(ScheduleEntry::ReadAccountValue(0, user, password, 0), 0);
    EXPECT_EQ(user, "runner");
    EXPECT_EQ(ScheduleEntry::WriteAccountValue(nullptr, "x", 0), 0);
}

TEST_F(ScheduleRegistryTest, AMalformedAccountValueLeavesTheOutputsAsTheyWere) {
    const std::string bad = "\x09\x00\x00\x00short";
    RegWriteBinary(platform::LocalMachine(), ScheduleJobKey(0).c_str(), "AI", bad.data(),
                   static_cast<uint32_t>(bad.size()));
    std::string user = "kept";
    std::string password = "kept";
    EXPECT_EQ(ScheduleEntry::ReadAccountValue(0, user, password, 0), 0);
    EXPECT_EQ(user, "kept");
}

TEST_F(ScheduleRegistryTest, AnEmptyListWipesThisProductsJobsAndLeavesTheOthers) {
    AddOtherJob("Backup Nightly");
    AddOtherJob("zz-other");
    for (int32_t number : {0, 1, 2}) MakeEntry(1, "u")->SaveToRegistry(number, 1, 0);
    AddOtherJob("q9sscan9");  // the prefix in another case is this product's too
    WipeRegistryEntries();
    EXPECT_EQ(JobNames(), (std::vector<std::string>{"Backup Nightly", "zz-other"}));
}

TEST_F(ScheduleRegistryTest, TheListingFollowsTheRegistrysOrderAndTheNumberSelectsTheSection) {
    for (int32_t number : {2, 10}) {
        const auto entry = MakeEntry(static_cast<uint16_t>(number), "u");
        entry->m_dwScanOptions = static_cast<uint32_t>(number);
        entry->SaveToStore(number, 1, 0);
        entry->SaveToRegistry(number, 1, 0);
    }
    AddOtherJob("Backup Nightly");
    const auto entries = LoadRegistryEntries();
    ASSERT_EQ(entries.size(), 2U);
    // "Q9SScan10" sorts before "Q9SScan2".
    EXPECT_EQ(entries[0]->m_time.wHour, 10);
    EXPECT_EQ(entries[0]->m_dwScanOptions, 10U);
    EXPECT_EQ(entries[1]->m_dwScanOptions, 2U);
}

TEST_F(ScheduleRegistryTest, TheFilesHoldingTheAccountsAreTheirOwnersOnlyAndHoldNoPassword) {
    const auto entry = MakeEntry(6, "runner");
    entry->m_strNetUser = "share";
    entry->m_strNetPassword = "net-secret";
    // Files that were readable by all before are tightened by the next write.
    RegWriteDword(platform::LocalMachine(), "Software\\Other", "x", 1);
    ASSERT_EQ(chmod(m_registry.PathOf("HKLM.reg").c_str(), 0644), 0);
    entry->SaveToRegistry(0, 1, 0);
    entry->SaveToStore(0, 1, 0);
    Q9CfgE_FlushEx(0xFFFFFFFF, 1);
    for (const std::string& path : {m_registry.PathOf("HKLM.reg"), Install().PathOf("Q9Cfg.dat")}) {
        struct stat info {};
        ASSERT_EQ(stat(path.c_str(), &info), 0) << path;
        EXPECT_EQ(info.st_mode & 0777, 0600U) << path;
        const std::string bytes = TemporaryRegistry::ReadFile(path);
        EXPECT_EQ(bytes.find("run-secret"), std::string::npos) << path;
        EXPECT_EQ(bytes.find("net-secret"), std::string::npos) << path;
    }
}

}  // namespace
