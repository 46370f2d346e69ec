#pragma once

// The values of one store file, as texts to compare and to show: what a
// policy changed, or would change. Enciphered values are kept only as a
// digest of their clear text: a snapshot never holds a secret.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct SnapshotValue {
    std::string text;  // dword:0000000a, "text", record=0,1,"path"; ...
    bool secret = false;

    bool operator==(const SnapshotValue&) const = default;
};

class StoreSnapshot {
public:
    using Address = std::pair<uint32_t, uint32_t>;  // section, key

    // Reads the store file at path (a missing file is empty). The store's
    // own reads are pointed at the file for the moment and then at
    // restorePath, the file the session works on ("" for the live store).
    static StoreSnapshot Read(const std::string& path, const std::string& restorePath);

    const std::map<Address, SnapshotValue>& Values() const { return m_values; }
    const SnapshotValue* Find(uint32_t section, uint32_t key) const;

private:
    std::map<Address, SnapshotValue> m_values;
};

// One value that differs between two snapshots of a file; nullopt where the
// value is absent.
struct ValueChange {
    std::string file;
    uint32_t section = 0;
    uint32_t key = 0;
    std::optional<SnapshotValue> before;
    std::optional<SnapshotValue> after;

    bool IsSecret() const { return (before && before->secret) || (after && after->secret); }
    bool operator==(const ValueChange&) const = default;
};

// The values of file that differ from before to after, in section and key
// order.
std::vector<ValueChange> CompareSnapshots(const std::string& file, const StoreSnapshot& before,
                                          const StoreSnapshot& after);

// The text of a dword value as snapshots show it.
std::string DwordText(uint32_t value);
