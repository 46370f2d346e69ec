#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "controls/GroupedNumber.h"
#include "controls/NumberSpin.h"
#include "support/RecordingMessageService.h"

namespace {

class NumberSpinTest : public testing::Test {
protected:
    NumberSpinTest() {
        spin = new CNumberSpin(&page);
        edit = new QLineEdit(&page);
        spin->SetBuddy(edit);
    }
    QWidget page;
    CNumberSpin* spin;
    QLineEdit* edit;
};

}  // namespace

TEST_F(NumberSpinTest, RangeIsKept) {
    spin->SetRange32(512, 4194303);
    int32_t low = 0;
    int32_t high = 0;
    spin->GetRange32(low, high);
    EXPECT_EQ(low, 512);
    EXPECT_EQ(high, 4194303);
    EXPECT_EQ(spin->GetBuddy(), edit);
}

TEST_F(NumberSpinTest, ValueUnderTheRangeShowsTheLowEnd) {
    spin->SetRange32(512, 4194303);
    SetGroupedNumber(spin, 100);
    EXPECT_EQ(edit->text(), "512");
}

TEST_F(NumberSpinTest, ValueOverTheRangeShowsTheHighEndGrouped) {
    spin->SetRange32(512, 4194303);
    SetGroupedNumber(spin, 5000000);
    EXPECT_EQ(edit->text(), "4,194,303");
}

TEST_F(NumberSpinTest, ShowsEachGroupingThreshold) {
    spin->SetRange32(0, 2000000000);
    const std::pair<int32_t, const char*> cases[] = {
        {999, "999"}, {1000, "1,000"}, {1000000, "1,000,000"}, {1000000000, "1,000,000,000"}};
    for (const auto& [value, text] : cases) {
        SetGroupedNumber(spin, value);
        EXPECT_EQ(edit->text(), text);
    }
}

TEST_F(NumberSpinTest, WithoutBuddyNothingHappensAndTheReadIsZeroOutOfRange) {
    CNumberSpin lonely;
    lonely.SetRange32(0, 10);
    SetGroupedNumber(&lonely, 5);
    int32_t outOfRange = 0;
    EXPECT_EQ(GetGroupedNumber(&lonely, &outOfRange), 0);
    EXPECT_EQ(outOfRange, 1);
    EXPECT_EQ(GetGroupedNumber(nullptr, nullptr), 0);
}

TEST_F(NumberSpinTest, ReadIgnoresCommasAndChecksBothEndsInclusive) {
    spin->SetRange32(1000, 5000);
    int32_t outOfRange = -1;
    edit->setText("1,0,0,0");
    EXPECT_EQ(GetGroupedNumber(spin, &outOfRange), 1000);
    EXPECT_EQ(outOfRange, 0);
    edit->setText("5,000");
    EXPECT_EQ(GetGroupedNumber(spin, &outOfRange), 5000);
    EXPECT_EQ(outOfRange, 0);
    edit->setText("5,001");
    EXPECT_EQ(GetGroupedNumber(spin, &outOfRange), 5001);
    EXPECT_EQ(outOfRange, 1);
    edit->setText("999");
    EXPECT_EQ(GetGroupedNumber(spin, &outOfRange), 999);
    EXPECT_EQ(outOfRange, 1);
    EXPECT_EQ(GetGroupedNumber(spin, nullptr), 999);
}

TEST_F(NumberSpinTest, ArrowsAndKeysStepWithinTheRange) {
    spin->SetRange32(998, 1001);
    edit->setText("999");
    auto buttons = spin->findChildren<QToolButton*>();
    ASSERT_EQ(buttons.size(), 2);
    QToolButton* up = buttons[0]->arrowType() == Qt::UpArrow ? buttons[0] : buttons[1];
    QToolButton* down = up == buttons[0] ? buttons[1] : buttons[0];

    up->click();
    EXPECT_EQ(edit->text(), "1,000");
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(edit->text(), "1,001");
    up->click();
    EXPECT_EQ(edit->text(), "1,001");
    down->click();
    QTest::keyClick(edit, Qt::Key_Down);
    QTest::keyClick(edit, Qt::Key_Down);
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(edit->text(), "998");
}

TEST_F(NumberSpinTest, OutOfRangeFieldShowsTheRangeMessageAndKeepsTheText) {
    RecordingMessageService boxes;
    spin->SetRange32(512, 4194303);
    edit->setText("100");
    EXPECT_EQ(ValidateGroupedNumber(&page, spin), 1);
    ASSERT_EQ(boxes.messages.size(), 1u);
    EXPECT_EQ(boxes.messages[0].text, "Please enter the values between 512 ~ 4,194,303.");
    EXPECT_EQ(boxes.messages[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.messages[0].owner, &page);
    EXPECT_EQ(edit->text(), "100");

    edit->setText("4,096");
    EXPECT_EQ(ValidateGroupedNumber(&page, spin), 0);
    EXPECT_EQ(boxes.messages.size(), 1u);
}
