#pragma once

// The repair policy word of a scan profile (key 16) as the "Repair Setting"
// controls show it. The choices are meanings, not combo indexes: which item
// of a combo stands for which choice differs from page to page, so that
// mapping stays with each page.

#include <cstdint>

// "Backup files before repairing or deleting": on if any of its three bits
// is set.
bool BackupOf(uint32_t policy);
// The policy with the three backup bits set or cleared together.
uint32_t CollectBackup(uint32_t policy, bool backup);

enum class RepairableAction { LeaveAsIs, Repair, Delete };
enum class ExecutingAction { LeaveAsIs, VerifyFirst, ForcedTermination, Restart };

// The choices of the combos for repairable, unrepairable, compressed and
// executing files.
struct RepairCombos {
    RepairableAction repairable = RepairableAction::LeaveAsIs;
    bool deleteUnrepairable = false;
    bool deleteCompressed = false;
    ExecutingAction executing = ExecutingAction::LeaveAsIs;

    bool operator==(const RepairCombos&) const = default;
};

// The choices of a policy. Where exclusive bits are both set the first in
// the order of testing wins: repair before delete, and for executing files
// bits 24, 25, 26 in that order.
RepairCombos RepairCombosOf(uint32_t policy);

// The policy with the combos' bits; every other bit is kept. An exclusive
// choice clears its alternatives.
uint32_t CollectRepairCombos(uint32_t policy, const RepairCombos& combos);
