#pragma once

#include <QString>
#include <array>

#include "SpamRule.h"

namespace q9msgflt {

// How the editor names fields and actions, in the order it offers them.
class RuleLabels {
public:
    static constexpr std::array<MailField, 4> kFields = {MailField::Sender, MailField::Recipient,
                                                         MailField::Subject, MailField::Body};
    static constexpr std::array<RuleAction, 3> kActions = {
        RuleAction::MarkAsSpam, RuleAction::Delete, RuleAction::LetThrough};

    static QString Of(MailField field);
    static QString Of(RuleAction action);
};

}  // namespace q9msgflt
