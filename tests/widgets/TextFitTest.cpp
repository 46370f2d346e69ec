// Every text of every form is shown whole, in every language: a label, check
// box, radio button or push button that keeps its text on one line is at
// least as wide as the text (with the check indicator) needs, a combo is as
// wide as each of its items needs, and a label that wraps its text is tall
// enough for the lines it wraps into. Forms are
// the built pages of the registry, the shells' templates and the dialogs
// that pages open.

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "SwitchPageTest.h"
#include "UiLanguages.h"
#include "pages/PageRegistry.h"
#include "pages/SettingsPage.h"
#include "pages/scan/AdvancedScanDlg.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "pages/schedule/ScheduleWizardDlg.h"
#include "pages/targets/AddExtensionDlg.h"
#include "pages/targets/AddFolderDlg.h"
#include "pages/targets/ScanListDlg.h"
#include "shell/ConfigDlg.h"
#include "shell/PageShellDlg.h"
#include "shell/WizardDlg.h"
#include "support/TestPaths.h"

namespace {

struct TextFitResult {
    int measured = 0;                  // controls with a text
    std::vector<std::string> clipped;  // "name \"text\" needs width 449 px, has 424"
};

void NoteIfClipped(TextFitResult& result, const QWidget* control, const QString& text,
                   const char* what, int needed, int room) {
    ++result.measured;
    if (needed <= room) return;
    result.clipped.push_back(control->objectName().toStdString() + " \"" + text.toStdString() +
                             "\" needs " + what + " " + std::to_string(needed) + " px, has " +
                             std::to_string(room));
}

// The width a combo needs to show text whole, arrow and frame included.
int ComboWidthFor(const QComboBox& combo, const QString& text) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.currentText = text;
    const QSize content(combo.fontMetrics().horizontalAdvance(text), combo.fontMetrics().height());
    return combo.style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, &combo).width();
}

// Measures the text of every label, text button and combo item of form.
TextFitResult MeasureTextsOf(const QWidget& form) {
    TextFitResult result;
    for (const QWidget* control : form.findChildren<QWidget*>()) {
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            if (label->text().isEmpty()) continue;
            if (label->wordWrap()) {
                NoteIfClipped(result, label, label->text(), "height",
                              label->heightForWidth(label->width()), label->height());
            } else {
                NoteIfClipped(result, label, label->text(), "width", label->sizeHint().width(),
                              label->width());
            }
            continue;
        }
        if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
            // Every item is shown whole in the closed combo.
            for (int i = 0; i < combo->count(); ++i)
                NoteIfClipped(result, combo, combo->itemText(i), "width",
                              ComboWidthFor(*combo, combo->itemText(i)), combo->width());
            continue;
        }
        const bool textButton = qobject_cast<const QCheckBox*>(control) != nullptr ||
                                qobject_cast<const QRadioButton*>(control) != nullptr ||
                                qobject_cast<const QPushButton*>(control) != nullptr;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        if (!textButton || button->text().isEmpty()) continue;
        NoteIfClipped(result, button, button->text(), "width", button->sizeHint().width(),
                      button->width());
    }
    return result;
}

