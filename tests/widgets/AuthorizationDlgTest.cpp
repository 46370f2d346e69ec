// "Authorization Setting": the two accounts shown and taken back, the length
// and confirmation checks of OK in their order, the changed flag that only
// the user's typing sets, and Cancel that takes nothing.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <array>
#include <string>

#include "caller/DialogDriver.h"
#include "pages/schedule/AuthorizationDlg.h"
#include "support/RecordingMessageService.h"

namespace {

constexpr int kUser = 1080;
constexpr int kPassword = 1023;
constexpr int kConfirm = 1024;
constexpr int kNetUser = 1081;
constexpr int kNetPassword = 1082;
constexpr int kNetConfirm = 1083;

constexpr const char* kLengthMessage =
    "The number of words exceeds allowable length.\nPlease enter less than 255 words.";
constexpr const char* kInvalidPassword = "Invalid password.";

class AuthorizationDlgTest : public testing::Test {
protected:
    AuthorizationDlgTest() {
        dialog.SetUser("runner");
        dialog.SetPassword("Run-Secret");
        dialog.SetNetUser("share");
        dialog.SetNetPassword("Net-Secret");
    }
    // Made and shown as DoModal would, without its modal run.
    void Open() {
        ASSERT_TRUE(dialog.Create());
        dialog.show();
    }
    QLineEdit* Edit(int id) const { return qobject_cast<QLineEdit*>(dialog.Control(id)); }
    std::string Text(int id) const { return Edit(id)->text().toStdString(); }
    void Put(int id, const std::string& text) const {
        Edit(id)->setText(QString::fromStdString(text));
    }
    // Replaces the text of a field as the user does.
    void Type(int id, const std::string& text) const {
        Edit(id)->selectAll();
        QTest::keyClick(Edit(id), Qt::Key_Delete);
        QTest::keyClicks(Edit(id), QString::fromStdString(text));
    }
    void Click(int id) const { qobject_cast<QPushButton*>(dialog.Control(id))->click(); }
    // Presses OK; whether the dialog closed.
    bool PressOk() {
        Click(1);
        return !dialog.isVisible();
    }
    // The dialog is still open after saying text as a configuration error.
    void ExpectRefusedWith(const std::string& text) {
        EXPECT_TRUE(dialog.isVisible());
        ASSERT_EQ(boxes.messages.size(), 1U);
        EXPECT_EQ(boxes.messages[0].text, text);
        EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
        EXPECT_EQ(boxes.messages[0].type, msg::kOk);
        boxes.messages.clear();
    }
    void ExpectGivenStrings() const {
        EXPECT_EQ(dialog.GetUser(), "runner");
        EXPECT_EQ(dialog.GetPassword(), "Run-Secret");
        EXPECT_EQ(dialog.GetNetUser(), "share");
        EXPECT_EQ(dialog.GetNetPassword(), "Net-Secret");
    }

    RecordingMessageService boxes;
    CAuthorizationDlg dialog{nullptr};
};

// A field and the field that must equal it (0 for none).
struct FieldCase {
    int id;
    int partner;
};
constexpr std::array<FieldCase, 6> kFields = {{{kUser, 0},
                                               {kPassword, kConfirm},
                                               {kConfirm, kPassword},
                                               {kNetUser, 0},
                                               {kNetPassword, kNetConfirm},
                                               {kNetConfirm, kNetPassword}}};

}  // namespace

TEST_F(AuthorizationDlgTest, TheFormHoldsBothAccountsUnderTheirGroupTexts) {
    Open();
    EXPECT_EQ(dialog.windowTitle(), "Authorization Setting");
    for (int id : {kUser, kPassword, kConfirm, kNetUser, kNetPassword, kNetConfirm})
        EXPECT_NE(Edit(id), nullptr) << id;
    EXPECT_EQ(qobject_cast<QPushButton*>(dialog.Control(1))->text(), "OK");
    EXPECT_EQ(qobject_cast<QPushButton*>(dialog.Control(2))->text(), "Cancel");
    EXPECT_EQ(dialog.findChild<QGroupBox*>("accountFrame")->title(),
              "Please enter the user name and password for the scheduled scan.");
    EXPECT_EQ(dialog.findChild<QGroupBox*>("networkFrame")->title(),
              "Please enter the user name and password for access to the network directories.");
    for (const char* prefix : {"user", "netUser"})
        EXPECT_EQ(dialog.findChild<QLabel*>(QString(prefix) + "Label")->text(), "User name");
    for (const char* prefix : {"password", "netPassword"})
        EXPECT_EQ(dialog.findChild<QLabel*>(QString(prefix) + "Label")->text(), "Password");
    for (const char* prefix : {"confirm", "netConfirm"})
        EXPECT_EQ(dialog.findChild<QLabel*>(QString(prefix) + "Label")->text(), "Confirm");
}

