#pragma once

// A modal dialog made from a dialog template: the base of the shells and of
// every dialog a page opens. Its buttons report their control id to
// OnCommand; commands can also be posted, to run after the current event.

#include <QDialog>
#include <cstdint>

#include "session/PowerWatch.h"

class CDialog : public QDialog {
public:
    // Results of DoModal besides the ones a dialog ends with.
    static constexpr int kNotMade = -1;

    CDialog(int templateId, QWidget* parent);

    // Builds the template (the first time) and runs OnInitDialog (each
    // time, as for a window made anew); false when the template does not
    // exist.
    bool Create();
    // Create, then the modal run; the result EndDialog gave, or kNotMade.
    // A dialog object may run again: its controls stay as they were.
    int DoModal();
    // The same as DoModal, so that a dialog opened the toolkit's way is made
    // and started as well.
    int exec() override;
    void EndDialog(int result);

    QWidget* Control(int id) const;

    // The id of the default push button, 0 when there is none.
    int DefaultButtonId() const;
    // Runs OnCommand(id) after the event that is being handled.
    void PostCommand(int id);
    // A command, as a button click or a posted command delivers it.
    virtual void OnCommand(int id);
    // A private message a page sends to the dialog that carries it, at once;
    // dialogs that have no use for a message ignore it.
    virtual void OnPageMessage(int /*message*/) {}

    // The window's close button and Escape end as Cancel does.
    void reject() override;

    // The power event of the platform (the system's event number): answers
    // 1; a low battery (event 9) is told to the user first.
    virtual int32_t OnPowerBroadcast(int32_t event);

protected:
    // Makes the dialog's controls; by default from its template by id.
    virtual bool BuildControls();
    // After the controls exist; the value is what the platform's start-up
    // step answers (whether focus was left alone).
    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();

private:
    int m_templateId;
    bool m_built = false;
    PowerWatch m_power;
};
