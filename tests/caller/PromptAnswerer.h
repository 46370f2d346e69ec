#pragma once

// Answers each password prompt the library shows, as a person would: types
// the password and presses OK, or presses Cancel when there is none. seen is
// called first, while the prompt is open.

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>

class PromptAnswerer {
public:
    PromptAnswerer(const char* password, std::function<void()> seen)
        : m_password(password), m_seen(std::move(seen)) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { Answer(); });
        m_timer.start(10);
    }

private:
    void Answer() {
        auto* prompt = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* field = prompt ? prompt->findChild<QLineEdit*>("password") : nullptr;
        if (!field) return;
        m_seen();
        auto* buttons = prompt->findChild<QDialogButtonBox*>();
        if (!m_password) {
            buttons->button(QDialogButtonBox::Cancel)->click();
            return;
        }
        field->setText(m_password);
        buttons->button(QDialogButtonBox::Ok)->click();
    }

    const char* m_password;
    std::function<void()> m_seen;
    QTimer m_timer;
};
