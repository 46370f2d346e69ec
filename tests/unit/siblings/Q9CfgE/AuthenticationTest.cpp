// The password prompt, in this process and seen from another one.
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "StoreHelper.h"
#include "beacon/WindowBeacon.h"
#include "StoreTest.h"

namespace store_test {
namespace {

// Counts the events of one type that reach an object.
class PromptEventCounter : public QObject {
public:
    PromptEventCounter(QObject* watched, QEvent::Type type) : m_type(type) {
        watched->installEventFilter(this);
    }
    int Count() const { return m_count; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == m_type) ++m_count;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

class AuthenticationTest : public StoreTest {
protected:
    static void SetPassword(const char* password) {
        Q9CfgE_SetDWEx(kAuthorization, kAuthEnabled, 1);
        Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, password);
    }

    // Runs answer on the prompt once it is open. The answer must end the
    // prompt; one left open fails the test and is cancelled, so that the test
    // cannot hang.
    static int32_t Authenticate(const std::function<void(QDialog*)>& answer, uint64_t owner = 0) {
        QTimer::singleShot(0, [answer] {
            auto* prompt = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!prompt) {
                ADD_FAILURE() << "no prompt is open";
                return;
            }
            answer(prompt);
            if (prompt->isVisible()) {
                ADD_FAILURE() << "the prompt stayed open";
                prompt->reject();
            }
        });
        return Q9CfgE_AuthenticateEx(owner, 0, "Security check");
    }

