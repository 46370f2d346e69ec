#pragma once

// The configuration wizard's scan step: one scan profile, shown from the
// system scan's section, that Save hands to every scanning function at once.
// Leaving the step also makes it the template of new schedule entries, so
// that an entry made in the wizard's schedule step starts from it.

#include "options/ProfileValues.h"
#include "pages/scan/ScanProfilePage.h"
#include "ui_Dialog1003.h"

class CWizardScanPage : public CScanFormPage<Ui::Dialog1003> {
public:
    static constexpr int kTemplateId = 1003;

    CWizardScanPage();

    // Writes the profile's five keys to CES_ScheduleDefault alone.
    void SaveScheduleDefaults() override;

protected:
    void BindMore() override;
    // Hands the profile to every scanning function.
    void OnSave() override;

private:
    // The profile as the controls say, over the one stored now.
    void CollectProfile();

    ProfileValues m_values;
};
