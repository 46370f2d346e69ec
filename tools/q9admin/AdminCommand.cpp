#include "AdminCommand.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <sstream>
#include <vector>

#include "ArgumentParsing.h"
#include "Q9CfgE.h"
#include "common/InstallDirectory.h"
#include "options/StoreKeys.h"
#include "platform/Registry.h"
#include "policy/PolicyHistory.h"
#include "policy/PolicyReport.h"
#include "policy/RecordedApply.h"
#include "schedule/ScheduleEntry.h"
#include "schedule/ScheduleText.h"
#include "session/DiagLog.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "session/RegistryHelpers.h"
#include "targets/ExclusionMatch.h"
#include "targets/ExclusionStore.h"

namespace {

enum Status { kDone = 0, kAbsent = 1, kBadCommand = 2, kRefused = 3 };

struct Context {
    const std::vector<std::string>& args;  // the words after the verb
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

struct Verb {
    const char* group;
    const char* name;
    const char* arguments;
    std::size_t minCount;
    std::size_t maxCount;
    std::function<int(Context&)> run;
};

std::string Hex(uint32_t value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08x", value);
    return text;
}

// Section and key numbers of a store verb; false (said on err) when bad.
bool StoreAddress(Context& context, uint32_t* section, uint32_t* key) {
    const auto parsedSection = ParseNumber(context.args[0]);
    const auto parsedKey = key ? ParseNumber(context.args[1]) : std::optional<uint32_t>(0);
    if (!parsedSection || !parsedKey) {
        context.err << "q9admin: section and key are numbers, decimal or 0x hex\n";
        return false;
    }
    *section = *parsedSection;
    if (key) *key = *parsedKey;
    return true;
}

// A text argument; "-" reads one line from standard input instead, so that a
// password need not stand on the command line.
std::string TextArgument(Context& context, const std::string& word) {
    if (word != "-") return word;
    std::string line;
    std::getline(context.in, line);
    return line;
}

int PrintText(Context& context, const char* text, const std::string& what) {
    if (!text) {
        context.err << "q9admin: no " << what << "\n";
        return kAbsent;
    }
    context.out << text << "\n";
    return kDone;
}

int Written(Context& context, int32_t result) {
    if (result == 1) return kDone;
    context.err << "q9admin: the store refused the write\n";
    return kRefused;
}

int StoreGetDword(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    const uint32_t value = Q9CfgE_GetDWEx(section, key);
    context.out << Hex(value) << " (" << value << ")\n";
    return kDone;
}

int StoreGetText(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    return PrintText(context, Q9CfgE_GetStrEx(section, key), "text at that section and key");
}

int StoreGetEnciphered(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    uint32_t length = 0;
    Q9CfgE_GetEncStrEx(section, key, nullptr, &length);
    if (length == 0) return PrintText(context, nullptr, "enciphered text at that section and key");
    std::string text(length, '\0');
    Q9CfgE_GetEncStrEx(section, key, text.data(), &length);
    return PrintText(context, text.c_str(), "");
}

int StoreGetList(Context& context) {
    uint32_t section = 0;
    if (!StoreAddress(context, &section, nullptr)) return kBadCommand;
    const auto* record = static_cast<const unsigned char*>(Q9CfgE_GetObjectList(section, 0));
    if (!record) return PrintText(context, nullptr, "object list in that section");
    for (;;) {
        const unsigned size = record[0] | (record[1] << 8);
        if (size == 0) break;
        context.out << "record=" << unsigned{record[2]} << "," << unsigned{record[3]} << ",\""
                    << reinterpret_cast<const char*>(record + 4) << "\"\n";
        record += size;
    }
    return kDone;
}

int StoreSetDword(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    const auto value = ParseNumber(context.args[2]);
    if (!value) {
        context.err << "q9admin: the value is a 32-bit number, decimal or 0x hex\n";
        return kBadCommand;
    }
    return Written(context, Q9CfgE_SetDWEx(section, key, *value));
}

int StoreSetText(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    return Written(context, Q9CfgE_SetStrEx(section, key, context.args[2].c_str()));
}

int StoreSetEnciphered(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    const std::string text = TextArgument(context, context.args[2]);
    return Written(context, Q9CfgE_SetEncStrEx(section, key, text.c_str()));
}

int StoreDefaultDword(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    const uint32_t value = Q9CfgE_GetDefaultDW(section, key);
    context.out << Hex(value) << " (" << value << ")\n";
    return kDone;
}

int StoreDefaultText(Context& context) {
    uint32_t section = 0, key = 0;
    if (!StoreAddress(context, &section, &key)) return kBadCommand;
    return PrintText(context, Q9CfgE_GetDefaultStr(section, key), "default text there");
}

// Prints a whole file; the formats of the installation are text on purpose.
int PrintFile(Context& context, const std::string& path, const std::string& what) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        context.err << "q9admin: no " << what << " (" << path << ")\n";
        return kAbsent;
    }
    context.out << file.rdbuf();
    return kDone;
}

