#include "framework/Dialog.h"

#include <QPushButton>

#include "framework/DialogControls.h"
#include "framework/DialogTemplates.h"
#include "text/MessageService.h"
#include "text/StringTable.h"

CDialog::CDialog(int templateId, QWidget* parent)
    : QDialog(parent),
      m_templateId(templateId),
      m_power([this](int event) { OnPowerBroadcast(event); }) {}

bool CDialog::Create() {
    if (!m_built) {
        if (!BuildControls()) return false;
        m_built = true;
        ctl::ConnectControls(this, [this](int id, ctl::Notification code) {
            if (code == ctl::Notification::kClicked &&
                qobject_cast<QPushButton*>(Control(id)) != nullptr) {
                OnCommand(id);
            }
        });
    }
    OnInitDialog();
    return true;
}

int CDialog::DoModal() {
    if (!Create()) return kNotMade;
    m_power.Start();
    const int result = QDialog::exec();
    m_power.Stop();
    return result;
}

int CDialog::exec() { return DoModal(); }

void CDialog::EndDialog(int result) { done(result); }

QWidget* CDialog::Control(int id) const { return ctl::Find(this, id); }

bool CDialog::BuildControls() { return BuildDialogTemplate(m_templateId, this); }

int CDialog::DefaultButtonId() const {
    for (QWidget* control : ctl::Children(this)) {
        const auto* button = qobject_cast<const QPushButton*>(control);
        if (button && button->isDefault()) return ctl::IdOf(button);
    }
    return 0;
}

void CDialog::PostCommand(int id) {
    QMetaObject::invokeMethod(
        this, [this, id] { OnCommand(id); }, Qt::QueuedConnection);
}

void CDialog::OnCommand(int id) {
    if (id == 1) OnOK();
    if (id == 2) OnCancel();
}

int32_t CDialog::OnPowerBroadcast(int32_t event) {
    if (event == PowerWatch::kLowBattery) {
        ShowMessage(this, LoadString(strings::kLowBattery), LoadString(strings::kInformation),
                    msg::kIconInformation);
    }
    return 1;
}

bool CDialog::OnInitDialog() { return true; }

void CDialog::OnOK() { EndDialog(1); }

void CDialog::OnCancel() { EndDialog(2); }

void CDialog::reject() { OnCancel(); }
