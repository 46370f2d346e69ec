#pragma once

// The scenes the shell benchmarks measure, shared by the benchmark program
// and the memory probe: the configuration dialog of a session, and bare Qt
// dialogs to measure it against, each made and painted once.

#include <QIcon>
#include <memory>
#include <QRect>
#include <QString>
#include <vector>

class CConfigDlg;
class CSession;
class QDialog;

// What a bare dialog copies of a widget of the configuration dialog: its
// kind, place, text and state, its children, and a tree's rows.
struct WidgetBlueprint {
    enum Kind { kPlain, kCheckBox, kLabel, kPushButton, kGroupBox, kFrame, kTree };
    Kind kind = kPlain;
    QRect geometry;
    QString text;
    bool checked = false;
    bool visible = true;
    std::vector<WidgetBlueprint> children;
    struct Row {
        QString text;
        QIcon icon;
        int depth;
    };
    std::vector<Row> rows;
};

// The configuration dialog showing its first page, as plain Qt widgets
// would draw it. Needs a BenchInstallation.
WidgetBlueprint CaptureConfigDialog();

// The widgets of the configuration dialog showing its first page.
int ConfigDialogWidgetCount();

// A plain QDialog with the same widgets, texts and tree rows as the
// blueprint, shown and painted when made.
class BareCopyScene {
public:
    explicit BareCopyScene(const WidgetBlueprint& blueprint);
    ~BareCopyScene();

private:
    std::unique_ptr<QDialog> m_dialog;
};

// A plain QDialog with a tree, a bar, buttons and check boxes, widgets in
// all; shown and painted.
void PaintBareDialog(int widgets);

// A session from its start to the first page painted when made; Cancel and
// the session's end when destroyed. Needs a BenchInstallation.
class SessionScene {
public:
    SessionScene();
    ~SessionScene();

private:
    std::unique_ptr<CSession> m_session;
    std::unique_ptr<CConfigDlg> m_dialog;
};

// A session scene made and ended at once.
void PaintSessionFirstPage();