// Registry verbs.
bool RegistryAddress(Context& context, platform::RegKey* root) {
    *root = ParseRoot(context.args[0]);
    if (*root) return true;
    context.err << "q9admin: the root is HKLM or HKCU\n";
    return false;
}

void PrintRegistryValue(Context& context, uint32_t type, const std::vector<uint8_t>& data) {
    if (type == platform::kRegDword && data.size() == 4) {
        uint32_t value = 0;
        std::memcpy(&value, data.data(), 4);
        context.out << Hex(value) << " (" << value << ")\n";
    } else if (type == platform::kRegSz) {
        context.out << std::string(reinterpret_cast<const char*>(data.data()),
                                   std::strlen(reinterpret_cast<const char*>(data.data())))
                    << "\n";
    } else {
        char byte[4];
        for (std::size_t i = 0; i < data.size(); ++i) {
            std::snprintf(byte, sizeof byte, i ? ",%02x" : "%02x", data[i]);
            context.out << byte;
        }
        context.out << "\n";
    }
}

int RegistryGet(Context& context) {
    platform::RegKey root = nullptr;
    if (!RegistryAddress(context, &root)) return kBadCommand;
    platform::RegKey key = nullptr;
    if (platform::RegOpenKey(root, context.args[1].c_str(), platform::kKeyRead, &key) != 0) {
        context.err << "q9admin: no such key\n";
        return kAbsent;
    }
    uint32_t type = 0;
    uint32_t size = 0;
    std::vector<uint8_t> data;
    int32_t status = platform::RegQueryValue(key, context.args[2].c_str(), &type, nullptr, &size);
    if (status == platform::kSuccess) {
        data.assign(size + 1u, 0);
        status = platform::RegQueryValue(key, context.args[2].c_str(), &type, data.data(), &size);
        data.resize(size);
        data.push_back(0);
    }
    platform::RegCloseKey(key);
    if (status != platform::kSuccess) {
        context.err << "q9admin: no such value\n";
        return kAbsent;
    }
    data.pop_back();
    if (type == platform::kRegSz) data.push_back(0);
    PrintRegistryValue(context, type, data);
    return kDone;
}

int RegistryWritten(Context& context, int32_t status) {
    if (status == platform::kSuccess) return kDone;
    context.err << "q9admin: the registry refused the write (status " << status << ")\n";
    return kRefused;
}

int RegistrySetDword(Context& context) {
    platform::RegKey root = nullptr;
    if (!RegistryAddress(context, &root)) return kBadCommand;
    const auto value = ParseNumber(context.args[3]);
    if (!value) {
        context.err << "q9admin: the value is a 32-bit number, decimal or 0x hex\n";
        return kBadCommand;
    }
    return RegistryWritten(context, RegWriteDword(root, context.args[1].c_str(),
                                                  context.args[2].c_str(), *value));
}

int RegistrySetText(Context& context) {
    platform::RegKey root = nullptr;
    if (!RegistryAddress(context, &root)) return kBadCommand;
    return RegistryWritten(context, RegWriteString(root, context.args[1].c_str(),
                                                   context.args[2].c_str(),
                                                   context.args[3].c_str()));
}

int RegistryDeleteValue(Context& context) {
    platform::RegKey root = nullptr;
    if (!RegistryAddress(context, &root)) return kBadCommand;
    platform::RegKey key = nullptr;
    if (platform::RegOpenKey(root, context.args[1].c_str(), platform::kKeyWrite, &key) != 0) {
        context.err << "q9admin: no such key\n";
        return kAbsent;
    }
    const int32_t status = platform::RegDeleteValue(key, context.args[2].c_str());
    platform::RegCloseKey(key);
    if (status == platform::kFileNotFound) {
        context.err << "q9admin: no such value\n";
        return kAbsent;
    }
    return RegistryWritten(context, status);
}

int RegistryDump(Context& context) {
    platform::RegKey root = nullptr;
    if (!RegistryAddress(context, &root)) return kBadCommand;
    const char* file = root == platform::LocalMachine() ? "HKLM.reg" : "HKCU.reg";
    return PrintFile(context, platform::RegistryDirectory() + file, "hive yet");
}

