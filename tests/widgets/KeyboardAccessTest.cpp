// Every form used from the keyboard and by a screen reader: Tab reaches each
// control that takes focus, in the order of the form's template; each of
// those controls has an accessible name (its caption, or the label before
// it); and lists and trees move their current row with the arrow keys.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTabBar>
#include <QTreeView>
#include <QXmlStreamReader>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "framework/AccessibleNames.h"
#include "pages/PageRegistry.h"
#include "pages/SettingsPage.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "schedule/ScheduleEntry.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"
#include "shell/PageShellDlg.h"
#include "support/TestPaths.h"

namespace {

// The names of a form's widgets in the order of its file, which is the
// order of its template.
std::vector<QString> TemplateOrder(int templateId) {
    QFile file(QString::fromStdString(TestPath("source")) +
               QStringLiteral("/src/resources/forms/Dialog%1.ui").arg(templateId));
    std::vector<QString> names;
    if (!file.open(QIODevice::ReadOnly)) return names;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("widget")) {
            names.push_back(xml.attributes().value(QLatin1String("name")).toString());
        }
    }
    return names;
}

// Tab passes over a radio button of a group whose checked button stands for
// the group; the arrow keys move within it.
bool StandsInForItsGroup(const QWidget* widget) {
    const auto* radio = qobject_cast<const QRadioButton*>(widget);
    if (!radio || !radio->autoExclusive() || radio->isChecked()) return true;
    for (const QRadioButton* other : radio->parentWidget()->findChildren<QRadioButton*>(
             QString(), Qt::FindDirectChildrenOnly)) {
        if (other->autoExclusive() && other->isChecked()) return false;
    }
    return true;
}

// The controls Tab must reach, in the template's order.
std::vector<QWidget*> TabStops(QWidget* form, int templateId) {
    std::vector<QWidget*> stops;
    for (const QString& name : TemplateOrder(templateId)) {
        auto* widget = form->findChild<QWidget*>(name);
        if (!widget || widget == form || !widget->isVisibleTo(form->window()) ||
            !widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus) ||
            !StandsInForItsGroup(widget)) {
            continue;
        }
        stops.push_back(widget);
    }
    return stops;
}

// The tab stop that has the focus (a control's part counts as the control).
QWidget* StopWithFocus(const std::set<QWidget*>& stops) {
    for (QWidget* widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
        if (stops.contains(widget)) return widget;
    }
    return nullptr;
}

std::string Names(const std::vector<QWidget*>& widgets) {
    std::string text;
    for (const QWidget* widget : widgets) text += widget->objectName().toStdString() + " ";
    return text;
}

class KeyboardAccessTest : public SwitchPageTest {
protected:
    // Checks a form shown in its window; the number of its tab stops.
    static std::size_t CheckForm(QWidget* form, int templateId) {
        std::size_t count = 0;
        CheckFormInto(form, templateId, &count);
        return count;
    }

