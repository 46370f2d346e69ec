#pragma once

// "Set List to Scan": edits a target list. The machine's folders stand on
// the left, the list on the right; "Add  >>" adds the selected folder,
// "<< Delete" deletes the selected target (the root: all of them), "Delete
// All" deletes all of them, and targets drag from left to right and out of
// the list. A list left empty means all local hard drives.

#include <string>
#include <vector>

#include "framework/FormDialog.h"
#include "targets/TargetList.h"
#include "ui_Dialog1007.h"

class CScanListDlg : public CFormDialog<Ui::Dialog1007> {
public:
    static constexpr int kTemplateId = 1007;

    // list: the target list to edit (a block as TargetList.h describes it).
    CScanListDlg(std::string list, QWidget* parent);

    // After OK the list as the dialog made it anew, also when nothing
    // changed; until then (and after Cancel) the list given.
    const std::string& GetList() const { return m_list; }
    // Whether the user changed the list before OK.
    bool IsChanged() const { return m_changed; }

    // Edits targets in the dialog; true when the user changed them and
    // pressed OK, and *targets is then the new list.
    static bool EditTargets(std::vector<Target>* targets, QWidget* parent);

    void OnCommand(int id) override;

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    std::string m_list;
    bool m_changed = false;
};
