#pragma once

// Controls of a dialog or page addressed by their numeric control id, the way
// every page of the program works with them. A dialog template gives each
// control its id in the dynamic property "controlId"; controls are the direct
// child widgets of the dialog, and their order is the order of creation (the
// template's order). Nothing may raise or lower a control, since that would
// reorder the children.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace ctl {

// The id a control without an id of its own answers, as a plain static has.
constexpr int kNoId = 0xFFFF;

// What a control reports to its dialog when the user acts on it.
enum class Notification {
    kClicked,      // a button, check box or radio button was clicked
    kEditChanged,  // the user changed the text of an edit
    kSelChanged,   // the user chose another entry of a combo box or list
};

int IdOf(const QWidget* control);
void SetId(QWidget* control, int id);

// The direct child widgets of dialog, in creation order.
std::vector<QWidget*> Children(const QWidget* dialog);
// The first child with the id, or null.
QWidget* Find(const QWidget* dialog, int id);

// Check boxes and radio buttons: 0 unchecked, 1 checked, 2 indeterminate.
// 0 for a control that is not a button.
int GetCheck(const QWidget* dialog, int id);
void SetCheck(QWidget* dialog, int id, int state);

// Text of an edit, static, button, combo box (its edit text) or group box.
std::string GetText(const QWidget* dialog, int id);
void SetText(QWidget* dialog, int id, const std::string& text);

// Combo boxes and lists: the selected index, -1 for none.
int GetSelection(const QWidget* dialog, int id);
void SetSelection(QWidget* dialog, int id, int index);
// Appends an entry; returns its index, or -1 when the control has no entries.
int AddItem(QWidget* dialog, int id, const std::string& text);
void ClearItems(QWidget* dialog, int id);
int ItemCount(const QWidget* dialog, int id);

void Enable(QWidget* dialog, int id, bool enable);
void Show(QWidget* dialog, int id, bool show);
// Whether the control is not disabled by itself and not hidden by itself
// (its own style, whether or not the dialog is on the screen).
bool IsEnabled(const QWidget* dialog, int id);
bool IsShown(const QWidget* dialog, int id);

// Calls handler(id, notification) whenever the user acts on a control of
// dialog that has an id: buttons, edits, combo boxes, lists and the
// program's own notifying controls (NotifyingControl). Controls added later are connected by a new
// call with them alone (ConnectControl).
using CommandHandler = std::function<void(int id, Notification code)>;
void ConnectControls(QWidget* dialog, const CommandHandler& handler);
void ConnectControl(QWidget* control, const CommandHandler& handler);

}  // namespace ctl
