#include "PageSnapshots.h"

#include <QApplication>
#include <QDir>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <cstdio>
#include <cstdlib>

#include "DialogSnapshots.h"
#include "q9cfgul.h"
#include "session/EditionFlags.h"
#include "shell/CfgApp.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"
#include "shell/Session.h"
#include "text/MessageService.h"

namespace {

const char* EditionName(Edition edition) {
    switch (edition) {
        case Edition::kNormal: return "normal";
        case Edition::kMaster: return "master";
        case Edition::kLight: return "light";
        case Edition::kInstalled: break;
    }
    return "installed";
}

uint32_t FlagsFor(Edition edition) {
    switch (edition) {
        case Edition::kNormal: return 0;
        case Edition::kMaster: return DMF_Master;
        case Edition::kLight: return DMF_IsLight;
        case Edition::kInstalled: break;
    }
    return AddEditionFlags(0);
}

// Selects every row in tree order and saves the dialog each time.
int SaveEachPage(CConfigDlg& dialog, const QString& folder, const char* edition) {
    int saved = 0;
    for (QTreeWidgetItemIterator it(dialog.Tree()); *it; ++it) {
        dialog.Tree()->setCurrentItem(*it);
        QApplication::processEvents();
        const int page = (*it)->data(0, Qt::UserRole).toInt();
        const QString file = QString("%1/%2-page%3.png").arg(folder, edition).arg(page);
        if (!dialog.grab().save(file)) {
            std::fprintf(stderr, "q9shots: cannot write %s\n", qPrintable(file));
            return 1;
        }
        std::printf("%s\n", qPrintable(QDir(file).absolutePath()));
        ++saved;
    }
    return saved > 0 ? 0 : 1;
}

int SaveConfigDialog(uint32_t flags, const QString& folder, const char* edition) {
    CConfigDlg dialog(-1, flags, nullptr);
    if (!dialog.Create()) {
        std::fprintf(stderr, "q9shots: the configuration dialog cannot be made\n");
        return 1;
    }
    dialog.show();
    const int result = SaveEachPage(dialog, folder, edition);
    dialog.reject();
    ClearConfigWindow();
    return result;
}

}  // namespace

bool ParseEdition(const std::string& text, Edition* edition) {
    for (Edition candidate :
         {Edition::kInstalled, Edition::kNormal, Edition::kMaster, Edition::kLight}) {
        if (text == EditionName(candidate)) {
            *edition = candidate;
            return true;
        }
    }
    return false;
}

int RenderConfigDialog(const SnapshotRequest& request, int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    CCfgApp::InitInstance();
    // Nobody is there to answer a box: it is written out and answered with
    // its default button.
    ConsoleMessageService console;
    MessageService::Install(&console);
    CSession session(CSession::kWithUserInterface);

    const QString folder = QString::fromStdString(request.outputDirectory);
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "q9shots: cannot make the folder %s\n", qPrintable(folder));
        return 1;
    }
    const int result = request.targetDialogs ? SaveTargetDialogs(folder)
                                             : SaveConfigDialog(FlagsFor(request.edition), folder,
                                                                EditionName(request.edition));
    MessageService::Install(nullptr);
    return result;
}
