#pragma once

// "Easy Configuration": the whole product set with one slider. Each of the
// levels High, Medium and Low is a prepared configuration that replaces the
// working copy the moment the slider reaches it; Customized is what the user
// made on the other pages. The wizard shows this page as its first step.
//
// The level lives in g_nProtectLevel, which the shell writes to the store on
// OK, and not in the store: Save has nothing to write, and Apply brings the
// product into line with what the level's file put into the store.

#include <QFont>
#include <cstdint>

#include "pages/FormPage.h"
#include "ui_Dialog1030.h"

class CEasyConfigPage : public CFormPage<Ui::Dialog1030> {
public:
    static constexpr int kTemplateId = 1030;

    CEasyConfigPage();

    void Load() override;
    int32_t OnDefault() override;
    void Apply() override;
    void SetIcons(const ImageList* icons) override;

    // The level where the last drag of the slider ended, or that Load found.
    uint32_t LastLevel() const { return m_lastLevel; }

protected:
    void BindControls() override;
    void PrepareControls() override;

private:
    // The routine behind Load and Default: shows g_nProtectLevel.
    void ShowLevel();
    // Shows the texts of g_nProtectLevel.
    void Refresh();
    // The slider moved; endOfScroll when the move is over (the drag ended,
    // or a key or click moved it).
    void OnSliderNotice(bool endOfScroll);

    QFont m_boldFont;
    uint32_t m_lastLevel = 0;
};
