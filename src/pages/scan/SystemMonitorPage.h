#pragma once

// "System monitoring": the real-time file monitor (section 7). Besides the
// family's blocks it has infector detection, the blocking of file types,
// and the monitor's restart by itself some minutes after the user closed
// it, a function of its own.

#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog115.h"

class CSystemMonitorPage : public CScanFormPage<Ui::Dialog115> {
public:
    static constexpr int kTemplateId = 115;

    CSystemMonitorPage();

    int32_t OnDefault() override;

protected:
    std::vector<PageFunction> Functions() override;
    void BindMore() override;
    void PrepareControls() override;
    void ShowMore(const StoreValues& values) override;
    void SaveRelated() override;
    int32_t ValidateMore() override;
    void UpdateEnables() override;
    void OnPageCommand(int id, ctl::Notification code) override;

private:
    // The interval's text as a number of minutes; false when it is not one
    // within the limits.
    bool ReadInterval(int32_t& minutes) const;
};
