#pragma once

// The rows of the exclusion list, without widgets: this product's folders,
// files and extensions, and other products' records, which are shown but
// are not the user's to delete. Rows are kept sorted by their text, ignoring
// case. A row's flags are the zone's (kZone...); an extension row's text is
// "*.<extension>".

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "targets/ZoneRecords.h"

struct ExclusionRow {
    std::string text;
    uint32_t flags = 0;
    bool use = true;
    std::string owner;  // the owner tag of a zone record; empty for the user's rows

    bool operator==(const ExclusionRow&) const = default;
};

// What adding did: whether a row was added, and the message to show (a
// string id, 0 for none).
struct ExclusionAddition {
    bool added = false;
    uint32_t messageId = 0;
};

enum class ExclusionDeletion { kNone, kDeleted, kNotTheUsers };

class ExclusionList {
public:
    // The flags of rows the user added.
    static constexpr uint32_t kUserFolder = kZoneUser | kZoneFolder;
    static constexpr uint32_t kUserFile = kZoneUser | kZoneFile;
    static constexpr uint32_t kUserExtensions = kZoneUser | kZoneExtension;

    const std::vector<ExclusionRow>& Rows() const;
    bool Empty() const;

    // Adds a folder or file (flags with kZonePath), or the extensions of a
    // "/"-separated text (flags with kZoneExtension; empty elements are
    // skipped). Empty text says "nothing selected"; a path already listed
    // with the same flags, or any extension already listed, says "already
    // exists" (once, after the others were added).
    ExclusionAddition Add(const std::string& text, uint32_t flags, bool use);

    // Whether a row has this text (ignoring case) and exactly these flags.
    bool Contains(const std::string& text, uint32_t flags) const;

    // Deletes the row at index when it is the user's.
    ExclusionDeletion DeleteAt(std::size_t index);
    // Deletes every row of the user's that the product does not fix; true
    // when something went.
    bool DeleteAllOwn();

    // The user's folders and files as zone records, in row order.
    std::vector<ZoneRecord> Records() const;
    // The user's extensions without "*.", joined by "/".
    std::string ExtensionText() const;

    // Shows every row of the user's as in use, or not.
    void SetUse(bool use);
    // Replaces the rows: one per record (in use as the record says), then the
    // user's extensions of text, in use as use says.
    void Fill(const std::vector<ZoneRecord>& records, const std::string& extensions, bool use);

private:
    void Insert(ExclusionRow row);

    std::vector<ExclusionRow> m_rows;
};
