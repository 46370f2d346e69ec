// A silent policy of a real size (every function switch, 20 exclusions, 10
// scheduled scans) against a base store file: the merge alone as the
// baseline, the whole apply (merge, registrations, zone rewrite, job keys,
// notice), and the dry run, which works the same out on copies.
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

#include "BenchInstallation.h"
#include "Q9CfgE.h"
#include "policy/ConfigurationApply.h"
#include "policy/PolicyMerge.h"
#include "policy/PolicyPlan.h"
#include "schedule/ScheduleEntry.h"

namespace {

std::string PolicyText() {
    std::string text =
        "Q9 Configuration Store 1\n[CES_Switch]\n"
        "CEK_Switch_Scan=dword:000000f1\nCEK_Switch_ScanMask=dword:000000ff\n"
        "CEK_Switch_ScanMail=dword:00001000\nCEK_Switch_ScanMailMask=dword:0000f000\n"
        "CEK_Switch_General=dword:00100000\nCEK_Switch_GeneralMask=dword:00300000\n"
        "[CES_Exclude]\nCEK_ExcludeEnable=dword:00000001\n";
    for (int i = 0; i < 20; ++i) text += "record=0,1,\"/srv/excluded/" + std::to_string(i) + "\"\n";
    for (int i = 0; i < 10; ++i) {
        char section[16];
        std::snprintf(section, sizeof section, "0x%08x", 0x10000000 + i);
        text += std::string("[") + section + "]\nCEK_SchedOn=dword:00000001\n" +
                "CEK_SchedStyle=dword:00000002\nCEK_SchedHour=dword:0000000" +
                std::to_string(i % 10) + "\nCEK_ScanPolicy=dword:01000002\n" +
                "CEK_SchedCurDir=\"%Q9%\"\nrecord=0,1,\"/home/user/" + std::to_string(i) + "\"\n";
    }
    return text;
}

struct PolicyFiles {
    explicit PolicyFiles(const BenchInstallation& installation)
        : base(installation.Directory() + "/base.dat"),
          policy(installation.Directory() + "/policy.dat") {
        std::ofstream(policy) << PolicyText();
        // The silent call points the store at its base first.
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, base.c_str(), Q9CFGE_MODE_PLAIN);
    }
    std::string base;
    std::string policy;
};

void BM_PolicyMergeOnly(benchmark::State& state) {
    const BenchInstallation installation;
    const PolicyFiles files(installation);
    for (auto _ : state) {
        if (MergePolicyFile(files.base, files.policy) <= 0) state.SkipWithError("nothing merged");
    }
}
BENCHMARK(BM_PolicyMergeOnly)->Unit(benchmark::kMillisecond);

void BM_PolicyApply(benchmark::State& state) {
    const BenchInstallation installation;
    if (!installation.Ready()) state.SkipWithError("no registration library");
    const PolicyFiles files(installation);
    for (auto _ : state) ApplyConfiguration(files.base.c_str(), files.policy.c_str(), 1);
    if (ScheduleJobNames().size() != 10) state.SkipWithError("the job keys were not written");
}
BENCHMARK(BM_PolicyApply)->Unit(benchmark::kMillisecond);

void BM_PolicyDryRun(benchmark::State& state) {
    const BenchInstallation installation;
    if (!installation.Ready()) state.SkipWithError("no registration library");
    const PolicyFiles files(installation);
    for (auto _ : state) {
        const PolicyPlan plan = PlanConfiguration(files.base.c_str(), files.policy.c_str());
        if (plan.merge != MergeOutcome::kMerged) state.SkipWithError("not merged");
    }
}
BENCHMARK(BM_PolicyDryRun)->Unit(benchmark::kMillisecond);

}  // namespace
