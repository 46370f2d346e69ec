// The rule editor driven through its real widgets on the offscreen platform.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeWidget>

#include "MsgFltTestSupport.h"
#include "Q9MsgFlt.h"

namespace {

class RuleEditorTest : public MsgFltTest {
protected:
    void SetUp() override {
        WriteRules(kTwoRules);
        ASSERT_EQ(Q9MsgFltAPI_InitManager(), 1);
    }

    // Runs the editor with action on its main window.
    int32_t Edit(std::function<void(QDialog*)> action) {
        WhenModal(std::move(action));
        return Q9MsgFltAPI_DoProperty();
    }
};

QTreeWidget* List(QDialog* editor) { return Child<QTreeWidget>(editor, "ruleList"); }

QStringList Row(QDialog* editor, int row) {
    QStringList texts;
    if (QTreeWidgetItem* item = List(editor)->topLevelItem(row)) {
        for (int column = 0; column < item->columnCount(); ++column) texts << item->text(column);
    }
    return texts;
}

void Select(QDialog* editor, int row) {
    List(editor)->setCurrentItem(List(editor)->topLevelItem(row));
}

void Click(QDialog* editor, const char* button) { Child<QPushButton>(editor, button)->click(); }

// Fills the fields of the edit dialog.
void Fill(QDialog* edit, const QString& name, const QString& field, const QString& words,
          const QString& action, bool enabled) {
    Child<QLineEdit>(edit, "nameEdit")->setText(name);
    Child<QComboBox>(edit, "fieldCombo")->setCurrentText(field);
    Child<QLineEdit>(edit, "wordsEdit")->setText(words);
    Child<QComboBox>(edit, "actionCombo")->setCurrentText(action);
    Child<QCheckBox>(edit, "enabledCheck")->setChecked(enabled);
}

// Presses OK in the edit dialog and expects it refused with message.
void ExpectRefused(QDialog* edit, const QString& message) {
    QString shown;
    WhenModal([&shown](QDialog* box) {
        shown =
            qobject_cast<QMessageBox*>(box) ? qobject_cast<QMessageBox*>(box)->text() : QString();
        box->accept();
    });
    Press(edit, QDialogButtonBox::Ok);
    EXPECT_EQ(shown, message);
    EXPECT_TRUE(edit->isVisible());
}

}  // namespace

TEST_F(RuleEditorTest, ListShowsTheManagersRules) {
    Edit([](QDialog* editor) {
        EXPECT_EQ(List(editor)->topLevelItemCount(), 2);
        EXPECT_EQ(Row(editor, 0), (QStringList{"Lottery", "Subject", "lottery, you have won",
                                               "Mark as spam", "Yes"}));
        EXPECT_EQ(Row(editor, 1),
                  (QStringList{"Boss", "Sender", "boss@example.com", "Let through", "No"}));
        Press(editor, QDialogButtonBox::Cancel);
    });
}

TEST_F(RuleEditorTest, AddedRuleIsKeptInTheManagerUntilWritten) {
    const int32_t result = Edit([](QDialog* editor) {
        WhenModal([](QDialog* edit) {
            EXPECT_EQ(edit->windowTitle(), "Spam Mail Rule");
            Fill(edit, "  Pharmacy ", "Body", "cheap pills, , viagra ", "Delete", false);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        EXPECT_EQ(Row(editor, 2),
                  (QStringList{"Pharmacy", "Body", "cheap pills, viagra", "Delete", "No"}));
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 3);
    EXPECT_EQ(RulesText(), kTwoRules);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), kTwoRules +
                               "\n[Rule]\nName=Pharmacy\nField=Body\nWords=cheap pills, viagra\n"
                               "Action=Delete\nEnabled=No\n");
}

TEST_F(RuleEditorTest, EditedRuleReplacesTheOldOne) {
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 1);
        WhenModal([](QDialog* edit) {
            EXPECT_EQ(Child<QLineEdit>(edit, "nameEdit")->text(), "Boss");
            EXPECT_EQ(Child<QComboBox>(edit, "fieldCombo")->currentText(), "Sender");
            EXPECT_EQ(Child<QLineEdit>(edit, "wordsEdit")->text(), "boss@example.com");
            EXPECT_EQ(Child<QComboBox>(edit, "actionCombo")->currentText(), "Let through");
            EXPECT_FALSE(Child<QCheckBox>(edit, "enabledCheck")->isChecked());
            Fill(edit, "Chief", "Recipient", "chief@example.com", "Mark as spam", true);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "editButton");
        EXPECT_EQ(Row(editor, 1),
                  (QStringList{"Chief", "Recipient", "chief@example.com", "Mark as spam", "Yes"}));
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 1);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_NE(RulesText().find("Name=Chief\nField=Recipient\nWords=chief@example.com\nAction=Spam\n"
                               "Enabled=Yes\n"),
              std::string::npos);
    EXPECT_EQ(RulesText().find("Boss"), std::string::npos);
}

TEST_F(RuleEditorTest, DoubleClickOpensTheRule) {
    Edit([](QDialog* editor) {
        QString opened;
        WhenModal([&opened](QDialog* edit) {
            opened = Child<QLineEdit>(edit, "nameEdit")->text();
            Press(edit, QDialogButtonBox::Cancel);
        });
        emit List(editor)->itemDoubleClicked(List(editor)->topLevelItem(0), 0);
        EXPECT_EQ(opened, "Lottery");
        Press(editor, QDialogButtonBox::Cancel);
    });
}

