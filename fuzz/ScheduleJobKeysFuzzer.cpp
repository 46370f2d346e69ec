// The scheduler's job keys as this product reads them: the bytes are
// HKLM.reg of a registry folder of the process's own, holding whatever the
// scheduler and other programs wrote below the schedule key. Every job name
// listed is one of this product's; a job read whole has the words the
// schedule page reads; its run-as account, when one reads, is a scrambled
// value of its own bytes; and a job written back reads back the same.

#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/AtomicFile.h"
#include "schedule/ScheduleJobKeys.h"
#include "session/RegistryHelpers.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

namespace {

void CheckJob(const std::string& name) {
    fuzz::Check(IsScheduleJobName(name), "only this product's jobs are listed");
    const std::string key = RegJoinPath(kScheduleKey, name);
    const ScheduleJobWords words = ReadScheduleJobWords(key);
    const std::optional<ScheduleJob> job = ReadScheduleJob(name);
    if (job) {
        fuzz::Check(job->words == words, "a whole job has the words the page reads");
    }
    if (const std::optional<AccountValue> account =
            ReadScheduleJobAccount(ScheduleJobNumber(name))) {
        const std::string bytes = EncodeAccountValue(account->user, account->password);
        const std::optional<AccountValue> again = ParseAccountValue(bytes.data(), bytes.size());
        fuzz::Check(again && again->user == account->user && again->password == account->password,
                    "an account read encodes to one that reads back the same");
    }
    if (job) {
        WriteScheduleJob(*job);
        fuzz::Check(ReadScheduleJob(name) == job, "a job written back reads back the same");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const bool ready = [] {
        setenv("Q9_REGISTRY_DIR", fuzz::ScratchDirectory::Path().c_str(), 1);
        return true;
    }();
    (void)ready;
    fuzz::ScratchDirectory::Write("HKLM.reg", fuzz::AsText(data, size));
    for (const std::string& name : ScheduleJobNames()) CheckJob(name);
    return 0;
}
