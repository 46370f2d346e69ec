#pragma once

// A settings page for shell tests: it records every call of the page
// contract in a shared log ("Load 5", "Apply 17", ...), and its answers can
// be set. Its template (kTemplateId) has an edit 1001, a check box 1002 and
// a static 1003.

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "pages/SettingsPage.h"
#include "shell/PageTable.h"

struct PageLog {
    std::vector<std::string> calls;
    // The calls that start with name, in order.
    std::vector<std::string> Only(const std::string& name) const;
};

class RecordingPage : public CSettingsPage {
public:
    static constexpr int kTemplateId = 9001;
    static constexpr int kEdit = 1001;
    static constexpr int kCheck = 1002;

    RecordingPage(int pageId, PageLog* log);

    // Registers the page's template; idempotent.
    static void RegisterTemplate();

    void Apply() override;
    void SaveScheduleDefaults() override;
    int32_t Validate() override;
    int32_t OnDefault() override;
    int32_t CanDefault() override;
    void Load() override;
    void SetIcons(const ImageList* icons) override;

    void SetModified() { m_modified = 1; }
    void SetNeedApply() { m_needApply = 1; }

    int32_t validateAnswer = 0;
    int32_t canDefaultAnswer = 1;
    const ImageList* icons = nullptr;

protected:
    void OnSave() override;
    bool OnInitDialog() override;
    void OnControlCommand(int id, ctl::Notification code) override;

private:
    void Record(const std::string& call);

    int pageId_;
    PageLog* log_;
};

// Makes a RecordingPage for each id in ids, nothing for the others; setup
// may change a page's answers before its window is made.
using PageSetup = std::function<void(RecordingPage&)>;
PageFactory RecordingPages(PageLog* log, std::set<int> ids, PageSetup setup = {});
