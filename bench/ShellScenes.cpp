#include "ShellScenes.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>

#include "session/ConfigDlg.h"
#include "session/ConfigWindow.h"
#include "session/Session.h"

int ConfigDialogWidgetCount() {
    CConfigDlg dialog(0, 0, nullptr);
    dialog.Create();
    const int count = static_cast<int>(dialog.findChildren<QWidget*>().size());
    dialog.reject();
    ClearConfigWindow();
    return count;
}

void PaintBareDialog(int widgets) {
    QDialog dialog;
    dialog.resize(720, 476);
    auto* tree = new QTreeWidget(&dialog);
    tree->setGeometry(8, 8, 212, 420);
    for (int i = 0; i < 20; ++i) new QTreeWidgetItem(tree, QStringList(QString("Page %1").arg(i)));
    new QLabel("Header", &dialog);
    for (const char* text : {"OK", "Cancel", "Default"}) new QPushButton(text, &dialog);
    for (int made = static_cast<int>(dialog.findChildren<QWidget*>().size()), row = 0; made < widgets;
         made = static_cast<int>(dialog.findChildren<QWidget*>().size()), ++row) {
        auto* box = new QCheckBox(QString("Function %1").arg(row), &dialog);
        box->setGeometry(240, 40 + 24 * (row % 16), 400, 22);
    }
    dialog.show();
    const QPixmap painted = dialog.grab();
    (void)painted;
}

void PaintSessionFirstPage() {
    CSession session(CSession::kWithUserInterface);
    CConfigDlg dialog(0, 0, nullptr);
    dialog.Create();
    dialog.show();
    const QPixmap painted = dialog.grab();
    (void)painted;
    dialog.reject();
    ClearConfigWindow();
}
