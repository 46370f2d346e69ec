// The "Security configuration" page: the switches of the product's password,
// the checks of the password and its confirmation, and the password kept
// enciphered by the store.

#include <Q9CfgE.h>

#include <QLineEdit>
#include <QTest>
#include <string>

#include "SwitchPageTest.h"
#include "controls/IconStatic.h"
#include "framework/DialogControls.h"
#include "framework/ImageList.h"
#include "options/StoreAccess.h"
#include "options/StoreKeys.h"
#include "pages/general/SecurityPage.h"

namespace security_page_test {
namespace {

constexpr int kSecurity = 1002;
constexpr int kStopMonitoring = 1020;
constexpr int kUninstall = 1023;
constexpr int kPassword = 1021;
constexpr int kConfirm = 1022;

const std::string kInvalidText =
    "You have not specified a password or the password you entered is invalid.";
const std::string kLengthText =
    "The number of words exceeds allowable length.\nPlease enter less than 255 words.";

class SecurityPageTest : public SwitchPageTest {
protected:
    CSecurityPage* Make() { return MakePage<CSecurityPage>(0); }

    // A page with the functions on and the password stored.
    CSecurityPage* MakeProtected(const char* password) {
        SetWord(CES_Authorization, CEK_AuthEnabled, 1);
        Q9CfgE_SetEncStrEx(CES_Authorization, CEK_AuthPassword, password);
        return Make();
    }

    static QLineEdit* Field(CSecurityPage* page, int id) {
        return qobject_cast<QLineEdit*>(ctl::Find(page, id));
    }
    static void SetBoth(CSecurityPage* page, const QString& password, const QString& confirm) {
        Field(page, kPassword)->setText(password);
        Field(page, kConfirm)->setText(confirm);
    }
    static std::string StoredPassword() { return ReadEncText(CES_Authorization, CEK_AuthPassword); }
};

TEST_F(SecurityPageTest, TemplateHasEveryControlAndHidesThePassword) {
    CSecurityPage* page = Make();
    EXPECT_EQ(ctl::GetText(page, kSecurity), "Use security functions");
    EXPECT_EQ(ctl::GetText(page, kStopMonitoring), "Terminate the Real Time Monitoring");
    EXPECT_EQ(ctl::GetText(page, kUninstall), "Uninstall program");
    EXPECT_EQ(Field(page, kPassword)->echoMode(), QLineEdit::Password);
    EXPECT_EQ(Field(page, kConfirm)->echoMode(), QLineEdit::Password);
    EXPECT_EQ(page->size(), QSize(484, 390));
}

TEST_F(SecurityPageTest, SetIconsGivesTheKeyAndThePadlock) {
    CSecurityPage* page = Make();
    const ImageList icons = ImageList::PageIcons();
    page->SetIcons(&icons);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1063))->Index(), 2);
    EXPECT_EQ(qobject_cast<CIconStatic*>(ctl::Find(page, 1064))->Index(), 3);
}

TEST_F(SecurityPageTest, LoadShowsTheSwitchesAndTheStoredPasswordTwice) {
    SetWord(CES_Authorization, CEK_AuthItems, 0x4);
    CSecurityPage* page = MakeProtected("s3cret pass");
    EXPECT_TRUE(IsChecked(page, kSecurity));
    EXPECT_FALSE(IsChecked(page, kStopMonitoring));
    EXPECT_TRUE(IsChecked(page, kUninstall));
    EXPECT_EQ(Field(page, kPassword)->text(), "s3cret pass");
    EXPECT_EQ(Field(page, kConfirm)->text(), "s3cret pass");
    EXPECT_EQ(page->IsModified(), 0);
}

TEST_F(SecurityPageTest, TheSecuritySwitchEnablesEverythingBelowIt) {
    SetWord(CES_Authorization, CEK_AuthEnabled, 0);
    CSecurityPage* page = Make();
    for (int id : {kStopMonitoring, kUninstall, kPassword, kConfirm})
        EXPECT_FALSE(IsEnabled(page, id)) << id;
    Click(page, kSecurity);
    for (int id : {kStopMonitoring, kUninstall, kPassword, kConfirm})
        EXPECT_TRUE(IsEnabled(page, id)) << id;
}

TEST_F(SecurityPageTest, ClicksAndTypingInEitherFieldMarkThePage) {
    for (int id : {kSecurity, kStopMonitoring, kUninstall}) {
        CSecurityPage* page = MakeProtected("pw");
        Click(page, id);
        EXPECT_EQ(page->IsModified(), 1) << id;
        delete page;
    }
    for (int id : {kPassword, kConfirm}) {
        CSecurityPage* page = MakeProtected("pw");
        QTest::keyClicks(Field(page, id), "x");
        EXPECT_EQ(page->IsModified(), 1) << id;
        EXPECT_EQ(page->NeedApply(), 0) << id;
        delete page;
    }
}