// The measure itself: it finds what is clipped and passes what is not.
TEST(TextFitMeasure, FindsClippedTextsOfEachKind) {
    const QString text = "A description long enough to need more than one short line";
    QWidget form;
    auto* narrowLabel = new QLabel(text, &form);
    narrowLabel->setObjectName("narrowLabel");
    narrowLabel->setGeometry(0, 0, 100, 18);
    auto* shortWrapped = new QLabel(text, &form);
    shortWrapped->setObjectName("shortWrapped");
    shortWrapped->setWordWrap(true);
    shortWrapped->setGeometry(0, 20, 200, 18);
    auto* narrowBox = new QCheckBox(text, &form);
    narrowBox->setObjectName("narrowBox");
    narrowBox->setGeometry(0, 40, 100, 20);
    auto* narrowRadio = new QRadioButton(text, &form);
    narrowRadio->setObjectName("narrowRadio");
    narrowRadio->setGeometry(0, 60, 100, 20);
    auto* narrowButton = new QPushButton(text, &form);
    narrowButton->setObjectName("narrowButton");
    narrowButton->setGeometry(0, 80, 100, 26);
    // A check box exactly as wide as its text: the indicator is counted.
    auto* boxForText = new QLabel(text, &form);
    boxForText->setObjectName("boxForText");
    boxForText->setGeometry(0, 110, boxForText->sizeHint().width(), 18);
    auto* boxAsText = new QCheckBox(text, &form);
    boxAsText->setObjectName("boxAsText");
    boxAsText->setGeometry(0, 130, boxForText->width(), 20);

    const TextFitResult result = MeasureTextsOf(form);
    EXPECT_EQ(result.measured, 7);
    ASSERT_EQ(result.clipped.size(), 6U);
    const std::vector<std::string> names = {"narrowLabel", "shortWrapped", "narrowBox",
                                            "narrowRadio", "narrowButton", "boxAsText"};
    for (size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(result.clipped[i].rfind(names[i] + " \"", 0), 0U) << result.clipped[i];
}

TEST(TextFitMeasure, FindsEveryComboItemThatDoesNotFit) {
    QWidget form;
    auto* combo = new QComboBox(&form);
    combo->setObjectName("combo");
    combo->addItems({"Short", "An item far too long for the width the combo was given"});
    combo->setGeometry(0, 0, ComboWidthFor(*combo, "Short"), 24);
    const TextFitResult result = MeasureTextsOf(form);
    EXPECT_EQ(result.measured, 2);
    ASSERT_EQ(result.clipped.size(), 1U);
    EXPECT_NE(result.clipped[0].find("An item far too long"), std::string::npos);
}

TEST(TextFitMeasure, PassesTextsThatFit) {
    QWidget form;
    auto* label = new QLabel("Short", &form);
    label->setGeometry(0, 0, label->sizeHint().width(), 18);
    auto* wrapped = new QLabel("Two words", &form);
    wrapped->setWordWrap(true);
    wrapped->setGeometry(0, 20, 300, 60);
    auto* box = new QCheckBox("Short", &form);
    box->setGeometry(0, 80, box->sizeHint().width(), 20);
    auto* button = new QPushButton("OK", &form);
    button->setGeometry(0, 100, 88, 26);
    const TextFitResult result = MeasureTextsOf(form);
    EXPECT_EQ(result.measured, 4);
    EXPECT_TRUE(result.clipped.empty()) << result.clipped.front();
}

class TextFitTest : public SwitchPageTest, public testing::WithParamInterface<UiLanguage> {
protected:
    // Reports each clipped text with the form and the language.
    void CheckForm(const QWidget& form, int formId) const {
        const TextFitResult result = MeasureTextsOf(form);
        EXPECT_GT(result.measured, 0) << "form " << formId << " has no text to measure";
        for (const std::string& clipped : result.clipped)
            ADD_FAILURE() << "form " << formId << ", " << GetParam().name << ": " << clipped;
    }
};

TEST_P(TextFitTest, EveryTextOfEveryFormFitsItsControl) {
    ScopedUiLanguage language(GetParam());
    ASSERT_TRUE(language.Loaded()) << GetParam().file;

    int pages = 0;
    for (const PageRow& row : PageRows()) {
        if (row.make == nullptr) continue;
        std::unique_ptr<CSettingsPage> page = row.make();
        ASSERT_TRUE(page->Create(&m_parent)) << "page " << ToInt(row.id);
        CheckForm(*page, row.templateId);
        ++pages;
    }
    EXPECT_GT(pages, 0);
    QWidget configForm;
    Ui::Dialog102().setupUi(&configForm);
    CheckForm(configForm, CConfigDlg::kTemplateId);
    QWidget pageShellForm;
    Ui::Dialog1001().setupUi(&pageShellForm);
    CheckForm(pageShellForm, CPageShellDlg::kTemplateId);
    QWidget wizardForm;
    Ui::Dialog1002().setupUi(&wizardForm);
    CheckForm(wizardForm, CWizardDlg::kTemplateId);
}

TEST_P(TextFitTest, EveryTextOfTheTargetDialogsFitsItsControl) {
    ScopedUiLanguage language(GetParam());
    ASSERT_TRUE(language.Loaded()) << GetParam().file;
    QWidget scanListForm;
    Ui::Dialog1007().setupUi(&scanListForm);
    CheckForm(scanListForm, CScanListDlg::kTemplateId);
    QWidget addFolderForm;
    Ui::Dialog1028().setupUi(&addFolderForm);
    CheckForm(addFolderForm, CAddFolderDlg::kTemplateId);
    QWidget addExtensionForm;
    Ui::Dialog1029().setupUi(&addExtensionForm);
    CheckForm(addExtensionForm, CAddExtensionDlg::kTemplateId);
}

TEST_P(TextFitTest, EveryTextOfTheAdvancedScanDialogFitsItsControl) {
    ScopedUiLanguage language(GetParam());
    ASSERT_TRUE(language.Loaded()) << GetParam().file;
    QWidget advancedForm;
    Ui::Dialog1038().setupUi(&advancedForm);
    CheckForm(advancedForm, CAdvancedScanDlg::kTemplateId);
}

TEST_P(TextFitTest, EveryTextOfTheScheduleDialogsFitsItsControl) {
    ScopedUiLanguage language(GetParam());
    ASSERT_TRUE(language.Loaded()) << GetParam().file;
    QWidget wizardForm;
    Ui::Dialog1009().setupUi(&wizardForm);
    CheckForm(wizardForm, CScheduleWizardDlg::kTemplateId);
    QWidget authorizationForm;
    Ui::Dialog1024().setupUi(&authorizationForm);
    CheckForm(authorizationForm, CAuthorizationDlg::kTemplateId);
}

// The four tabs of the system scan stand side by side, without scroll buttons.
TEST_P(TextFitTest, TheTabsOfTheAdvancedScanDialogFitTheirBar) {
    ScopedUiLanguage language(GetParam());
    ASSERT_TRUE(language.Loaded()) << GetParam().file;
    CAdvancedScanDlg dialog(0, nullptr);
    dialog.m_nVariant = kAdvancedSystemScan;
    ASSERT_TRUE(dialog.Create());
    const auto* tabs = qobject_cast<const QTabBar*>(dialog.Control(1124));
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 4);
    EXPECT_LE(tabs->sizeHint().width(), tabs->width()) << GetParam().name;
}

std::string TextFitLanguageName(const testing::TestParamInfo<UiLanguage>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Languages, TextFitTest, testing::ValuesIn(UiLanguages()),
                         TextFitLanguageName);

// The languages above come from the build's folder; German must be among
// them, or a missing folder would leave English alone judged.
TEST(TextFitLanguages, TheGermanTranslationIsAmongThem) {
    bool german = false;
    for (const UiLanguage& language : UiLanguages()) {
        if (language.name == kGermanTranslationName) german = true;
    }
    EXPECT_TRUE(german) << TestPath("translations");
}

}  // namespace
