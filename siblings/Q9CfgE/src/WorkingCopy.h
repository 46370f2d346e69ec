#pragma once

// The values of a store file as a session changes them, with the record of
// what changed (ChangeSet). Used for edit mode and for files opened apart.
//
// The copy is made on the first change, not on loading: a session that only
// reads costs nothing. A commit writes the working copy itself when the file
// is still the one it was loaded from; otherwise it applies the changes to
// the file's fresh content.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "ChangeSet.h"
#include "StoreData.h"
#include "StoreFile.h"

namespace cfge {

class WorkingCopy {
public:
    WorkingCopy();

    // Starts over from base with no changes.
    void Reset(std::shared_ptr<const StoreData> base);
    // Every value and object list that level holds replaces the one in the
    // working copy, as if each had been set; everything level does not hold
    // (the user's password, exclusions, scheduled scans) stays as it is.
    void LoadLevel(const StoreData& level);

    const StoreData& Values() const { return *m_values; }
    bool HasChanges() const { return !m_changes.Empty(); }

    // Applies change to the values and, when it succeeded, lets note record it.
    bool Change(const StoreFile::Change& change, const std::function<void(ChangeSet&)>& note);

    // Commits the changes of one section (or of all) to file; they are
    // forgotten on success and kept on failure.
    bool Commit(StoreFile& file, std::optional<uint32_t> section);

private:
    StoreData& Mutable();

    std::shared_ptr<const StoreData> m_base;    // the file content loaded
    std::shared_ptr<const StoreData> m_values;  // the working values
    std::shared_ptr<StoreData> m_owned;         // m_values when it is ours to change
    ChangeSet m_changes;
};

}  // namespace cfge
