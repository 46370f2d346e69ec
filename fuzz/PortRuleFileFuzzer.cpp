// The port rules a caller hands to the library for the blocking component:
// a pointer to 52-byte records and their count, written to OBRuleU.dat. The
// records are the input's whole 52-byte records; the file holds exactly
// those bytes afterwards.

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/AtomicFile.h"
#include "portblock/RuleFile.h"
#include "support/FuzzCheck.h"
#include "support/ScratchDirectory.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const CRuleFile rules(fuzz::ScratchDirectory::Path());
    const size_t count = size / CRuleFile::kRecordSize;
    fuzz::Check(rules.WriteUserRules(data, static_cast<int32_t>(count)) == 1,
                "the rules are written");
    std::string written;
    fuzz::Check(platform::ReadWholeFile(fuzz::ScratchDirectory::Path() + CRuleFile::kUserRules,
                                        &written) == 0,
                "the rule file can be read");
    fuzz::Check(written == fuzz::AsText(data, count * CRuleFile::kRecordSize),
                "the rule file holds exactly the records");
    return 0;
}
