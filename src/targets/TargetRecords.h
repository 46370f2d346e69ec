#pragma once

// Targets kept as a section's object list (the screen saver's scan, the
// schedule entries): each target is one record of the list, its kind and
// text as they are.

#include <cstdint>
#include <vector>

#include "options/StoreAccess.h"
#include "targets/TargetList.h"

// The targets of the section's object list.
std::vector<Target> ReadTargets(uint32_t section);

// The records that stand for targets.
std::vector<ObjectRecord> TargetRecords(const std::vector<Target>& targets);
