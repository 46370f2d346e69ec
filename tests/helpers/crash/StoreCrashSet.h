#pragma once

// The crash trials' set in the live configuration store of the installation
// named by Q9_INSTALL_DIR: the large test configuration of the store tests
// (16 sections of 24 keys; even keys hold the generation as a word, odd keys
// an 800-byte text derived from it).

#include <cstdint>

#include "helpers/crash/CrashVerdict.h"

namespace crash {

// Writes generation into every value of the set in edit mode and commits
// them all in one flush, as the product commits its working copy. False
// when edit mode or the commit failed.
bool WriteStoreGeneration(uint32_t generation);

// Reads the set back from the live store. The whole set is one commit, so
// it must carry old or old + 1 throughout.
CrashVerdict CheckStoreGeneration(uint32_t old);

}  // namespace crash
