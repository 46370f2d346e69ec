#include "framework/DialogTemplates.h"

#include <QWidget>
#include <map>

#include "ui_Dialog1001.h"
#include "ui_Dialog102.h"

namespace {

// A compiled form as a template: the form object only builds the widgets,
// which belong to the target from then on.
template <typename Form>
TemplateBuilder FormTemplate() {
    return [](QWidget* target) {
        Form form;
        form.setupUi(target);
    };
}

std::map<int, TemplateBuilder>& Templates() {
    static std::map<int, TemplateBuilder> templates = {
        {102, FormTemplate<Ui::Dialog102>()},
        {1001, FormTemplate<Ui::Dialog1001>()},
    };
    return templates;
}

}  // namespace

bool BuildDialogTemplate(int templateId, QWidget* target) {
    const auto it = Templates().find(templateId);
    if (it == Templates().end()) return false;
    it->second(target);
    return true;
}

bool HasDialogTemplate(int templateId) { return Templates().count(templateId) != 0; }

void RegisterDialogTemplate(int templateId, TemplateBuilder builder) {
    Templates()[templateId] = std::move(builder);
}
