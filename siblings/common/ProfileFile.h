#pragma once

// The sectioned text profile that every small settings and state file of the
// reference libraries uses:
//
//   ; comment lines start with ';' or '#'
//   Key=Value              values before the first [Section] belong to the
//   [Section]              unnamed section, named "" here
//   Other Key = value text blanks around name and value are trimmed
//
// Names of sections and keys compare ignoring ASCII case and keep the case
// they were written with; order is kept, and so are comments, blank lines
// and the exact text of every line that a change does not touch. A section
// that appears twice continues the first one.
//
// A file with a line that is none of the above (no '=', an unterminated '[')
// is unparseable: it is reported once, reads as empty and is never written,
// so that a hand edit gone wrong is not overwritten. A missing file reads as
// empty and is created by the first write.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sibling {

class ProfileFile {
public:
    // Reads the file at path (see above for missing and unparseable files).
    static ProfileFile Load(const std::string& path);

    // The one way to change a file: holds "<path>.lock", reads the file
    // afresh, lets change alter it, and replaces the file atomically when the
    // text differs from what was read. change answers false to give up, and
    // nothing is written. False when the file is unparseable or unreadable,
    // change gave up, or the lock or the write failed (reported).
    static bool Update(const std::string& path, const std::function<bool(ProfileFile&)>& change);

    // False when the file could not be parsed or read: it then reads as
    // empty, refuses every change and is never written.
    bool IsIntact() const { return m_intact; }

    std::optional<std::string> Get(std::string_view section, std::string_view key) const;

    // The value as a 32-bit integer: decimal from -2147483648 to 4294967295
    // (values above 2147483647 give the same 32-bit pattern, so 4294967295 is
    // -1), or "0x" and one to eight hex digits. nullopt when absent or not a
    // number.
    std::optional<int32_t> GetInt(std::string_view section, std::string_view key) const;

    // Sets the value, adding the key (after the section's last key) or the
    // section (at the end) when missing. Blanks around the value are not
    // kept. False, and nothing changes, for a name or value holding a line
    // end, a key that is empty, holds '=' or begins with ';', '#' or '[', a
    // name with blanks around it, or an unparseable file.
    bool Set(std::string_view section, std::string_view key, std::string_view value);

    // Removes every line of the key. True when there was one.
    bool Remove(std::string_view section, std::string_view key);

    // The named sections in file order (the unnamed one is not listed).
    std::vector<std::string> Sections() const;

    // The keys of a section in file order, each once.
    std::vector<std::string> Keys(std::string_view section) const;

    // The file's text as it would be written.
    std::string Text() const;

private:
    struct Line {
        std::string text;  // the line as it stands in the file, without its '\n'
        bool isEntry = false;
        std::string key;    // of an entry, trimmed
        std::string value;  // of an entry, trimmed
    };

    struct Section {
        std::string name;    // empty for the unnamed section
        std::string header;  // the header line as written; empty for the unnamed section
        std::vector<Line> lines;
    };

    ProfileFile();

    // Fills the object from text; on a bad line returns its 1-based number.
    std::optional<std::size_t> Parse(const std::string& text);
    void MakeEmpty();

    const Section* FindSection(std::string_view name) const;
    Section* FindSection(std::string_view name);
    Section& SectionForWriting(std::string_view name);

    std::vector<Section> m_sections;  // m_sections[0] is the unnamed section
    bool m_intact = true;
};

}  // namespace sibling
