#pragma once

// A dialog made from the form that uic generated of its template: the form
// object builds the controls and keeps them as typed members, so that the
// dialog reaches a control by name, checked by the compiler, instead of
// searching for its id. The controls keep their numeric ids.
//
//   class CMyDlg : public CFormDialog<Ui::Dialog1001> { ... };

#include "framework/AccessibleNames.h"
#include "framework/Dialog.h"

template <typename Form>
class CFormDialog : public CDialog {
protected:
    using CDialog::CDialog;

    bool BuildControls() override {
        m_ui.setupUi(this);
        NameControlsByTheirLabels(this);
        return true;
    }

    Form m_ui{};  // every control null until BuildControls
};
