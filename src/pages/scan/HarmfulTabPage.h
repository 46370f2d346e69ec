#pragma once

// "Possible Harmful Programs": whether they are scanned for, and which
// kinds: jokes, key loggers and other programs. The adware row is not
// offered: its box stays hidden with the value it loaded, and the row below
// takes its place.

#include "pages/FormPage.h"
#include "pages/scan/AdvancedTabPage.h"
#include "ui_Dialog1040.h"

class CHarmfulTabPage : public CFormPage<Ui::Dialog1040, CAdvancedTabPage> {
public:
    static constexpr int kTemplateId = 1040;
    static const AdvancedScanShare kShare;

    CHarmfulTabPage();

protected:
    void BindControls() override;
    void PrepareControls() override;
    int32_t ValidateMore() override;
};
