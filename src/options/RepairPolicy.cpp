#include "options/RepairPolicy.h"

#include "options/ScanBits.h"
#include "options/StoreAccess.h"

namespace {

constexpr uint32_t kRepairable = kPolicyRepair | kPolicyDelete;

RepairableAction RepairableOf(uint32_t policy) {
    if (policy & kPolicyRepair) return RepairableAction::Repair;
    if (policy & kPolicyDelete) return RepairableAction::Delete;
    return RepairableAction::LeaveAsIs;
}

ExecutingAction ExecutingOf(uint32_t policy) {
    if (policy & kPolicyExecVerify) return ExecutingAction::VerifyFirst;
    if (policy & kPolicyExecForced) return ExecutingAction::ForcedTermination;
    if (policy & kPolicyExecRestart) return ExecutingAction::Restart;
    return ExecutingAction::LeaveAsIs;
}

uint32_t RepairableBits(RepairableAction action) {
    switch (action) {
        case RepairableAction::Repair:
            return kPolicyRepair;
        case RepairableAction::Delete:
            return kPolicyDelete;
        case RepairableAction::LeaveAsIs:
            break;
    }
    return 0;
}

uint32_t ExecutingBits(ExecutingAction action) {
    switch (action) {
        case ExecutingAction::VerifyFirst:
            return kPolicyExecVerify;
        case ExecutingAction::ForcedTermination:
            return kPolicyExecForced;
        case ExecutingAction::Restart:
            return kPolicyExecRestart;
        case ExecutingAction::LeaveAsIs:
            break;
    }
    return 0;
}

}  // namespace

bool BackupOf(uint32_t policy) { return (policy & kPolicyBackup) != 0; }

uint32_t CollectBackup(uint32_t policy, bool backup) {
    return SetBits(policy, kPolicyBackup, backup);
}

RepairCombos RepairCombosOf(uint32_t policy) {
    return {RepairableOf(policy), (policy & kPolicyDeleteUnrepairable) != 0,
            (policy & kPolicyDeleteCompressed) != 0, ExecutingOf(policy)};
}

uint32_t CollectRepairCombos(uint32_t policy, const RepairCombos& combos) {
    policy = ReplaceBits(policy, RepairableBits(combos.repairable), kRepairable);
    policy = SetBits(policy, kPolicyDeleteUnrepairable, combos.deleteUnrepairable);
    policy = SetBits(policy, kPolicyDeleteCompressed, combos.deleteCompressed);
    return ReplaceBits(policy, ExecutingBits(combos.executing), kPolicyExecuting);
}