int StoreDump(Context& context) {
    const std::string path =
        context.args.empty() ? sibling::InstallFile("Q9Cfg.dat") : context.args[0];
    if (context.args.empty() && !std::ifstream(path)) {
        context.out << "; no live store yet: every value is its factory default ("
                    << sibling::InstallFile("Q9CfgDef.dat") << ")\n";
        return kDone;
    }
    return PrintFile(context, path, "store file");
}

int Zone(Context& context) {
    return PrintFile(context, sibling::InstallFile("OrvDMZ.zone"), "exclusion zone yet");
}

// Which row of the exclusion list, as the exclusions page would show it,
// leaves the path out of scans: exit 0 and the row when one does, 1 when
// none does.
int ExclusionsTest(Context& context) {
    InitProcessState();
    const std::string& path = context.args[0];
    const ExclusionList list = LoadExclusionList(false);
    const std::optional<ExclusionMatch> match = FindExclusion(list.Rows(), path);
    if (!match) {
        context.out << path << ": not excluded\n";
        return kAbsent;
    }
    context.out << path << ": " << DescribeExclusion(*match) << "\n";
    return kDone;
}

// One scheduled scan: its tick, interval and targets, and whether it carries
// accounts; never the accounts themselves.
std::string DescribeEntry(const ScheduleEntry& entry) {
    int32_t valid = 1;
    std::string interval = FormatInterval(entry.m_nStyle, &entry.m_time, &valid);
    if (valid == 0 || interval.empty())
        interval = "style " + std::to_string(entry.m_nStyle) + (valid ? "" : " (cannot be shown)");
    std::string line = std::string(entry.m_bOn ? "on" : "off") + ", " + interval + ", " +
                       FormatTargets(entry.m_targets);
    if (!entry.m_strUser.empty()) line += ", run-as account set";
    if (!entry.m_strNetUser.empty()) line += ", network account set";
    return line;
}

// The scheduled scans in both homes: the store's schedule sections and the
// scheduler's job keys of this product.
int Schedule(Context& context) {
    InitProcessState();
    const auto stored = LoadStoreEntries();
    context.out << "store:" << (stored.empty() ? " none" : "") << "\n";
    for (std::size_t i = 0; i < stored.size(); ++i) {
        context.out << "  section " << Hex(ScheduleSection(static_cast<uint32_t>(i))) << ": "
                    << DescribeEntry(*stored[i]) << "\n";
    }
    const std::vector<std::string> names = ScheduleJobNames();
    const auto jobs = LoadRegistryEntries();
    context.out << "registry:" << (jobs.empty() ? " none" : "") << "\n";
    for (std::size_t i = 0; i < jobs.size() && i < names.size(); ++i)
        context.out << "  " << names[i] << ": " << DescribeEntry(*jobs[i]) << "\n";
    return kDone;
}

void PrintHistoryEntry(Context& context, const HistoryEntry& entry) {
    context.out << "#" << entry.number << " " << entry.kind;
    if (entry.undoes > 0) context.out << " of #" << entry.undoes;
    context.out << ", " << entry.time << ", " << entry.user << "\n";
    if (!entry.policy.empty()) {
        context.out << "  policy " << entry.policy << " (sha256 "
                    << (entry.sha256.empty() ? "unreadable" : entry.sha256) << ")\n";
    }
    if (!entry.base.empty()) context.out << "  base " << entry.base << "\n";
    if (entry.values.empty()) context.out << "  no value changed\n";
    for (const ValueChange& change : entry.values) {
        context.out << "  " << change.file << ": " << ValueChangeText(change) << "\n";
    }
}

// Every silent apply and undo recorded in the installation, oldest first.
int PolicyHistoryList(Context& context) {
    InitProcessState();
    int problems = 0;
    const std::vector<HistoryEntry> entries = PolicyHistory(g_szModuleDir).Read(&problems);
    if (entries.empty()) context.out << "no policy applied yet\n";
    for (const HistoryEntry& entry : entries) PrintHistoryEntry(context, entry);
    if (problems > 0) {
        context.err << "q9admin: " << problems << " lines of the policy history cannot be read\n";
    }
    return kDone;
}

// Puts back what the last recorded apply changed.
int PolicyUndo(Context& context) {
    InitProcessState();
    g_Log.Open(CDiagLog::kDefaultPath);
    if (g_Siblings.HasEnoughPrivilege() == 0) {
        context.err << "q9admin: not allowed to change the product's registrations\n";
        return kRefused;
    }
    const UndoResult result = UndoLastApply();
    g_Siblings.Release();
    switch (result.status) {
        case UndoStatus::kDone: context.out << result.message << "\n"; return kDone;
        case UndoStatus::kNothingToUndo: context.err << "q9admin: " << result.message << "\n"; return kAbsent;
        case UndoStatus::kCopyMissing: break;
    }
    context.err << "q9admin: " << result.message << "\n";
    return kRefused;
}

