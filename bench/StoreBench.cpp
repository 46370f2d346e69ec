// The configuration store: committing an edit session of a full
// configuration beside the least any safe whole-file write costs (temporary
// file, fsync, rename, directory fsync by hand), and reading one word beside
// the one stat() that tells the store whether its copy is current.
#include <Q9CfgE.h>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <sstream>
#include <string>
#include <vector>

namespace {

enum class Kind { Word, Text, Sealed };

struct KeyUse {
    uint32_t key;
    Kind kind;
    std::vector<uint32_t> sections;  // kSchedule: every schedule entry and the template
};

constexpr uint32_t kSchedule = 0xFFFFFFFE;
constexpr uint32_t kScheduleEntries = 6;

// Every key of the key table in the sections that hold it.
std::vector<KeyUse> KeyTable() {
    const std::vector<uint32_t> profile = {4, 5, 6, 7, 8, 9, 11, 12, 15, 16, kSchedule};
    const std::vector<uint32_t> archive = {4, 5, 6, 8, 9, 11, 12, 15, 16, kSchedule};
    const std::vector<uint32_t> extensions = {4, 6, 7, 8, 9, 11, 12, 15, 16, kSchedule};
    const std::vector<uint32_t> mail = {8, 11, 12};
    std::vector<KeyUse> table = {
        {0, Kind::Word, {0}},    {1, Kind::Text, {0}},       {2, Kind::Word, {0}},
        {3, Kind::Word, {0}},    {4, Kind::Word, {0}},       {5, Kind::Word, {1}},
        {6, Kind::Word, {2}},    {7, Kind::Word, {3}},       {8, Kind::Word, {3}},
        {9, Kind::Sealed, {3}},  {10, Kind::Word, profile},  {11, Kind::Word, archive},
        {12, Kind::Word, archive}, {13, Kind::Text, extensions}, {14, Kind::Word, {7, 8, 12}},
        {15, Kind::Text, {7, 8, 12}}, {16, Kind::Word, profile}, {21, Kind::Word, mail},
        {23, Kind::Text, mail},  {24, Kind::Text, mail},     {25, Kind::Word, mail},
        {26, Kind::Word, {8}},   {30, Kind::Word, {8}},      {40, Kind::Text, {kSchedule}},
        {41, Kind::Text, {kSchedule}}, {48, Kind::Word, {0}}, {49, Kind::Text, {1}},
        {50, Kind::Sealed, {kSchedule}}, {51, Kind::Sealed, {kSchedule}}, {52, Kind::Word, {7}},
        {53, Kind::Word, {4, 7, 15, 16}}, {54, Kind::Word, {8}}, {55, Kind::Word, {8}},
        {57, Kind::Word, {8}},   {59, Kind::Word, {0}},      {60, Kind::Word, mail},
        {61, Kind::Word, {15}},  {62, Kind::Word, {0}},
    };
    for (uint32_t key = 32; key <= 39; ++key) table.push_back({key, Kind::Word, {kSchedule}});
    for (uint32_t key = 42; key <= 47; ++key) table.push_back({key, Kind::Word, {14}});
    for (uint32_t key = 63; key <= 68; ++key) table.push_back({key, Kind::Word, {17}});
    return table;
}

std::vector<uint32_t> Expand(const std::vector<uint32_t>& sections) {
    std::vector<uint32_t> expanded;
    for (const uint32_t section : sections) {
        if (section != kSchedule) {
            expanded.push_back(section);
            continue;
        }
        for (uint32_t entry = 0; entry < kScheduleEntries; ++entry) {
            expanded.push_back(Q9CFGE_SCHEDULE_FIRST | entry);
        }
        expanded.push_back(Q9CFGE_SCHEDULE_DEFAULT);
    }
    return expanded;
}

void AddRecords(uint32_t section, int count) {
    for (int i = 0; i < count; ++i) {
        const std::string text = "/home/user/folder-" + std::to_string(i) + "/with a longer name";
        std::string record(4, '\0');
        record[0] = static_cast<char>(4 + text.size() + 1);
        record[3] = 1;
        record += text;
        record.push_back('\0');
        Q9CfgE_SetObjectList(section, static_cast<uint16_t>(i), record.data());
    }
}

// An installation directory with a full live store.
class FullStore {
public:
    FullStore() {
        char pattern[] = "/tmp/q9-store-bench-XXXXXX";
        m_directory = mkdtemp(pattern);
        setenv("Q9_INSTALL_DIR", m_directory.c_str(), 1);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
        Fill();
        Q9CfgE_UnlockEx();
        Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1);
    }
    ~FullStore() {
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }
    std::string Directory() const { return m_directory; }
    std::string LiveFile() const { return m_directory + "/Q9Cfg.dat"; }

private:
    static void Fill() {
        uint32_t counter = 1;
        for (const KeyUse& use : KeyTable()) {
            for (const uint32_t section : Expand(use.sections)) {
                const std::string text = "value " + std::to_string(counter) + " of a full configuration";
                switch (use.kind) {
                    case Kind::Word: Q9CfgE_SetDWEx(section, use.key, counter * 2654435761u); break;
                    case Kind::Text: Q9CfgE_SetStrEx(section, use.key, text.c_str()); break;
                    case Kind::Sealed: Q9CfgE_SetEncStrEx(section, use.key, text.c_str()); break;
                }
                ++counter;
            }
        }
        AddRecords(1, 20);
        AddRecords(6, 10);
        for (uint32_t entry = 0; entry < kScheduleEntries; ++entry) {
            AddRecords(Q9CFGE_SCHEDULE_FIRST | entry, 5);
        }
        AddRecords(Q9CFGE_SCHEDULE_DEFAULT, 3);
    }

