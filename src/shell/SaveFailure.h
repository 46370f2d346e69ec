#pragma once

// What a shell does when the store refuses its commit on OK: it says so to
// the user and stays open with every change kept, so that OK can try again
// and Cancel can discard them.

class QWidget;

// Commits the working copy; on failure shows the message over owner and
// answers false.
bool CommitOrReport(QWidget* owner);
