#include "targets/ExclusionStore.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "Q9CfgE.h"
#include "options/ScanBits.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "platform/ProblemReport.h"
#include "session/ExclusionZone.h"
#include "session/ProcessState.h"
#include "session/SiblingLibs.h"
#include "targets/NetworkPath.h"
#include "targets/TargetList.h"

namespace {

constexpr uint32_t kSystemRestoreBit = 0x80000000;

uint32_t FlagsOfStoreKind(uint8_t kind) {
    switch (kind) {
        case kTargetFolder: return ExclusionList::kUserFolder;
        case kTargetFile: return ExclusionList::kUserFile;
        default: return kZoneUser;
    }
}

uint8_t StoreKindOfFlags(uint32_t flags) {
    if (flags & kZoneFile) return kTargetFile;
    if (flags & kZoneFolder) return kTargetFolder;
    return kTargetUnexamined;
}

std::vector<ZoneRecord> StoreRecords() {
    const uint32_t inUse = Q9CfgE_GetDWEx(CES_Exclude, CEK_ExcludeEnable);
    std::vector<ZoneRecord> records;
    for (const ObjectRecord& record : ReadObjectList(CES_Exclude)) {
        records.push_back({inUse, FlagsOfStoreKind(record.kind), {}, record.text});
    }
    return records;
}

const char* ProblemText(ZoneRecordsProblem problem) {
    switch (problem) {
        case ZoneRecordsProblem::kNoTerminator: return "it has no end";
        case ZoneRecordsProblem::kBadSize: return "a record has an impossible size";
        case ZoneRecordsProblem::kUnterminatedPath: return "a path has no end";
        case ZoneRecordsProblem::kNone: break;
    }
    return "";
}

void SetScanBit(uint32_t section, bool on) {
    const uint32_t word = Q9CfgE_GetDWEx(section, CEK_ScanOptions);
    Q9CfgE_SetDWEx(section, CEK_ScanOptions, SetBits(word, kScanExclusions, on));
}

// The path with every symbolic link resolved, when that differs from path.
std::string ResolvedPath(const std::string& path) {
    char resolved[PATH_MAX];
    if (!realpath(path.c_str(), resolved) || path == resolved) return {};
    return resolved;
}

void AddDerived(std::vector<ZoneRecord>& out, const ZoneRecord& record, const std::string& path) {
    if (path.empty() || path == record.path) return;
    for (const ZoneRecord& existing : out) {
        if (existing.path == path) return;
    }
    out.push_back({record.inUse, record.flags | kZoneDerived, {}, path});
}

}  // namespace

std::optional<std::vector<ZoneRecord>> ReadZone() {
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    if (zone.IsEmpty()) return std::nullopt;
    const int32_t size = zone.Enumerate(kZoneOwnerTag, kZoneOwnerTag, nullptr, 0);
    if (size <= 0) return std::vector<ZoneRecord>{};
    std::string buffer(static_cast<std::size_t>(size), '\0');
    const int32_t filled = zone.Enumerate(kZoneOwnerTag, kZoneOwnerTag, buffer.data(), size);
    buffer.resize(static_cast<std::size_t>(std::clamp(filled, 0, size)));
    ParsedZoneRecords parsed = ParseZoneRecords(buffer.data(), buffer.size());
    if (parsed.problem != ZoneRecordsProblem::kNone) {
        platform::ReportProblem(std::string("the exclusion zone's answer is malformed: ") +
                                ProblemText(parsed.problem));
    }
    return std::move(parsed.records);
}

ExclusionRecords ReadExclusionRecords(bool storeIsSource) {
    ExclusionRecords records;
    if (storeIsSource) records.shown = StoreRecords();
    const std::optional<std::vector<ZoneRecord>> zone = ReadZone();
    if (!zone) return records;
    records.zoneAvailable = true;
    for (const ZoneRecord& record : *zone) {
        if (record.flags & kZoneKeptAside) {
            records.keptAside.push_back(record);
        } else if (!(storeIsSource && (record.flags & kZoneUser))) {
            records.shown.push_back(record);
        }
    }
    return records;
}

