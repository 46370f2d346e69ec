#pragma once

// "Screensaver Scan": the profile of the scan that runs while the screen
// saver is on (section 6), the function's switch, and the folders it scans,
// kept as the section's object list and edited in "Set List to Scan".

#include <vector>

#include "pages/scan/ScanProfilePage.h"
#include "targets/TargetList.h"
#include "ui_Dialog114.h"

class CScreenSaverPage : public CScanFormPage<Ui::Dialog114> {
public:
    static constexpr int kTemplateId = 114;

    CScreenSaverPage();

    void Load() override;
    // The targets as the page holds them.
    const std::vector<Target>& Targets() const { return m_targets; }

protected:
    std::vector<PageFunction> Functions() override;
    void BindMore() override;
    void SaveRelated() override;
    void OnPageCommand(int id, ctl::Notification code) override;

private:
    void EditTargets();

    std::vector<Target> m_targets;
    bool m_targetsChanged = false;
};
