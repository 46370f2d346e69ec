#pragma once

// Acts as a person at the screen on the first dialog a call opens (not a
// message box, nor the store's password prompt): runs the given steps on it
// once, then stops.

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <functional>

class DialogDriver {
public:
    explicit DialogDriver(std::function<void(QDialog*)> steps) : m_steps(std::move(steps)) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || qobject_cast<QMessageBox*>(dialog) || m_done) return;
            if (dialog->findChild<QLineEdit*>("password") != nullptr) return;
            m_done = true;
            m_steps(dialog);
        });
        m_timer.start(10);
    }
    bool Done() const { return m_done; }

    // The control with the id anywhere under dialog (pages are children of
    // the dialog), or null.
    template <typename Control>
    static Control* Find(QDialog* dialog, int id) {
        for (Control* control : dialog->findChildren<Control*>()) {
            if (control->property("controlId").toInt() == id) return control;
        }
        return nullptr;
    }

private:
    std::function<void(QDialog*)> m_steps;
    QTimer m_timer;
    bool m_done = false;
};
