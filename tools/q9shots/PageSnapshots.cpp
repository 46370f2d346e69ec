#include "PageSnapshots.h"

#include <QApplication>
#include <QDir>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <cstdio>
#include <cstdlib>

#include "DialogSnapshots.h"
#include "framework/ImageList.h"
#include "q9cfgul.h"
#include "session/EditionFlags.h"
#include "shell/CfgApp.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"
#include "shell/PageTable.h"
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

// Saves window as it shows now to <folder>/<edition>-page<page>.png and
// prints the file's name; whether it was written.
bool SavePicture(QWidget& window, const QString& folder, const char* edition, int page) {
    QApplication::processEvents();
    const QString file = QString("%1/%2-page%3.png").arg(folder, edition).arg(page);
    if (!window.grab().save(file)) {
        std::fprintf(stderr, "q9shots: cannot write %s\n", qPrintable(file));
        return false;
    }
    std::printf("%s\n", qPrintable(QDir(file).absolutePath()));
    return true;
}

// Selects every row in tree order and saves the dialog each time.
int SaveEachPage(CConfigDlg& dialog, const QString& folder, const char* edition) {
    int saved = 0;
    for (QTreeWidgetItemIterator it(dialog.Tree()); *it; ++it) {
        dialog.Tree()->setCurrentItem(*it);
        if (!SavePicture(dialog, folder, edition, (*it)->data(0, Qt::UserRole).toInt())) return 1;
        ++saved;
    }
    return saved > 0 ? 0 : 1;
}

// The page alone on a window of its size, made and loaded as a shell makes
// it; nothing is saved.
int SaveSinglePage(int pageId, uint32_t flags, const QString& folder, const char* edition) {
    QWidget window;
    CPageTable pages;
    CSettingsPage* page = pages.Create(pageId, flags, &window);
    if (!page) {
        std::fprintf(stderr, "q9shots: page %d cannot be made\n", pageId);
        return 1;
    }
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    window.resize(page->size());
    page->show();
    window.show();
    const bool saved = SavePicture(window, folder, edition, pageId);
    pages.DestroyAll();
    return saved ? 0 : 1;
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
    const uint32_t flags = FlagsFor(request.edition);
    const char* edition = EditionName(request.edition);
    int result = 0;
    if (request.targetDialogs) {
        result = SaveTargetDialogs(folder);
    } else if (request.pageId >= 0) {
        result = SaveSinglePage(request.pageId, flags, folder, edition);
    } else {
        result = SaveConfigDialog(flags, folder, edition);
    }
    MessageService::Install(nullptr);
    return result;
}
