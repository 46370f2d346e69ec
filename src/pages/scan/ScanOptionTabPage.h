#pragma once

// "Scan Method" of the system monitoring: the floppy disc scans, which
// drive accesses are scanned (local or network, reading or writing; one of
// the local two at least), and the warning messages of the NT series.

#include "pages/FormPage.h"
#include "pages/scan/AdvancedTabPage.h"
#include "ui_Dialog1037.h"

class CScanOptionTabPage : public CFormPage<Ui::Dialog1037, CAdvancedTabPage> {
public:
    static constexpr int kTemplateId = 1037;
    static const AdvancedScanShare kShare;

    CScanOptionTabPage();

protected:
    void BindControls() override;
    void PrepareControls() override;
    int32_t ValidateMore() override;
};
