#pragma once

// Writes store content in the text format that StoreParser reads: sections
// by number ascending, keys ascending, each section's records after its
// keys, names used where the section or key has one. Each section keeps its
// text, so that writing again formats only the sections that changed.

#include <string>

#include "StoreData.h"

namespace cfge {

class StoreWriter {
public:
    static std::string Write(const StoreData& data);
};

}  // namespace cfge
