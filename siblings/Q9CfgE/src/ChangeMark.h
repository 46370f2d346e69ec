#pragma once

// The change mark "Q9Cfg.mod" of the installation: services watch it and
// reread the store when it changes. It holds a generation counter and the
// time of the last bump:
//
//   generation=42
//   time=1700000000
//
// and is replaced atomically under "Q9Cfg.mod.lock", so that no bump is lost
// when two processes bump at once.

#include <cstdint>
#include <string>

namespace cfge {

class ChangeMark {
public:
    static constexpr const char* kFileName = "Q9Cfg.mod";

    // Adds 1 to the generation; false (reported) when the mark cannot be written.
    static bool Bump(const std::string& path);

    // The generation in the mark; 0 when there is none.
    static uint64_t Generation(const std::string& path);
};

}  // namespace cfge
