#pragma once

// The switch words a policy applies, in their fixed order: the scan
// functions, then the mail functions, then the general ones, each group's
// functions in the order they are registered or stopped.

#include <cstdint>
#include <span>

struct PolicySwitchGroup {
    uint32_t wordKey;
    uint32_t maskKey;
    const char* wordName;
    const char* maskName;
    std::span<const int32_t> items;
};

// The three groups in the order they are applied.
std::span<const PolicySwitchGroup> PolicySwitchGroups();

struct PolicySwitchWords {
    uint32_t word = 0;
    uint32_t mask = 0;
};

// The group's switch word and mask from the store.
PolicySwitchWords ReadSwitchWords(const PolicySwitchGroup& group);