    std::string m_directory;
};

std::string ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

bool WriteByHand(const std::string& directory, const std::string& path, const std::string& bytes) {
    const std::string temporary = path + ".tmp";
    const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    bool written = write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    written = fsync(fd) == 0 && written;
    close(fd);
    if (!written || rename(temporary.c_str(), path.c_str()) != 0) return false;
    const int directoryFd = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool synced = fsync(directoryFd) == 0;
    close(directoryFd);
    return synced;
}

// Edit mode, one changed word, unlock, commit.
bool FlushOnce(uint32_t value) {
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    Q9CfgE_SetDWEx(0, 0, value);
    Q9CfgE_UnlockEx();
    return Q9CfgE_FlushEx(Q9CFGE_ALL_SECTIONS, 1) == 1;
}

void BM_StoreFlushOfAFullConfiguration(benchmark::State& state) {
    const FullStore store;
    uint32_t value = 0;
    for (auto _ : state) {
        if (!FlushOnce(++value)) state.SkipWithError("the flush failed");
    }
    state.counters["bytes"] = static_cast<double>(ReadAll(store.LiveFile()).size());
}
BENCHMARK(BM_StoreFlushOfAFullConfiguration)->Unit(benchmark::kMicrosecond);

void BM_HandWrittenFlushOfTheSameBytes(benchmark::State& state) {
    const FullStore store;
    const std::string bytes = ReadAll(store.LiveFile());
    const std::string path = store.Directory() + "/copy.dat";
    for (auto _ : state) {
        if (!WriteByHand(store.Directory(), path, bytes)) state.SkipWithError("the write failed");
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(BM_HandWrittenFlushOfTheSameBytes)->Unit(benchmark::kMicrosecond);

double MicrosecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

// Both of the above in turn in every iteration, in two directories of the
// same file system: the disk's speed drifts over seconds, which would skew a
// ratio of two benchmarks run one after the other. The counters are the mean
// times of one store flush and one hand-written flush, and their ratio.
void BM_StoreFlushAgainstHandWrittenInTurn(benchmark::State& state) {
    const FullStore store;
    const std::string bytes = ReadAll(store.LiveFile());
    const std::string handDirectory = store.Directory() + "/by-hand";
    std::filesystem::create_directory(handDirectory);
    const std::string handPath = handDirectory + "/Q9Cfg.dat";
    double storeTime = 0;
    double handTime = 0;
    uint32_t value = 0;
    for (auto _ : state) {
        bool flushed = false;
        storeTime += MicrosecondsOf([&] { flushed = FlushOnce(++value); });
        bool written = false;
        handTime += MicrosecondsOf([&] { written = WriteByHand(handDirectory, handPath, bytes); });
        if (!flushed || !written) state.SkipWithError("a flush failed");
    }
    const auto iterations = static_cast<double>(state.iterations());
    state.counters["store_us"] = storeTime / iterations;
    state.counters["hand_us"] = handTime / iterations;
    state.counters["ratio"] = storeTime / handTime;
}
BENCHMARK(BM_StoreFlushAgainstHandWrittenInTurn)->Unit(benchmark::kMicrosecond);

void BM_StoreGetDWEx(benchmark::State& state) {
    const FullStore store;
    for (auto _ : state) benchmark::DoNotOptimize(Q9CfgE_GetDWEx(8, 26));
}
BENCHMARK(BM_StoreGetDWEx);

void BM_StatOfTheStoreFile(benchmark::State& state) {
    const FullStore store;
    const std::string path = store.LiveFile();
    for (auto _ : state) {
        struct stat info {};
        benchmark::DoNotOptimize(stat(path.c_str(), &info));
    }
}
BENCHMARK(BM_StatOfTheStoreFile);

}  // namespace
