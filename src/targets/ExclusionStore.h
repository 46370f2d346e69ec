#pragma once

// The exclusion list lives in three homes, kept in step here:
//
// - the store's section CES_Exclude: the switch (CEK_ExcludeEnable), the
//   user's folders and files as its object list, the user's extensions as
//   one text (CEK_ExcludeText);
// - the shared exclusion zone, where this product keeps its records under
//   kZoneOwnerTag beside other products' records;
// - the monitors' scan words (CES_SystemMonitor and CES_Internet,
//   CEK_ScanOptions, kScanExclusions), which tell them to honour the list.

#include <optional>
#include <string>
#include <vector>

#include "targets/ExclusionList.h"
#include "targets/ZoneRecords.h"

struct ExclusionRecords {
    std::vector<ZoneRecord> shown;      // the user's and other products' records
    std::vector<ZoneRecord> keptAside;  // this product's fixed and derived records
    bool zoneAvailable = false;         // the zone library answered
};

// The records as the exclusion list shows them. With storeIsSource (a level
// was applied in this session, or the list was saved) the user's records
// come from the store, and the zone's copies of them are left out; else
// everything comes from the zone.
ExclusionRecords ReadExclusionRecords(bool storeIsSource);

// The list as the exclusions page starts with it: the records of
// ReadExclusionRecords, then the store's extensions; the user's rows are in
// use while the list is in force.
ExclusionList LoadExclusionList(bool storeIsSource);

// This product's records in the zone as it is, or nullopt without the zone
// library. A malformed answer of the library is reported, and the records
// before the fault are kept.
std::optional<std::vector<ZoneRecord>> ReadZone();

struct ExclusionChoices {
    bool enabled = false;            // the list is in force
    bool scanSystemRestore = false;  // scans look into the system restore folders
};

// Writes the list to the store: the object list from index 0, the switch,
// the monitors' bits, the extension text and the system restore bit. The
// system monitor honours the list only when it has extensions; the internet
// monitor whenever the list is in force.
void SaveExclusions(const ExclusionList& list, const ExclusionChoices& choices);

// The records this product keeps in the zone for records: each shown one as
// it is,
// followed by what a scanner may meet the same path as (the network path of
// a path on a network drive and, on the NT family, the path with every
// symbolic link resolved), marked kZoneDerived; then the product's own fixed
// records of keptAside that are no network paths. Derived records of earlier
// saves thereby go and are derived afresh.
std::vector<ZoneRecord> ZoneRecordsFor(const ExclusionRecords& records);

// Rewrites this product's records in the zone from the store (after the
// store's commit). False when there is no zone library.
bool ApplyExclusions();

// The records the policy step leaves under this product's tag: the zone's
// fixed records, then the store's list as the user's records. Derived and
// user records of the zone are dropped, being rewritten from the store.
std::vector<ZoneRecord> SyncedZoneRecords(const std::vector<ZoneRecord>& zone);

// Rewrites this product's records in the zone by SyncedZoneRecords (other
// products' records stay). False when there is no zone library.
bool SyncExclusionZone();
