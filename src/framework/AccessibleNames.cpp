#include "framework/AccessibleNames.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QWidget>

namespace {

// A widget of the form itself, not a part that a control made of its own.
bool IsFormWidget(const QWidget* widget) {
    const QString name = widget->objectName();
    return !name.isEmpty() && !name.startsWith(QLatin1String("qt_"));
}

bool TakesFocus(const QWidget* widget) {
    return (widget->focusPolicy() & Qt::TabFocus) != 0 || widget->focusProxy() != nullptr;
}

// A label's text as a name: without mnemonic marks, spaces at the ends and
// a closing colon.
QString NameFromLabel(const QLabel* label) {
    QString text = label->text();
    text.replace(QLatin1String("&&"), QLatin1String("\x01"));
    text.remove(QLatin1Char('&'));
    text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
    text = text.simplified();
    while (text.endsWith(QLatin1Char(':'))) text.chop(1);
    return text.trimmed();
}

bool NamesItself(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return !button->text().isEmpty();
    }
    return qobject_cast<const QGroupBox*>(widget) != nullptr;
}

// The parts of control that take focus and have no name share its name.
void NameParts(QWidget* control, const QString& name) {
    for (QWidget* part : control->findChildren<QWidget*>()) {
        if (TakesFocus(part) && part->accessibleName().isEmpty()) part->setAccessibleName(name);
    }
}

}  // namespace

void NameControlsByTheirLabels(QWidget* form) {
    // A control with no label before it is named after its window, as the
    // only list of a small dialog is.
    QString lastLabel = form->windowTitle();
    for (QWidget* widget : form->findChildren<QWidget*>()) {
        if (!IsFormWidget(widget)) continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            const QString text = NameFromLabel(label);
            if (!text.isEmpty()) lastLabel = text;
            continue;
        }
        if (!TakesFocus(widget) || NamesItself(widget)) continue;
        if (widget->accessibleName().isEmpty() && !lastLabel.isEmpty()) {
            widget->setAccessibleName(lastLabel);
        }
        NameParts(widget, AccessibleNameOf(widget));
    }
}

QString AccessibleNameOf(const QWidget* widget) {
    QAccessibleInterface* accessible =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return accessible ? accessible->text(QAccessible::Name) : QString();
}
