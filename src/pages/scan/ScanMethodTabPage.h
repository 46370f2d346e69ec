#pragma once

// "Scan Method" of the system scan: whether shared files and folders are
// disabled, and shells closed, before the scan.

#include "pages/FormPage.h"
#include "pages/scan/AdvancedTabPage.h"
#include "ui_Dialog1039.h"

class CScanMethodTabPage : public CFormPage<Ui::Dialog1039, CAdvancedTabPage> {
public:
    static constexpr int kTemplateId = 1039;
    static const AdvancedScanShare kShare;

    CScanMethodTabPage();

protected:
    void BindControls() override;
};
