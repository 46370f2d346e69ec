#include <gtest/gtest.h>

#include "text/GroupedText.h"

TEST(GroupedText, ShowsThousandsGroupedAtEachThreshold) {
    EXPECT_EQ(FormatGroupedNumber(0), "0");
    EXPECT_EQ(FormatGroupedNumber(999), "999");
    EXPECT_EQ(FormatGroupedNumber(1000), "1,000");
    EXPECT_EQ(FormatGroupedNumber(1005), "1,005");
    EXPECT_EQ(FormatGroupedNumber(999999), "999,999");
    EXPECT_EQ(FormatGroupedNumber(1000000), "1,000,000");
    EXPECT_EQ(FormatGroupedNumber(4194303), "4,194,303");
    EXPECT_EQ(FormatGroupedNumber(999999999), "999,999,999");
    EXPECT_EQ(FormatGroupedNumber(1000000000), "1,000,000,000");
    EXPECT_EQ(FormatGroupedNumber(2147483647), "2,147,483,647");
}

TEST(GroupedText, NegativeNumbersHaveNoSeparators) {
    EXPECT_EQ(FormatGroupedNumber(-1), "-1");
    EXPECT_EQ(FormatGroupedNumber(-1234567), "-1234567");
}

TEST(GroupedText, CommasAreIgnoredWhereverTheyStand) {
    EXPECT_EQ(ParseGroupedNumber("1,000"), 1000);
    EXPECT_EQ(ParseGroupedNumber("1,0,0,0"), 1000);
    EXPECT_EQ(ParseGroupedNumber("4,194,303"), 4194303);
    EXPECT_EQ(ParseGroupedNumber(",,12,"), 12);
}

TEST(GroupedText, ConvertsLikeAtoi) {
    EXPECT_EQ(ParseGroupedNumber(""), 0);
    EXPECT_EQ(ParseGroupedNumber("abc"), 0);
    EXPECT_EQ(ParseGroupedNumber("  42"), 42);
    EXPECT_EQ(ParseGroupedNumber("-17"), -17);
    EXPECT_EQ(ParseGroupedNumber("+8"), 8);
    EXPECT_EQ(ParseGroupedNumber("12abc"), 12);
    EXPECT_EQ(ParseGroupedNumber("1 000"), 1);
}

TEST(GroupedText, NumbersBeyondThirtyTwoBitsAreHeldAtTheEnds) {
    EXPECT_EQ(ParseGroupedNumber("99,999,999,999"), 2147483647);
    EXPECT_EQ(ParseGroupedNumber("-99999999999"), -2147483647 - 1);
    EXPECT_EQ(ParseGroupedNumber("2,147,483,647"), 2147483647);
}

TEST(GroupedText, FormattedTextReadsBackAsTheSameNumber) {
    for (int32_t value : {0, 7, 999, 1000, 65535, 1000000, 123456789, 1000000000, 2147483647}) {
        EXPECT_EQ(ParseGroupedNumber(FormatGroupedNumber(value)), value) << value;
    }
}
