#pragma once

// "Instant Messenger Monitoring": scans what the messengers receive
// (section 15). The messengers to watch are found by Auto Recognition, or
// chosen by hand from the list of those installed.

#include <cstdint>

#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog1032.h"

class CMessengerPage : public CScanFormPage<Ui::Dialog1032> {
public:
    static constexpr int kTemplateId = 1032;

    CMessengerPage();

    int32_t OnDefault() override;

protected:
    std::vector<PageFunction> Functions() override;
    void BindMore() override;
    void PrepareControls() override;
    void ShowMore(const StoreValues& values) override;
    void OnSave() override;
    int32_t ValidateMore() override;
    void UpdateEnables() override;
    void OnPageCommand(int id, ctl::Notification code) override;

private:
    // Covers the page when the system cannot monitor messengers; true then.
    bool CoverIfUnavailable();
    void AddRows();
    // Checks every installed messenger: what Auto Recognition stands for.
    void CheckInstalledRows();
    // The bits of the checked rows.
    uint32_t CheckedBits() const;

    int m_nAuto = 0;                  // 0 Auto Recognition, 1 chosen by hand
    uint32_t m_messengers = 0;        // the messenger bits of (15,53)
    bool m_installed[5] = {};         // per row
};
