#pragma once

// "System Scan/Monitoring": switches the scan and monitoring functions whose
// bits lie in CEK_Switch_Scan. Editions hide or disable rows: the light
// edition keeps only System Monitoring, the master edition has no messenger
// row, and a profile without internet monitoring has no internet row.

#include <cstdint>
#include <vector>

#include "pages/FormPage.h"
#include "pages/scan/SwitchPage.h"
#include "ui_Dialog1013.h"

class CFeatureSwitchPage : public CFormPage<Ui::Dialog1013, CSwitchPage> {
public:
    static constexpr int kTemplateId = 1013;

    CFeatureSwitchPage();

protected:
    std::vector<Row> Rows() override;
    void BindControls() override;
    void PrepareControls() override;
    bool AppliesRow(const Row& row) const override;
    void OnRowClicked(const Row& row) override;
    void SaveRelated() override;
    void AfterDefault(uint32_t word) override;

private:
    bool IsLight() const;
    // Asks whether System Monitoring may really be turned off; No turns its
    // box on again.
    void ConfirmMonitorOff();

    int32_t m_bMonitorClicked = 0;
    int32_t m_bInternetClicked = 0;
    int32_t m_bMessengerClicked = 0;
    int32_t m_bStartupClicked = 0;
    int32_t m_bOfficeClicked = 0;
    int32_t m_bShellClicked = 0;
    int32_t m_bBarClicked = 0;
};
