#pragma once

#include <QDialog>
#include <QStringList>

#include "SpamRule.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace q9msgflt {

// Edits one rule. OK is refused, with a message saying why, while the rule
// has no name, a name another rule has (compared without regard to case),
// or no word.
class RuleEditDialog : public QDialog {
public:
    RuleEditDialog(const SpamRule& rule, QStringList otherNames, QWidget* parent);

    // The rule as the fields show it: name trimmed, words split at commas
    // and trimmed, empty words dropped.
    SpamRule Rule() const;

    void accept() override;

private:
    // The reason the rule cannot be taken, and the field to fix; empty when
    // it can.
    QString Problem(QWidget** field) const;

    QStringList m_otherNames;
    QLineEdit* m_name = nullptr;
    QComboBox* m_field = nullptr;
    QLineEdit* m_words = nullptr;
    QComboBox* m_action = nullptr;
    QCheckBox* m_enabled = nullptr;
};

}  // namespace q9msgflt
