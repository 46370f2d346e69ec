// Secure profile access through the built OrvInst, and the product texts
// with the language id of the built OrvI18N.

#include <string>
#include <vector>

#include "BindingTest.h"
#include "session/SiblingLibs.h"
#include "support/LocaleEnvironment.h"

namespace {

class SecureProfileTest : public BindingTest {
protected:
    SecureProfileTest() {
        AddSibling("OrvInst");
        AddSibling("OrvI18N");
    }

    LocaleEnvironment m_locale;
};

class SecureProfileWithoutLibraryTest : public BindingTest {};

}  // namespace

TEST_F(SecureProfileTest, IntegerOfWarnMailProfileOnlyForExactlyOne) {
    Install().Write("Q9Sec.dat", "[Switch]\nValue=11\n");
    Install().Write("Q9WM.dat", "[Switch]\nValue=22\n");
    EXPECT_EQ(g_Siblings.GetSecInt("Switch", "Value", 1), 22);
    EXPECT_EQ(g_Siblings.GetSecInt("Switch", "Value", 0), 11);
    EXPECT_EQ(g_Siblings.GetSecInt("Switch", "Value", 2), 11);
    EXPECT_EQ(g_Siblings.GetSecInt("Switch", "Value", -1), 11);
}

TEST_F(SecureProfileTest, IntegerOfTheUnnamedSectionAndMissingKeys) {
    Install().Write("Q9Sec.dat", "IsLight=1\nMasterType=2\n[Other]\nIsLight=5\n");
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "IsLight", 0), 1);
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "MasterType", 0), 2);
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "RemovePopMon", 0), 0);
    EXPECT_EQ(g_Siblings.GetSecInt("Missing", "IsLight", 0), 0);
}

TEST_F(SecureProfileTest, StringFromTheNamedFileOrTheDefault) {
    Install().Write("Q9Sec.dat", "[Product]\nName=Sec\n");
    Install().Write("Q9WM.dat", "[MailSetting]\nServer=mail.example.org\nEmpty=\n");
    EXPECT_EQ(g_Siblings.GetSecString("MailSetting", "Server", "x", "Q9WM.dat"),
              "mail.example.org");
    EXPECT_EQ(g_Siblings.GetSecString("Product", "Name", "x", "Q9Sec.dat"), "Sec");
    EXPECT_EQ(g_Siblings.GetSecString("MailSetting", "Port", "25", "Q9WM.dat"), "25");
    EXPECT_EQ(g_Siblings.GetSecString("MailSetting", "Empty", "none", "Q9WM.dat"), "none");
    EXPECT_EQ(g_Siblings.GetSecString("MailSetting", "Port", nullptr, "Q9WM.dat"), "");
}

TEST_F(SecureProfileTest, StringIsCutToTheBuffer) {
    Install().Write("Q9WM.dat", "[Mail]\nBody=" + std::string(1500, 'a') + "\n");
    EXPECT_EQ(g_Siblings.GetSecString("Mail", "Body", "", "Q9WM.dat"), std::string(1023, 'a'));
}

TEST_F(SecureProfileTest, WritesGoToTheWarnMailProfile) {
    EXPECT_EQ(g_Siblings.WriteSecString("MailSetting", "Account", "alerts"), 1);
    EXPECT_EQ(g_Siblings.WriteSecInt("Switch", "VirusWarning", 3), 1);
    EXPECT_EQ(g_Siblings.GetSecString("MailSetting", "Account", "", "Q9WM.dat"), "alerts");
    EXPECT_EQ(g_Siblings.GetSecInt("Switch", "VirusWarning", 1), 3);
    EXPECT_FALSE(Install().Exists("Q9Sec.dat"));
}

TEST_F(SecureProfileTest, WriteAnswersOneWhenTheEntryPointWasReached) {
    // The library refuses a value with a line end; the call was made all the same.
    EXPECT_EQ(g_Siblings.WriteSecString("Mail", "Subject", "two\nlines"), 1);
    EXPECT_EQ(g_Siblings.GetSecString("Mail", "Subject", "none", "Q9WM.dat"), "none");
}

TEST_F(SecureProfileTest, LanguageIdComesFromTheLanguageLibrary) {
    m_locale.UseLocale("de_DE.UTF-8");
    EXPECT_EQ(g_Siblings.GetLanguageId(), 1031u);
    m_locale.UseLocale("en_US.UTF-8");
    EXPECT_EQ(g_Siblings.GetLanguageId(), 1033u);
}

