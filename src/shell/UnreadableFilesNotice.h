#pragma once

// Tells the user of an open dialog which settings files could not be read.
// The readers of those files (hives, the store, level files, profiles, the
// zone, the rule files) report them in the process-wide list of unreadable
// files and take them as empty; the pages then show defaults, so the user
// must hear why. Each file is told once per dialog, when the dialog opens or
// when a page that reads it is shown.

#include <set>
#include <string>

class QWidget;

class CUnreadableFilesNotice {
public:
    // Shows one warning over owner listing the unreadable files not yet
    // told; nothing when there are none.
    void ShowNew(QWidget* owner);

    // The same once the event loop runs again, so that a dialog still being
    // set up is on the screen under the warning. The notice must live as
    // long as owner.
    void ShowNewLater(QWidget* owner);

private:
    std::set<std::string> m_told;  // path and problem: a new problem is told again
};
