#pragma once

// "Add folders": picks one folder of the machine's folders. OK takes the
// selected node when it has a path; a node without one (Computer, Network)
// or no selection leaves the dialog open. A folder on a remembered network
// drive that is not mounted is brought back first; when that fails the user
// is told and the dialog stays open.

#include <string>

#include "framework/FormDialog.h"
#include "ui_Dialog1028.h"

class CAddFolderDlg : public CFormDialog<Ui::Dialog1028> {
public:
    static constexpr int kTemplateId = 1028;

    explicit CAddFolderDlg(QWidget* parent);

    // The folder chosen by OK; empty before.
    const std::string& GetPath() const { return m_path; }

protected:
    bool OnInitDialog() override;
    void OnOK() override;

private:
    // Whether the drive that holds path can be used: it is no remembered
    // network drive, it is mounted, or it could be brought back. Otherwise
    // says that it is not connected.
    bool ReconnectDriveOf(const std::string& path);

    std::string m_path;
};
