#include "framework/DialogControls.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QVariant>
#include <QWidget>

#include "framework/NotifyingControl.h"

namespace ctl {

namespace {

constexpr const char* kIdProperty = "controlId";

QString ToQt(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

int IdOf(const QWidget* control) {
    if (!control) return kNoId;
    const QVariant id = control->property(kIdProperty);
    return id.isValid() ? id.toInt() : kNoId;
}

void SetId(QWidget* control, int id) { control->setProperty(kIdProperty, id); }

std::vector<QWidget*> Children(const QWidget* dialog) {
    std::vector<QWidget*> controls;
    for (QObject* child : dialog->children()) {
        if (child->isWidgetType()) controls.push_back(static_cast<QWidget*>(child));
    }
    return controls;
}

QWidget* Find(const QWidget* dialog, int id) {
    for (QObject* child : dialog->children()) {
        if (child->isWidgetType() && IdOf(static_cast<QWidget*>(child)) == id) {
            return static_cast<QWidget*>(child);
        }
    }
    return nullptr;
}

int GetCheck(const QWidget* dialog, int id) {
    const auto* button = qobject_cast<const QAbstractButton*>(Find(dialog, id));
    if (!button || !button->isCheckable()) return 0;
    if (const auto* box = qobject_cast<const QCheckBox*>(button)) {
        switch (box->checkState()) {
            case Qt::Checked: return 1;
            case Qt::PartiallyChecked: return 2;
            default: return 0;
        }
    }
    return button->isChecked() ? 1 : 0;
}

void SetCheck(QWidget* dialog, int id, int state) {
    auto* button = qobject_cast<QAbstractButton*>(Find(dialog, id));
    if (!button) return;
    if (auto* box = qobject_cast<QCheckBox*>(button)) {
        if (state == 2) box->setTristate(true);
        box->setCheckState(state == 2 ? Qt::PartiallyChecked : state ? Qt::Checked : Qt::Unchecked);
        return;
    }
    button->setChecked(state != 0);
}

std::string GetText(const QWidget* dialog, int id) {
    const QWidget* control = Find(dialog, id);
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->text().toStdString();
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text().toStdString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
        return button->text().toStdString();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
        return combo->currentText().toStdString();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(control)) {
        return group->title().toStdString();
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
        return text->toPlainText().toStdString();
    }
    return {};
}

void SetText(QWidget* dialog, int id, const std::string& text) {
    QWidget* control = Find(dialog, id);
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->setText(ToQt(text));
    } else if (auto* label = qobject_cast<QLabel*>(control)) {
        label->setText(ToQt(text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        button->setText(ToQt(text));
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->isEditable()) combo->setEditText(ToQt(text));
    } else if (auto* group = qobject_cast<QGroupBox*>(control)) {
        group->setTitle(ToQt(text));
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        plain->setPlainText(ToQt(text));
    }
}

int GetSelection(const QWidget* dialog, int id) {
    const QWidget* control = Find(dialog, id);
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->currentIndex();
    if (const auto* list = qobject_cast<const QListWidget*>(control)) return list->currentRow();
    return -1;
}

void SetSelection(QWidget* dialog, int id, int index) {
    QWidget* control = Find(dialog, id);
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentIndex(index);
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        list->setCurrentRow(index);
    }
}

int AddItem(QWidget* dialog, int id, const std::string& text) {
    QWidget* control = Find(dialog, id);
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->addItem(ToQt(text));
        return combo->count() - 1;
    }
    if (auto* list = qobject_cast<QListWidget*>(control)) {
        list->addItem(ToQt(text));
        return list->count() - 1;
    }
    return -1;
}

void ClearItems(QWidget* dialog, int id) {
    QWidget* control = Find(dialog, id);
    if (auto* combo = qobject_cast<QComboBox*>(control)) combo->clear();
    if (auto* list = qobject_cast<QListWidget*>(control)) list->clear();
}

int ItemCount(const QWidget* dialog, int id) {
    const QWidget* control = Find(dialog, id);
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->count();
    if (const auto* list = qobject_cast<const QListWidget*>(control)) return list->count();
    return 0;
}

void Enable(QWidget* dialog, int id, bool enable) {
    if (QWidget* control = Find(dialog, id)) control->setEnabled(enable);
}

void Show(QWidget* dialog, int id, bool show) {
    if (QWidget* control = Find(dialog, id)) control->setVisible(show);
}

bool IsEnabled(const QWidget* dialog, int id) {
    const QWidget* control = Find(dialog, id);
    return control && !control->testAttribute(Qt::WA_ForceDisabled);
}

bool IsShown(const QWidget* dialog, int id) {
    const QWidget* control = Find(dialog, id);
    return control && !control->isHidden();
}

void ConnectControl(QWidget* control, const CommandHandler& handler) {
    const int id = IdOf(control);
    if (id == kNoId) return;
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        QObject::connect(button, &QAbstractButton::clicked, control,
                         [handler, id] { handler(id, Notification::kClicked); });
    } else if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        QObject::connect(edit, &QLineEdit::textEdited, control,
                         [handler, id] { handler(id, Notification::kEditChanged); });
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        QObject::connect(combo, &QComboBox::activated, control,
                         [handler, id] { handler(id, Notification::kSelChanged); });
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        QObject::connect(list, &QListWidget::itemSelectionChanged, control,
                         [handler, id] { handler(id, Notification::kSelChanged); });
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        QObject::connect(plain, &QPlainTextEdit::textChanged, control,
                         [handler, id] { handler(id, Notification::kEditChanged); });
    } else if (auto* notifying = dynamic_cast<NotifyingControl*>(control)) {
        notifying->ReportTo([handler, id](Notification code) { handler(id, code); });
    }
}

void ConnectControls(QWidget* dialog, const CommandHandler& handler) {
    for (QWidget* control : Children(dialog)) ConnectControl(control, handler);
}

}  // namespace ctl
