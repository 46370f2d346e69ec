#include <gtest/gtest.h>

#include <string>

#include "OrvInst.h"
#include "support/StderrCapture.h"
#include "support/TemporaryInstallation.h"
#include "platform/SharedLibrary.h"
#include "support/TestPaths.h"

namespace {

class OrvInstTest : public testing::Test {
protected:
    std::string SecPath() const { return installation.PathOf("Q9Sec.dat"); }
    std::string MailPath() const { return installation.PathOf("Q9WM.dat"); }

    // The string and the answer of OrvInst2_GetSecProfileString with a
    // buffer of the given size.
    static std::pair<std::string, int32_t> GetString(const char* section, const char* key,
                                                     const char* defaultValue,
                                                     const std::string& path,
                                                     uint32_t size = 1024) {
        std::string buffer(size, '#');
        const int32_t answer = OrvInst2_GetSecProfileString(section, key, defaultValue,
                                                            buffer.data(), size, path.c_str());
        return {std::string(buffer.c_str()), answer};
    }

    TemporaryInstallation installation;
};

const char* const kEdition =
    "; edition of this installation\n"
    "IsLight=1\n"
    "MasterType=2\n"
    "RemovePopMon=0x10\n"
    "\n"
    "[Product]\n"
    "ProductName=Desktop Guard\n"
    "1033_ProductName=Desktop Guard (English)\n"
    "Empty=\n";

}  // namespace

TEST_F(OrvInstTest, LoadedByNameItAnswersAsTheSystemCallsIt) {
    installation.Write("Q9Sec.dat", kEdition);
    platform::SharedLibrary library;
    ASSERT_TRUE(library.Load(TestPath("library"), "OrvInst"));

    using GetInt = int32_t(const char*, const char*, int32_t, const char*);
    using GetString = int32_t(const char*, const char*, const char*, char*, uint32_t, const char*);
    using WriteInt = int32_t(const char*, const char*, int32_t, const char*);
    using WriteString = int32_t(const char*, const char*, const char*, const char*);

    EXPECT_EQ(library.CallOr<GetInt>(0, "OrvInst2_GetSecProfileInt", nullptr, "MasterType", 0,
                                     SecPath().c_str()),
              2);
    char buffer[1024] = {};
    EXPECT_EQ(library.CallOr<GetString>(0, "OrvInst2_GetSecProfileString", "Product", "ProductName",
                                        "", buffer, 1024u, SecPath().c_str()),
              13);
    EXPECT_STREQ(buffer, "Desktop Guard");

    EXPECT_EQ(library.CallOr<WriteInt>(0, "OrvInst2_WriteSecProfileInt", "Switch", "On", 1,
                                       MailPath().c_str()),
              1);
    EXPECT_EQ(
        library.CallOr<WriteString>(0, "OrvInst2_WriteSecProfileString", "MailSetting",
                                    "SmtpServerAddress", "smtp.example.org", MailPath().c_str()),
        1);
    EXPECT_EQ(installation.Read("Q9WM.dat"),
              "[Switch]\nOn=1\n\n[MailSetting]\nSmtpServerAddress=smtp.example.org\n");
}

TEST_F(OrvInstTest, NullOrEmptySectionIsTheUnnamedSectionAtTheTop) {
    installation.Write("Q9Sec.dat", kEdition);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 1);
    EXPECT_EQ(OrvInst2_GetSecProfileInt("", "masterTYPE", 0, SecPath().c_str()), 2);
    EXPECT_EQ(OrvInst2_GetSecProfileInt("Product", "IsLight", -5, SecPath().c_str()), -5);
}

TEST_F(OrvInstTest, IntReadsHexAndAnswersTheDefaultWhenAbsentOrNotANumber) {
    installation.Write("Q9Sec.dat", kEdition);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "RemovePopMon", 0, SecPath().c_str()), 16);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "RemoveSecurity", 7, SecPath().c_str()), 7);
    EXPECT_EQ(OrvInst2_GetSecProfileInt("Product", "ProductName", 7, SecPath().c_str()), 7);
    EXPECT_EQ(OrvInst2_GetSecProfileInt("Product", "Empty", 7, SecPath().c_str()), 7);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 7, nullptr), 7);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 7, ""), 7);
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, nullptr, 7, SecPath().c_str()), 7);
}

TEST_F(OrvInstTest, MissingFileReadsAsEmpty) {
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 0);
    EXPECT_EQ(GetString("Product", "ProductName", "Fallback", SecPath()),
              (std::pair<std::string, int32_t>{"Fallback", 0}));
    EXPECT_FALSE(installation.Exists("Q9Sec.dat"));
}

