#pragma once

// "Internet Monitoring": the profile of the monitor of downloads (section 9):
// file types and what to do with an infected file, nothing of archives or
// running programs.

#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog117.h"

class CInternetMonitorPage : public CScanFormPage<Ui::Dialog117> {
public:
    static constexpr int kTemplateId = 117;

    CInternetMonitorPage();

protected:
    std::vector<PageFunction> Functions() override;
};
