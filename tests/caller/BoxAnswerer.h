#pragma once

// Records each message box the library shows and presses its default button,
// as a person at the screen would.

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <vector>

struct Box {
    QString title;
    QString text;
};

// Records each box the library shows and presses its OK button.
class BoxAnswerer {
public:
    BoxAnswerer() {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                boxes.push_back({box->windowTitle(), box->text()});
                box->defaultButton() ? box->defaultButton()->click() : box->buttons().front()->click();
            }
        });
        m_timer.start(10);
    }
    std::vector<Box> boxes;

private:
    QTimer m_timer;
};

