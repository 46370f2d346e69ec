#pragma once

// Fixture of the policy tests: an installation with the registration and
// zone libraries, a registry of its own, and helpers to fill the store, the
// zone and the scheduler's keys and to read them back.

#include <Q9CfgE.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "schedule/ScheduleEntry.h"
#include "session/ExclusionZone.h"
#include "session/ProcessState.h"
#include "session/RegistryHelpers.h"
#include "session/SiblingLibs.h"
#include "support/SiblingTest.h"
#include "support/TemporaryRegistry.h"
#include "targets/ZoneRecords.h"

class PolicyTest : public SiblingTest {
protected:
    PolicyTest() : m_savedWinNT(g_bWinNT) {
        AddSibling("Q9SSCtrl");
        AddSibling("OrvDMZ");
        g_bWinNT = 0;
    }
    ~PolicyTest() override { g_bWinNT = m_savedWinNT; }

    // The journal's lines of calls that change or ask about registrations,
    // and the notice.
    std::vector<std::string> Calls() const {
        std::vector<std::string> calls = Journal();
        std::erase_if(calls, [](const std::string& line) {
            return line.starts_with("Q9SSCtrl_HasEnoughPrivilege") ||
                   line.starts_with("Q9SSCtrl_IsRegistered");
        });
        return calls;
    }

    // The three switch words and their masks.
    static void SetSwitchWords(uint32_t scan, uint32_t scanMask, uint32_t mail, uint32_t mailMask,
                               uint32_t general, uint32_t generalMask) {
        SetWord(CES_Switch, CEK_Switch_Scan, scan);
        SetWord(CES_Switch, CEK_Switch_ScanMask, scanMask);
        SetWord(CES_Switch, CEK_Switch_ScanMail, mail);
        SetWord(CES_Switch, CEK_Switch_ScanMailMask, mailMask);
        SetWord(CES_Switch, CEK_Switch_General, general);
        SetWord(CES_Switch, CEK_Switch_GeneralMask, generalMask);
    }

    static void AddStoreEntry(uint32_t index, uint32_t hour) {
        const uint32_t section = ScheduleSection(index);
        SetWord(section, CEK_SchedOn, 1);
        SetWord(section, CEK_SchedStyle, 2);
        SetWord(section, CEK_SchedDayOfWeek, 3);
        SetWord(section, CEK_SchedHour, hour);
        SetWord(section, CEK_SchedMinute, 15);
        ASSERT_EQ(Q9CfgE_SetStrEx(section, CEK_SchedCurDir, "%Q9%"), 1);
    }

    static std::vector<std::string> JobKeys() {
        std::vector<std::string> names;
        for (uint32_t i = 0;; ++i) {
            std::string name = RegSubkeyName(platform::LocalMachine(), kScheduleKey, i);
            if (name.empty()) return names;
            names.push_back(std::move(name));
        }
    }

    static uint32_t JobWord(const std::string& job, const char* value) {
        return RegReadDword(platform::LocalMachine(), RegJoinPath(kScheduleKey, job).c_str(),
                            value, 0xDEAD);
    }

    static void AddJobKey(const char* name) {
        RegWriteDword(platform::LocalMachine(), RegJoinPath(kScheduleKey, name).c_str(), "On", 1);
    }

    static void PutInZone(const char* owner, const std::vector<ZoneRecord>& records) {
        ExclusionZone zone = g_Siblings.CreateExclusionZone();
        ASSERT_FALSE(zone.IsEmpty());
        const std::string buffer = EncodeZoneRecords(records);
        ASSERT_EQ(zone.Add(owner, owner, buffer.data()), 1);
    }

    static void AddStoreExclusion(uint8_t kind, const std::string& path) {
        const std::string record = PackObjectRecord(kind, path);
        const auto count = static_cast<uint16_t>(ReadObjectList(CES_Exclude).size());
        ASSERT_EQ(Q9CfgE_SetObjectList(CES_Exclude, count, record.data()), 1);
    }

    static std::string StoreFileText(const std::string& body) {
        return "Q9 Configuration Store 1\n" + body;
    }

    // Writes a store file through the store itself (for enciphered values),
    // then points the store back at the live file.
    static void WriteThroughStore(const std::string& path, const std::function<void()>& fill) {
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN);
        fill();
        Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, "", Q9CFGE_MODE_PLAIN);
    }

    TemporaryRegistry m_registry;

private:
    int32_t m_savedWinNT;
};
