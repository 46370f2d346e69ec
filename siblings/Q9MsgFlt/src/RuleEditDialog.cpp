#include "RuleEditDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QVBoxLayout>
#include <utility>

#include "RuleLabels.h"

namespace q9msgflt {

RuleEditDialog::RuleEditDialog(const SpamRule& rule, QStringList otherNames, QWidget* parent)
    : QDialog(parent), m_otherNames(std::move(otherNames)) {
    setWindowTitle(QStringLiteral("Spam Mail Rule"));
    m_name = new QLineEdit(rule.name, this);
    m_name->setObjectName(QStringLiteral("nameEdit"));
    m_field = new QComboBox(this);
    m_field->setObjectName(QStringLiteral("fieldCombo"));
    for (const MailField field : RuleLabels::kFields)
        m_field->addItem(RuleLabels::Of(field), static_cast<int>(field));
    m_field->setCurrentIndex(m_field->findData(static_cast<int>(rule.field)));
    m_words = new QLineEdit(rule.words.join(QLatin1String(", ")), this);
    m_words->setObjectName(QStringLiteral("wordsEdit"));
    m_words->setPlaceholderText(QStringLiteral("Separate several words with commas"));
    m_action = new QComboBox(this);
    m_action->setObjectName(QStringLiteral("actionCombo"));
    for (const RuleAction action : RuleLabels::kActions)
        m_action->addItem(RuleLabels::Of(action), static_cast<int>(action));
    m_action->setCurrentIndex(m_action->findData(static_cast<int>(rule.action)));
    m_enabled = new QCheckBox(QStringLiteral("Use this rule"), this);
    m_enabled->setObjectName(QStringLiteral("enabledCheck"));
    m_enabled->setChecked(rule.enabled);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Name:"), m_name);
    form->addRow(QStringLiteral("&Looks at:"), m_field);
    form->addRow(QStringLiteral("&Words:"), m_words);
    form->addRow(QStringLiteral("&Action:"), m_action);
    form->addRow(QString(), m_enabled);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

SpamRule RuleEditDialog::Rule() const {
    SpamRule rule;
    rule.name = m_name->text().trimmed();
    rule.field = static_cast<MailField>(m_field->currentData().toInt());
    rule.words = SpamRule::WordsOf(m_words->text());
    rule.action = static_cast<RuleAction>(m_action->currentData().toInt());
    rule.enabled = m_enabled->isChecked();
    return rule;
}

void RuleEditDialog::accept() {
    QWidget* field = nullptr;
    const QString problem = Problem(&field);
    if (problem.isEmpty()) {
        QDialog::accept();
        return;
    }
    QMessageBox::warning(this, windowTitle(), problem);
    field->setFocus();
}

QString RuleEditDialog::Problem(QWidget** field) const {
    const SpamRule rule = Rule();
    *field = m_name;
    if (rule.name.isEmpty()) return QStringLiteral("Please give the rule a name.");
    if (m_otherNames.contains(rule.name, Qt::CaseInsensitive))
        return QStringLiteral("Another rule is already named \"%1\". Please choose another name.")
            .arg(rule.name);
    *field = m_words;
    if (rule.words.isEmpty())
        return QStringLiteral(
            "Please enter at least one word for the rule to look for. Separate several words "
            "with commas.");
    return {};
}

}  // namespace q9msgflt
