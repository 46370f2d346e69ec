#pragma once

#include <optional>
#include <vector>

#include "SpamRule.h"

namespace q9msgflt {

// Runs the modal rule editor on a copy of rules.
class RuleEditor {
public:
    // The edited rules when the user pressed OK; null on Cancel, and when no
    // editor can be shown here: the process has a QCoreApplication that is
    // not a QApplication, or the caller is not on its thread. A process
    // without any application gets a QApplication for the editor's duration.
    static std::optional<std::vector<SpamRule>> Run(const std::vector<SpamRule>& rules);
};

}  // namespace q9msgflt
