#pragma once

// The scenes the shell benchmarks measure, shared by the benchmark program
// and the memory probe: the configuration dialog of a session, and a bare Qt
// dialog with as many widgets, made and painted once.

class QDialog;

// The widgets of the configuration dialog showing its first page.
int ConfigDialogWidgetCount();

// A plain QDialog with a tree, a bar, buttons and check boxes, widgets in
// all; shown and painted.
void PaintBareDialog(int widgets);

// A session from its start to the first page painted, then Cancel. Needs a
// BenchInstallation.
void PaintSessionFirstPage();
