#include "helpers/crash/CrashVerdict.h"

namespace crash {
namespace {

const char* NameOf(CrashVerdict::State state) {
    switch (state) {
        case CrashVerdict::State::kUnreadable: return "unreadable";
        case CrashVerdict::State::kOld: return "old";
        case CrashVerdict::State::kNew: return "new";
        case CrashVerdict::State::kPartWay: return "part-way";
        case CrashVerdict::State::kMixed: return "mixed";
        case CrashVerdict::State::kEmpty: return "empty";
    }
    return "unknown";
}

}  // namespace

CrashVerdict CrashVerdict::Unreadable() { return CrashVerdict(); }

CrashVerdict CrashVerdict::Judge(const std::vector<Reading>& readings, uint32_t old,
                                 WriteUnit unit) {
    CrashVerdict verdict;
    for (const Reading& reading : readings) {
        if (reading.kind == Reading::Kind::kMissing) ++verdict.m_missing;
        const bool foreign = reading.kind == Reading::Kind::kCarried && reading.generation != old &&
                             reading.generation != old + 1;
        if (reading.kind == Reading::Kind::kDamaged || foreign) ++verdict.m_damaged;
    }
    verdict.m_state = StateOf(readings, old, unit);
    return verdict;
}

// Only the values that carry one of the two generations decide; missing and
// damaged ones are counted apart.
CrashVerdict::State CrashVerdict::StateOf(const std::vector<Reading>& readings, uint32_t old,
                                          WriteUnit unit) {
    std::vector<bool> isNew;
    for (const Reading& reading : readings) {
        const bool carried = reading.kind == Reading::Kind::kCarried;
        if (carried && reading.generation == old + 1) isNew.push_back(true);
        if (carried && reading.generation == old) isNew.push_back(false);
    }
    if (isNew.empty()) return State::kEmpty;
    size_t newValues = 0;
    while (newValues < isNew.size() && isNew[newValues]) ++newValues;
    for (size_t i = newValues; i < isNew.size(); ++i) {
        if (isNew[i]) return State::kMixed;
    }
    if (newValues == isNew.size()) return State::kNew;
    if (newValues == 0) return State::kOld;
    // New values before old ones: complete writes of single values in order.
    return unit == WriteUnit::kEachValue ? State::kPartWay : State::kMixed;
}

bool CrashVerdict::Sound() const {
    const bool whole =
        m_state == State::kOld || m_state == State::kNew || m_state == State::kPartWay;
    return whole && m_missing == 0 && m_damaged == 0;
}

std::string CrashVerdict::Line() const {
    return std::string(NameOf(m_state)) + " missing " + std::to_string(m_missing) + " damaged " +
           std::to_string(m_damaged);
}

}  // namespace crash
