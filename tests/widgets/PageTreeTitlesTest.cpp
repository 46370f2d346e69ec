// The page tree of the configuration dialog shows every title whole, in
// every edition's tree and every language: with all groups open, each row's
// picture and text (as the tree would draw them) fit between the row's
// indentation and the right edge of the tree's visible area.

#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "ShellTestSupport.h"
#include "UiLanguages.h"
#include "q9cfgul.h"
#include "shell/ConfigDlg.h"
#include "shell/ConfigWindow.h"

namespace {

struct TreeTitleCase {
    const char* edition;
    uint32_t flags;
    UiLanguage language;
};

std::vector<TreeTitleCase> TreeTitleCases() {
    struct Edition {
        const char* name;
        uint32_t flags;
    };
    const Edition editions[] = {{"normal", 0}, {"master", DMF_Master}, {"light", DMF_IsLight}};
    std::vector<TreeTitleCase> cases;
    for (const Edition& edition : editions) {
        for (const UiLanguage& language : UiLanguages())
            cases.push_back({edition.name, edition.flags, language});
    }
    return cases;
}

void PrintTo(const TreeTitleCase& c, std::ostream* out) {
    *out << c.edition << " tree, " << c.language.name;
}

std::string TreeTitleCaseName(const testing::TestParamInfo<TreeTitleCase>& info) {
    return std::string(info.param.edition) + "_" + info.param.language.name;
}

class PageTreeTitlesTest : public ShellTest, public testing::WithParamInterface<TreeTitleCase> {
protected:
    ~PageTreeTitlesTest() override {
        dialog.reset();
        ClearConfigWindow();
    }

    std::unique_ptr<CConfigDlg> dialog;
};

TEST_P(PageTreeTitlesTest, EveryTitleIsShownWhole) {
    const TreeTitleCase& c = GetParam();
    ScopedUiLanguage installed(c.language);
    ASSERT_TRUE(installed.Loaded()) << c.language.file;
    dialog = std::make_unique<CConfigDlg>(-1, c.flags, nullptr, RecordingPages(&log, {}));
    ASSERT_TRUE(dialog->Create());
    dialog->show();
    QTreeWidget* tree = dialog->Tree();
    tree->expandAll();

    const int visibleRight = tree->viewport()->width();
    int rows = 0;
    for (QTreeWidgetItemIterator it(tree); *it; ++it) {
        ++rows;
        const QRect row = tree->visualItemRect(*it);
        const int needed = tree->sizeHintForIndex(tree->indexFromItem(*it)).width();
        const int room = std::min(row.right() + 1, visibleRight) - row.left();
        if (needed > room) {
            ADD_FAILURE() << c.edition << " tree, " << c.language.name << ": \""
                          << (*it)->text(0).toStdString() << "\" needs " << needed << " px, has "
                          << room;
        }
    }
    EXPECT_GT(rows, 0);
}

INSTANTIATE_TEST_SUITE_P(EditionsAndLanguages, PageTreeTitlesTest,
                         testing::ValuesIn(TreeTitleCases()), TreeTitleCaseName);

}  // namespace
