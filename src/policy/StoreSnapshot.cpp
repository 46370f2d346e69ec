#include "policy/StoreSnapshot.h"

#include <QCryptographicHash>
#include <cstdio>

#include "Q9CfgE.h"
#include "options/StoreAccess.h"

namespace {

// The file's addresses with their types, listed through a handle of its own.
std::vector<std::pair<StoreSnapshot::Address, uint32_t>> TypedAddresses(const std::string& path) {
    std::vector<std::pair<StoreSnapshot::Address, uint32_t>> addresses;
    const Q9CfgEHandle file = Q9CfgE_Create(Q9CFGE_STYLE_FILE, path.c_str(), 0);
    if (!file) return addresses;
    for (uint16_t i = 0; i < UINT16_MAX; ++i) {
        const uint32_t section = Q9CfgE_Enum(file, 0, i);
        if (section == 0) break;
        for (uint16_t j = 0; j < UINT16_MAX; ++j) {
            const uint32_t key = Q9CfgE_Enum(file, section, j);
            if (key == 0) break;
            uint32_t type = 0;
            Q9CfgE_GetStr(file, section, key, &type);
            addresses.push_back({{section, key}, type});
        }
    }
    Q9CfgE_Close(file);
    return addresses;
}

std::string QuotedText(const std::string& text) { return "\"" + text + "\""; }

std::string RecordsText(uint32_t section) {
    std::string text;
    for (const ObjectRecord& record : ReadObjectList(section)) {
        if (!text.empty()) text += "; ";
        text += "record=" + std::to_string(record.kind) + ",1," + QuotedText(record.text);
    }
    return text;
}

std::string SecretDigest(uint32_t section, uint32_t key) {
    const std::string clear = ReadEncText(section, key);
    return QCryptographicHash::hash(QByteArray::fromStdString(clear),
                                    QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

// The value of the store's present file at an address of the given type.
SnapshotValue ReadValue(uint32_t section, uint32_t key, uint32_t type) {
    switch (type) {
        case Q9CFGE_TYPE_DWORD: return {DwordText(Q9CfgE_GetDWEx(section, key)), false};
        case Q9CFGE_TYPE_TEXT: return {QuotedText(StoreText(Q9CfgE_GetStrEx(section, key))), false};
        case Q9CFGE_TYPE_SEALED: return {SecretDigest(section, key), true};
        case Q9CFGE_TYPE_OBJECT_LIST: return {RecordsText(section), false};
        default: return {"type " + std::to_string(type), false};
    }
}

}  // namespace

std::string DwordText(uint32_t value) {
    char text[24];
    std::snprintf(text, sizeof text, "dword:%08x", value);
    return text;
}

StoreSnapshot StoreSnapshot::Read(const std::string& path, const std::string& restorePath) {
    StoreSnapshot snapshot;
    const auto addresses = TypedAddresses(path);
    if (addresses.empty()) return snapshot;
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, path.c_str(), Q9CFGE_MODE_PLAIN);
    for (const auto& [address, type] : addresses) {
        snapshot.m_values[address] = ReadValue(address.first, address.second, type);
    }
    Q9CfgE_SetStyleEx(Q9CFGE_STYLE_FILE, restorePath.c_str(), Q9CFGE_MODE_PLAIN);
    return snapshot;
}

const SnapshotValue* StoreSnapshot::Find(uint32_t section, uint32_t key) const {
    const auto found = m_values.find({section, key});
    return found == m_values.end() ? nullptr : &found->second;
}

std::vector<ValueChange> CompareSnapshots(const std::string& file, const StoreSnapshot& before,
                                          const StoreSnapshot& after) {
    std::map<StoreSnapshot::Address, ValueChange> changes;
    for (const auto& [address, value] : before.Values()) {
        const SnapshotValue* now = after.Find(address.first, address.second);
        if (now && *now == value) continue;
        changes[address] = {file, address.first, address.second, value,
                            now ? std::optional<SnapshotValue>(*now) : std::nullopt};
    }
    for (const auto& [address, value] : after.Values()) {
        if (before.Find(address.first, address.second)) continue;
        changes[address] = {file, address.first, address.second, std::nullopt, value};
    }
    std::vector<ValueChange> list;
    for (auto& [address, change] : changes) list.push_back(std::move(change));
    return list;
}
