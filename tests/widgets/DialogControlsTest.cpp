#include "framework/DialogControls.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <utility>
#include <vector>

namespace {

class DialogControlsTest : public testing::Test {
protected:
    DialogControlsTest() {
        group = Make<QGroupBox>(1100);
        check = Make<QCheckBox>(1101);
        radio = Make<QRadioButton>(1102);
        edit = Make<QLineEdit>(1103);
        combo = Make<QComboBox>(1104);
        list = Make<QListWidget>(1105);
        label = new QLabel("plain", &dialog);
        button = Make<QPushButton>(1106);
    }

    template <typename Control>
    Control* Make(int id) {
        auto* control = new Control(&dialog);
        ctl::SetId(control, id);
        return control;
    }

    QWidget dialog;
    QGroupBox* group;
    QCheckBox* check;
    QRadioButton* radio;
    QLineEdit* edit;
    QComboBox* combo;
    QListWidget* list;
    QLabel* label;
    QPushButton* button;
};

TEST_F(DialogControlsTest, ChildrenComeInCreationOrderWithTheirIds) {
    std::vector<int> ids;
    for (QWidget* control : ctl::Children(&dialog)) ids.push_back(ctl::IdOf(control));
    EXPECT_EQ(ids, (std::vector<int>{1100, 1101, 1102, 1103, 1104, 1105, ctl::kNoId, 1106}));
    EXPECT_EQ(ctl::Find(&dialog, 1104), combo);
    EXPECT_EQ(ctl::Find(&dialog, 4242), nullptr);
}

TEST_F(DialogControlsTest, CheckStatesIncludingIndeterminate) {
    ctl::SetCheck(&dialog, 1101, 1);
    EXPECT_EQ(ctl::GetCheck(&dialog, 1101), 1);
    ctl::SetCheck(&dialog, 1101, 2);
    EXPECT_EQ(ctl::GetCheck(&dialog, 1101), 2);
    EXPECT_EQ(check->checkState(), Qt::PartiallyChecked);
    ctl::SetCheck(&dialog, 1101, 0);
    EXPECT_EQ(ctl::GetCheck(&dialog, 1101), 0);
    ctl::SetCheck(&dialog, 1102, 1);
    EXPECT_EQ(ctl::GetCheck(&dialog, 1102), 1);
    EXPECT_EQ(ctl::GetCheck(&dialog, 1103), 0);  // not a button
}

TEST_F(DialogControlsTest, TextOfEveryKind) {
    for (int id : {1100, 1101, 1103, 1106}) {
        ctl::SetText(&dialog, id, "Text " + std::to_string(id));
        EXPECT_EQ(ctl::GetText(&dialog, id), "Text " + std::to_string(id));
    }
    EXPECT_EQ(group->title(), "Text 1100");
    EXPECT_EQ(edit->text(), "Text 1103");
    ctl::SetText(&dialog, 1103, "Grüße");
    EXPECT_EQ(ctl::GetText(&dialog, 1103), "Grüße");
}

TEST_F(DialogControlsTest, EntriesAndSelectionByIndex) {
    EXPECT_EQ(ctl::AddItem(&dialog, 1104, "High"), 0);
    EXPECT_EQ(ctl::AddItem(&dialog, 1104, "Low"), 1);
    ctl::SetSelection(&dialog, 1104, 1);
    EXPECT_EQ(ctl::GetSelection(&dialog, 1104), 1);
    EXPECT_EQ(ctl::GetText(&dialog, 1104), "Low");
    EXPECT_EQ(ctl::AddItem(&dialog, 1105, "a"), 0);
    EXPECT_EQ(ctl::ItemCount(&dialog, 1105), 1);
    ctl::ClearItems(&dialog, 1104);
    EXPECT_EQ(ctl::ItemCount(&dialog, 1104), 0);
    EXPECT_EQ(ctl::GetSelection(&dialog, 1104), -1);
    EXPECT_EQ(ctl::AddItem(&dialog, 1103, "x"), -1);
}

TEST_F(DialogControlsTest, EnableAndShowAreTheControlsOwnState) {
    ctl::Enable(&dialog, 1101, false);
    ctl::Show(&dialog, 1103, false);
    EXPECT_FALSE(ctl::IsEnabled(&dialog, 1101));
    EXPECT_FALSE(ctl::IsShown(&dialog, 1103));
    // The dialog is not on the screen, yet its controls keep their own state.
    EXPECT_TRUE(ctl::IsShown(&dialog, 1101));
    dialog.setEnabled(false);
    EXPECT_TRUE(ctl::IsEnabled(&dialog, 1102));
    EXPECT_FALSE(ctl::IsEnabled(&dialog, 4242));
}

TEST_F(DialogControlsTest, OnlyTheUsersActionsAreReported) {
    std::vector<std::pair<int, ctl::Notification>> heard;
    ctl::ConnectControls(&dialog, [&heard](int id, ctl::Notification code) { heard.emplace_back(id, code); });
    ctl::SetCheck(&dialog, 1101, 1);
    ctl::SetText(&dialog, 1103, "by code");
    combo->addItem("a");
    combo->addItem("b");
    ctl::SetSelection(&dialog, 1104, 1);
    EXPECT_TRUE(heard.empty());
    check->click();
    QTest::keyClicks(edit, "x");
    button->click();
    ASSERT_EQ(heard.size(), 3u);
    EXPECT_EQ(heard[0], std::make_pair(1101, ctl::Notification::kClicked));
    EXPECT_EQ(heard[1], std::make_pair(1103, ctl::Notification::kEditChanged));
    EXPECT_EQ(heard[2], std::make_pair(1106, ctl::Notification::kClicked));
}

}  // namespace
