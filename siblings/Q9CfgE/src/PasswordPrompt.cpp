#include "PasswordPrompt.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace cfge {

PasswordPrompt::PasswordPrompt(QWidget* parent, const QString& caption, Checker checker)
    : QDialog(parent), m_checker(std::move(checker)) {
    setWindowTitle(caption);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Enter the product password:"), this));
    m_password = new QLineEdit(this);
    m_password->setObjectName(QStringLiteral("password"));
    m_password->setEchoMode(QLineEdit::Password);
    layout->addWidget(m_password);
    m_note = new QLabel(QStringLiteral("The password is incorrect."), this);
    m_note->setObjectName(QStringLiteral("note"));
    m_note->hide();
    layout->addWidget(m_note);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { TryPassword(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void PasswordPrompt::TryPassword() {
    const bool right = m_checker(m_password->text());
    m_password->clear();
    if (right) {
        accept();
        return;
    }
    if (++m_wrongTries >= kTries) {
        reject();
        return;
    }
    m_note->show();
    m_password->setFocus();
}

}  // namespace cfge
