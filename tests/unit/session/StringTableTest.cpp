#include "resources/StringTable.h"

#include <gtest/gtest.h>

TEST(StringTable, CaptionsOfAllMessages) {
    EXPECT_EQ(LoadString(900), "Configuration Error");
    EXPECT_EQ(LoadString(901), "Information");
    EXPECT_EQ(LoadString(902), "Warning");
    EXPECT_EQ(LoadString(903), "Error");
    EXPECT_EQ(LoadString(57344), "Configuration");
    EXPECT_EQ(LoadString(57353), "Warning");
}

TEST(StringTable, SharedValidatorTexts) {
    EXPECT_EQ(LoadString(1000), "Please enter the values between %s ~ %s.");
    EXPECT_EQ(LoadString(57354),
              "The number of words exceeds allowable length.\nPlease enter less than %d words.");
}

TEST(StringTable, UnknownIdIsEmpty) {
    EXPECT_EQ(LoadString(1), "");
    EXPECT_FALSE(HasString(1));
    EXPECT_TRUE(HasString(900));
}
