#pragma once

// "Startup Program Monitoring": watches what starts with the system (the
// registries, the startup folders, the system files) and what to do with
// an infected program (section 16). Unlike the other monitors it loads,
// saves and applies even when it covers itself because the system cannot
// run the function.

#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog1031.h"

class CStartupPage : public CScanFormPage<Ui::Dialog1031> {
public:
    static constexpr int kTemplateId = 1031;

    CStartupPage();

    int32_t OnDefault() override;

protected:
    std::vector<PageFunction> Functions() override;
    void BindMore() override;
    void PrepareControls() override;
    int32_t ValidateMore() override;
    bool SavesWhenCovered() const override { return true; }

private:
    // The word's bit 16 as loaded: the page writes the word as it stands.
    uint32_t m_carried = 0;
};
