#pragma once

#include <string>

enum class Edition { kInstalled, kNormal, kMaster, kLight };

struct SnapshotRequest {
    Edition edition = Edition::kInstalled;
    std::string outputDirectory = "screenshots";
    bool targetDialogs = false;  // the target dialogs instead of the configuration dialog
    int pageId = -1;             // one page alone instead of the configuration dialog
};

// "installed", "normal", "master" or "light"; false for anything else.
bool ParseEdition(const std::string& text, Edition* edition);

// Opens the configuration dialog of the installation in the edition asked
// for, selects each page of its tree in turn and saves the dialog as
// <out>/<edition>-page<id>.png, printing each file name; the dialog ends as
// Cancel does. With targetDialogs, saves the target dialogs instead (see
// DialogSnapshots.h). With a page id, saves that page alone, as a shell
// carries it (also a page that no tree shows, such as a wizard step), to
// <out>/<edition>-page<id>.png. Returns the process's exit code.
int RenderConfigDialog(const SnapshotRequest& request, int argc, char** argv);
