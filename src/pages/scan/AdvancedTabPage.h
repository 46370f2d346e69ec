#pragma once

// A tab of the advanced scan dialog: a bound page whose values live in the
// dialog (AdvancedScanValues) instead of the store. The dialog hands the
// values in before the tab is created and before each save, and takes them
// back after; Default shows the factory values of the addresses the tab is
// bound to. A tab made on its own starts with zeros and no dialog.

#include <QWidget>
#include <cstdint>
#include <string>

#include "pages/BoundPage.h"
#include "pages/scan/AdvancedScanValues.h"

class CAdvancedTabPage : public CBoundPage {
public:
    AdvancedScanValues& Values() { return m_values; }
    const AdvancedScanValues& Values() const { return m_values; }

protected:
    explicit CAdvancedTabPage(int templateId);

    // Tells the user what is wrong (caption "Configuration Error"), puts the
    // focus on control and answers 1, as a refused validation does.
    int32_t Refuse(QWidget* control, const std::string& text);

private:
    AdvancedScanValues m_values;
};
