#pragma once

// The judgement of one crash trial: what every value of the written set held
// when read back after the writer was killed, given the generation the
// folder held before (old) and the one being written (old + 1).

#include <cstdint>
#include <string>
#include <vector>

namespace crash {

// One value of the set as read back.
struct Reading {
    enum class Kind { kMissing, kDamaged, kCarried };
    Kind kind = Kind::kMissing;
    uint32_t generation = 0;  // when carried

    static Reading Missing() { return {Kind::kMissing, 0}; }
    static Reading Damaged() { return {Kind::kDamaged, 0}; }
    static Reading Carried(uint32_t generation) { return {Kind::kCarried, generation}; }
};

// How the writes relate to the set: one commit writes the whole set at once,
// or every value is a write of its own, made in the order of the set.
enum class WriteUnit { kWholeSet, kEachValue };

class CrashVerdict {
public:
    // kOld, kNew: every value present carries that generation; kPartWay: the
    // first values carry the new one, the rest the old one; kMixed: any
    // other mixture; kEmpty: no value carries either.
    enum class State { kUnreadable, kOld, kNew, kPartWay, kMixed, kEmpty };

    // A file that could not be read or parsed at all.
    static CrashVerdict Unreadable();
    // Readings in the order the writer writes the values.
    static CrashVerdict Judge(const std::vector<Reading>& readings, uint32_t old, WriteUnit unit);

    State GetState() const { return m_state; }
    int Missing() const { return m_missing; }
    int Damaged() const { return m_damaged; }

    // Neither torn nor lost: every value whole and present, and the set as a
    // whole as some sequence of complete writes can leave it.
    bool Sound() const;
    // "<state> missing <n> damaged <n>", the line the trial script reads.
    std::string Line() const;

private:
    static State StateOf(const std::vector<Reading>& readings, uint32_t old, WriteUnit unit);

    State m_state = State::kUnreadable;
    int m_missing = 0;
    int m_damaged = 0;
};

}  // namespace crash
