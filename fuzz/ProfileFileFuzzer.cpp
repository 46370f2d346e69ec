// A sectioned profile file of the reference libraries (Q9Sec.dat, Q9WM.dat,
// Q9P3Accounts.ini, Q9IMcfg.ini, ...), read from a file whose content is the
// input. A file that cannot be parsed reads as empty and refuses changes. A
// file that can be parsed, written out and read again, gives the same text,
// sections, keys and values; so does it after a value is set, which is read
// back as set.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "common/ProfileFile.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

namespace {

using sibling::ProfileFile;

void CheckSameContent(const ProfileFile& a, const ProfileFile& b) {
    fuzz::Check(a.Sections() == b.Sections(), "the same sections");
    std::vector<std::string> sections = a.Sections();
    sections.insert(sections.begin(), "");
    for (const std::string& section : sections) {
        fuzz::Check(a.Keys(section) == b.Keys(section), "the same keys");
        for (const std::string& key : a.Keys(section)) {
            fuzz::Check(a.Get(section, key) == b.Get(section, key), "the same values");
            fuzz::Check(a.GetInt(section, key) == b.GetInt(section, key), "the same numbers");
        }
    }
}

void CheckChange(ProfileFile profile) {
    // The last section, unless its name holds a line end, which Set refuses.
    const std::vector<std::string> sections = profile.Sections();
    const bool lastIsWritable =
        !sections.empty() && sections.back().find_first_of("\r\n") == std::string::npos;
    const std::string section = lastIsWritable ? sections.back() : "Fuzz";
    fuzz::Check(profile.Set(section, "FuzzKey", "-2147483648"), "a plain value can be set");
    fuzz::Check(profile.GetInt(section, "FuzzKey") == INT32_MIN, "a value set is read back");
    const std::string path = fuzz::ScratchDirectory::Write("changed.ini", profile.Text());
    const ProfileFile reread = ProfileFile::Load(path);
    fuzz::Check(reread.IsIntact() && reread.Text() == profile.Text(),
                "a changed file reads back the same");
    CheckSameContent(profile, reread);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string path = fuzz::ScratchDirectory::Write("profile.ini", fuzz::AsText(data, size));
    ProfileFile profile = ProfileFile::Load(path);
    if (!profile.IsIntact()) {
        fuzz::Check(profile.Sections().empty() && profile.Text().empty(),
                    "a file that cannot be parsed reads as empty");
        fuzz::Check(!profile.Set("Fuzz", "Key", "1"),
                    "a file that cannot be parsed refuses changes");
        return 0;
    }
    const std::string text = profile.Text();
    const std::string written = fuzz::ScratchDirectory::Write("written.ini", text);
    const ProfileFile again = ProfileFile::Load(written);
    fuzz::Check(again.IsIntact() && again.Text() == text, "the written text reads back the same");
    CheckSameContent(profile, again);
    CheckChange(profile);
    return 0;
}
