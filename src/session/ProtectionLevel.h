#pragma once

// The protection levels: High, Medium and Low are whole configurations kept
// in level files of the installation; Customized is whatever the user made.
// Applying a level loads its file into the store's working copy and keeps
// the product's password protection as it was.

#include <cstdint>
#include <string>

constexpr uint32_t kProtectLevelHigh = 1;
constexpr uint32_t kProtectLevelMedium = 2;
constexpr uint32_t kProtectLevelLow = 4;

// The levels in the order of the Easy configuration page's slider, from its
// top: High, Medium, Low, Customized.
constexpr int kLevelPositions = 4;

// The level at a slider position (0 to 3); Customized for any other.
uint32_t LevelAtPosition(int position);
// The slider position of a level, or -1 for a value that is no level.
int PositionOfLevel(uint32_t level);

// "Protection Level - <name>"; a value that is no level reads as Customized.
std::string LevelTitle(uint32_t level);
// What a level means, one "- " line each. The second line of Customized
// points to the page tree, or in the wizard to its Next button.
std::string LevelDescription(uint32_t level, bool inWizard);

// The level file's name, or empty for a level without a file (Customized,
// or a value that is no level).
std::string LevelFileName(uint32_t level);

// Loads the level's file from g_szModuleDir into the working copy, writes
// the three password protection values back as they were before, and marks
// the session as ahead of the registry (g_bLevelApplied, g_bLevelPending).
// A level without a file does nothing. A missing file is not detected: the
// store loads what it finds.
void ApplyLevel(uint32_t level);
