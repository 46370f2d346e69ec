#pragma once

// Dialog templates by resource id: each builds the controls of one dialog,
// with their control ids, captions and positions, into a widget. The
// program's own dialogs and pages build their uic forms themselves
// (CFormDialog, CFormPage); templates are registered here by those who make
// dialogs without a form of their own, such as tests.

#include <functional>

class QWidget;

using TemplateBuilder = std::function<void(QWidget* target)>;

// Builds template id into target; false for an id that has no template.
bool BuildDialogTemplate(int templateId, QWidget* target);

bool HasDialogTemplate(int templateId);

// Adds or replaces the template of id.
void RegisterDialogTemplate(int templateId, TemplateBuilder builder);
