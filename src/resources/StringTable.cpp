#include "resources/StringTable.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

namespace {

struct StringEntry {
    uint32_t id;
    const char* text;
};

// Sorted by id.
constexpr StringEntry kStrings[] = {
    {900, QT_TRANSLATE_NOOP("StringTable", "Configuration Error")},
    {901, QT_TRANSLATE_NOOP("StringTable", "Information")},
    {902, QT_TRANSLATE_NOOP("StringTable", "Warning")},
    {903, QT_TRANSLATE_NOOP("StringTable", "Error")},
    {1000, QT_TRANSLATE_NOOP("StringTable", "Please enter the values between %s ~ %s.")},
    {1021, QT_TRANSLATE_NOOP("StringTable",
                             "Sorry, you are not authorized to execute this task. (%d)\nPlease ask "
                             "the administrator for more details.")},
    {1023, QT_TRANSLATE_NOOP("StringTable", "A new virus has been detected.")},
    {1024, QT_TRANSLATE_NOOP("StringTable", "Infected by viruses.")},
    {1025, QT_TRANSLATE_NOOP("StringTable", "Failed to initialize the Self Scan.")},
    {1026, QT_TRANSLATE_NOOP("StringTable", "Unable to execute.")},
    {57344, QT_TRANSLATE_NOOP("StringTable", "Configuration")},
    {57353, QT_TRANSLATE_NOOP("StringTable", "Warning")},
    {57354, QT_TRANSLATE_NOOP("StringTable",
                              "The number of words exceeds allowable length.\nPlease enter less "
                              "than %d words.")},
};

static_assert(std::is_sorted(std::begin(kStrings), std::end(kStrings),
                             [](const StringEntry& a, const StringEntry& b) { return a.id < b.id; }),
              "the string table must stay sorted by id");

const StringEntry* Find(uint32_t id) {
    const auto* it = std::lower_bound(std::begin(kStrings), std::end(kStrings), id,
                                      [](const StringEntry& e, uint32_t key) { return e.id < key; });
    return (it != std::end(kStrings) && it->id == id) ? it : nullptr;
}

}  // namespace

std::string LoadString(uint32_t id) {
    const StringEntry* entry = Find(id);
    if (!entry) return {};
    return QCoreApplication::translate("StringTable", entry->text).toStdString();
}

bool HasString(uint32_t id) { return Find(id) != nullptr; }