int Journal(Context& context) {
    return PrintFile(context, sibling::InstallFile("Q9SSCtrl.journal"),
                     "registration journal yet");
}

const std::vector<Verb>& Verbs() {
    static const std::vector<Verb> verbs = {
        {"store", "get-dword", "SECTION KEY", 2, 2, StoreGetDword},
        {"store", "get-text", "SECTION KEY", 2, 2, StoreGetText},
        {"store", "get-enc", "SECTION KEY", 2, 2, StoreGetEnciphered},
        {"store", "get-list", "SECTION", 1, 1, StoreGetList},
        {"store", "default-dword", "SECTION KEY", 2, 2, StoreDefaultDword},
        {"store", "default-text", "SECTION KEY", 2, 2, StoreDefaultText},
        {"store", "set-dword", "SECTION KEY VALUE", 3, 3, StoreSetDword},
        {"store", "set-text", "SECTION KEY TEXT", 3, 3, StoreSetText},
        {"store", "set-enc", "SECTION KEY TEXT|-", 3, 3, StoreSetEnciphered},
        {"store", "dump", "[FILE]", 0, 1, StoreDump},
        {"registry", "get", "HKLM|HKCU KEY VALUE", 3, 3, RegistryGet},
        {"registry", "set-dword", "HKLM|HKCU KEY VALUE NUMBER", 4, 4, RegistrySetDword},
        {"registry", "set-text", "HKLM|HKCU KEY VALUE TEXT", 4, 4, RegistrySetText},
        {"registry", "delete-value", "HKLM|HKCU KEY VALUE", 3, 3, RegistryDeleteValue},
        {"registry", "dump", "HKLM|HKCU", 1, 1, RegistryDump},
        {"journal", "", "", 0, 0, Journal},
        {"zone", "", "", 0, 0, Zone},
        {"schedule", "", "", 0, 0, Schedule},
        {"exclusions", "test", "PATH", 1, 1, ExclusionsTest},
        {"policy", "history", "", 0, 0, PolicyHistoryList},
        {"policy", "undo", "", 0, 0, PolicyUndo},
    };
    return verbs;
}

const Verb* FindVerb(const std::vector<std::string>& words, std::size_t* used) {
    for (const Verb& verb : Verbs()) {
        const bool grouped = *verb.name != '\0';
        if (words.empty() || words[0] != verb.group) continue;
        if (!grouped) {
            *used = 1;
            return &verb;
        }
        if (words.size() > 1 && words[1] == verb.name) {
            *used = 2;
            return &verb;
        }
    }
    return nullptr;
}

}  // namespace

std::string AdminUsage() {
    std::ostringstream text;
    text << "usage: q9admin VERB ARGUMENTS\n\n"
            "Reads and writes the installation that q9admin lies in (or the one named\n"
            "by Q9_INSTALL_DIR; the registry directory by Q9_REGISTRY_DIR). Sections and\n"
            "keys are numbers, decimal or 0x hex. A TEXT of \"-\" is read from standard input.\n\n";
    for (const Verb& verb : Verbs()) {
        text << "  q9admin " << verb.group;
        if (*verb.name) text << " " << verb.name;
        if (*verb.arguments) text << " " << verb.arguments;
        text << "\n";
    }
    text << "\nExit status: 0 done, 1 not there, 2 bad command line, 3 write refused.\n";
    return text.str();
}

int RunAdminCommand(const std::vector<std::string>& words, std::istream& in, std::ostream& out,
                    std::ostream& err) {
    if (words.empty() || words[0] == "--help" || words[0] == "-h" || words[0] == "help") {
        (words.empty() ? err : out) << AdminUsage();
        return words.empty() ? kBadCommand : kDone;
    }
    std::size_t used = 0;
    const Verb* verb = FindVerb(words, &used);
    if (!verb) {
        err << "q9admin: unknown command \"" << words[0] << (words.size() > 1 ? " " + words[1] : "")
            << "\"\n\n"
            << AdminUsage();
        return kBadCommand;
    }
    const std::vector<std::string> args(words.begin() + static_cast<std::ptrdiff_t>(used),
                                        words.end());
    if (args.size() < verb->minCount || args.size() > verb->maxCount) {
        err << "q9admin: " << verb->group << (*verb->name ? " " : "") << verb->name << " takes "
            << (*verb->arguments ? verb->arguments : "no arguments") << "\n";
        return kBadCommand;
    }
    Context context{args, in, out, err};
    return verb->run(context);
}