    static void CheckFormInto(QWidget* form, int templateId, std::size_t* count) {
        SCOPED_TRACE("form " + std::to_string(templateId));
        QWidget* window = form->window();
        window->show();
        QApplication::setActiveWindow(window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        const std::vector<QWidget*> stops = TabStops(form, templateId);
        ASSERT_FALSE(TemplateOrder(templateId).empty());
        *count = stops.size();
        ExpectTabOrder(stops);
        for (QWidget* stop : stops) {
            EXPECT_FALSE(AccessibleNameOf(stop).isEmpty())
                << "no accessible name: " << stop->objectName().toStdString();
        }
        ExpectArrowKeysMoveInLists(stops);
        window->hide();
    }

    // From the first stop, Tab visits every stop once, in order, and comes
    // back to the first.
    static void ExpectTabOrder(const std::vector<QWidget*>& stops) {
        if (stops.empty()) return;
        const std::set<QWidget*> known(stops.begin(), stops.end());
        stops.front()->setFocus(Qt::TabFocusReason);
        std::vector<QWidget*> visited;
        for (std::size_t presses = 0; presses < 4 * stops.size() + 20; ++presses) {
            QWidget* stop = StopWithFocus(known);
            if (stop == stops.front() && !visited.empty()) break;
            if (stop && (visited.empty() || visited.back() != stop)) visited.push_back(stop);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(Names(visited), Names(stops));
    }

    // Down moves to the row shown below the first, Up back to the first.
    static void ExpectArrowKeysMoveInLists(const std::vector<QWidget*>& stops) {
        for (QWidget* stop : stops) {
            auto* view = qobject_cast<QAbstractItemView*>(stop);
            if (!view || !view->model()) continue;
            const QModelIndex first = view->model()->index(0, 0);
            const QModelIndex below = RowBelow(view, first);
            if (!below.isValid()) continue;
            view->setFocus();
            view->setCurrentIndex(first);
            QTest::keyClick(view, Qt::Key_Down);
            EXPECT_EQ(view->currentIndex(), below) << stop->objectName().toStdString();
            QTest::keyClick(view, Qt::Key_Up);
            EXPECT_EQ(view->currentIndex(), first) << stop->objectName().toStdString();
        }
    }

    static QModelIndex RowBelow(const QAbstractItemView* view, const QModelIndex& index) {
        if (!index.isValid()) return {};
        if (const auto* tree = qobject_cast<const QTreeView*>(view)) return tree->indexBelow(index);
        return view->model()->index(index.row() + 1, 0);
    }

    template <typename Dialog>
    static void CheckDialog(Dialog& dialog) {
        ASSERT_TRUE(dialog.Create());
        CheckForm(&dialog, Dialog::kTemplateId);
    }
};

}  // namespace

TEST_F(KeyboardAccessTest, EveryPage) {
    m_parent.resize(700, 600);
    std::size_t stops = 0;
    for (const PageRow& row : PageRows()) {
        if (row.make == nullptr) continue;
        std::unique_ptr<CSettingsPage> page = row.make();
        ASSERT_TRUE(page->Create(&m_parent)) << "page " << ToInt(row.id);
        page->show();
        stops += CheckForm(page.get(), row.templateId);
    }
    EXPECT_GT(stops, 50u) << "the pages' controls were walked";
}

TEST_F(KeyboardAccessTest, TheTargetDialogs) {
    CScanListDlg scanList("", nullptr);
    CheckDialog(scanList);
    CAddFolderDlg addFolder(nullptr);
    CheckDialog(addFolder);
    CAddExtensionDlg addExtension(nullptr);
    CheckDialog(addExtension);
}

TEST_F(KeyboardAccessTest, TheAdvancedScanDialogAndEachOfItsTabs) {
    CAdvancedScanDlg dialog(0, nullptr);
    CheckDialog(dialog);
    auto* tabs = dialog.findChild<QTabBar*>();
    ASSERT_NE(tabs, nullptr);
    std::set<int> checked;
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        for (QWidget* widget : dialog.findChildren<QWidget*>()) {
            auto* page = dynamic_cast<CSettingsPage*>(widget);
            if (page && page->isVisibleTo(&dialog) && checked.insert(page->TemplateId()).second) {
                CheckForm(page, page->TemplateId());
            }
        }
    }
    EXPECT_EQ(checked.size(), static_cast<std::size_t>(tabs->count()));
}

TEST_F(KeyboardAccessTest, TheShells) {
    {
        CConfigDlg dialog(0, 0, nullptr);
        CheckDialog(dialog);
    }
    ClearConfigWindow();
    {
        CPageShellDlg dialog(ToInt(PageId::kSecurity), 0, nullptr);
        CheckDialog(dialog);
    }
    ClearConfigWindow();
}

TEST_F(KeyboardAccessTest, TheScheduleDialogs) {
    ScheduleEntry entry;
    CScheduleWizardDlg wizard(&entry, 0, nullptr);
    CheckDialog(wizard);
    CAuthorizationDlg accounts(nullptr);
    CheckDialog(accounts);
}
