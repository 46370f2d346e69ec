#pragma once

// A large configuration in which every value tells the generation that
// wrote it, shared by the multi-process tests and their helper program: a
// file is whole and consistent exactly when every value carries one
// generation.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "Q9CfgE.h"

namespace store_test {

// The word that tells the generation of a file.
constexpr uint32_t kGenerationSection = 0;
constexpr uint32_t kGenerationKey = 0;

constexpr uint32_t kGenerationSections[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 14, 15, 16, 17};
constexpr uint32_t kGenerationKeys = 24;
constexpr size_t kGenerationTextSize = 800;

// "gen=<n>;" followed by letters that depend on n.
inline std::string GenerationText(uint32_t generation) {
    std::string text = "gen=" + std::to_string(generation) + ";";
    while (text.size() < kGenerationTextSize) {
        text.push_back(static_cast<char>('a' + (generation + text.size()) % 26));
    }
    return text;
}

// Even keys hold the generation as a word, odd keys as a text.
inline void WriteGeneration(uint32_t generation) {
    const std::string text = GenerationText(generation);
    for (const uint32_t section : kGenerationSections) {
        for (uint32_t key = 0; key < kGenerationKeys; ++key) {
            if (key % 2 == 0) {
                Q9CfgE_SetDWEx(section, key, generation);
            } else {
                Q9CfgE_SetStrEx(section, key, text.c_str());
            }
        }
    }
}

// The generation a value carries; 0 when it is absent or not one of ours.
inline uint32_t GenerationOf(uint32_t section, uint32_t key) {
    if (key % 2 == 0) return Q9CfgE_GetDWEx(section, key);
    const char* text = Q9CfgE_GetStrEx(section, key);
    if (!text || std::string(text).rfind("gen=", 0) != 0) return 0;
    const auto generation = static_cast<uint32_t>(std::strtoul(text + 4, nullptr, 10));
    return GenerationText(generation) == text ? generation : 0;
}

// Reads every value of the live store, with the generation word read before
// and after. Generations only grow and each file holds one, so every value
// must carry a generation from before to after, and all the same one when
// the word did not move. Sets *generation to the word read last.
inline bool CheckGeneration(uint32_t* generation, std::string* why) {
    const uint32_t before = Q9CfgE_GetDWEx(kGenerationSection, kGenerationKey);
    uint32_t lowest = before;
    uint32_t highest = before;
    for (const uint32_t section : kGenerationSections) {
        for (uint32_t key = 0; key < kGenerationKeys; ++key) {
            const uint32_t carried = GenerationOf(section, key);
            if (carried == 0) {
                *why = "section " + std::to_string(section) + " key " + std::to_string(key) +
                       " is missing or damaged";
                return false;
            }
            lowest = std::min(lowest, carried);
            highest = std::max(highest, carried);
        }
    }
    *generation = Q9CfgE_GetDWEx(kGenerationSection, kGenerationKey);
    if (before == 0 || lowest < before || highest > *generation ||
        (before == *generation && lowest != highest)) {
        *why = "values from generations " + std::to_string(lowest) + " to " +
               std::to_string(highest) + " between words " + std::to_string(before) + " and " +
               std::to_string(*generation);
        return false;
    }
    return true;
}

}  // namespace store_test