TEST_F(OrvInstTest, StringCopiesTheValueAndAnswersItsLength) {
    installation.Write("Q9Sec.dat", kEdition);
    EXPECT_EQ(GetString("product", "1033_productname", "x", SecPath()),
              (std::pair<std::string, int32_t>{"Desktop Guard (English)", 23}));
}

TEST_F(OrvInstTest, StringAbsentCopiesTheDefaultAndAnswersZero) {
    installation.Write("Q9Sec.dat", kEdition);
    EXPECT_EQ(GetString("Product", "1041_ProductName", "Default text", SecPath()),
              (std::pair<std::string, int32_t>{"Default text", 0}));
    EXPECT_EQ(GetString("Product", "1041_ProductName", nullptr, SecPath()),
              (std::pair<std::string, int32_t>{"", 0}));
    EXPECT_EQ(GetString("Product", "Empty", "d", SecPath()),
              (std::pair<std::string, int32_t>{"", 0}));
}

TEST_F(OrvInstTest, StringIsCutToTheBufferWithoutSplittingACharacter) {
    installation.Write("Q9Sec.dat", "[P]\nname=abcdef\naccent=a\xC3\xA9z\n");
    EXPECT_EQ(GetString("P", "name", "", SecPath(), 4),
              (std::pair<std::string, int32_t>{"abc", 3}));
    EXPECT_EQ(GetString("P", "accent", "", SecPath(), 3),
              (std::pair<std::string, int32_t>{"a", 1}));
    EXPECT_EQ(GetString("P", "accent", "", SecPath(), 4),
              (std::pair<std::string, int32_t>{"a\xC3\xA9", 3}));
    EXPECT_EQ(GetString("P", "absent", "long default", SecPath(), 5),
              (std::pair<std::string, int32_t>{"long", 0}));
}

TEST_F(OrvInstTest, StringWithoutRoomCopiesNothing) {
    installation.Write("Q9Sec.dat", kEdition);
    char untouched = '#';
    EXPECT_EQ(OrvInst2_GetSecProfileString("Product", "ProductName", "", &untouched, 0,
                                           SecPath().c_str()),
              0);
    EXPECT_EQ(untouched, '#');
    EXPECT_EQ(
        OrvInst2_GetSecProfileString("Product", "ProductName", "", nullptr, 10, SecPath().c_str()),
        0);
    EXPECT_EQ(GetString("Product", "ProductName", "", SecPath(), 1),
              (std::pair<std::string, int32_t>{"", 0}));
}

TEST_F(OrvInstTest, WrittenValuesReadBackAndOtherValuesAreKept) {
    installation.Write("Q9WM.dat", "; alert mail\n[Switch]\nOn=0\n");
    EXPECT_EQ(
        OrvInst2_WriteSecProfileInt("VirusWarning", "VirusDetectedCnt", 50, MailPath().c_str()), 1);
    EXPECT_EQ(OrvInst2_WriteSecProfileInt("Switch", "On", -1, MailPath().c_str()), 1);
    EXPECT_EQ(OrvInst2_WriteSecProfileString("VirusWarning", "MailSubject", "Virus found^Check",
                                             MailPath().c_str()),
              1);
    EXPECT_EQ(OrvInst2_GetSecProfileInt("Switch", "On", 0, MailPath().c_str()), -1);
    EXPECT_EQ(GetString("VirusWarning", "MailSubject", "", MailPath()),
              (std::pair<std::string, int32_t>{"Virus found^Check", 17}));
    EXPECT_EQ(
        installation.Read("Q9WM.dat"),
        "; alert mail\n[Switch]\nOn=-1\n\n[VirusWarning]\nVirusDetectedCnt=50\nMailSubject=Virus "
        "found^Check\n");
}

TEST_F(OrvInstTest, WritesIntoTheUnnamedSectionForANullSection) {
    EXPECT_EQ(OrvInst2_WriteSecProfileInt(nullptr, "IsLight", 1, SecPath().c_str()), 1);
    EXPECT_EQ(installation.Read("Q9Sec.dat"), "IsLight=1\n");
}

