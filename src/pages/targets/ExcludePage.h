#pragma once

// "Sectors excluded from the scan": the folders, files and extensions every
// scan leaves alone, other products' records beside them, the switch that
// puts the list in force and the system restore folders. The list is kept in
// the store, in the shared exclusion zone and in the monitors' scan words
// (see targets/ExclusionStore.h); Apply rewrites the zone after the commit.
// A "Test a path..." button says which row leaves a path out of scans.

#include <cstdint>
#include <string>

#include "pages/FormPage.h"
#include "targets/ExclusionList.h"
#include "ui_Dialog109.h"

class CExcludePage : public CFormPage<Ui::Dialog109> {
public:
    static constexpr int kTemplateId = 109;

    CExcludePage();

    void Apply() override;
    int32_t CanDefault() override { return 0; }

    // The rows as they stand on the page.
    const ExclusionList& List() const { return m_list; }

protected:
    void BindControls() override;
    void PrepareControls() override;
    void ShowMore(const StoreValues& values) override;
    void SaveMore() override;
    int32_t ValidateMore() override;
    void UpdateEnables() override;

private:
    bool StoreIsSource() const;
    bool InForce() const;

    void AddFolder();
    void AddFiles();
    void AddExtensions();
    void DeleteSelected();
    void DeleteAll();
    void TestPath();

    // Adds to the list and says what the list answered; the page counts as
    // changed whether or not a row came.
    void Add(const std::string& text, uint32_t flags);
    void ListChanged();
    void ShowRows();
    std::string SelectedPath() const;

    ExclusionList m_list;
    bool m_saved = false;
};
