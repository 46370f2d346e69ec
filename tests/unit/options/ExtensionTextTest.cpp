#include <gtest/gtest.h>

#include <string>

#include "options/ExtensionText.h"

TEST(ExtensionTextTest, ListOfExtensionsIsValid) {
    EXPECT_EQ(CheckExtensionText("exe"), ExtensionTextProblem::None);
    EXPECT_EQ(CheckExtensionText("exe/dll/doc"), ExtensionTextProblem::None);
}

TEST(ExtensionTextTest, EmptyTextIsRefused) {
    EXPECT_EQ(CheckExtensionText(""), ExtensionTextProblem::Empty);
}

TEST(ExtensionTextTest, AtMost255CharactersAreAllowed) {
    EXPECT_EQ(CheckExtensionText(std::string(255, 'x')), ExtensionTextProblem::None);
    EXPECT_EQ(CheckExtensionText(std::string(256, 'x')), ExtensionTextProblem::TooLong);
}

TEST(ExtensionTextTest, EachForbiddenCharacterIsRefused) {
    for (const char forbidden : std::string("\\:*\".<>|")) {
        SCOPED_TRACE(std::string(1, forbidden));
        EXPECT_EQ(CheckExtensionText(std::string("exe/d") + forbidden + "ll"),
                  ExtensionTextProblem::Forbidden);
    }
}

TEST(ExtensionTextTest, TextWithADotIsRefused) {
    EXPECT_EQ(CheckExtensionText(".exe"), ExtensionTextProblem::Forbidden);
}

TEST(ExtensionTextTest, EmptyElementIsRefused) {
    EXPECT_EQ(CheckExtensionText("exe//doc"), ExtensionTextProblem::EmptyElement);
    EXPECT_EQ(CheckExtensionText("exe/"), ExtensionTextProblem::EmptyElement);
    EXPECT_EQ(CheckExtensionText("/exe"), ExtensionTextProblem::EmptyElement);
    EXPECT_EQ(CheckExtensionText("exe/  /doc"), ExtensionTextProblem::EmptyElement);
    EXPECT_EQ(CheckExtensionText(" "), ExtensionTextProblem::EmptyElement);
}

TEST(ExtensionTextTest, ChecksRunInTheirOrder) {
    EXPECT_EQ(CheckExtensionText(std::string(256, '.')), ExtensionTextProblem::TooLong);
    EXPECT_EQ(CheckExtensionText("exe//d*c"), ExtensionTextProblem::Forbidden);
}

TEST(ExtensionTextTest, BlanksAroundElementsAreRemoved) {
    EXPECT_EQ(CheckExtensionText(" exe / dll\t/doc "), ExtensionTextProblem::None);
    EXPECT_EQ(NormalizeExtensionText(" exe / dll\t/doc "), "exe/dll/doc");
    EXPECT_EQ(NormalizeExtensionText("exe"), "exe");
}

TEST(ExtensionTextTest, BlanksInsideAnElementStay) {
    EXPECT_EQ(NormalizeExtensionText(" my type /exe"), "my type/exe");
}

TEST(ExtensionTextTest, EachProblemHasItsMessage) {
    EXPECT_EQ(ExtensionTextMessageId(ExtensionTextProblem::None), 0u);
    EXPECT_EQ(ExtensionTextMessageId(ExtensionTextProblem::Empty), 1018u);
    EXPECT_EQ(ExtensionTextMessageId(ExtensionTextProblem::TooLong), 57354u);
    EXPECT_EQ(ExtensionTextMessageId(ExtensionTextProblem::Forbidden), 1015u);
    EXPECT_EQ(ExtensionTextMessageId(ExtensionTextProblem::EmptyElement), 1048u);
}
