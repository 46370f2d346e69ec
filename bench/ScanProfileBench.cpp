// The wizard's distribution of one scan profile to every scanning function,
// against the real configuration store: in an edit session (what the wizard
// does before its commit), with the commit, and beside the same number of
// plain word writes so that the cost of the distribution's own logic shows.
#include <Q9CfgE.h>
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>
#include <string>

#include "options/ScanProfile.h"
#include "options/StoreKeys.h"

namespace {

// The distribution writes 52 values.
constexpr int kDistributionWrites = 52;

// An installation directory of its own with a live store holding a profile in
// every scanning section, and the store on it.
class ProfileStore {
public:
    ProfileStore() {
        char pattern[] = "/tmp/q9-profile-bench-XXXXXX";
        m_directory = mkdtemp(pattern);
        setenv("Q9_INSTALL_DIR", m_directory.c_str(), 1);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
        ApplyProfileToAllSections(Profile(0));
        Q9CfgE_UnlockEx();
        Q9CfgE_FlushEx(kAllSections, 1);
    }

    ~ProfileStore() {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }

    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;

    // A profile that differs with round, so that every write changes a value.
    static ScanProfile Profile(uint32_t round) {
        ScanProfile profile;
        profile.m_dwOptions = 0x401126D0u ^ (round & 0x1u);
        profile.m_nDepth = round % 11;
        profile.m_dwKinds = 0xFFFFFFFFu;
        profile.m_strExtensions = "exe/com/dll/doc/xls";
        profile.m_dwPolicy = 0x1090103u;
        return profile;
    }

private:
    std::string m_directory;
};

void BM_ApplyProfileToAllSectionsInEditSession(benchmark::State& state) {
    const ProfileStore store;
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    uint32_t round = 0;
    for (auto _ : state) ApplyProfileToAllSections(ProfileStore::Profile(++round));
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
}
BENCHMARK(BM_ApplyProfileToAllSectionsInEditSession)->Unit(benchmark::kMicrosecond);

void BM_PlainWordWritesInEditSession(benchmark::State& state) {
    const ProfileStore store;
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
    uint32_t round = 0;
    for (auto _ : state) {
        ++round;
        for (int write = 0; write < kDistributionWrites; ++write) {
            Q9CfgE_SetDWEx(CES_SystemScan, CEK_ScanOptions, round);
        }
    }
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, nullptr, Q9CFGE_MODE_PLAIN);
}
BENCHMARK(BM_PlainWordWritesInEditSession)->Unit(benchmark::kMicrosecond);

void BM_ApplyProfileToAllSectionsAndCommit(benchmark::State& state) {
    const ProfileStore store;
    uint32_t round = 0;
    for (auto _ : state) {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_EDIT, nullptr, Q9CFGE_MODE_EDIT);
        ApplyProfileToAllSections(ProfileStore::Profile(++round));
        Q9CfgE_UnlockEx();
        if (Q9CfgE_FlushEx(kAllSections, 1) != 1) state.SkipWithError("the commit failed");
    }
}
BENCHMARK(BM_ApplyProfileToAllSectionsAndCommit)->Unit(benchmark::kMicrosecond);

}  // namespace
