#pragma once

// The small modal prompt for the product's password: a label, a password
// field, OK and Cancel. A wrong password shows a short note and clears the
// field; the third wrong one closes the prompt as rejected.

#include <QDialog>
#include <functional>

class QLabel;
class QLineEdit;

namespace cfge {

class PasswordPrompt : public QDialog {
public:
    static constexpr int kTries = 3;

    // Answers whether the typed password is right.
    using Checker = std::function<bool(const QString& typed)>;

    PasswordPrompt(QWidget* parent, const QString& caption, Checker checker);

private:
    void TryPassword();

    Checker m_checker;
    QLineEdit* m_password;
    QLabel* m_note;
    int m_wrongTries = 0;
};

}  // namespace cfge