TEST_F(AuthorizationDlgTest, StartUpShowsTheAccountsWithEachPasswordAsItsConfirmation) {
    Open();
    EXPECT_EQ(Text(kUser), "runner");
    EXPECT_EQ(Text(kPassword), "Run-Secret");
    EXPECT_EQ(Text(kConfirm), "Run-Secret");
    EXPECT_EQ(Text(kNetUser), "share");
    EXPECT_EQ(Text(kNetPassword), "Net-Secret");
    EXPECT_EQ(Text(kNetConfirm), "Net-Secret");
    EXPECT_EQ(dialog.IsChanged(), 0);
}

TEST_F(AuthorizationDlgTest, PasswordFieldsDoNotShowThePassword) {
    Open();
    for (int id : {kPassword, kConfirm, kNetPassword, kNetConfirm}) {
        EXPECT_EQ(Edit(id)->echoMode(), QLineEdit::Password) << id;
        EXPECT_EQ(Edit(id)->displayText().indexOf("Secret"), -1) << id;
    }
    for (int id : {kUser, kNetUser}) EXPECT_EQ(Edit(id)->echoMode(), QLineEdit::Normal) << id;
}

TEST_F(AuthorizationDlgTest, OkOnAnUntouchedDialogClosesUnchanged) {
    Open();
    EXPECT_TRUE(PressOk());
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.IsChanged(), 0);
    EXPECT_TRUE(boxes.messages.empty());
    ExpectGivenStrings();
}

TEST_F(AuthorizationDlgTest, TypingInAnyFieldMarksTheDialogChanged) {
    for (int id : {kUser, kPassword, kConfirm, kNetUser, kNetPassword, kNetConfirm}) {
        Open();
        EXPECT_EQ(dialog.IsChanged(), 0) << id;
        QTest::keyClicks(Edit(id), "x");
        EXPECT_EQ(dialog.IsChanged(), 1) << id;
        Click(2);
    }
}

TEST_F(AuthorizationDlgTest, OkTakesTheEditedAccounts) {
    Open();
    Type(kUser, "admin");
    Type(kPassword, "New-1");
    Type(kConfirm, "New-1");
    Type(kNetUser, "domain\\files");
    Type(kNetPassword, "New-2");
    Type(kNetConfirm, "New-2");
    EXPECT_TRUE(PressOk());
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.IsChanged(), 1);
    EXPECT_EQ(dialog.GetUser(), "admin");
    EXPECT_EQ(dialog.GetPassword(), "New-1");
    EXPECT_EQ(dialog.GetNetUser(), "domain\\files");
    EXPECT_EQ(dialog.GetNetPassword(), "New-2");
}

TEST_F(AuthorizationDlgTest, EmptyPasswordsAreAllowed) {
    dialog.SetPassword("");
    dialog.SetNetPassword("");
    Open();
    EXPECT_TRUE(PressOk());
    EXPECT_EQ(dialog.GetPassword(), "");
    EXPECT_EQ(dialog.GetNetPassword(), "");
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AuthorizationDlgTest, AnEmptyUserNameWithAPasswordIsAllowed) {
    Open();
    Type(kUser, "");
    Type(kNetUser, "");
    EXPECT_TRUE(PressOk());
    EXPECT_EQ(dialog.GetUser(), "");
    EXPECT_EQ(dialog.GetPassword(), "Run-Secret");
    EXPECT_EQ(dialog.GetNetUser(), "");
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AuthorizationDlgTest, ALongPasswordIsRefusedBeforeItsConfirmationIsCompared) {
    Open();
    const std::string tooLong(256, 'p');
    Put(kPassword, tooLong);
    EXPECT_FALSE(PressOk());
    ExpectRefusedWith(kLengthMessage);
    EXPECT_EQ(Text(kPassword), tooLong);
    ExpectGivenStrings();
}

TEST_F(AuthorizationDlgTest, EachFieldTakesTwoHundredFiftyFiveCharacters) {
    Open();
    for (const FieldCase& field : kFields) {
        const std::string longest(255, static_cast<char>('a' + field.id % 26));
        Put(field.id, longest);
        if (field.partner != 0) Put(field.partner, longest);
    }
    EXPECT_TRUE(PressOk());
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(dialog.GetUser().size(), 255U);
    EXPECT_EQ(dialog.GetPassword().size(), 255U);
    EXPECT_EQ(dialog.GetNetUser().size(), 255U);
    EXPECT_EQ(dialog.GetNetPassword().size(), 255U);
}