TEST_F(RuleEditorTest, DeletedRuleIsGone) {
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 0);
        Click(editor, "deleteButton");
        EXPECT_EQ(List(editor)->topLevelItemCount(), 1);
        EXPECT_EQ(Row(editor, 0)[0], "Boss");
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 1);
}

TEST_F(RuleEditorTest, EditAndDeleteNeedASelectedRule) {
    Edit([](QDialog* editor) {
        Select(editor, 0);
        Click(editor, "deleteButton");
        Click(editor, "deleteButton");
        EXPECT_EQ(List(editor)->topLevelItemCount(), 0);
        EXPECT_FALSE(Child<QPushButton>(editor, "editButton")->isEnabled());
        EXPECT_FALSE(Child<QPushButton>(editor, "deleteButton")->isEnabled());
        Press(editor, QDialogButtonBox::Cancel);
    });
}

TEST_F(RuleEditorTest, CancelLeavesTheRulesAsTheyWere) {
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 0);
        Click(editor, "deleteButton");
        WhenModal([](QDialog* edit) {
            Fill(edit, "New", "Subject", "x", "Delete", true);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        EXPECT_EQ(List(editor)->topLevelItemCount(), 2);
        Press(editor, QDialogButtonBox::Cancel);
    });
    EXPECT_EQ(result, 0);
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), kTwoRules);
}

TEST_F(RuleEditorTest, CancelledEditChangesNothing) {
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 0);
        WhenModal([](QDialog* edit) {
            Fill(edit, "Other", "Body", "y", "Delete", false);
            Press(edit, QDialogButtonBox::Cancel);
        });
        Click(editor, "editButton");
        EXPECT_EQ(Row(editor, 0)[0], "Lottery");
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 0);
}

TEST_F(RuleEditorTest, OkWithoutAChangeAnswersZero) {
    EXPECT_EQ(Edit([](QDialog* editor) { Press(editor, QDialogButtonBox::Ok); }), 0);
    // Deleting a rule and adding it back is no change either.
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 1);
        Click(editor, "deleteButton");
        WhenModal([](QDialog* edit) {
            Fill(edit, "Boss", "Sender", "boss@example.com", "Let through", false);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 0);
}

TEST_F(RuleEditorTest, RuleNeedsANameOfItsOwnAndWords) {
    const int32_t result = Edit([](QDialog* editor) {
        WhenModal([](QDialog* edit) {
            Fill(edit, "   ", "Subject", "x", "Mark as spam", true);
            ExpectRefused(edit, "Please give the rule a name.");
            Fill(edit, "LOTTERY", "Subject", "x", "Mark as spam", true);
            ExpectRefused(edit,
                          "Another rule is already named \"LOTTERY\". Please choose another name.");
            Fill(edit, "Prizes", "Subject", " , ,", "Mark as spam", true);
            ExpectRefused(edit,
                          "Please enter at least one word for the rule to look for. Separate "
                          "several words with commas.");
            Fill(edit, "Prizes", "Subject", "prize", "Mark as spam", true);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        EXPECT_EQ(List(editor)->topLevelItemCount(), 3);
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 1);
}

TEST_F(RuleEditorTest, RuleMayKeepItsOwnName) {
    const int32_t result = Edit([](QDialog* editor) {
        Select(editor, 0);
        WhenModal([](QDialog* edit) {
            Child<QComboBox>(edit, "actionCombo")->setCurrentText("Delete");
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "editButton");
        Press(editor, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(result, 1);
}

TEST_F(RuleEditorTest, WrittenRulesComeBackAfterReload) {
    Edit([](QDialog* editor) {
        WhenModal([](QDialog* edit) {
            Fill(edit, "Ünïcode, \"quoted\"", "Recipient", "ä@example.com, = sign", "Let through",
                 true);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        Press(editor, QDialogButtonBox::Ok);
    });
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    const std::string written = RulesText();
    ASSERT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 3);
    Edit([](QDialog* editor) {
        EXPECT_EQ(Row(editor, 2), (QStringList{"Ünïcode, \"quoted\"", "Recipient",
                                               "ä@example.com, = sign", "Let through", "Yes"}));
        Press(editor, QDialogButtonBox::Cancel);
    });
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_EQ(RulesText(), written);
}

TEST_F(RuleEditorTest, ReloadDropsUnsavedChanges) {
    Edit([](QDialog* editor) {
        Select(editor, 0);
        Click(editor, "deleteButton");
        Press(editor, QDialogButtonBox::Ok);
    });
    ASSERT_EQ(Q9MsgFltAPI_GetRuleCount(), 1);
    ASSERT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 2);
}

TEST_F(RuleEditorTest, NoEditorWithoutAManager) {
    Q9MsgFltAPI_ReleaseManager();
    QTimer::singleShot(0, [] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "an editor was shown";
            modal->close();
        }
    });
    EXPECT_EQ(Q9MsgFltAPI_DoProperty(), 0);
    QCoreApplication::processEvents();
}

TEST_F(RuleEditorTest, ControlCharactersAreWrittenAsSpaces) {
    Edit([](QDialog* editor) {
        WhenModal([](QDialog* edit) {
            Fill(edit, "Tab\there", "Body", "a\tb", "Delete", true);
            Press(edit, QDialogButtonBox::Ok);
        });
        Click(editor, "addButton");
        Press(editor, QDialogButtonBox::Ok);
    });
    ASSERT_EQ(Q9MsgFltAPI_WriteRules(), 1);
    EXPECT_NE(RulesText().find("\nName=Tab here\nField=Body\nWords=a b\n"), std::string::npos);
    EXPECT_EQ(Q9MsgFltAPI_ReloadManager(), 1);
    EXPECT_EQ(Q9MsgFltAPI_GetRuleCount(), 3);
}
