#pragma once

// Silent applies with their record in the installation's policy history,
// and the undo of the last one.

#include <cstdint>
#include <string>

// ApplyConfiguration(basePath, policyPath, monitorFlag), recorded as an
// entry of kind "apply": the policy, its SHA-256, the user, and every value
// the run changed in the merge's target and in the store it read.
void ApplyPolicyRecorded(const char* basePath, const char* policyPath, int32_t monitorFlag);

enum class UndoStatus { kDone, kNothingToUndo, kCopyMissing };

struct UndoResult {
    UndoStatus status = UndoStatus::kNothingToUndo;
    std::string message;  // what was done, or why nothing was
    int64_t undone = 0;   // the entry put back
    int64_t recorded = 0; // the undo's own entry
};

// Puts back every value the last entry changed, from the copies it kept
// (enciphered values too), then brings the rest into line through
// ApplyConfiguration with the entry's base and monitor choice. Recorded as
// an entry of kind "undo". Nothing is changed when the history is empty or
// a copy is missing.
UndoResult UndoLastApply();
