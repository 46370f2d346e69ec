#pragma once

// One scheduled scan. The scheduler service and the scanner never see this
// object, only what it leaves in its two homes: the store section
// CES_Schedule | n (the scan's options, targets, network account and a copy
// of the timing) and, for the scheduler, a key of the registry stand-in.
// The number n is nothing but the entry's row in the schedule list when the
// list is saved; a save wipes every entry and writes the list anew.
//
// This file holds the record and both homes.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "options/ScanProfile.h"
#include "schedule/ScheduleJobKeys.h"
#include "targets/TargetList.h"

// The fields of a point in time the way the scheduler keeps them.
struct ScheduleTime {
    uint16_t wYear = 0;
    uint16_t wMonth = 0;
    uint16_t wDayOfWeek = 0;  // 0 is Sunday
    uint16_t wDay = 0;
    uint16_t wHour = 0;
    uint16_t wMinute = 0;
    uint16_t wSecond = 0;
    uint16_t wMilliseconds = 0;

    bool operator==(const ScheduleTime&) const = default;
};

// The local time now.
ScheduleTime LocalTimeNow();

// The day of the week of a date, 0 being Sunday, by Zeller's congruence
// with truncating divisions; any numbers give an answer in 0 to 6.
int DayOfWeekOf(int year, int month, int day);

// How often a job runs; the value is what is stored.
enum ScheduleStyle : int32_t {
    kScheduleEveryDay = 1,    // hour, minute
    kScheduleEveryWeek = 2,   // day of week, hour, minute
    kScheduleEveryMonth = 3,  // day, hour, minute
    kScheduleOnce = 4,        // year, month, day, day of week, hour, minute
    kScheduleUnnamed = 5,     // no part of the user interface makes it
    kScheduleAtStartup = 6,   // whenever the system starts
};

// The scanner's command line in a schedule section: the installation
// directory stays the variable %Q9% for the scanner to expand, and the
// section number follows /o: in hexadecimal. The program has no extension
// on this platform.
std::string ScheduleStoreCommandLine(uint32_t section);
// The scanner's working folder in a schedule section; a non-empty one marks
// the section as holding an entry.
constexpr const char* kScheduleStoreDirectory = "%Q9%";
// Whether a schedule section holds an entry: its working folder is set.
bool ScheduleSectionHoldsEntry(uint32_t section);

// The scanner's command line in a job's key: the installation directory
// written out, quoted with the program's name.
std::string ScheduleRegistryCommandLine(uint32_t section);

class ScheduleEntry {
public:
    // A new entry: on, every week, the time now, and the targets and scan
    // options of the template section CES_ScheduleDefault; no accounts.
    ScheduleEntry();
    virtual ~ScheduleEntry();
    ScheduleEntry(const ScheduleEntry&) = delete;
    ScheduleEntry& operator=(const ScheduleEntry&) = delete;

    // Copies every field of other; null does nothing.
    void CopyFrom(const ScheduleEntry* other);

    // Reads the entry numbered number. With a job key (below
    // HKEY_LOCAL_MACHINE) the tick, timing and run-as account come from it;
    // without one, the tick and timing come from the schedule section and
    // the run-as account, not kept in the store, stays empty. Targets, scan
    // options and the network account come from the section on both paths.
    void Load(const char* registryKey, int32_t number);
    // Writes the entry into section CES_Schedule | number with on as its
    // tick (not m_bOn). pageFlags is accepted and not used. Returns 1.
    int32_t SaveToStore(int32_t number, int32_t on, uint32_t pageFlags) const;
    // Writes the job's key for the scheduler, with on as its tick, and its
    // run-as account in place of any old one. Returns 1.
    int32_t SaveToRegistry(int32_t number, int32_t on, uint32_t pageFlags) const;

    // The run-as account of job number's key: 1 when both texts were read
    // (the value is then deleted when deleteAfter is set), else 0 with the
    // outputs as they were.
    static int32_t ReadAccountValue(int32_t number, std::string& user, std::string& password,
                                    int32_t deleteAfter);
    // Writes the run-as account into job number's key; null texts write
    // nothing and give 0.
    static int32_t WriteAccountValue(const char* user, const char* password, int32_t number);

    int32_t m_bOn = 1;
    int32_t m_nStyle = kScheduleEveryWeek;
    ScheduleTime m_time;
    std::vector<Target> m_targets;
    uint32_t m_dwScanOptions = 0;
    uint32_t m_dwArchive = 0;
    uint32_t m_dwArchiveKinds = 0;
    std::string m_strExtensions;
    std::string m_strUser;
    std::string m_strPassword;
    std::string m_strNetUser;
    std::string m_strNetPassword;
    uint32_t m_dwScanPolicy = 0;

private:
    // The tick and timing of a job's key, with the defaults of a key that
    // lacks them.
    void LoadJob(const std::string& key);
    // Keys 10, 11, 12, 13 and 16 of a section, the scan profile's keys.
    void ReadScanKeys(uint32_t section);
    ScanProfile ScanKeys() const;
};

// Clears the schedule sections from 0 upward, up to the first whose working
// folder is empty.
void WipeStoreEntries();

// The entries of the store, from section 0 up to the first whose working
// folder is empty.
std::vector<std::unique_ptr<ScheduleEntry>> LoadStoreEntries();

// The entries of the job keys in the order the registry lists them; the
// number behind a key's prefix selects its store section.
std::vector<std::unique_ptr<ScheduleEntry>> LoadRegistryEntries();

// The entries as the schedule list shows them: from the store while it is
// ahead of the registry (a protection level was loaded into it, or the list
// was saved into it in this session), else from the job keys.
std::vector<std::unique_ptr<ScheduleEntry>> ListScheduleEntries();
