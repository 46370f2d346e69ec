// A policy file merged into a base store file, as a silent policy call
// merges it: the bytes are the policy file's content. The merge counts every
// value the policy holds (no section 0 and no key 0, which its walk cannot
// reach), each lands in the base with its type and content, every other
// value of the base stays, and a policy holding no value leaves the base
// file as it was, byte for byte.

#include <cstddef>
#include <cstdint>
#include <string>

#include "Q9CfgE.h"
#include "Q9CfgE/src/StoreParser.h"
#include "platform/AtomicFile.h"
#include "policy/PolicyMerge.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

namespace {

const std::string kBase =
    "Q9 Configuration Store 1\n"
    "[CES_Macro]\nCEK_MacroOptions=dword:00000001\n"
    "[CES_SystemScan]\nCEK_ScanExtensions=\"exe\"\nrecord=0,1,\"/srv\"\n"
    "[0x10000000]\nCEK_SchedCurDir=\"%Q9%\"\n";

bool SameValue(const cfge::StoreValue& a, const cfge::StoreValue& b) {
    return a.type == b.type && a.word == b.word && a.text == b.text;
}

bool SameRecords(const std::vector<cfge::StoreRecord>& a, const std::vector<cfge::StoreRecord>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].kind != b[i].kind || a[i].flag != b[i].flag || a[i].text != b[i].text)
            return false;
    }
    return true;
}

// The values the merge walk reaches: sections and keys other than 0, and
// object lists that have records.
int ReachableValues(const cfge::StoreData& policy) {
    int count = 0;
    for (const auto& [section, content] : policy.AllSections()) {
        if (section == 0) continue;
        for (const auto& [key, value] : content->values) count += key != 0 ? 1 : 0;
        count += content->records.empty() ? 0 : 1;
    }
    return count;
}

cfge::StoreData Parsed(const std::string& text) {
    cfge::StoreData data;
    cfge::ParseError error;
    fuzz::Check(cfge::StoreParser::Parse(text, &data, &error), "the base stays a store file");
    return data;
}

// Whether the base after the merge holds the policy's value (or list) at
// an address, and its own old one everywhere else.
void CheckMerged(const cfge::StoreData& policy, const cfge::StoreData& before,
                 const cfge::StoreData& after) {
    for (const auto& [section, content] : before.AllSections()) {
        for (const auto& [key, value] : content->values) {
            const cfge::StoreValue* merged = policy.Find(section, key);
            const bool fromPolicy = merged && section != 0 && key != 0;
            const cfge::StoreValue* now = after.Find(section, key);
            fuzz::Check(now && SameValue(*now, fromPolicy ? *merged : value),
                        "the base keeps its values unless the policy overwrites them");
        }
    }
    for (const auto& [section, content] : policy.AllSections()) {
        if (section == 0) continue;
        for (const auto& [key, value] : content->values) {
            if (key == 0) continue;
            const cfge::StoreValue* now = after.Find(section, key);
            fuzz::Check(now && SameValue(*now, value), "every policy value lands in the base");
        }
        if (!content->records.empty()) {
            fuzz::Check(SameRecords(after.Records(section), content->records),
                        "every policy list lands in the base");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes = fuzz::AsText(data, size);
    const std::string policyPath = fuzz::ScratchDirectory::Write("policy.dat", bytes);
    const std::string basePath = fuzz::ScratchDirectory::Write("base.dat", kBase);

    cfge::StoreData policy;
    cfge::ParseError error;
    const bool parses = cfge::StoreParser::Parse(bytes, &policy, &error);
    const int expected = parses ? ReachableValues(policy) : 0;

    const int merged = MergePolicyFile(basePath, policyPath);
    fuzz::Check(merged == expected, "the merge counts every value the policy holds");

    std::string after;
    fuzz::Check(platform::ReadWholeFile(basePath, &after) == 0, "the base can be read");
    if (expected == 0) {
        fuzz::Check(after == kBase, "a policy without values leaves the base as it was");
        return 0;
    }
    CheckMerged(policy, Parsed(kBase), Parsed(after));
    return 0;
}
