#include "framework/DialogTemplates.h"

#include <QWidget>
#include <map>

namespace {

std::map<int, TemplateBuilder>& Templates() {
    static std::map<int, TemplateBuilder> templates;
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
