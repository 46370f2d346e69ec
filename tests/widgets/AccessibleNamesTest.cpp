// Controls named by the label before them, the way a template's static text
// names the control that follows it.

#include "framework/AccessibleNames.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QWidget>

namespace {

template <typename Control>
Control* Add(QWidget* form, const char* name) {
    auto* control = new Control(form);
    control->setObjectName(QLatin1String(name));
    return control;
}

QLabel* AddLabel(QWidget* form, const char* name, const char* text) {
    QLabel* label = Add<QLabel>(form, name);
    label->setText(QLatin1String(text));
    return label;
}

}  // namespace

TEST(AccessibleNames, AControlTakesTheLabelBeforeItWithoutMarksAndColon) {
    QWidget form;
    AddLabel(&form, "portLabel", "Mail Server &Port:");
    auto* port = Add<QLineEdit>(&form, "portEdit");
    AddLabel(&form, "pictureLabel", "");
    auto* level = Add<QSpinBox>(&form, "levelSpin");
    AddLabel(&form, "andLabel", "Save && Close");
    auto* list = Add<QListWidget>(&form, "list");
    NameControlsByTheirLabels(&form);
    EXPECT_EQ(AccessibleNameOf(port), "Mail Server Port");
    EXPECT_EQ(AccessibleNameOf(level), "Mail Server Port") << "a picture is no label";
    EXPECT_EQ(AccessibleNameOf(list), "Save & Close");
}

TEST(AccessibleNames, ButtonsKeepTheirCaptionsAndANameGivenStays) {
    QWidget form;
    AddLabel(&form, "label", "Options:");
    auto* box = Add<QCheckBox>(&form, "box");
    box->setText(QLatin1String("&Scan compressed files"));
    auto* named = Add<QLineEdit>(&form, "named");
    named->setAccessibleName(QLatin1String("Given"));
    NameControlsByTheirLabels(&form);
    EXPECT_EQ(AccessibleNameOf(box), "Scan compressed files");
    EXPECT_EQ(AccessibleNameOf(named), "Given");
}

TEST(AccessibleNames, TheFirstControlWithoutALabelTakesTheFormsTitle) {
    QWidget form;
    form.setWindowTitle(QLatin1String("Add folders"));
    auto* list = Add<QListWidget>(&form, "folders");
    NameControlsByTheirLabels(&form);
    EXPECT_EQ(AccessibleNameOf(list), "Add folders");
}

TEST(AccessibleNames, TheFocusablePartsOfAControlShareItsName) {
    QWidget form;
    AddLabel(&form, "label", "Extensions:");
    auto* combo = Add<QComboBox>(&form, "combo");
    combo->setEditable(true);
    NameControlsByTheirLabels(&form);
    EXPECT_EQ(AccessibleNameOf(combo), "Extensions");
    EXPECT_EQ(combo->lineEdit()->accessibleName(), "Extensions");
}
