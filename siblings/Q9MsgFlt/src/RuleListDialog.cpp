#include "RuleListDialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

#include "RuleEditDialog.h"
#include "RuleLabels.h"

namespace q9msgflt {

RuleListDialog::RuleListDialog(std::vector<SpamRule> rules, QWidget* parent)
    : QDialog(parent), m_rules(std::move(rules)) {
    setWindowTitle(QStringLiteral("Spam Mail Prevention Rules"));
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("ruleList"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Looks at"),
                             QStringLiteral("Words"), QStringLiteral("Action"),
                             QStringLiteral("On")});
    auto* add = new QPushButton(QStringLiteral("&Add..."), this);
    add->setObjectName(QStringLiteral("addButton"));
    m_edit = new QPushButton(QStringLiteral("&Edit..."), this);
    m_edit->setObjectName(QStringLiteral("editButton"));
    m_delete = new QPushButton(QStringLiteral("&Delete"), this);
    m_delete->setObjectName(QStringLiteral("deleteButton"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));

    connect(add, &QPushButton::clicked, this, [this] { AddRule(); });
    connect(m_edit, &QPushButton::clicked, this, [this] { EditRule(); });
    connect(m_delete, &QPushButton::clicked, this, [this] { DeleteRule(); });
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this] { EditRule(); });
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, [this] { UpdateButtons(); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });

    auto* side = new QVBoxLayout;
    side->addWidget(add);
    side->addWidget(m_edit);
    side->addWidget(m_delete);
    side->addStretch();
    auto* middle = new QHBoxLayout;
    middle->addWidget(m_list);
    middle->addLayout(side);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(middle);
    layout->addWidget(buttons);
    resize(640, 320);
    Refill(0);
}

void RuleListDialog::AddRule() {
    RuleEditDialog edit(SpamRule{}, NamesExcept(-1), this);
    if (edit.exec() != QDialog::Accepted) return;
    m_rules.push_back(edit.Rule());
    Refill(static_cast<int>(m_rules.size()) - 1);
}

void RuleListDialog::EditRule() {
    const int row = SelectedRow();
    if (row < 0) return;
    RuleEditDialog edit(m_rules[static_cast<std::size_t>(row)], NamesExcept(row), this);
    if (edit.exec() != QDialog::Accepted) return;
    m_rules[static_cast<std::size_t>(row)] = edit.Rule();
    Refill(row);
}

void RuleListDialog::DeleteRule() {
    const int row = SelectedRow();
    if (row < 0) return;
    m_rules.erase(m_rules.begin() + row);
    Refill(row < static_cast<int>(m_rules.size()) ? row : row - 1);
}

void RuleListDialog::Refill(int row) {
    m_list->clear();
    for (const SpamRule& rule : m_rules) {
        new QTreeWidgetItem(
            m_list, {rule.name, RuleLabels::Of(rule.field), rule.words.join(QLatin1String(", ")),
                     RuleLabels::Of(rule.action),
                     rule.enabled ? QStringLiteral("Yes") : QStringLiteral("No")});
    }
    if (QTreeWidgetItem* item = m_list->topLevelItem(row)) m_list->setCurrentItem(item);
    UpdateButtons();
}

void RuleListDialog::UpdateButtons() {
    const bool selected = SelectedRow() >= 0;
    m_edit->setEnabled(selected);
    m_delete->setEnabled(selected);
}

int RuleListDialog::SelectedRow() const {
    const auto items = m_list->selectedItems();
    return items.isEmpty() ? -1 : m_list->indexOfTopLevelItem(items.front());
}

QStringList RuleListDialog::NamesExcept(int row) const {
    QStringList names;
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        if (static_cast<int>(i) != row) names << m_rules[i].name;
    }
    return names;
}

}  // namespace q9msgflt
