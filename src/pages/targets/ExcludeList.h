#pragma once

// The rows of the exclusion list on screen: the item, and whether it is in
// use, with the item's icon in front.

#include "controls/HeaderListCtrl.h"
#include "targets/ExclusionList.h"

class CExcludeList : public CHeaderListCtrl {
public:
    explicit CExcludeList(QWidget* parent = nullptr);

    // Shows the rows of list, in its order; the row at selected (if any)
    // stays selected.
    void ShowRows(const ExclusionList& list, int selected = -1);
};