TEST_F(AuthorizationDlgTest, EachFieldRefusesTwoHundredFiftySixCharacters) {
    Open();
    for (const FieldCase& field : kFields) {
        const std::string before = Text(field.id);
        Put(field.id, std::string(256, 'z'));
        EXPECT_FALSE(PressOk()) << field.id;
        // A confirmation too long is refused for its length, not as a
        // mismatch.
        ExpectRefusedWith(kLengthMessage);
        Put(field.id, before);
    }
    EXPECT_TRUE(PressOk());
    ExpectGivenStrings();
}

TEST_F(AuthorizationDlgTest, OnlyTheFirstFieldTooLongIsReported) {
    Open();
    for (int id : {kUser, kPassword, kConfirm, kNetUser, kNetPassword, kNetConfirm})
        Put(id, std::string(300, 'q'));
    EXPECT_FALSE(PressOk());
    ExpectRefusedWith(kLengthMessage);
}

TEST_F(AuthorizationDlgTest, AChangedPasswordWithoutItsConfirmationIsRefusedAndKept) {
    Open();
    Type(kPassword, "Other-Secret");
    EXPECT_FALSE(PressOk());
    ExpectRefusedWith(kInvalidPassword);
    EXPECT_EQ(Text(kPassword), "Other-Secret");
    EXPECT_EQ(Text(kConfirm), "Run-Secret");
    EXPECT_EQ(dialog.IsChanged(), 1);
    ExpectGivenStrings();
}

TEST_F(AuthorizationDlgTest, TheNetworkPasswordMustEqualItsConfirmationToo) {
    Open();
    Type(kNetConfirm, "net-secret");
    EXPECT_FALSE(PressOk());
    ExpectRefusedWith(kInvalidPassword);
    EXPECT_EQ(Text(kNetConfirm), "net-secret");
    Type(kNetConfirm, "Net-Secret");
    EXPECT_TRUE(PressOk());
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(AuthorizationDlgTest, BothPairsWrongIsOneRefusal) {
    Open();
    Type(kConfirm, "x");
    Type(kNetConfirm, "y");
    EXPECT_FALSE(PressOk());
    ExpectRefusedWith(kInvalidPassword);
}

TEST_F(AuthorizationDlgTest, CancelReturnsTheStringsAsGiven) {
    Open();
    Type(kUser, "admin");
    Type(kPassword, "x");
    EXPECT_FALSE(PressOk());
    boxes.messages.clear();
    Type(kConfirm, "x");
    Type(kNetPassword, "y");
    Type(kNetConfirm, "y");
    Click(2);
    EXPECT_EQ(dialog.result(), 2);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(boxes.messages.empty());
    ExpectGivenStrings();
}

TEST_F(AuthorizationDlgTest, TextsLeaveRoomForLongerTranslations) {
    Open();
    // Translations run up to 30% longer than the English texts.
    const auto roomy = [](const QWidget* control, int needed) {
        return needed * 13 / 10 <= control->width();
    };
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        EXPECT_TRUE(roomy(label, label->sizeHint().width()))
            << label->objectName().toStdString() << " needs " << label->sizeHint().width();
    for (const QGroupBox* group : dialog.findChildren<QGroupBox*>()) {
        // The title stands inside the frame, indented on both sides.
        const int indent = 2 * group->fontMetrics().averageCharWidth();
        const int needed = group->fontMetrics().horizontalAdvance(group->title()) + 2 * indent;
        EXPECT_TRUE(roomy(group, needed))
            << group->objectName().toStdString() << " needs " << needed;
    }
}

TEST(AuthorizationDlgModal, DoModalRunsUntilOk) {
    RecordingMessageService boxes;
    CAuthorizationDlg dialog(nullptr);
    dialog.SetUser("runner");
    DialogDriver driver([](QDialog* shown) {
        QLineEdit* user = DialogDriver::Find<QLineEdit>(shown, kUser);
        user->selectAll();
        QTest::keyClicks(user, "admin");
        DialogDriver::Find<QPushButton>(shown, 1)->click();
    });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(dialog.GetUser(), "admin");
    EXPECT_EQ(dialog.IsChanged(), 1);
    EXPECT_TRUE(boxes.messages.empty());
}
