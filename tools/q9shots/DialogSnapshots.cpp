#include "DialogSnapshots.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <cstdio>
#include <string>
#include <vector>

#include "controls/ShellTree.h"
#include "controls/TargetTree.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "targets/TargetList.h"

namespace {

// Shows dialog, saves it as <folder>/dialog<id>.png and closes it; whether
// the file was written.
bool SaveDialog(CDialog& dialog, int id, const QString& folder) {
    dialog.show();
    QApplication::processEvents();
    const QString file = QString("%1/dialog%2.png").arg(folder).arg(id);
    const bool saved = dialog.grab().save(file);
    if (saved) {
        std::printf("%s\n", qPrintable(QDir(file).absolutePath()));
    } else {
        std::fprintf(stderr, "q9shots: cannot write %s\n", qPrintable(file));
    }
    dialog.reject();
    return saved;
}

// Opens the root file system, the first drive under Computer, and selects
// its first folder.
void OpenRootFolder(CShellTree* folders) {
    QTreeWidgetItem* root = folders->topLevelItem(0)->child(0);
    if (!root) return;
    root->setExpanded(true);
    folders->setCurrentItem(root->childCount() > 0 ? root->child(0) : root);
}

bool SaveScanList(const QString& folder) {
    const std::vector<Target> targets = {AllLocalDrivesTarget(),
                                         {kTargetFolder, QDir::homePath().toStdString()},
                                         {kTargetFolder, "//server/share/docs"}};
    CScanListDlg dialog(EncodeTargetList(targets), nullptr);
    if (!dialog.Create()) return false;
    OpenRootFolder(qobject_cast<CShellTree*>(dialog.Control(1013)));
    auto* list = qobject_cast<CTargetTree*>(dialog.Control(1014));
    list->setCurrentItem(list->Root()->child(0));
    return SaveDialog(dialog, CScanListDlg::kTemplateId, folder);
}

// The top level as it opens, with the first drive selected.
bool SaveAddFolder(const QString& folder) {
    CAddFolderDlg dialog(nullptr);
    if (!dialog.Create()) return false;
    auto* folders = qobject_cast<CShellTree*>(dialog.Control(1013));
    folders->setCurrentItem(folders->topLevelItem(0)->child(0));
    return SaveDialog(dialog, CAddFolderDlg::kTemplateId, folder);
}

bool SaveAddExtension(const QString& folder) {
    CAddExtensionDlg dialog(nullptr);
    if (!dialog.Create()) return false;
    qobject_cast<QLineEdit*>(dialog.Control(1092))->setText("dmp/tmp");
    return SaveDialog(dialog, CAddExtensionDlg::kTemplateId, folder);
}

}  // namespace

int SaveTargetDialogs(const QString& folder) {
    const bool saved = SaveScanList(folder) && SaveAddFolder(folder) && SaveAddExtension(folder);
    return saved ? 0 : 1;
}
