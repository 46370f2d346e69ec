// Several processes on one registry: readers never see a torn or mixed hive,
// and writers in different processes lose no update.

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "HelperProcess.h"
#include "RegistryTestValues.h"
#include "support/TemporaryRegistry.h"
#include "platform/HiveFile.h"
#include "platform/Registry.h"

namespace {

using namespace platform;
using registry_test::DwordData;
using registry_test::Query;
using registry_test::SetBytes;

constexpr size_t kGenerationTextSize = 300000;

// Must match the helper: "gen=<n>;", letters depending on n, the final 0.
std::string GenerationText(uint32_t generation) {
    std::string text = "gen=" + std::to_string(generation) + ";";
    while (text.size() < kGenerationTextSize) {
        text.push_back(static_cast<char>('a' + (generation + text.size()) % 26));
    }
    text.push_back('\0');
    return text;
}

// A and B change together in one write.
int32_t WriteGeneration(HiveFile& file, uint32_t generation) {
    return file.Modify([generation](RegistryHive& hive, bool* changed) {
        bool created = false;
        RegistryHive::Key& key = hive.CreateKey({"Software", "Q9Test"}, &created);
        key.SetValue("A", kRegSz, GenerationText(generation));
        key.SetValue("B", kRegDword, DwordData(generation));
        *changed = true;
        return int32_t{kSuccess};
    });
}

TEST(RegistryProcesses, ReaderNeverSeesATornOrMixedHive) {
    const TemporaryRegistry registry;
    HiveFile writer("HKLM.reg", "HKEY_LOCAL_MACHINE");
    ASSERT_EQ(WriteGeneration(writer, 1), kSuccess);
    HelperProcess reader({"read-loop", registry.Directory(), "20"});
    ASSERT_TRUE(reader.Started());
    uint32_t generation = 2;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!reader.HasExited() && std::chrono::steady_clock::now() < deadline) {
        ASSERT_EQ(WriteGeneration(writer, generation++), kSuccess);
    }
    ASSERT_TRUE(reader.HasExited()) << "the reader did not finish";
    EXPECT_EQ(reader.Wait(), 0);
    EXPECT_GT(generation, 20u);
}

TEST(RegistryProcesses, TwoWritersLoseNoUpdate) {
    const TemporaryRegistry registry;
    RegKey key = nullptr;
    ASSERT_EQ(RegCreateKey(LocalMachine(), "Software\\Q9Test\\Counters", kKeyAllAccess, &key),
              kSuccess);
    // A sizeable hive makes each write slow enough for the writers to overlap.
    ASSERT_EQ(SetBytes(key, "Filler", kRegBinary, std::string(30000, '\x5a')), kSuccess);
    constexpr int kCount = 100;
    HelperProcess first({"increment", registry.Directory(), "X", std::to_string(kCount)});
    HelperProcess second({"increment", registry.Directory(), "Y", std::to_string(kCount)});
    EXPECT_EQ(first.Wait(), 0);
    EXPECT_EQ(second.Wait(), 0);
    EXPECT_EQ(Query(key, "X").data, DwordData(kCount));
    EXPECT_EQ(Query(key, "Y").data, DwordData(kCount));
    EXPECT_EQ(Query(key, "Filler").data.size(), 30000u);
    RegCloseKey(key);
}

}  // namespace