TEST_F(SecurityPageTest, EqualPasswordsOf255CharactersPassAndOf256DoNot) {
    CSecurityPage* page = MakeProtected("pw");
    SetBoth(page, QString(255, 'p'), QString(255, 'p'));
    EXPECT_EQ(page->Validate(), 0);
    SetBoth(page, QString(256, 'p'), QString(256, 'p'));
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 1U);
    EXPECT_EQ(m_messages.messages[0].text, kLengthText);
    EXPECT_EQ(m_messages.messages[0].caption, "Configuration Error");
}

TEST_F(SecurityPageTest, AnEmptyOrUnconfirmedPasswordIsRefused) {
    CSecurityPage* page = MakeProtected("pw");
    SetBoth(page, "", "");
    EXPECT_EQ(page->Validate(), 1);
    SetBoth(page, "one", "two");
    EXPECT_EQ(page->Validate(), 1);
    SetBoth(page, "one", "");
    EXPECT_EQ(page->Validate(), 1);
    ASSERT_EQ(m_messages.messages.size(), 3U);
    for (const RecordedMessage& message : m_messages.messages) {
        EXPECT_EQ(message.text, kInvalidText);
        EXPECT_EQ(message.caption, "Configuration Error");
    }
}

TEST_F(SecurityPageTest, WithTheSwitchOffAnyTextPassesAndThePasswordIsEmptied) {
    CSecurityPage* page = MakeProtected("old one");
    Click(page, kSecurity);
    for (const auto& [password, confirm] :
         {std::pair{QString(), QString("x")}, std::pair{QString("a"), QString("b")},
          std::pair{QString(300, 'p'), QString(300, 'p')}}) {
        SetBoth(page, password, confirm);
        EXPECT_EQ(page->Validate(), 0);
    }
    EXPECT_TRUE(m_messages.messages.empty());
    page->Save();
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 0U);
    EXPECT_EQ(StoredPassword(), "");
    // Switched on again, the page asks for a new one.
    page->Load();
    Click(page, kSecurity);
    EXPECT_EQ(page->Validate(), 1);
}

TEST_F(SecurityPageTest, SaveKeepsThePasswordEncipheredAndTheOtherItemBits) {
    SetWord(CES_Authorization, CEK_AuthEnabled, 0);
    SetWord(CES_Authorization, CEK_AuthItems, 0xF0 | 0x2);
    CSecurityPage* page = Make();
    Click(page, kSecurity);
    Click(page, kStopMonitoring);
    Click(page, kUninstall);
    SetBoth(page, "correct horse", "correct horse");
    ASSERT_EQ(page->Validate(), 0);
    page->Save();
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 1U);
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthItems), 0xF0U | 0x4);
    EXPECT_EQ(StoredPassword(), "correct horse");
    // Not a plain text of the store, and not in its file.
    EXPECT_EQ(Q9CfgE_GetStrEx(CES_Authorization, CEK_AuthPassword), nullptr);
    const std::string file = Install().Read("Q9Cfg.dat");
    EXPECT_NE(file.find("[CES_Authorization]"), std::string::npos);
    EXPECT_EQ(file.find("correct horse"), std::string::npos);
}

TEST_F(SecurityPageTest, TheSwitchIsSavedAsOneOrZero) {
    CSecurityPage* page = MakeProtected("pw");
    SetWord(CES_Authorization, CEK_AuthEnabled, 0xFF);
    page->Save();
    EXPECT_EQ(Word(CES_Authorization, CEK_AuthEnabled), 1U);
}

TEST_F(SecurityPageTest, DefaultLeavesThePasswordFieldsAlone) {
    WriteDefaults(
        "[CES_Authorization]\nCEK_AuthEnabled=dword:00000000\nCEK_AuthItems=dword:00000006\n");
    SetWord(CES_Authorization, CEK_AuthItems, 0);
    CSecurityPage* page = MakeProtected("kept");
    SetBoth(page, "typed", "typed too");
    page->OnDefault();
    EXPECT_FALSE(IsChecked(page, kSecurity));
    EXPECT_TRUE(IsChecked(page, kStopMonitoring));
    EXPECT_TRUE(IsChecked(page, kUninstall));
    EXPECT_FALSE(IsEnabled(page, kPassword));
    EXPECT_EQ(Field(page, kPassword)->text(), "typed");
    EXPECT_EQ(Field(page, kConfirm)->text(), "typed too");
    EXPECT_EQ(page->IsModified(), 1);
    EXPECT_EQ(StoredPassword(), "kept");
}

}  // namespace
}  // namespace security_page_test
