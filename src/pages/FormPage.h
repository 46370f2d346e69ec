#pragma once

// A bound page made from the form that uic generated of its template: the
// form object builds the controls and keeps them as typed members, so that a
// page (and its test) reaches a control by name instead of searching for its
// id. The controls keep their numeric ids for the range operations.
//
//   class CMyPage : public CFormPage<Ui::Dialog107> { ... };
//
// Base is the page family the page belongs to (CBoundPage by default).

#include "framework/AccessibleNames.h"
#include "pages/BoundPage.h"

template <typename Form, typename Base = CBoundPage>
class CFormPage : public Base {
protected:
    using Base::Base;

    bool BuildControls() override {
        m_ui.setupUi(this);
        NameControlsByTheirLabels(this);
        return true;
    }

    Form m_ui{};  // every control null until BuildControls
};
