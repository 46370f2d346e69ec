#pragma once

// "System scan": the profile of the scan a user starts by hand (section 4).
// The scan the desktop's context menu starts (section 5) has no page of its
// own: each save writes it from this page's profile. The kinds of possible
// harmful programs, kept for the whole product, are edited through this
// page's advanced dialog.

#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog111.h"

class CSystemScanPage : public CScanFormPage<Ui::Dialog111> {
public:
    static constexpr int kTemplateId = 111;

    CSystemScanPage();

    int32_t OnDefault() override;

protected:
    void BindMore() override;
    void SaveRelated() override;
};
