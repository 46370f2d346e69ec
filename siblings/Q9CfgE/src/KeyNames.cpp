#include "KeyNames.h"

#include <array>

#include "Q9CfgE.h"

namespace cfge {
namespace {

struct Name {
    uint32_t number;
    std::string_view text;
};

constexpr std::array kSections{
    Name{0, "CES_General"},         Name{1, "CES_Exclude"},
    Name{2, "CES_Macro"},           Name{3, "CES_Authorization"},
    Name{4, "CES_SystemScan"},      Name{5, "CES_ExplorerScan"},
    Name{6, "CES_ScreenSaver"},     Name{7, "CES_SystemMonitor"},
    Name{8, "CES_Pop3"},            Name{9, "CES_Internet"},
    Name{11, "CES_OutlookScan"},    Name{12, "CES_OutlookMonitor"},
    Name{14, "CES_Switch"},         Name{15, "CES_Messenger"},
    Name{16, "CES_Startup"},        Name{17, "CES_PortBlock"},
    Name{Q9CFGE_SCHEDULE_DEFAULT, "CES_ScheduleDefault"},
};

constexpr std::array kKeys{
    Name{0, "CEK_GeneralOptions"},       Name{1, "CEK_AlertSound"},
    Name{2, "CEK_ScanLogSize"},          Name{3, "CEK_EventLogCount"},
    Name{4, "CEK_BackupSize"},           Name{5, "CEK_ExcludeEnable"},
    Name{6, "CEK_MacroOptions"},         Name{7, "CEK_AuthEnabled"},
    Name{8, "CEK_AuthItems"},            Name{9, "CEK_AuthPassword"},
    Name{10, "CEK_ScanOptions"},         Name{11, "CEK_ScanArchive"},
    Name{12, "CEK_ScanArchiveKinds"},    Name{13, "CEK_ScanExtensions"},
    Name{14, "CEK_MonitorOptions"},      Name{15, "CEK_MonitorText"},
    Name{16, "CEK_ScanPolicy"},          Name{21, "CEK_WarnMailOptions"},
    Name{23, "CEK_WarnMailServer"},      Name{24, "CEK_WarnMailFrom"},
    Name{25, "CEK_WarnMailPort"},        Name{26, "CEK_Pop3Port"},
    Name{30, "CEK_Pop3Options"},         Name{32, "CEK_SchedOn"},
    Name{33, "CEK_SchedStyle"},          Name{34, "CEK_SchedYear"},
    Name{35, "CEK_SchedMonth"},          Name{36, "CEK_SchedDay"},
    Name{37, "CEK_SchedDayOfWeek"},      Name{38, "CEK_SchedHour"},
    Name{39, "CEK_SchedMinute"},         Name{40, "CEK_SchedCmdLine"},
    Name{41, "CEK_SchedCurDir"},         Name{42, "CEK_Switch_Scan"},
    Name{43, "CEK_Switch_ScanMask"},     Name{44, "CEK_Switch_ScanMail"},
    Name{45, "CEK_Switch_ScanMailMask"}, Name{46, "CEK_Switch_General"},
    Name{47, "CEK_Switch_GeneralMask"},  Name{48, "CEK_EventOptions"},
    Name{49, "CEK_ExcludeText"},         Name{50, "CEK_ScheduleUser"},
    Name{51, "CEK_SchedulePassword"},    Name{52, "CEK_MonitorRestart"},
    Name{53, "CEK_ScanExtra"},           Name{54, "CEK_Pop3Timeout"},
    Name{55, "CEK_Pop3ClientKeepAlive"}, Name{57, "CEK_Pop3ServerKeepAlive"},
    Name{59, "CEK_ProtectLevel"},        Name{60, "CEK_SpamOptions"},
    Name{61, "CEK_MessengerSelect"},     Name{62, "CEK_HomeAlarm"},
    Name{63, "CEK_PortBlockEnable"},     Name{64, "CEK_PortBlockMode"},
    Name{65, "CEK_PortBlockExempt"},     Name{66, "CEK_PortBlockShowMessages"},
    Name{67, "CEK_PortBlockLogSize"},    Name{68, "CEK_PortBlockLogLimit"},
};

char Lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i) {
        if (Lower(a[i]) != Lower(b[i])) return false;
    }
    return true;
}

// Names by number for the small numbers, so that the writer finds a name
// without a search.
constexpr uint32_t kIndexed = 128;

template <typename Table>
std::array<std::string_view, kIndexed> IndexOf(const Table& table) {
    std::array<std::string_view, kIndexed> index{};
    for (const Name& name : table) {
        if (name.number < kIndexed) index[name.number] = name.text;
    }
    return index;
}

template <typename Table>
std::string_view NameOf(const Table& table, uint32_t number) {
    static const std::array<std::string_view, kIndexed> index = IndexOf(table);
    if (number < kIndexed) return index[number];
    for (const Name& name : table) {
        if (name.number == number) return name.text;
    }
    return {};
}

template <typename Table>
std::optional<uint32_t> NumberOf(const Table& table, std::string_view text) {
    for (const Name& name : table) {
        if (EqualIgnoringCase(name.text, text)) return name.number;
    }
    return std::nullopt;
}

}  // namespace

std::string_view KeyNames::SectionName(uint32_t section) { return NameOf(kSections, section); }

std::string_view KeyNames::KeyName(uint32_t key) { return NameOf(kKeys, key); }

std::optional<uint32_t> KeyNames::SectionByName(std::string_view name) {
    return NumberOf(kSections, name);
}

std::optional<uint32_t> KeyNames::KeyByName(std::string_view name) { return NumberOf(kKeys, name); }

bool KeyNames::IsScheduleEntry(uint32_t section) {
    return section >= Q9CFGE_SCHEDULE_FIRST && section <= Q9CFGE_SCHEDULE_LAST;
}

}  // namespace cfge
