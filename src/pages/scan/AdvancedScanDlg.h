#pragma once

// "Advanced Scan Setting": the options of a scan profile that have no room
// on the pages, on tabs that depend on the caller (the variant). The caller
// sets the members, runs DoModal and, after OK (1), reads them back; after
// Cancel they are as given.
//
// A tab page is made when it is first shown and kept while the dialog runs.
// Leaving a tab, and OK, validate the tab shown; a refusal keeps it. At OK
// each tab that exists and was changed saves into the members, in tab order,
// each changing only its own bits of the words handed on from the one
// before. Default resets the tab shown alone.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "framework/FormDialog.h"
#include "pages/scan/AdvancedScanValues.h"
#include "session/PageId.h"
#include "ui_Dialog1038.h"

class CAdvancedTabPage;

// Which tabs: 0 file types + compressed files; 1 also scan method and harmful
// programs (system scan); 2 file types + scan options (system monitoring);
// 3 file types only (internet monitoring). Any other value shows the tabs
// of 0.
enum : int32_t {
    kAdvancedBasic = 0,
    kAdvancedSystemScan = 1,
    kAdvancedMonitor = 2,
    kAdvancedFileTypesOnly = 3
};

class CAdvancedScanDlg : public CFormDialog<Ui::Dialog1038> {
public:
    static constexpr int kTemplateId = 1038;

    // noIncremental: hide "Incremental Scan" (and save its bit clear).
    CAdvancedScanDlg(int32_t noIncremental, QWidget* parent);
    ~CAdvancedScanDlg() override;

    void OnCommand(int id) override;

    int32_t m_bChanged = 0;  // a tab saved a change at OK
    int32_t m_bNoIncremental;
    uint32_t m_dwOptions = 0;  // key 10
    uint32_t m_dwExtra = 0;    // key 53
    uint32_t m_dwHarmful = 0;  // CEK_MacroOptions
    int32_t m_nDepth = 0;      // key 11
    uint32_t m_dwKinds = 0;    // key 12
    uint32_t m_dwFlags = 0;    // the caller's session flags, given to each tab
    int32_t m_nVariant = 0;
    int32_t m_nCurrentTab = 0;    // the index of the tab shown
    std::string m_strExtensions;  // key 13

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    static constexpr int kDefaultButton = 1034;

    void DestroyTabs();
    void InsertTabs();
    void OnTabChanged(int index);
    // Shows the tab at index, making its page the first time.
    void ShowTab(int index);
    std::unique_ptr<CAdvancedTabPage> MakeTab(PageId id);
    CAdvancedTabPage* CurrentTab() const;

    // The members as a tab takes them, and back.
    AdvancedScanValues CurrentValues() const;
    void TakeBack(const AdvancedScanValues& values);

    // The page of each tab, in tab order; null until first shown.
    std::vector<std::unique_ptr<CAdvancedTabPage>> m_pages;
};

// The share of a scan profile that a variant's tabs can change: a page keeps
// exactly these between its Load and Save (binder Hold), hands them in and
// takes them back.
AdvancedScanShare AdvancedScanShareOf(int32_t variant);