ExclusionList LoadExclusionList(bool storeIsSource) {
    const bool enabled = Q9CfgE_GetDWEx(CES_Exclude, CEK_ExcludeEnable) != 0;
    ExclusionList list;
    list.Fill(ReadExclusionRecords(storeIsSource).shown,
              ReadStoreText(CES_Exclude, CEK_ExcludeText), enabled);
    list.SetUse(enabled);
    return list;
}

void SaveExclusions(const ExclusionList& list, const ExclusionChoices& choices) {
    std::vector<ObjectRecord> storeRecords;
    for (const ZoneRecord& record : list.Records()) {
        storeRecords.push_back({StoreKindOfFlags(record.flags), record.path});
    }
    WriteObjectList(CES_Exclude, storeRecords);
    Q9CfgE_SetDWEx(CES_Exclude, CEK_ExcludeEnable, choices.enabled ? 1 : 0);
    SetScanBit(CES_SystemMonitor, choices.enabled);
    SetScanBit(CES_Internet, choices.enabled);
    const std::string extensions = list.ExtensionText();
    if (extensions.empty()) SetScanBit(CES_SystemMonitor, false);
    Q9CfgE_SetStrEx(CES_Exclude, CEK_ExcludeText, extensions.c_str());
    const uint32_t macro = Q9CfgE_GetDWEx(CES_Macro, CEK_MacroOptions);
    Q9CfgE_SetDWEx(CES_Macro, CEK_MacroOptions,
                   SetBits(macro, kSystemRestoreBit, choices.scanSystemRestore));
}

std::vector<ZoneRecord> ZoneRecordsFor(const ExclusionRecords& records) {
    std::vector<ZoneRecord> out;
    // Other products' records are among them; the zone library leaves those
    // alone, and the ones derived from them, as they carry its foreign mark.
    for (const ZoneRecord& record : records.shown) {
        out.push_back(record);
        if (!IsNetworkPath(record.path)) continue;
        AddDerived(out, record, GetUncPath(record.path));
        if (g_bWinNT) AddDerived(out, record, ResolvedPath(record.path));
    }
    for (const ZoneRecord& record : records.keptAside) {
        if (!IsNetworkPathText(record.path) && record.owner == kZoneOwnerTag) out.push_back(record);
    }
    return out;
}

bool ApplyExclusions() {
    const ExclusionRecords records = ReadExclusionRecords(true);
    if (!records.zoneAvailable) return false;
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    if (zone.IsEmpty()) return false;
    const std::string buffer = EncodeZoneRecords(ZoneRecordsFor(records));
    zone.Delete(kZoneOwnerTag, kZoneOwnerTag);
    return zone.Add(kZoneOwnerTag, kZoneOwnerTag, buffer.data()) == 1;
}

std::vector<ZoneRecord> SyncedZoneRecords(const std::vector<ZoneRecord>& zone) {
    std::vector<ZoneRecord> records;
    for (const ZoneRecord& record : zone) {
        if (record.flags & kZoneFixed) records.push_back({record.inUse, record.flags, {}, record.path});
    }
    for (ZoneRecord& record : StoreRecords()) records.push_back(std::move(record));
    return records;
}

bool SyncExclusionZone() {
    ExclusionZone zone = g_Siblings.CreateExclusionZone();
    if (zone.IsEmpty()) return false;
    const std::optional<std::vector<ZoneRecord>> present = ReadZone();
    const std::string buffer = EncodeZoneRecords(SyncedZoneRecords(present.value_or(std::vector<ZoneRecord>{})));
    zone.Delete(kZoneOwnerTag, kZoneOwnerTag);
    return zone.Add(kZoneOwnerTag, kZoneOwnerTag, buffer.data()) == 1;
}
