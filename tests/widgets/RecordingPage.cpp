#include "RecordingPage.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <memory>

#include "framework/DialogControls.h"
#include "framework/DialogTemplates.h"

std::vector<std::string> PageLog::Only(const std::string& name) const {
    std::vector<std::string> found;
    for (const std::string& call : calls) {
        if (call.rfind(name + " ", 0) == 0) found.push_back(call);
    }
    return found;
}

RecordingPage::RecordingPage(int pageId, PageLog* log)
    : CSettingsPage(kTemplateId), pageId_(pageId), log_(log) {}

void RecordingPage::RegisterTemplate() {
    RegisterDialogTemplate(kTemplateId, [](QWidget* page) {
        page->resize(300, 200);
        auto* edit = new QLineEdit(page);
        ctl::SetId(edit, kEdit);
        edit->setGeometry(10, 10, 200, 24);
        auto* check = new QCheckBox("Option", page);
        ctl::SetId(check, kCheck);
        check->setGeometry(10, 40, 200, 24);
        auto* label = new QLabel("Text", page);
        ctl::SetId(label, 1003);
        label->setGeometry(10, 70, 200, 24);
    });
}

void RecordingPage::Record(const std::string& call) {
    log_->calls.push_back(call + " " + std::to_string(pageId_));
}

void RecordingPage::OnSave() { Record("Save"); }
void RecordingPage::Apply() { Record("Apply"); }
void RecordingPage::SaveScheduleDefaults() { Record("SaveScheduleDefaults"); }
int32_t RecordingPage::Validate() {
    Record("Validate");
    return validateAnswer;
}
int32_t RecordingPage::OnDefault() {
    Record("OnDefault");
    m_modified = 1;
    return 1;
}
int32_t RecordingPage::CanDefault() { return canDefaultAnswer; }
void RecordingPage::Load() {
    Record("Load");
    m_modified = 0;
}
void RecordingPage::SetIcons(const ImageList* list) {
    Record("SetIcons");
    icons = list;
}

bool RecordingPage::OnInitDialog() {
    Load();
    return true;
}

void RecordingPage::OnControlCommand(int id, ctl::Notification) {
    if (id == kEdit || id == kCheck) m_modified = 1;
}

PageFactory RecordingPages(PageLog* log, std::set<int> ids, PageSetup setup) {
    RecordingPage::RegisterTemplate();
    return [log, ids, setup](int id) -> std::unique_ptr<CSettingsPage> {
        if (!ids.count(id)) return nullptr;
        auto page = std::make_unique<RecordingPage>(id, log);
        if (setup) setup(*page);
        return page;
    };
}
