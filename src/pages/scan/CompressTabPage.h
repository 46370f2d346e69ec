#pragma once

// "Compressed Files": whether compressed files are scanned, how deep
// multi-compressed files are opened, executable compressed files,
// incremental scanning, and which kinds of archive are opened: all of them,
// or the kinds checked in the list.

#include "pages/FormPage.h"
#include "pages/scan/AdvancedTabPage.h"
#include "ui_Dialog1036.h"

class CCompressTabPage : public CFormPage<Ui::Dialog1036, CAdvancedTabPage> {
public:
    static constexpr int kTemplateId = 1036;
    static const AdvancedScanShare kShare;

    CCompressTabPage();

protected:
    void BindControls() override;
    void PrepareControls() override;
    void ShowMore(const StoreValues& values) override;

private:
    // The kinds the list's checked rows stand for (bit n is row n).
    uint32_t CheckedKinds() const;
};
