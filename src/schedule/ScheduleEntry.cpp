#include "schedule/ScheduleEntry.h"

#include <Q9CfgE.h>

#include <QDateTime>
#include <cstdio>
#include <optional>
#include <utility>

#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "options/ScanProfile.h"
#include "options/StoreValues.h"
#include "schedule/AccountValue.h"
#include "schedule/ScheduleJobs.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "targets/TargetRecords.h"

namespace {

uint32_t SectionOf(int32_t number) { return ScheduleSection(static_cast<uint32_t>(number)); }

uint16_t Field(uint32_t section, uint32_t key) {
    return static_cast<uint16_t>(Q9CfgE_GetDWEx(section, key));
}

}  // namespace

ScheduleTime LocalTimeNow() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    ScheduleTime result;
    result.wYear = static_cast<uint16_t>(date.year());
    result.wMonth = static_cast<uint16_t>(date.month());
    result.wDayOfWeek = static_cast<uint16_t>(date.dayOfWeek() % 7);
    result.wDay = static_cast<uint16_t>(date.day());
    result.wHour = static_cast<uint16_t>(time.hour());
    result.wMinute = static_cast<uint16_t>(time.minute());
    result.wSecond = static_cast<uint16_t>(time.second());
    result.wMilliseconds = static_cast<uint16_t>(time.msec());
    return result;
}

int DayOfWeekOf(int year, int month, int day) {
    if (month == 1 || month == 2) --year;
    const int shifted = (month + 9) % 12 + 1;  // March is 1, February 12
    const int century = year / 100;
    const int inCentury = year % 100;
    int result = ((shifted * 13 - 1) / 5 + day + inCentury + inCentury / 4 + century / 4 -
                  2 * century) %
                 7;
    if (result < 0) result = (result + 7) % 7;
    return result;
}

bool ScheduleSectionHoldsEntry(uint32_t section) {
    return !ReadStoreText(section, CEK_SchedCurDir).empty();
}

std::string ScheduleStoreCommandLine(uint32_t section) {
    char text[64];
    std::snprintf(text, sizeof text, "\"%%Q9%%/q9medic\" /o:%x", section);
    return text;
}

ScheduleEntry::ScheduleEntry() : m_time(LocalTimeNow()) {
    m_targets = ReadTargets(CES_ScheduleDefault);
    ReadScanKeys(CES_ScheduleDefault);
}

ScheduleEntry::~ScheduleEntry() = default;

void ScheduleEntry::ReadScanKeys(uint32_t section) {
    ScanProfile profile;
    profile.LoadProfile(section);
    m_dwScanOptions = profile.m_dwOptions;
    m_dwArchive = profile.m_nDepth;
    m_dwArchiveKinds = profile.m_dwKinds;
    m_strExtensions = profile.m_strExtensions;
    m_dwScanPolicy = profile.m_dwPolicy;
}

ScanProfile ScheduleEntry::ScanKeys() const {
    ScanProfile profile;
    profile.m_dwOptions = m_dwScanOptions;
    profile.m_nDepth = m_dwArchive;
    profile.m_dwKinds = m_dwArchiveKinds;
    profile.m_strExtensions = m_strExtensions;
    profile.m_dwPolicy = m_dwScanPolicy;
    return profile;
}

void ScheduleEntry::CopyFrom(const ScheduleEntry* other) {
    if (other == nullptr || other == this) return;
    m_bOn = other->m_bOn;
    m_nStyle = other->m_nStyle;
    m_time = other->m_time;
    m_targets = other->m_targets;
    m_dwScanOptions = other->m_dwScanOptions;
    m_dwArchive = other->m_dwArchive;
    m_dwArchiveKinds = other->m_dwArchiveKinds;
    m_strExtensions = other->m_strExtensions;
    m_dwScanPolicy = other->m_dwScanPolicy;
    m_strUser = other->m_strUser;
    m_strPassword = other->m_strPassword;
    m_strNetUser = other->m_strNetUser;
    m_strNetPassword = other->m_strNetPassword;
}

void ScheduleEntry::Load(const char* registryKey, int32_t number) {
    const uint32_t section = SectionOf(number);
    if (registryKey != nullptr) {
        LoadJob(registryKey);
        ReadAccountValue(number, m_strUser, m_strPassword, 0);
    } else {
        m_bOn = static_cast<int32_t>(Q9CfgE_GetDWEx(section, CEK_SchedOn));
        m_nStyle = static_cast<int32_t>(Q9CfgE_GetDWEx(section, CEK_SchedStyle));
        m_time.wYear = Field(section, CEK_SchedYear);
        m_time.wMonth = Field(section, CEK_SchedMonth);
        m_time.wDay = Field(section, CEK_SchedDay);
        m_time.wDayOfWeek = Field(section, CEK_SchedDayOfWeek);
        m_time.wHour = Field(section, CEK_SchedHour);
        m_time.wMinute = Field(section, CEK_SchedMinute);
    }
    m_targets = ReadTargets(section);
    ReadScanKeys(section);
    m_strNetUser = ReadEncText(section, CEK_ScheduleUser);
    m_strNetPassword = ReadEncText(section, CEK_SchedulePassword);
}

