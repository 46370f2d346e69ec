// The message of a link that could not be opened, by the error of the start.

#include <gtest/gtest.h>

#include <cerrno>

#include "text/LinkMessages.h"

namespace {

TEST(LinkMessagesTest, ErrorsWithATextOfTheirOwn) {
    EXPECT_EQ(LinkErrorText(EAGAIN), "The operating system is out\nof memory or resources.");
    EXPECT_EQ(LinkErrorText(ENOENT), "The specified file was not found.");
    EXPECT_EQ(LinkErrorText(ENOTDIR), "The specified path was not found.");
    EXPECT_EQ(LinkErrorText(EACCES), "The operating system denied\naccess to the specified file.");
    EXPECT_EQ(LinkErrorText(EPERM), "The operating system denied\naccess to the specified file.");
    EXPECT_EQ(LinkErrorText(ENOMEM), "There was not enough memory to complete the operation.");
    EXPECT_EQ(LinkErrorText(ENOEXEC),
              "The .EXE file is invalid\n(non-Win32 .EXE or error in .EXE image).");
    EXPECT_EQ(LinkErrorText(ETXTBSY), "A sharing violation occurred. ");
    EXPECT_EQ(LinkErrorText(ELIBACC), "The specified dynamic-link library was not found.");
}

TEST(LinkMessagesTest, AnyOtherErrorIsUnknownWithItsNumber) {
    EXPECT_EQ(LinkErrorText(EIO), "Unknown Error (5) occurred.");
    EXPECT_EQ(LinkErrorText(0), "Unknown Error (0) occurred.");
    EXPECT_EQ(LinkErrorText(-3), "Unknown Error (-3) occurred.");
}

TEST(LinkMessagesTest, TheMessageBeginsWithCantOpenLink) {
    EXPECT_EQ(OpenLinkFailureText(ENOENT), "Can't open link:\n\nThe specified file was not found.");
    EXPECT_EQ(OpenLinkFailureText(ECHILD), "Can't open link:\n\nUnknown Error (10) occurred.");
}

}  // namespace
