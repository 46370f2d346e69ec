#pragma once

// "Setting the advanced scan": three settings that hold for every scanner:
// what happens to macro viruses, which system areas the scans look at, and
// whether the monitor protects itself (and says so to the user). Services
// learn of a change from the common signal on OK; the page has no Apply.

#include "pages/FormPage.h"
#include "ui_Dialog110.h"

class CPolicyPage : public CFormPage<Ui::Dialog110> {
public:
    static constexpr int kTemplateId = 110;

    CPolicyPage();

    void SetIcons(const ImageList* icons) override;

protected:
    void BindControls() override;
    void UpdateEnables() override;
};
