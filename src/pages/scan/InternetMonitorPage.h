#pragma once

// "Internet Monitoring": the profile of the monitor of downloads (section 9):
// file types and what to do with an infected file, nothing of archives or
// running programs.

#include "pages/FormPage.h"
#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog117.h"

class CInternetMonitorPage : public CFormPage<Ui::Dialog117, CScanProfilePage> {
public:
    static constexpr int kTemplateId = 117;

    CInternetMonitorPage();

protected:
    ScanBlock Block() override;
    std::vector<PageFunction> Functions() override;
};
