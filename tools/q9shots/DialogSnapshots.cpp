#include "DialogSnapshots.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QTabBar>
#include <cstdio>
#include <string>
#include <vector>

#include "controls/ShellTree.h"
#include "controls/TargetTree.h"
#include "options/ScanBits.h"
#include "pages/SettingsPage.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "schedule/ScheduleEntry.h"
#include "session/PageId.h"
#include "shell/PageShellDlg.h"
#include "targets/TargetList.h"

namespace {

// Saves the dialog as it shows now to <folder>/<name>.png; whether the file
// was written.
bool SaveShown(CDialog& dialog, const QString& name, const QString& folder) {
    QApplication::processEvents();
    const QString file = QString("%1/%2.png").arg(folder, name);
    const bool saved = dialog.grab().save(file);
    if (saved) {
        std::printf("%s\n", qPrintable(QDir(file).absolutePath()));
    } else {
        std::fprintf(stderr, "q9shots: cannot write %s\n", qPrintable(file));
    }
    return saved;
}

// Shows dialog, saves it as <folder>/dialog<id>.png and closes it; whether
// the file was written.
bool SaveDialog(CDialog& dialog, int id, const QString& folder) {
    dialog.show();
    const bool saved = SaveShown(dialog, QString("dialog%1").arg(id), folder);
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

// The tabs of the advanced scan dialog of a variant from firstTab on, filled
// with a system scan's usual values, as <folder>/dialog1038-page<page>.png.
bool SaveAdvancedScan(int32_t variant, int firstTab, const QString& folder) {
    CAdvancedScanDlg dialog(0, nullptr);
    dialog.m_nVariant = variant;
    dialog.m_dwOptions = kScanDefaultKinds | kScanCustomized | kScanCompressed |
                         kScanExeCompressed | kScanHarmful | kScanFloppyBoot | kScanNtWarning;
    dialog.m_dwExtra = kExtraLocalRead | kExtraLocalWrite | kExtraCloseShells;
    dialog.m_nDepth = 5;
    dialog.m_dwKinds = 0x1180100;  // Cab, Rar, Tar, Zip
    dialog.m_strExtensions = "doc/xls";
    dialog.m_dwHarmful = kHarmfulJoke | kHarmfulKeyLogger;
    if (!dialog.Create()) return false;
    dialog.show();
    auto* tabs = qobject_cast<QTabBar*>(dialog.Control(1124));
    bool saved = true;
    for (int tab = firstTab; tab < tabs->count() && saved; ++tab) {
        tabs->setCurrentIndex(tab);
        const QString name = QString("dialog%1-page%2")
                                 .arg(CAdvancedScanDlg::kTemplateId)
                                 .arg(tabs->tabData(tab).toInt());
        saved = SaveShown(dialog, name, folder);
    }
    dialog.reject();
    return saved;
}

// Both pages of the schedule wizard on a weekly scan of two folders, as
// <folder>/dialog1009-page1.png and -page2.png.
bool SaveScheduleWizard(const QString& folder) {
    ScheduleEntry entry;
    entry.m_nStyle = kScheduleEveryWeek;
    entry.m_time = {0, 0, 5, 0, 21, 30, 0, 0};
    entry.m_targets = {{kTargetFolder, "/home"}, {kTargetFolder, "/srv/share"}};
    CScheduleWizardDlg dialog(&entry, 0, nullptr);
    if (!dialog.Create()) return false;
    dialog.show();
    OpenRootFolder(dialog.Page(0)->findChild<CShellTree*>());
    bool saved =
        SaveShown(dialog, QString("dialog%1-page1").arg(CScheduleWizardDlg::kTemplateId), folder);
    dialog.OnCommand(1004);  // "Next  >"
    saved =
        saved &&
        SaveShown(dialog, QString("dialog%1-page2").arg(CScheduleWizardDlg::kTemplateId), folder);
    dialog.reject();
    return saved;
}

// The accounts of a scheduled scan with a user name typed; the password
// fields show only their bullets.
bool SaveAuthorization(const QString& folder) {
    CAuthorizationDlg dialog(nullptr);
    dialog.SetUser("scanner");
    dialog.SetPassword("picture-only");
    if (!dialog.Create()) return false;
    return SaveDialog(dialog, CAuthorizationDlg::kTemplateId, folder);
}

// The configuration wizard's scan step, shown by itself, as
// <folder>/dialog1001-page19.png.
bool SaveWizardScanPage(const QString& folder) {
    CPageShellDlg dialog(ToInt(PageId::kWizardScan), 0, nullptr);
    dialog.SetOwnsStore(0);
    if (!dialog.Create()) return false;
    dialog.show();
    const bool saved = SaveShown(
        dialog,
        QString("dialog%1-page%2").arg(CPageShellDlg::kTemplateId).arg(ToInt(PageId::kWizardScan)),
        folder);
    dialog.reject();
    return saved;
}

}  // namespace

int SaveTargetDialogs(const QString& folder) {
    const bool saved = SaveScanList(folder) && SaveAddFolder(folder) && SaveAddExtension(folder) &&
                       SaveAdvancedScan(kAdvancedSystemScan, 0, folder) &&
                       // The monitor's scan options; its file types are the tab above.
                       SaveAdvancedScan(kAdvancedMonitor, 1, folder) &&
                       SaveScheduleWizard(folder) && SaveAuthorization(folder) &&
                       SaveWizardScanPage(folder);
    return saved ? 0 : 1;
}
