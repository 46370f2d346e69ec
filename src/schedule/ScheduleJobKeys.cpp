#include "schedule/ScheduleJobKeys.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "options/StoreKeys.h"
#include "session/RegistryHelpers.h"

namespace {

// Defaults of the words of a key that lacks them.
constexpr ScheduleJobWords kWordDefaults = {0, 0, 2000, 1, 1, 0, 0, 0};

// A value read twice with different fallbacks is there exactly when both
// reads agree.
std::optional<uint32_t> ReadJobWord(const std::string& key, const char* name) {
    const RegKey root = platform::LocalMachine();
    const uint32_t first = RegReadDword(root, key.c_str(), name, 0);
    if (first != RegReadDword(root, key.c_str(), name, 1)) return std::nullopt;
    return first;
}

std::optional<std::string> ReadJobText(const std::string& key, const char* name) {
    const RegKey root = platform::LocalMachine();
    std::string first = RegReadString(root, key.c_str(), name, "");
    if (first != RegReadString(root, key.c_str(), name, "-")) return std::nullopt;
    return first;
}

std::string JobPath(const std::string& name) { return RegJoinPath(kScheduleKey, name); }

}  // namespace

bool IsScheduleJobName(const std::string& name) {
    const std::size_t length = std::strlen(kScheduleJobPrefix);
    return name.size() >= length && strncasecmp(name.c_str(), kScheduleJobPrefix, length) == 0;
}

int32_t ScheduleJobNumber(const std::string& name) {
    const std::size_t prefix = std::min(name.size(), std::strlen(kScheduleJobPrefix));
    return static_cast<int32_t>(std::strtol(name.c_str() + prefix, nullptr, 10));
}

std::string ScheduleJobKey(int32_t number) {
    return JobPath(kScheduleJobPrefix + std::to_string(number));
}

std::vector<std::string> ScheduleJobNames() {
    std::vector<std::string> names;
    const RegKey root = platform::LocalMachine();
    for (uint32_t index = 0;; ++index) {
        std::string name = RegSubkeyName(root, kScheduleKey, index);
        if (name.empty()) return names;
        if (IsScheduleJobName(name)) names.push_back(std::move(name));
    }
}

ScheduleJobWords ReadScheduleJobWords(const std::string& key) {
    ScheduleJobWords words{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        words[i] = RegReadDword(platform::LocalMachine(), key.c_str(), kScheduleJobWordNames[i],
                                kWordDefaults[i]);
    }
    return words;
}

std::optional<ScheduleJob> ReadScheduleJob(const std::string& name) {
    const std::string key = JobPath(name);
    ScheduleJob job;
    job.name = name;
    // The number behind the prefix selects the store section, as the
    // scanner's command line says.
    job.section = ScheduleSection(static_cast<uint32_t>(ScheduleJobNumber(name)));
    for (std::size_t i = 0; i < job.words.size(); ++i) {
        const std::optional<uint32_t> word = ReadJobWord(key, kScheduleJobWordNames[i]);
        if (!word) return std::nullopt;
        job.words[i] = *word;
    }
    const std::optional<std::string> commandLine = ReadJobText(key, "CmdLine");
    const std::optional<std::string> directory = ReadJobText(key, "CurDir");
    if (!commandLine || !directory) return std::nullopt;
    job.commandLine = *commandLine;
    job.directory = *directory;
    return job;
}

bool ScheduleJobHasAccount(const std::string& name) {
    return RegReadBinary(platform::LocalMachine(), JobPath(name).c_str(), kAccountValueName,
                         nullptr, 0) > 0;
}

std::optional<AccountValue> ReadScheduleJobAccount(int32_t number) {
    const RegKey root = platform::LocalMachine();
    const std::string key = ScheduleJobKey(number);
    const uint32_t size = RegReadBinary(root, key.c_str(), kAccountValueName, nullptr, 0);
    if (size == 0) return std::nullopt;
    std::string bytes(size, '\0');
    if (RegReadBinary(root, key.c_str(), kAccountValueName, bytes.data(), size) != size) {
        return std::nullopt;
    }
    return ParseAccountValue(bytes.data(), bytes.size());
}

void WriteScheduleJob(const ScheduleJob& job) {
    const RegKey root = platform::LocalMachine();
    const std::string key = JobPath(job.name);
    for (std::size_t i = 0; i < job.words.size(); ++i) {
        RegWriteDword(root, key.c_str(), kScheduleJobWordNames[i], job.words[i]);
    }
    RegWriteString(root, key.c_str(), "CmdLine", job.commandLine.c_str());
    RegWriteString(root, key.c_str(), "CurDir", job.directory.c_str());
}

void WipeRegistryEntries() {
    const RegKey root = platform::LocalMachine();
    for (uint32_t index = 0;;) {
        const std::string name = RegSubkeyName(root, kScheduleKey, index);
        if (name.empty()) return;
        if (IsScheduleJobName(name)) {
            RegDeleteTree(root, kScheduleKey, name);
        } else {
            ++index;
        }
    }
}
