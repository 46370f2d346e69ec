#pragma once

// Dialog templates by resource id: each builds the controls of one dialog or
// page, with their control ids, captions and positions, into a widget. The
// program's own templates are Qt Designer forms compiled into the library;
// more can be registered (tests do, for pages of their own).

#include <functional>

class QWidget;

using TemplateBuilder = std::function<void(QWidget* target)>;

// Builds template id into target; false for an id that has no template.
bool BuildDialogTemplate(int templateId, QWidget* target);

bool HasDialogTemplate(int templateId);

// Adds or replaces the template of id.
void RegisterDialogTemplate(int templateId, TemplateBuilder builder);
