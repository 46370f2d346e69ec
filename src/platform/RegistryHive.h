#pragma once

// One registry hive in memory: a tree of keys below a root, each key with
// typed values, and the conversion from and to the hive's text file (the
// ".reg" text format, described in docs/registry.md).
//
// Names compare without regard to ASCII case and keep the case they were
// created with. Subkeys are kept sorted by name ignoring case (letters folded
// to upper case, then byte order), values in the order they were created.
// Value data are raw bytes; a string value includes its terminating 0.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class RegistryHive {
public:
    struct Value {
        std::string name;  // empty: the key's default value
        uint32_t type = 0;
        std::string data;  // the bytes exactly as set
    };

    struct Key {
        std::string name;
        std::vector<Value> values;  // in creation order
        std::vector<Key> subkeys;   // sorted by name ignoring case

        const Value* FindValue(std::string_view valueName) const;
        // Replaces the data of an existing value in place, else appends one.
        void SetValue(std::string_view valueName, uint32_t type, std::string data);
        bool DeleteValue(std::string_view valueName);

        const Key* FindSubkey(std::string_view keyName) const;
        Key* FindSubkey(std::string_view keyName);
        // The existing subkey of that name, else a new one in sorted place.
        Key& AddSubkey(std::string_view keyName, bool* created);
        bool DeleteSubkey(std::string_view keyName);
    };

    // Names of the keys from below the root down to a key.
    using KeyPath = std::vector<std::string>;

    struct ParseError {
        int line = 0;  // 1-based
        std::string message;
    };

    static constexpr std::string_view kFileHeader = "Windows Registry Editor Version 5.00";

    explicit RegistryHive(std::string rootName);

    const std::string& RootName() const { return m_rootName; }
    const Key& Root() const { return m_root; }
    Key& Root() { return m_root; }

    // The key at path, or null. With canonical not null, it receives the
    // names as stored (their original case).
    const Key* FindKey(const KeyPath& path, KeyPath* canonical = nullptr) const;
    Key* FindKey(const KeyPath& path);

    // The key at path, created with its missing parents when needed.
    // *created tells whether anything was created.
    Key& CreateKey(const KeyPath& path, bool* created, KeyPath* canonical = nullptr);

    // Removes the key at path with everything below it. False when it does
    // not exist or path is the root.
    bool RemoveKey(const KeyPath& path);

    // Replaces the content with the hive text. On failure the hive is left
    // empty and *error tells the first problem.
    bool Parse(std::string_view text, ParseError* error);

    // The hive text: header, then one section per key (the root only when
    // it has values), parents before children, line ends LF.
    std::string ToText() const;

    // Splits "a\b\\c\" into {"a", "b", "c"}: empty parts are dropped.
    static KeyPath SplitPath(std::string_view path);
    static std::string JoinPath(const KeyPath& path);

    static bool NamesEqual(std::string_view a, std::string_view b);
    // Negative, 0 or positive, as the names sort ignoring case.
    static int CompareNames(std::string_view a, std::string_view b);

private:
    std::string m_rootName;
    Key m_root;
};

}  // namespace platform
