#include "ShellScenes.h"

#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>

#include "controls/HeaderStatic.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"
#include "shell/Session.h"

namespace {

WidgetBlueprint::Kind KindOf(const QWidget* widget) {
    if (qobject_cast<const QTreeWidget*>(widget)) return WidgetBlueprint::kTree;
    if (qobject_cast<const QCheckBox*>(widget)) return WidgetBlueprint::kCheckBox;
    if (qobject_cast<const QPushButton*>(widget)) return WidgetBlueprint::kPushButton;
    if (qobject_cast<const QGroupBox*>(widget)) return WidgetBlueprint::kGroupBox;
    if (qobject_cast<const QLabel*>(widget) || dynamic_cast<const CHeaderStatic*>(widget)) {
        return WidgetBlueprint::kLabel;
    }
    if (qobject_cast<const QFrame*>(widget)) return WidgetBlueprint::kFrame;
    return WidgetBlueprint::kPlain;
}

QString TextOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(widget)) return group->title();
    if (const auto* header = dynamic_cast<const CHeaderStatic*>(widget)) return header->Text();
    return {};
}

void CaptureRows(const QTreeWidget* tree, WidgetBlueprint& blueprint) {
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(tree)); *it; ++it) {
        int depth = 0;
        for (const QTreeWidgetItem* up = (*it)->parent(); up; up = up->parent()) ++depth;
        blueprint.rows.push_back({(*it)->text(0), (*it)->icon(0), depth});
    }
}

WidgetBlueprint Capture(const QWidget* widget) {
    WidgetBlueprint blueprint;
    blueprint.kind = KindOf(widget);
    blueprint.geometry = widget->geometry();
    blueprint.text = TextOf(widget);
    blueprint.visible = !widget->isHidden();
    if (const auto* box = qobject_cast<const QCheckBox*>(widget))
        blueprint.checked = box->isChecked();
    if (blueprint.kind == WidgetBlueprint::kTree) {
        CaptureRows(static_cast<const QTreeWidget*>(widget), blueprint);
        return blueprint;
    }
    for (const QObject* child : widget->children()) {
        if (child->isWidgetType())
            blueprint.children.push_back(Capture(static_cast<const QWidget*>(child)));
    }
    return blueprint;
}

void FillTree(QTreeWidget* tree, const std::vector<WidgetBlueprint::Row>& rows) {
    tree->setHeaderHidden(true);
    std::vector<QTreeWidgetItem*> open;
    for (const WidgetBlueprint::Row& row : rows) {
        open.resize(static_cast<size_t>(row.depth));
        auto* item = open.empty() ? new QTreeWidgetItem(tree) : new QTreeWidgetItem(open.back());
        item->setText(0, row.text);
        item->setIcon(0, row.icon);
        item->setExpanded(true);
        open.push_back(item);
    }
}

QWidget* Build(const WidgetBlueprint& blueprint, QWidget* parent) {
    QWidget* widget = nullptr;
    switch (blueprint.kind) {
        case WidgetBlueprint::kCheckBox: {
            auto* box = new QCheckBox(blueprint.text, parent);
            box->setChecked(blueprint.checked);
            widget = box;
            break;
        }
        case WidgetBlueprint::kLabel: widget = new QLabel(blueprint.text, parent); break;
        case WidgetBlueprint::kPushButton: widget = new QPushButton(blueprint.text, parent); break;
        case WidgetBlueprint::kGroupBox: widget = new QGroupBox(blueprint.text, parent); break;
        case WidgetBlueprint::kFrame: widget = new QFrame(parent); break;
        case WidgetBlueprint::kTree: {
            auto* tree = new QTreeWidget(parent);
            FillTree(tree, blueprint.rows);
            widget = tree;
            break;
        }
        case WidgetBlueprint::kPlain: widget = new QWidget(parent); break;
    }
    widget->setGeometry(blueprint.geometry);
    widget->setVisible(blueprint.visible);
    for (const WidgetBlueprint& child : blueprint.children) Build(child, widget);
    return widget;
}

}  // namespace

WidgetBlueprint CaptureConfigDialog() {
    CSession session(CSession::kWithUserInterface);
    CConfigDlg dialog(0, 0, nullptr);
    dialog.Create();
    WidgetBlueprint blueprint = Capture(&dialog);
    dialog.reject();
    ClearConfigWindow();
    return blueprint;
}

int ConfigDialogWidgetCount() {
    CConfigDlg dialog(0, 0, nullptr);
    dialog.Create();
    const int count = static_cast<int>(dialog.findChildren<QWidget*>().size());
    dialog.reject();
    ClearConfigWindow();
    return count;
}

BareCopyScene::BareCopyScene(const WidgetBlueprint& blueprint)
    : m_dialog(std::make_unique<QDialog>()) {
    m_dialog->resize(blueprint.geometry.size());
    for (const WidgetBlueprint& child : blueprint.children) Build(child, m_dialog.get());
    m_dialog->show();
    const QPixmap painted = m_dialog->grab();
    (void)painted;
}

BareCopyScene::~BareCopyScene() = default;

void PaintBareDialog(int widgets) {
    QDialog dialog;
    dialog.resize(720, 476);
    auto* tree = new QTreeWidget(&dialog);
    tree->setGeometry(8, 8, 212, 420);
    for (int i = 0; i < 20; ++i) new QTreeWidgetItem(tree, QStringList(QString("Page %1").arg(i)));
    new QLabel("Header", &dialog);
    for (const char* text : {"OK", "Cancel", "Default"}) new QPushButton(text, &dialog);
    for (int made = static_cast<int>(dialog.findChildren<QWidget*>().size()), row = 0;
         made < widgets; made = static_cast<int>(dialog.findChildren<QWidget*>().size()), ++row) {
        auto* box = new QCheckBox(QString("Function %1").arg(row), &dialog);
        box->setGeometry(240, 40 + 24 * (row % 16), 400, 22);
    }
    dialog.show();
    const QPixmap painted = dialog.grab();
    (void)painted;
}

SessionScene::SessionScene()
    : m_session(std::make_unique<CSession>(CSession::kWithUserInterface)),
      m_dialog(std::make_unique<CConfigDlg>(0, 0, nullptr)) {
    m_dialog->Create();
    m_dialog->show();
    const QPixmap painted = m_dialog->grab();
    (void)painted;
}

SessionScene::~SessionScene() {
    m_dialog->reject();
    ClearConfigWindow();
    m_dialog.reset();
    m_session.reset();
}

void PaintSessionFirstPage() { SessionScene scene; }
