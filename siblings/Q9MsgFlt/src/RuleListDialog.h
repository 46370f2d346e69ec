#pragma once

#include <QDialog>
#include <vector>

#include "SpamRule.h"

class QPushButton;
class QTreeWidget;

namespace q9msgflt {

// The rule editor's main window: the rules in a list, with Add, Edit and
// Delete working on a copy that Rules() hands back; OK and Cancel close it.
class RuleListDialog : public QDialog {
public:
    RuleListDialog(std::vector<SpamRule> rules, QWidget* parent);

    const std::vector<SpamRule>& Rules() const { return m_rules; }

private:
    void AddRule();
    void EditRule();
    void DeleteRule();
    // Fills the list again and selects row (none when out of range).
    void Refill(int row);
    void UpdateButtons();
    int SelectedRow() const;
    // Names of all rules except the one at row.
    QStringList NamesExcept(int row) const;

    std::vector<SpamRule> m_rules;
    QTreeWidget* m_list = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
};

}  // namespace q9msgflt
