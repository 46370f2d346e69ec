#pragma once

// Dialog templates by resource id: each builds the controls of one dialog,
// with their control ids, captions and positions, into a widget. The
// program's own are the shells' Qt Designer forms; a settings page builds
// its own form instead (CFormPage). More can be registered (tests do, for
// pages of their own).

#include <functional>

class QWidget;

using TemplateBuilder = std::function<void(QWidget* target)>;

// Builds template id into target; false for an id that has no template.
bool BuildDialogTemplate(int templateId, QWidget* target);

bool HasDialogTemplate(int templateId);

// Adds or replaces the template of id.
void RegisterDialogTemplate(int templateId, TemplateBuilder builder);
