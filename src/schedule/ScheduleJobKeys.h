#pragma once

// The scheduler's job keys of this product in the registry stand-in, below
// HKEY_LOCAL_MACHINE: their names, their values and the scrambled run-as
// account. The scheduler and other programs write there too, so every
// reader here takes what it finds: a missing or wrongly typed value reads
// as its default or as missing, never as a failure.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "schedule/AccountValue.h"

// The scheduler's jobs; this product's are the subkeys whose names start
// with kScheduleJobPrefix (any case).
constexpr const char* kScheduleKey = "Software\\ORVTEK\\OrvSD\\Schedule";
constexpr const char* kScheduleJobPrefix = "Q9SScan";
// The value of a job's key that holds its run-as account, scrambled.
constexpr const char* kAccountValueName = "AI";

// The DWORD values of a job's key, in the order of the store's keys
// CEK_SchedOn to CEK_SchedMinute.
constexpr std::array<const char*, 8> kScheduleJobWordNames = {
    "On", "Style", "Year", "Month", "Day", "DayOfWeek", "Hour", "Minute"};

using ScheduleJobWords = std::array<uint32_t, kScheduleJobWordNames.size()>;

// One job key as it is written.
struct ScheduleJob {
    std::string name;  // the subkey's name below kScheduleKey
    uint32_t section = 0;
    ScheduleJobWords words{};
    std::string commandLine;
    std::string directory;

    bool operator==(const ScheduleJob&) const = default;
};

// Whether a subkey's name is one of this product's jobs.
bool IsScheduleJobName(const std::string& name);
// The number behind a job key's prefix; 0 where none stands.
int32_t ScheduleJobNumber(const std::string& name);
// The path of the job numbered number, below HKEY_LOCAL_MACHINE.
std::string ScheduleJobKey(int32_t number);

// The names of this product's job keys in the order the registry lists
// them.
std::vector<std::string> ScheduleJobNames();

// The words of the job key at key (a path below HKEY_LOCAL_MACHINE), with
// the defaults of a key that lacks them: Year 2000, Month 1, Day 1, all
// others 0.
ScheduleJobWords ReadScheduleJobWords(const std::string& key);

// The job key of that name as it stands; nullopt when the key or any of the
// values a job is written with is missing.
std::optional<ScheduleJob> ReadScheduleJob(const std::string& name);

// Whether the job key holds a run-as account value.
bool ScheduleJobHasAccount(const std::string& name);

// The run-as account of job number's key; nullopt when there is none or it
// cannot be read.
std::optional<AccountValue> ReadScheduleJobAccount(int32_t number);

// Writes the job's DWORD and text values into its key (made when missing);
// other values of the key stay.
void WriteScheduleJob(const ScheduleJob& job);

// Deletes every job key of this product with all below it; other jobs of
// the scheduler stay.
void WipeRegistryEntries();