int32_t ScheduleEntry::SaveToStore(int32_t number, int32_t on, uint32_t /*pageFlags*/) const {
    const uint32_t section = SectionOf(number);
    ScanKeys().SaveScanKeys(section);
    Q9CfgE_SetDWEx(section, CEK_SchedOn, static_cast<uint32_t>(on));
    Q9CfgE_SetDWEx(section, CEK_SchedStyle, static_cast<uint32_t>(m_nStyle));
    Q9CfgE_SetDWEx(section, CEK_SchedYear, m_time.wYear);
    Q9CfgE_SetDWEx(section, CEK_SchedMonth, m_time.wMonth);
    Q9CfgE_SetDWEx(section, CEK_SchedDay, m_time.wDay);
    Q9CfgE_SetDWEx(section, CEK_SchedDayOfWeek, m_time.wDayOfWeek);
    Q9CfgE_SetDWEx(section, CEK_SchedHour, m_time.wHour);
    Q9CfgE_SetDWEx(section, CEK_SchedMinute, m_time.wMinute);
    Q9CfgE_SetStrEx(section, CEK_SchedCmdLine, ScheduleStoreCommandLine(section).c_str());
    Q9CfgE_SetStrEx(section, CEK_SchedCurDir, kScheduleStoreDirectory);
    // The wipe before the save cleared the list: clearing it here would
    // remove the entry just written.
    WriteObjectRecords(section, TargetRecords(m_targets));
    WriteEncText({section, CEK_ScheduleUser}, m_strNetUser);
    WriteEncText({section, CEK_SchedulePassword}, m_strNetPassword);
    return 1;
}

void WipeStoreEntries() {
    for (uint32_t index = 0; ScheduleSectionHoldsEntry(ScheduleSection(index)); ++index)
        Q9CfgE_SetStrEx(ScheduleSection(index), kObjectListKey, nullptr);
}

std::vector<std::unique_ptr<ScheduleEntry>> LoadStoreEntries() {
    std::vector<std::unique_ptr<ScheduleEntry>> entries;
    for (int32_t number = 0; ScheduleSectionHoldsEntry(SectionOf(number)); ++number) {
        auto entry = std::make_unique<ScheduleEntry>();
        entry->Load(nullptr, number);
        entries.push_back(std::move(entry));
    }
    return entries;
}

// --- The registry home -------------------------------------------------------

std::string ScheduleRegistryCommandLine(uint32_t section) {
    char number[16];
    std::snprintf(number, sizeof number, "%x", section);
    return "\"" + g_szModuleDir + "q9medic\" /o:" + number;
}

void ScheduleEntry::LoadJob(const std::string& key) {
    const ScheduleJobWords words = ReadScheduleJobWords(key);
    m_bOn = static_cast<int32_t>(words[0]);
    m_nStyle = static_cast<int32_t>(words[1]);
    m_time.wYear = static_cast<uint16_t>(words[2]);
    m_time.wMonth = static_cast<uint16_t>(words[3]);
    m_time.wDay = static_cast<uint16_t>(words[4]);
    m_time.wDayOfWeek = static_cast<uint16_t>(words[5]);
    m_time.wHour = static_cast<uint16_t>(words[6]);
    m_time.wMinute = static_cast<uint16_t>(words[7]);
}

int32_t ScheduleEntry::SaveToRegistry(int32_t number, int32_t on, uint32_t /*pageFlags*/) const {
    const uint32_t section = SectionOf(number);
    WriteScheduleJob({kScheduleJobPrefix + std::to_string(number),
                      section,
                      {static_cast<uint32_t>(on), static_cast<uint32_t>(m_nStyle), m_time.wYear,
                       m_time.wMonth, m_time.wDay, m_time.wDayOfWeek, m_time.wHour,
                       m_time.wMinute},
                      ScheduleRegistryCommandLine(section),
                      g_szModuleDir});
    std::string scratch;
    ReadAccountValue(number, scratch, scratch, 1);
    WriteAccountValue(m_strUser.c_str(), m_strPassword.c_str(), number);
    return 1;
}

int32_t ScheduleEntry::ReadAccountValue(int32_t number, std::string& user, std::string& password,
                                        int32_t deleteAfter) {
    const std::optional<AccountValue> account = ReadScheduleJobAccount(number);
    if (!account) return 0;
    user = account->user;
    password = account->password;
    if (deleteAfter != 0) {
        RegKey job = nullptr;
        if (platform::RegOpenKey(platform::LocalMachine(), ScheduleJobKey(number).c_str(),
                                 platform::kKeyAllAccess, &job) == platform::kSuccess) {
            platform::RegDeleteValue(job, kAccountValueName);
            platform::RegCloseKey(job);
        }
    }
    return 1;
}

int32_t ScheduleEntry::WriteAccountValue(const char* user, const char* password, int32_t number) {
    if (user == nullptr || password == nullptr) return 0;
    const std::string bytes = EncodeAccountValue(user, password);
    return RegWriteBinary(platform::LocalMachine(), ScheduleJobKey(number).c_str(),
                          kAccountValueName, bytes.data(), static_cast<uint32_t>(bytes.size())) ==
                   platform::kSuccess
               ? 1
               : 0;
}

std::vector<std::unique_ptr<ScheduleEntry>> LoadRegistryEntries() {
    std::vector<std::unique_ptr<ScheduleEntry>> entries;
    for (const std::string& name : ScheduleJobNames()) {
        auto entry = std::make_unique<ScheduleEntry>();
        const std::string key = RegJoinPath(kScheduleKey, name);
        entry->Load(key.c_str(), ScheduleJobNumber(name));
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::vector<std::unique_ptr<ScheduleEntry>> ListScheduleEntries() {
    if (g_bLevelPending != 0 || g_bScheduleDirty != 0) return LoadStoreEntries();
    return LoadRegistryEntries();
}
