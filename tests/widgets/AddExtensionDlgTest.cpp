// "Add extensions": what passes, what is refused and why, and that a
// refusal keeps what the user typed.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <memory>
#include <string>

#include "DriveTestSupport.h"
#include "caller/DialogDriver.h"
#include "pages/targets/AddExtensionDlg.h"

namespace {

class AddExtensionDlgTest : public testing::Test {
protected:
    AddExtensionDlgTest() {
        EXPECT_TRUE(dialog.Create());
        dialog.show();
    }
    QLineEdit* Edit() const { return qobject_cast<QLineEdit*>(dialog.Control(1092)); }
    // Types text and presses OK; whether the dialog closed.
    bool Enter(const std::string& text) {
        Edit()->setText(QString::fromStdString(text));
        qobject_cast<QPushButton*>(dialog.Control(1))->click();
        return !dialog.isVisible();
    }
    // The dialog is still open with text, and said message with caption 900.
    void ExpectRefused(const std::string& text, const std::string& message) {
        EXPECT_TRUE(dialog.isVisible()) << text;
        EXPECT_EQ(Edit()->text().toStdString(), text);
        EXPECT_EQ(dialog.GetText(), "");
        ASSERT_EQ(boxes.messages.size(), 1u) << text;
        EXPECT_EQ(boxes.messages[0].text, message);
        EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
        EXPECT_EQ(boxes.messages[0].type, msg::kOk);
        boxes.messages.clear();
    }

    RecordingMessageService boxes;
    CAddExtensionDlg dialog{nullptr};
};

constexpr const char* kBlankMessage =
    "You cannot leave this blank. Please type in a valid format. ";
constexpr const char* kCharacterMessage =
    "The following characters cannot be used as a file type.\n\n\\ : * \"\" . < > |";

}  // namespace

TEST_F(AddExtensionDlgTest, ATextOfExtensionsPassesAsItIs) {
    EXPECT_EQ(dialog.windowTitle(), "Add extensions");
    EXPECT_TRUE(Enter("dmp/tmp"));
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetText(), "dmp/tmp");
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AddExtensionDlgTest, BlanksAroundEachExtensionGoAndTheTextIsShownAsKept) {
    EXPECT_TRUE(Enter("  dmp / tmp\t/ttf "));
    EXPECT_EQ(dialog.GetText(), "dmp/tmp/ttf");
    EXPECT_EQ(Edit()->text(), "dmp/tmp/ttf");
}

TEST_F(AddExtensionDlgTest, AnEmptyExtensionIsRefused) {
    EXPECT_FALSE(Enter("dmp//tmp"));
    ExpectRefused("dmp//tmp", kBlankMessage);
    EXPECT_FALSE(Enter("dmp/"));
    ExpectRefused("dmp/", kBlankMessage);
    EXPECT_FALSE(Enter("dmp/  /tmp"));
    ExpectRefused("dmp/  /tmp", kBlankMessage);
}

TEST_F(AddExtensionDlgTest, ADotInAnyExtensionIsRefused) {
    EXPECT_FALSE(Enter(".tmp"));
    ExpectRefused(".tmp", kCharacterMessage);
    EXPECT_FALSE(Enter("dmp/t.mp"));
    ExpectRefused("dmp/t.mp", kCharacterMessage);
}

TEST_F(AddExtensionDlgTest, EveryCharacterNoFileTypeMayHoldIsRefused) {
    for (const char* text : {"a\\b", "a:b", "a*b", "a\"b", "a<b", "a>b", "a|b"}) {
        EXPECT_FALSE(Enter(text)) << text;
        ExpectRefused(text, kCharacterMessage);
    }
}

TEST_F(AddExtensionDlgTest, NoTextAsksForTheFileTypesNotToScan) {
    EXPECT_FALSE(Enter(""));
    ExpectRefused("", "Please enter the file types not to scan.");
}

TEST_F(AddExtensionDlgTest, ExactlyTwoHundredFiftyFiveCharactersPass) {
    const std::string longest = std::string(127, 'a') + "/" + std::string(127, 'b');
    ASSERT_EQ(longest.size(), 255u);
    EXPECT_TRUE(Enter(longest));
    EXPECT_EQ(dialog.GetText(), longest);
}

TEST_F(AddExtensionDlgTest, TwoHundredFiftySixCharactersAreTooLong) {
    const std::string tooLong = std::string(128, 'a') + "/" + std::string(127, 'b');
    EXPECT_FALSE(Enter(tooLong));
    ExpectRefused(
        tooLong,
        "The number of words exceeds allowable length.\nPlease enter less than 255 words.");
}

TEST_F(AddExtensionDlgTest, ARefusalLeavesTheUserToCorrectIt) {
    EXPECT_FALSE(Enter("dmp//tmp"));
    boxes.messages.clear();
    EXPECT_TRUE(Enter("dmp/tmp"));
    EXPECT_EQ(dialog.GetText(), "dmp/tmp");
}

TEST_F(AddExtensionDlgTest, CancelTakesNothing) {
    Edit()->setText("dmp");
    qobject_cast<QPushButton*>(dialog.Control(2))->click();
    EXPECT_EQ(dialog.result(), 2);
    EXPECT_EQ(dialog.GetText(), "");
}

TEST(AddExtensionDlgExec, APageOpensItWithExec) {
    RecordingMessageService boxes;
    CAddExtensionDlg dialog(nullptr);
    DialogDriver driver([](QDialog* shown) {
        DialogDriver::Find<QLineEdit>(shown, 1092)->setText("dbx / ttf");
        DialogDriver::Find<QPushButton>(shown, 1)->click();
    });
    EXPECT_EQ(dialog.exec(), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(dialog.GetText(), "dbx/ttf");
}
