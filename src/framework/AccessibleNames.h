#pragma once

// Screen readers announce a control by its accessible name. Buttons, check
// boxes and radio buttons are named by their own captions; every other
// control of a form takes the text of the label that stands before it in
// the form, the way a template's static text names the control after it.
// A form built by uic keeps the template's order, so "before" is the order
// of creation.

#include <QString>

class QWidget;

// Names every control of form that has no accessible name and no caption of
// its own after the nearest label before it (its '&' marks and a closing
// colon left out), or after the form's title when no label stands before
// it; the parts a control is made of (the fields of a date
// edit, the line edit of a combo box) share its name. Call once the form is
// built.
void NameControlsByTheirLabels(QWidget* form);

// The accessible name a screen reader announces for widget.
QString AccessibleNameOf(const QWidget* widget);
