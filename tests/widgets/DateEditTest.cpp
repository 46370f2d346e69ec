// The date and time control in a window between two line edits: the row a
// format makes, the texts of its fields in en_US and de_DE, the changed flag
// of the first three fields, the spin, Tab along the row and out of it, the
// exchange with a ScheduleTime, and the frame it paints.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <cstdlib>
#include <utility>
#include <vector>

#include "controls/DateEdit.h"
#include "controls/DateField.h"
#include "framework/DialogControls.h"

namespace {

const QLocale kDateEditUs(QLocale::English, QLocale::UnitedStates);
const QLocale kDateEditDe(QLocale::German, QLocale::Germany);

class DateEditTest : public testing::Test {
protected:
    DateEditTest() {
        before = new QLineEdit(&window);
        date = new CDateEdit(&window);
        after = new QLineEdit(&window);
        before->setGeometry(10, 10, 100, 24);
        date->setGeometry(10, 40, 400, 24);
        after->setGeometry(10, 70, 100, 24);
        date->SetLocale(kDateEditUs);
        QObject::connect(date, &CDateEdit::edited, [this] { ++edits; });
    }

    void ShowActive() {
        window.resize(420, 100);
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // Types text over the whole text of field i, as the user does.
    void Type(int i, const QString& text) {
        CDateField* field = date->Field(i);
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    ScheduleTime Read() {
        ScheduleTime time;
        date->Exchange(&time, true);
        return time;
    }

    QWidget* Focused() const { return QApplication::focusWidget(); }

    QToolButton* Arrow(Qt::ArrowType arrow) const {
        for (QToolButton* button : date->findChildren<QToolButton*>()) {
            if (button->arrowType() == arrow) return button;
        }
        return nullptr;
    }

    QImage DateEditImage() const {
        return date->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    QWidget window;
    QLineEdit* before;
    CDateEdit* date;
    QLineEdit* after;
    int edits = 0;
};

// Pixels of area that are mostly the colour of a pen with full blue: text
// is smoothed into the background at its edges.
int DateEditCountPen(const QImage& image, const QRect& area, int red) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.blue() > 200 && std::abs(pixel.red() - red) < 40 ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

TEST_F(DateEditTest, FormatIsTheWindowTextAndAFormProperty) {
    date->SetWindowText("%I:%M %p");
    EXPECT_EQ(date->GetWindowText(), "%I:%M %p");
    EXPECT_EQ(date->property("format").toString(), "%I:%M %p");
    EXPECT_TRUE(date->setProperty("format", QString("%H:%M")));
    EXPECT_EQ(date->GetWindowText(), "%H:%M");
    ASSERT_EQ(date->FieldCount(), 2);
    EXPECT_EQ(date->Field(0)->Kind(), 'H');
    EXPECT_EQ(date->Field(1)->Kind(), 'M');
    EXPECT_EQ(date->Field(2), nullptr);
    EXPECT_EQ(date->Field(-1), nullptr);
}

TEST_F(DateEditTest, FieldsHaveIdsFromOneHundredAndOneInRowOrder) {
    date->SetWindowText("%d.%m.%Y");
    ASSERT_EQ(date->FieldCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(ctl::IdOf(date->Field(i)), 101 + i);
        EXPECT_TRUE(date->Field(i)->alignment() & Qt::AlignRight);
    }
}

TEST_F(DateEditTest, FormatWithoutFieldsShowsLiteralTextOnlyAndOffersNoSpinTarget) {
    date->SetWindowText("at start-up");
    EXPECT_EQ(date->FieldCount(), 0);
    EXPECT_EQ(date->SpinTarget(), nullptr);
    EXPECT_EQ(date->GetDisplayText(), "at start-up");
    EXPECT_EQ(date->LiteralPositions(), std::vector<int>{date->TextRect().left()});
    QTest::mouseClick(Arrow(Qt::UpArrow), Qt::LeftButton);
    EXPECT_EQ(date->GetDisplayText(), "at start-up");
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(date->focusPolicy(), Qt::NoFocus);
}

TEST_F(DateEditTest, DoublePercentShowsOnePercentSign) {
    date->SetWindowText("%%");
    EXPECT_EQ(date->FieldCount(), 0);
    EXPECT_EQ(date->GetDisplayText(), "%");
    date->SetWindowText("%d%%");
    date->Field(0)->SetValue(5);
    EXPECT_EQ(date->GetDisplayText(), "5%");
}

TEST_F(DateEditTest, DayThirtyOneIsAcceptedWhateverTheMonth) {
    date->SetWindowText("%dDay");
    ScheduleTime february;
    february.wMonth = 2;
    february.wDay = 31;
    date->Exchange(&february, false);
    EXPECT_EQ(date->GetDisplayText(), "31Day");
    Type(0, "31");
    EXPECT_EQ(Read().wDay, 31);
}

TEST_F(DateEditTest, EmptyFieldsReadAsTheDefaultStoredAsAllOnes) {
    date->SetWindowText("%d/%m %I");
    for (int i = 0; i < 3; ++i) date->Field(i)->clear();
    const ScheduleTime time = Read();
    EXPECT_EQ(time.wDay, 0xFFFF);
    EXPECT_EQ(time.wMonth, 0xFFFF);
    EXPECT_EQ(date->Field(2)->Value(), -1);
    // The default is added to the hour, which leaves one no interval takes;
    // after PM it makes the hour all ones.
    EXPECT_GT(time.wHour, 23);
    date->SetWindowText("%p %I");
    Type(0, "PM");
    EXPECT_EQ(Read().wHour, 0xFFFF);
}

TEST_F(DateEditTest, EmptyHourOnA24HourClockIsMidnight) {
    date->SetLocale(kDateEditDe);
    date->SetWindowText("%I");
    EXPECT_EQ(date->Field(0)->Value(), 0);
    ScheduleTime time;
    time.wHour = 5;
    date->Exchange(&time, true);
    EXPECT_EQ(time.wHour, 0);
}

TEST_F(DateEditTest, ThirteenInTheTwelveHourFieldGivesNoValidHour) {
    date->SetWindowText("%I:%M %p");
    Type(0, "13");
    Type(1, "30");
    Type(2, "AM");
    EXPECT_EQ(date->Field(0)->Value(), -1);
    EXPECT_GT(Read().wHour, 23);
    date->SetWindowText("%p %I");
    Type(0, "PM");
    Type(1, "13");
    EXPECT_EQ(Read().wHour, 0xFFFF);
}

TEST_F(DateEditTest, TwelvePmIsNoonAndTwelveAmIsMidnight) {
    date->SetWindowText("%I:%M %p");
    Type(0, "12");
    Type(1, "30");
    Type(2, "PM");
    ScheduleTime time = Read();
    EXPECT_EQ(time.wHour, 12);
    EXPECT_EQ(time.wMinute, 30);
    Type(2, "am");
    time = Read();
    EXPECT_EQ(time.wHour, 0);
    EXPECT_EQ(time.wMinute, 30);
}

TEST_F(DateEditTest, FullYearRefuses1600And3000) {
    date->SetWindowText("%Y");
    Type(0, "1600");
    EXPECT_EQ(Read().wYear, 0);
    Type(0, "3000");
    EXPECT_EQ(Read().wYear, 0);
    Type(0, "2999");
    EXPECT_EQ(Read().wYear, 2999);
    date->Field(0)->SetValue(1600);
    EXPECT_EQ(date->Field(0)->text(), "1601");
}

TEST_F(DateEditTest, OnlyTheFirstThreeFieldsReportChanges) {
    date->SetWindowText("%d.%m.%Y %H:%M");
    ASSERT_EQ(date->FieldCount(), 5);
    Type(3, "7");
    Type(4, "15");
    EXPECT_FALSE(date->IsChanged());
    EXPECT_EQ(edits, 3);
    for (int i = 0; i < 3; ++i) {
        date->ClearChanged();
        Type(i, "2");
        EXPECT_TRUE(date->IsChanged()) << i;
    }
}

TEST_F(DateEditTest, ShowingATimeIsNoChangeOfTheUsers) {
    date->SetWindowText("%H:%M");
    ScheduleTime time;
    time.wHour = 9;
    date->Exchange(&time, false);
    EXPECT_EQ(date->GetDisplayText(), "9:00");
    EXPECT_FALSE(date->IsChanged());
    EXPECT_EQ(edits, 0);
}

TEST_F(DateEditTest, ExchangeRoundTripsADateAndTime) {
    date->SetWindowText("%d.%m.%Y %H:%M:%S");
    const ScheduleTime shown{2026, 11, 0, 23, 17, 45, 9, 0};
    ScheduleTime time = shown;
    date->Exchange(&time, false);
    EXPECT_EQ(date->GetDisplayText(), "23.11.2026 17:45:09");
    EXPECT_EQ(Read(), shown);
}

TEST_F(DateEditTest, ExchangeRoundTripsEveryHourOnATwelveHourClock) {
    date->SetWindowText("%a %I:%M %p");
    for (uint16_t hour = 0; hour < 24; ++hour) {
        const ScheduleTime shown{0, 0, 5, 0, hour, 7, 0, 0};
        ScheduleTime time = shown;
        date->Exchange(&time, false);
        EXPECT_EQ(Read(), shown) << date->GetDisplayText().toStdString();
    }
}

TEST_F(DateEditTest, ReadingZeroesWhatNoFieldWrites) {
    date->SetWindowText("%H");
    ScheduleTime time{2026, 4, 3, 2, 1, 59, 58, 999};
    date->Exchange(&time, false);
    date->Exchange(&time, true);
    EXPECT_EQ(time, (ScheduleTime{0, 0, 0, 0, 1, 0, 0, 0}));
}

TEST_F(DateEditTest, ValueBeyondTheLimitsShowsAsTheLowest) {
    date->SetWindowText("%d %M");
    date->Field(0)->SetValue(40);
    date->Field(1)->SetValue(7);
    EXPECT_EQ(date->GetDisplayText(), "1 07");
}

TEST_F(DateEditTest, WeekdayFieldStepsThroughTheSevenNames) {
    date->SetWindowText("%a");
    date->Field(0)->SetValue(0);
    QStringList names = {date->GetDisplayText()};
    for (int i = 0; i < 7; ++i) {
        QTest::mouseClick(Arrow(Qt::UpArrow), Qt::LeftButton);
        names << date->GetDisplayText();
    }
    const QStringList expected = {"Sunday",   "Monday", "Tuesday",  "Wednesday",
                                  "Thursday", "Friday", "Saturday", "Saturday"};
    EXPECT_EQ(names, expected);
    QTest::mouseClick(Arrow(Qt::DownArrow), Qt::LeftButton);
    EXPECT_EQ(date->GetDisplayText(), "Friday");
    EXPECT_TRUE(date->IsChanged());
    // The step past Saturday changed nothing and is no edit.
    EXPECT_EQ(edits, 7);
}

TEST_F(DateEditTest, SpinStepsTheFocusedFieldWithinItsLimits) {
    date->SetWindowText("%b %d");
    ShowActive();
    date->Field(0)->SetValue(12);
    date->Field(1)->SetValue(30);
    EXPECT_EQ(date->SpinTarget(), date->Field(0));
    date->StepSpin(1);
    EXPECT_EQ(date->GetDisplayText(), "December 30");
    date->Field(1)->setFocus();
    EXPECT_EQ(date->SpinTarget(), date->Field(1));
    date->StepSpin(1);
    date->StepSpin(1);
    EXPECT_EQ(date->GetDisplayText(), "December 31");
    QTest::keyClick(date->Field(1), Qt::Key_Down);
    EXPECT_EQ(date->GetDisplayText(), "December 30");
    date->Field(0)->setFocus();
    QTest::keyClick(date->Field(0), Qt::Key_Up);
    EXPECT_EQ(date->GetDisplayText(), "December 30");
    QTest::keyClick(date->Field(0), Qt::Key_Down);
    EXPECT_EQ(date->GetDisplayText(), "November 30");
}

TEST_F(DateEditTest, NewFormatGivesTheSpinToTheFirstField) {
    date->SetWindowText("%H:%M");
    ShowActive();
    date->Field(1)->setFocus();
    EXPECT_EQ(date->SpinTarget(), date->Field(1));
    date->SetWindowText("%d.%m");
    EXPECT_EQ(date->SpinTarget(), date->Field(0));
}

TEST_F(DateEditTest, GermanNamesAndAnEmptyDesignator) {
    date->SetLocale(kDateEditDe);
    date->SetWindowText("%a, %d. %b %I:%M%p");
    const ScheduleTime shown{2026, 3, 0, 1, 14, 5, 0, 0};
    ScheduleTime time = shown;
    date->Exchange(&time, false);
    EXPECT_EQ(date->GetDisplayText(), QString::fromUtf8("Sonntag, 1. M\u00e4rz 14:05"));
    EXPECT_TRUE(date->Field(5)->Is24Hour());
    EXPECT_EQ(date->Field(5)->text(), "");
    ScheduleTime back;
    date->Exchange(&back, true);
    EXPECT_EQ(back.wHour, 14);
    EXPECT_EQ(back.wMonth, 3);
    EXPECT_EQ(back.wDayOfWeek, 0);
    Type(2, "mai");
    EXPECT_EQ(date->Field(2)->Value(), 5);
}

TEST_F(DateEditTest, FieldWidthsFollowTheirKind) {
    date->SetWindowText("%d%Y%a%p");
    const QFontMetrics metrics = date->fontMetrics();
    const int margins = 4;
    EXPECT_EQ(date->Field(0)->width(), metrics.averageCharWidth() * 2 + 2 + margins);
    EXPECT_EQ(date->Field(1)->width(), metrics.averageCharWidth() * 4 + 2 + margins);
    int widest = 0;
    for (const char* name :
         {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}) {
        widest = std::max(widest, metrics.horizontalAdvance(name));
    }
    EXPECT_EQ(date->Field(2)->width(), widest + 2 + margins);
    EXPECT_EQ(
        date->Field(3)->width(),
        std::max(metrics.horizontalAdvance("AM"), metrics.horizontalAdvance("PM")) + 2 + margins);
    date->SetLocale(kDateEditDe);
    EXPECT_EQ(date->Field(3)->width(), 20 + margins);
}

TEST_F(DateEditTest, WidthsFollowTheFont) {
    date->SetWindowText("%Y");
    QFont font = date->font();
    font.setPointSize(font.pointSize() * 3);
    date->setFont(font);
    EXPECT_EQ(date->Field(0)->width(), QFontMetrics(font).averageCharWidth() * 4 + 2 + 4);
}

TEST_F(DateEditTest, RowStandsInTheTextAreaOneUnitApart) {
    date->SetWindowText("%H:%M");
    const QRect text = date->TextRect();
    EXPECT_EQ(date->Field(0)->x(), text.left());
    EXPECT_EQ(date->Field(0)->y(), text.top());
    EXPECT_EQ(date->Field(0)->height(), text.height());
    const int colon = date->Field(0)->geometry().right() + 2;
    EXPECT_EQ(date->LiteralPositions(), std::vector<int>{colon});
    EXPECT_EQ(date->Field(1)->x(), colon + date->fontMetrics().horizontalAdvance(":") + 1);
}

TEST_F(DateEditTest, SpinStandsLeftRightOrNowhere) {
    date->SetWindowText("%H");
    EXPECT_EQ(date->FrameRect(), QRect(17 + 2, 0, 400 - 19, 24));
    EXPECT_EQ(date->TextRect(), QRect(22, 4, 400 - 25, 16));
    EXPECT_EQ(Arrow(Qt::UpArrow)->geometry(), QRect(0, 0, 17, 12));
    EXPECT_EQ(Arrow(Qt::DownArrow)->geometry(), QRect(0, 12, 17, 12));
    date->SetSpinStyle(CDateEdit::kSpinAtRight);
    EXPECT_EQ(date->FrameRect(), QRect(0, 0, 400 - 19, 24));
    EXPECT_EQ(Arrow(Qt::UpArrow)->x(), 400 - 17);
    EXPECT_TRUE(date->setProperty("spinStyle", CDateEdit::kNoSpin));
    EXPECT_EQ(date->SpinStyle(), CDateEdit::kNoSpin);
    EXPECT_EQ(date->FrameRect(), QRect(0, 0, 400, 24));
    EXPECT_FALSE(Arrow(Qt::UpArrow)->isVisibleTo(date));
    date->resize(400, 60);
    date->SetSpinStyle(0);
    EXPECT_EQ(date->FrameRect().left(), 30 + 2);
}

TEST_F(DateEditTest, FieldIsShownOnlyWhenItFitsInTheTextArea) {
    date->SetWindowText("%Y-%m-%d");
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    date->resize(date->sizeHint());
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(date->Field(i)->isVisibleTo(date)) << i;
    date->resize(date->sizeHint().width() - 2, date->sizeHint().height());
    EXPECT_TRUE(date->Field(1)->isVisibleTo(date));
    EXPECT_FALSE(date->Field(2)->isVisibleTo(date));
}

TEST_F(DateEditTest, TabMovesAlongTheRowAndOnToTheNeighbours) {
    date->SetWindowText("%d.%m.%Y");
    ShowActive();
    before->setFocus();
    const std::vector<QWidget*> order = {date->Field(0), date->Field(1), date->Field(2), after};
    for (QWidget* expected : order) {
        QTest::keyClick(Focused(), Qt::Key_Tab);
        EXPECT_EQ(Focused(), expected);
    }
    const std::vector<QWidget*> back = {date->Field(2), date->Field(1), date->Field(0), before};
    for (QWidget* expected : back) {
        QTest::keyClick(Focused(), Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(Focused(), expected);
    }
}

TEST_F(DateEditTest, TabPassesOverFieldsThatDoNotFit) {
    date->SetWindowText("%d.%m.%Y");
    ShowActive();
    date->resize(date->sizeHint().width() - 2, date->sizeHint().height());
    date->Field(1)->setFocus();
    QTest::keyClick(date->Field(1), Qt::Key_Tab);
    EXPECT_EQ(Focused(), after);
}

TEST_F(DateEditTest, TabLeavesPastDisabledControlsForOneMadeOfParts) {
    auto* spin = new QSpinBox(&window);
    spin->setGeometry(120, 70, 80, 24);
    after->setEnabled(false);
    date->SetWindowText("%H:%M");
    ShowActive();
    date->Field(1)->setFocus();
    QTest::keyClick(date->Field(1), Qt::Key_Tab);
    EXPECT_TRUE(spin->hasFocus());
    QTest::keyClick(Focused(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Focused(), date->Field(1));
}

TEST_F(DateEditTest, FocusOnTheControlGoesToTheFirstField) {
    date->SetWindowText("%H:%M");
    ShowActive();
    date->setFocus();
    EXPECT_EQ(Focused(), date->Field(0));
    date->Field(0)->SetValue(17);
    date->Field(1)->setFocus();
    date->Field(0)->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(date->Field(0)->selectedText(), "17");
}

TEST_F(DateEditTest, EnableWindowReachesTheFieldsAndTheSpin) {
    date->SetWindowText("%H:%M");
    date->EnableWindow(false);
    EXPECT_FALSE(date->Field(0)->isEnabled());
    EXPECT_FALSE(date->Field(1)->isEnabled());
    EXPECT_FALSE(Arrow(Qt::UpArrow)->isEnabled());
    date->SetWindowText("%d");
    EXPECT_FALSE(date->Field(0)->isEnabled());
    date->EnableWindow(true);
    EXPECT_TRUE(date->Field(0)->isEnabled());
    EXPECT_TRUE(Arrow(Qt::DownArrow)->isEnabled());
}

TEST_F(DateEditTest, PaintsTwoBevelsAroundTheTextArea) {
    date->SetWindowText("%H");
    const QImage image = DateEditImage();
    const QRect frame = date->FrameRect();
    EXPECT_EQ(image.pixel(frame.left(), frame.center().y()) & 0xFFFFFF, 0x808080u);
    EXPECT_EQ(image.pixel(frame.center().x(), frame.top()) & 0xFFFFFF, 0x808080u);
    EXPECT_EQ(image.pixel(frame.right(), frame.center().y()) & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_EQ(image.pixel(frame.center().x(), frame.bottom()) & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_EQ(image.pixel(frame.left() + 1, frame.center().y()) & 0xFFFFFF, 0x000000u);
    EXPECT_EQ(image.pixel(frame.right() - 1, frame.center().y()) & 0xFFFFFF, 0xC0C0C0u);
    EXPECT_EQ(image.pixel(frame.center().x(), frame.bottom() - 1) & 0xFFFFFF, 0xC0C0C0u);
}

TEST_F(DateEditTest, BackgroundAndLiteralsTakeTheDisabledColours) {
    QPalette palette = date->palette();
    palette.setColor(QPalette::Active, QPalette::Window, QColor(0, 128, 0));
    palette.setColor(QPalette::Inactive, QPalette::Window, QColor(0, 128, 0));
    palette.setColor(QPalette::Disabled, QPalette::Window, QColor(200, 0, 0));
    palette.setColor(QPalette::Active, QPalette::WindowText, QColor(0, 0, 255));
    palette.setColor(QPalette::Inactive, QPalette::WindowText, QColor(0, 0, 255));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(255, 0, 255));
    date->setPalette(palette);
    date->SetWindowText("%H ######## %M");
    const QPoint gap(date->FrameRect().left() - 1, 5);
    const QRect literal(date->LiteralPositions()[0], date->TextRect().top(),
                        date->fontMetrics().horizontalAdvance(" ######## "),
                        date->TextRect().height());

    // Blue on green when enabled, magenta on red when not.
    QImage image = DateEditImage();
    EXPECT_EQ(image.pixelColor(gap), QColor(0, 128, 0));
    EXPECT_GT(DateEditCountPen(image, literal, 0), 0);
    EXPECT_EQ(DateEditCountPen(image, literal, 255), 0);

    date->EnableWindow(false);
    image = DateEditImage();
    EXPECT_EQ(image.pixelColor(gap), QColor(200, 0, 0));
    EXPECT_GT(DateEditCountPen(image, literal, 255), 0);
    EXPECT_EQ(DateEditCountPen(image, literal, 0), 0);
}
