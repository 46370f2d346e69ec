// Reading a value from the registry stand-in, beside the least any read must
// do: one stat of the hive file, which tells whether the cached copy is still
// current.
#include <benchmark/benchmark.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "session/RegistryHelpers.h"
#include "text/GroupedText.h"

namespace {

class ScratchHive {
public:
    ScratchHive() {
        char pattern[] = "/tmp/q9-bench-XXXXXX";
        m_directory = mkdtemp(pattern);
        setenv("Q9_REGISTRY_DIR", m_directory.c_str(), 1);
        for (int i = 0; i < 200; ++i) {
            const std::string key = "Software\\Bench\\Key" + std::to_string(i);
            RegWriteDword(platform::LocalMachine(), key.c_str(), "Value", static_cast<uint32_t>(i));
        }
        RegWriteDword(platform::LocalMachine(), "Software\\Orvtek\\Q9CfgUL", "Debug", 0);
    }
    ~ScratchHive() {
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }
    std::string hive() const { return m_directory + "/HKLM.reg"; }

private:
    std::string m_directory;
};

void BM_StatOfTheHive(benchmark::State& state) {
    ScratchHive scratch;
    const std::string path = scratch.hive();
    for (auto _ : state) {
        struct stat info {};
        benchmark::DoNotOptimize(stat(path.c_str(), &info));
    }
}
BENCHMARK(BM_StatOfTheHive);

void BM_RegReadDword(benchmark::State& state) {
    ScratchHive scratch;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            RegReadDword(platform::LocalMachine(), "Software\\Orvtek\\Q9CfgUL", "Debug", 7));
    }
}
BENCHMARK(BM_RegReadDword);

void BM_FormatGroupedNumber(benchmark::State& state) {
    int32_t value = 4194303;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FormatGroupedNumber(value));
    }
}
BENCHMARK(BM_FormatGroupedNumber);

}  // namespace