TEST_F(OrvInstTest, WriteRefusesLineEndsAndMissingArguments) {
    installation.Write("Q9WM.dat", "[MailSetting]\nAccount=me\n");
    EXPECT_EQ(OrvInst2_WriteSecProfileString("MailSetting", "Account", "two\r\nlines",
                                             MailPath().c_str()),
              0);
    EXPECT_EQ(
        OrvInst2_WriteSecProfileString("MailSetting", "Password", "two\nlines", MailPath().c_str()),
        0);
    EXPECT_EQ(OrvInst2_WriteSecProfileString("MailSetting", nullptr, "x", MailPath().c_str()), 0);
    EXPECT_EQ(OrvInst2_WriteSecProfileString("MailSetting", "Account", nullptr, MailPath().c_str()),
              0);
    EXPECT_EQ(OrvInst2_WriteSecProfileString("MailSetting", "Account", "x", nullptr), 0);
    EXPECT_EQ(OrvInst2_WriteSecProfileInt("MailSetting", nullptr, 1, MailPath().c_str()), 0);
    EXPECT_EQ(OrvInst2_WriteSecProfileInt("MailSetting", "Port", 1, ""), 0);
    EXPECT_EQ(installation.Read("Q9WM.dat"), "[MailSetting]\nAccount=me\n");
}

TEST_F(OrvInstTest, PasswordIsSealedInTheFileAndReadBackInPlainText) {
    ASSERT_EQ(OrvInst2_WriteSecProfileString("MailSetting", "Password", "s3cret pass",
                                             MailPath().c_str()),
              1);
    const std::string file = installation.Read("Q9WM.dat");
    EXPECT_EQ(file.find("s3cret"), std::string::npos) << file;
    EXPECT_NE(file.find("Password=enc:"), std::string::npos) << file;
    EXPECT_TRUE(installation.Exists("q9install.key"));
    EXPECT_EQ(GetString("MailSetting", "Password", "", MailPath()),
              (std::pair<std::string, int32_t>{"s3cret pass", 11}));
}

TEST_F(OrvInstTest, AnyKeyNamingAPasswordInAnyCaseIsSealed) {
    ASSERT_EQ(
        OrvInst2_WriteSecProfileString("Proxy", "SMTPPASSWORD2", "hidden", MailPath().c_str()), 1);
    ASSERT_EQ(OrvInst2_WriteSecProfileString("Proxy", "Account", "shown", MailPath().c_str()), 1);
    const std::string file = installation.Read("Q9WM.dat");
    EXPECT_EQ(file.find("hidden"), std::string::npos);
    EXPECT_NE(file.find("Account=shown"), std::string::npos);
    EXPECT_EQ(GetString("Proxy", "smtppassword2", "", MailPath()).first, "hidden");
}

TEST_F(OrvInstTest, PasswordWrittenByHandInPlainTextReadsAsItStands) {
    installation.Write("Q9WM.dat", "[MailSetting]\nPassword=typed by hand\n");
    EXPECT_EQ(GetString("MailSetting", "Password", "", MailPath()).first, "typed by hand");
}

TEST_F(OrvInstTest, PasswordSealedUnderAnotherKeyReadsAsAbsentAndIsReported) {
    ASSERT_EQ(OrvInst2_WriteSecProfileString("MailSetting", "Password", "old", MailPath().c_str()),
              1);
    std::filesystem::remove(installation.PathOf("q9install.key"));
    const StderrCapture errors;
    EXPECT_EQ(GetString("MailSetting", "Password", "default", MailPath()),
              (std::pair<std::string, int32_t>{"default", 0}));
    EXPECT_NE(errors.Text().find("Q9WM.dat"), std::string::npos) << errors.Text();
}

TEST_F(OrvInstTest, PasswordMarkedSealedButEmptyReadsAsAbsentAndIsReported) {
    installation.Write("Q9WM.dat", "[MailSetting]\nPassword=enc:\n");
    const StderrCapture errors;
    EXPECT_EQ(GetString("MailSetting", "Password", "default", MailPath()),
              (std::pair<std::string, int32_t>{"default", 0}));
    EXPECT_NE(errors.Text().find("Password"), std::string::npos) << errors.Text();
}

TEST_F(OrvInstTest, CorruptFileReadsDefaultsIsReportedAndIsNotWritten) {
    const std::string corrupt = "IsLight=1\nthis line has no equals sign\n";
    installation.Write("Q9Sec.dat", corrupt);
    const StderrCapture errors;
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 0);
    EXPECT_EQ(GetString(nullptr, "IsLight", "d", SecPath()),
              (std::pair<std::string, int32_t>{"d", 0}));
    EXPECT_EQ(OrvInst2_WriteSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 0);
    EXPECT_EQ(installation.Read("Q9Sec.dat"), corrupt);
    EXPECT_NE(errors.Text().find(SecPath() + ":2"), std::string::npos) << errors.Text();
}

TEST_F(OrvInstTest, AnEditedValueIsSeenAtTheNextCall) {
    installation.Write("Q9Sec.dat", "IsLight=0\n");
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 0);
    installation.Write("Q9Sec.dat", "IsLight=1\n");
    EXPECT_EQ(OrvInst2_GetSecProfileInt(nullptr, "IsLight", 0, SecPath().c_str()), 1);
}