TEST_F(SecureProfileTest, ProductStringOfTheSessionLanguageWins) {
    Install().Write("Q9Sec.dat",
                    "ProductName=Plain\n1031_ProductName=Deutsch\n1033_ProductName=English\n");
    m_locale.UseLocale("de_DE.UTF-8");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Deutsch");
    m_locale.UseLocale("en_US.UTF-8");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "English");
}

TEST_F(SecureProfileTest, ProductStringKeyHoldsALanguageIdOfFiveDigitsWhole) {
    Install().Write("Q9Sec.dat",
                    "ProductName=Plain\n1639_ProductName=Cut\n16393_ProductName=India\n");
    m_locale.UseLocale("en_IN.UTF-8");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "India");
}

TEST_F(SecureProfileTest, ProductStringFallsBackToThePlainKeyThenTheDefault) {
    m_locale.UseLocale("de_DE.UTF-8");
    Install().Write("Q9Sec.dat", "ProductName=Plain\n1031_ProductName=\n");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Plain");
    Install().Write("Q9Sec.dat", "ProductName=Plain\n");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Plain");
    Install().Write("Q9Sec.dat", "1033_ProductName=English\n");
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Default");
}

TEST_F(SecureProfileTest, ProductStringOfANamedSection) {
    m_locale.UseLocale("de_DE.UTF-8");
    Install().Write("Q9Sec.dat", "1031_Name=Top\n[Texts]\n1031_Name=Deutsch\nName=Plain\n");
    EXPECT_EQ(g_Siblings.GetProductString("Texts", "Name", ""), "Deutsch");
}

TEST_F(SecureProfileTest, ProductStringWithoutLanguageLibraryTakesThePlainKey) {
    RemoveLibrary("OrvI18N");
    m_locale.UseLocale("de_DE.UTF-8");
    Install().Write("Q9Sec.dat", "ProductName=Plain\n1031_ProductName=Deutsch\n");
    EXPECT_EQ(g_Siblings.GetLanguageId(), 0u);
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Plain");
}

TEST_F(SecureProfileTest, LibraryIsLoadedForEachCallOnly) {
    Install().Write("Q9Sec.dat", "IsLight=1\n");
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "IsLight", 0), 1);
    RemoveLibrary("OrvInst");
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "IsLight", 0), 0);
}

TEST_F(SecureProfileWithoutLibraryTest, EveryOperationAnswersZeroDefaultOrEmpty) {
    Install().Write("Q9Sec.dat", "IsLight=1\nProductName=Plain\n");
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "IsLight", 0), 0);
    EXPECT_EQ(g_Siblings.GetSecString(nullptr, "ProductName", "Default", "Q9Sec.dat"), "Default");
    EXPECT_EQ(g_Siblings.WriteSecString("Mail", "Account", "alerts"), 0);
    EXPECT_EQ(g_Siblings.WriteSecInt("Mail", "Port", 25), 0);
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "");
    EXPECT_EQ(g_Siblings.GetLanguageId(), 0u);
    EXPECT_FALSE(Install().Exists("Q9WM.dat"));
}

TEST_F(SecureProfileWithoutLibraryTest, LibraryWithoutEntryPointsIsLoadedAndFreedPerCall) {
    AddProbeAs("OrvInst");
    AddProbeAs("OrvI18N");
    EXPECT_EQ(g_Siblings.GetSecInt(nullptr, "IsLight", 0), 0);
    EXPECT_EQ(Unloads(), std::vector<std::string>{"libOrvInst.so"});
    EXPECT_EQ(g_Siblings.GetSecString(nullptr, "ProductName", "Default", "Q9Sec.dat"), "Default");
    EXPECT_EQ(g_Siblings.WriteSecString("Mail", "Account", "alerts"), 0);
    EXPECT_EQ(g_Siblings.WriteSecInt("Mail", "Port", 25), 0);
    EXPECT_EQ(g_Siblings.GetProductString(nullptr, "ProductName", "Default"), "Default");
    EXPECT_EQ(g_Siblings.GetLanguageId(), 0u);
    EXPECT_EQ(Unloads().size(), 7u);
}
