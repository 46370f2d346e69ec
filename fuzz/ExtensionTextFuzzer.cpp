// The customized file types a person types or a policy file brings
// ("exe/dll/doc"). The checks answer without fault; a text that passes
// normalises to a text that passes, and normalising it again changes
// nothing; a message belongs to every problem and to no passing text.

#include <cstddef>
#include <cstdint>
#include <string>

#include "options/ExtensionText.h"
#include "support/FuzzCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(fuzz::AsText(data, size));
    const ExtensionTextProblem problem = CheckExtensionText(text);
    fuzz::Check((ExtensionTextMessageId(problem) == 0) == (problem == ExtensionTextProblem::None),
                "a message for every problem and none without");
    const std::string normalized = NormalizeExtensionText(text);
    fuzz::Check(normalized.size() <= text.size(), "normalising does not lengthen a text");
    if (problem != ExtensionTextProblem::None) return 0;
    fuzz::Check(CheckExtensionText(normalized) == ExtensionTextProblem::None,
                "a passing text normalises to a passing text");
    fuzz::Check(NormalizeExtensionText(normalized) == normalized, "normalising is done once");
    return 0;
}