    static void Type(QDialog* prompt, const char* password) {
        prompt->findChild<QLineEdit*>("password")->setText(password);
        prompt->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    }
};

TEST_F(AuthenticationTest, NoPasswordAnswersAtOnceWithoutAWindow) {
    bool sawWindow = false;
    QTimer::singleShot(0, [&sawWindow] {
        if (QWidget* window = QApplication::activeModalWidget()) {
            sawWindow = true;
            window->close();
        }
    });
    EXPECT_NE(Q9CfgE_AuthenticateEx(0, 0, "Security check"), 0);
    Q9CfgE_SetDWEx(kAuthorization, kAuthEnabled, 1);
    EXPECT_NE(Q9CfgE_AuthenticateEx(0, 0, "Security check"), 0);
    Q9CfgE_SetEncStrEx(kAuthorization, kAuthPassword, "");
    EXPECT_NE(Q9CfgE_AuthenticateEx(0, 0, "Security check"), 0);
    QApplication::processEvents();
    EXPECT_FALSE(sawWindow);
}

TEST_F(AuthenticationTest, PasswordIsNotAskedWhileTheSecurityFunctionsAreOff) {
    SetPassword("secret");
    Q9CfgE_SetDWEx(kAuthorization, kAuthEnabled, 0);
    EXPECT_NE(Q9CfgE_AuthenticateEx(0, 0, "Security check"), 0);
}

TEST_F(AuthenticationTest, RightPasswordTypedIntoThePromptAuthenticates) {
    SetPassword("s3cret");
    QString caption;
    QString label;
    EXPECT_NE(Authenticate([&](QDialog* prompt) {
                  caption = prompt->windowTitle();
                  label = prompt->findChild<QLabel*>()->text();
                  EXPECT_EQ(prompt->findChild<QLineEdit*>("password")->echoMode(),
                            QLineEdit::Password);
                  Type(prompt, "s3cret");
              }),
              0);
    EXPECT_EQ(caption, "Security check");
    EXPECT_EQ(label, "Enter the product password:");
}

TEST_F(AuthenticationTest, WrongPasswordShowsANoteAndAllowsAnotherTry) {
    SetPassword("s3cret");
    bool noteShown = false;
    EXPECT_NE(Authenticate([&](QDialog* prompt) {
                  Type(prompt, "wrong");
                  const QLabel* note = prompt->findChild<QLabel*>("note");
                  noteShown = note->isVisible() && note->text() == "The password is incorrect.";
                  EXPECT_TRUE(prompt->findChild<QLineEdit*>("password")->text().isEmpty());
                  Type(prompt, "s3cret");
              }),
              0);
    EXPECT_TRUE(noteShown);
}

TEST_F(AuthenticationTest, WrongPasswordThreeTimesAnswersZero) {
    SetPassword("s3cret");
    EXPECT_EQ(Authenticate([](QDialog* prompt) {
                  Type(prompt, "s3cre");
                  Type(prompt, "s3cret ");
                  EXPECT_TRUE(prompt->isVisible());
                  Type(prompt, "S3CRET");
              }),
              0);
}

TEST_F(AuthenticationTest, CancelAnswersZero) {
    SetPassword("s3cret");
    EXPECT_EQ(Authenticate([](QDialog* prompt) {
                  prompt->findChild<QLineEdit*>("password")->setText("s3cret");
                  prompt->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
              }),
              0);
}

TEST_F(AuthenticationTest, PasswordThatThisInstallationCannotReadIsNeverAccepted) {
    WriteFile(LiveFile(), std::string(kHeader) +
                              "[CES_Authorization]\nCEK_AuthEnabled=dword:1\n"
                              "CEK_AuthPassword=enc:AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA\n");
    StderrCapture errors;
    EXPECT_EQ(Q9CfgE_AuthenticateEx(0, 0, "Security check"), 0);
    EXPECT_NE(errors.Text().find("cannot be deciphered"), std::string::npos);
}

TEST_F(AuthenticationTest, PromptBelongsToTheOwnersWindow) {
    SetPassword("s3cret");
    QWidget owner;
    owner.show();
    QWidget* parent = nullptr;
    Authenticate(
        [&](QDialog* prompt) {
            parent = prompt->parentWidget();
            Type(prompt, "s3cret");
        },
        static_cast<uint64_t>(owner.winId()));
    EXPECT_EQ(parent, &owner);
}

TEST_F(AuthenticationTest, OpenPromptIsAnsweredWhileItIsOpenAndNotAfter) {
    SetPassword("s3cret");
    EXPECT_EQ(Q9CfgE_GetAuthenticateDlg(0), 0u);
    uint64_t whileOpen = 0;
    Authenticate([&](QDialog* prompt) {
        whileOpen = Q9CfgE_GetAuthenticateDlg(0);
        Type(prompt, "s3cret");
    });
    EXPECT_NE(whileOpen, 0u);
    EXPECT_EQ(Q9CfgE_GetAuthenticateDlg(0), 0u);
}

// The answer is the prompt's window beacon: asking it brings the prompt to
// the front, although this program links a beacon of its own as well.
TEST_F(AuthenticationTest, OpenPromptAnswerBringsThePromptForward) {
    SetPassword("s3cret");
    QWidget ownWindow;
    const WindowBeacon ownBeacon(&ownWindow);
    bool answered = false;
    int raised = 0;
    Authenticate([&](QDialog* prompt) {
        const uint64_t open = Q9CfgE_GetAuthenticateDlg(0);
        EXPECT_NE(open, ownBeacon.Token());
        PromptEventCounter raises(prompt, QEvent::ZOrderChange);
        answered = BringWindowForward(static_cast<uint32_t>(open));
        raised = raises.Count();
        Type(prompt, "s3cret");
    });
    EXPECT_TRUE(answered);
    EXPECT_EQ(raised, 1);
}

TEST_F(AuthenticationTest, PromptOfAnotherProcessIsSeenWhileItIsOpen) {
    SetPassword("s3cret");
    const std::string stop = PathOf("stop");
    StoreHelper other({"prompt", Directory(), stop});
    ASSERT_TRUE(WaitFor([] { return Q9CfgE_GetAuthenticateDlg(0) != 0; }));
    WriteFile(stop, "\n");
    EXPECT_EQ(other.Wait(), 0);
    EXPECT_EQ(Q9CfgE_GetAuthenticateDlg(0), 0u);
}

// The helper has no application of its own; the store makes one. Its
// process dies with the prompt open, and no stale answer remains.
TEST_F(AuthenticationTest, PromptOfAProcessThatDiedLeavesNoAnswer) {
    SetPassword("s3cret");
    StoreHelper other({"prompt-bare", Directory()});
    ASSERT_TRUE(WaitFor([] { return Q9CfgE_GetAuthenticateDlg(0) != 0; }));
    other.Kill();
    EXPECT_EQ(Q9CfgE_GetAuthenticateDlg(0), 0u);
    EXPECT_TRUE(Exists(PathOf("Q9CfgE.prompt")));
}

// A process with no display cannot show the prompt: the password cannot be
// given there, so the answer is "not authenticated", and the process lives on.
TEST_F(AuthenticationTest, WithoutADisplayThePromptIsRefusedInsteadOfEndingTheProcess) {
    SetPassword("s3cret");
    std::vector<std::pair<std::string, std::string>> saved;
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (const char* value = std::getenv(variable)) saved.emplace_back(variable, value);
        unsetenv(variable);
    }
    StoreHelper other({"prompt-bare", Directory()});
    for (const auto& [variable, value] : saved) setenv(variable.c_str(), value.c_str(), 1);
    ASSERT_TRUE(other.Started());
    EXPECT_EQ(other.Wait(), 0);  // the helper exits 0 when the answer was 0
}

}  // namespace
}  // namespace store_test
