#include <gtest/gtest.h>

#include "support/RecordingMessageService.h"
#include "text/ValidatorMessages.h"

TEST(ValidatorMessages, RangeMessageShowsGroupedBounds) {
    EXPECT_EQ(RangeMessageText(512, 4194303), "Please enter the values between 512 ~ 4,194,303.");
}

TEST(ValidatorMessages, LengthMessageShowsTheLimit) {
    EXPECT_EQ(LengthMessageText(255),
              "The number of words exceeds allowable length.\nPlease enter less than 255 words.");
}

TEST(ValidatorMessages, RangeBoxHasConfigurationErrorCaptionTypeZeroAndAnswersOne) {
    RecordingMessageService boxes;
    EXPECT_EQ(ShowRangeMessage(nullptr, 1, 1000), 1);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "Please enter the values between 1 ~ 1,000.");
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.messages[0].type, 0u);
}

TEST(ValidatorMessages, LengthBoxHasConfigurationErrorCaptionTypeZeroAndAnswersOne) {
    RecordingMessageService boxes;
    EXPECT_EQ(ShowLengthMessage(nullptr, 255), 1);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.messages[0].type, 0u);
}

TEST(ValidatorMessages, PathOf255CharactersPassesAnd256IsRefused) {
    RecordingMessageService boxes;
    EXPECT_EQ(ValidateLength(nullptr, std::string(255, 'p'), kMaxPathLength), 0);
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_EQ(ValidateLength(nullptr, std::string(256, 'p'), kMaxPathLength), 1);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text,
              "The number of words exceeds allowable length.\nPlease enter less than 255 words.");
}
