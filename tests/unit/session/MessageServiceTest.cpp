#include <gtest/gtest.h>

#include "support/RecordingMessageService.h"
#include "text/MessageService.h"

TEST(MessageService, DefaultAnswerFollowsButtonsAndDefaultButton) {
    EXPECT_EQ(msg::DefaultAnswer(msg::kOk), msg::kIdOk);
    EXPECT_EQ(msg::DefaultAnswer(msg::kOkCancel), msg::kIdOk);
    EXPECT_EQ(msg::DefaultAnswer(msg::kOkCancel | msg::kDefaultButton2), msg::kIdCancel);
    EXPECT_EQ(msg::DefaultAnswer(msg::kYesNo | msg::kIconQuestion), msg::kIdYes);
    EXPECT_EQ(msg::DefaultAnswer(msg::kYesNo | msg::kDefaultButton2), msg::kIdNo);
    EXPECT_EQ(msg::DefaultAnswer(msg::kYesNoCancel | msg::kDefaultButton3), msg::kIdCancel);
}

TEST(MessageService, InstalledServiceAnswersAndIsRemovedAgain) {
    {
        RecordingMessageService boxes;
        boxes.answers.push_back(msg::kIdNo);
        EXPECT_EQ(ShowMessage(nullptr, "text", "caption", msg::kYesNo), msg::kIdNo);
        EXPECT_EQ(&MessageService::Current(), &boxes);
    }
    // The fallback writes to standard error and answers the default button.
    testing::internal::CaptureStderr();
    EXPECT_EQ(ShowMessage(nullptr, "Disk is full", "Error", msg::kOkCancel), msg::kIdOk);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "[Error] Disk is full\n");
}
