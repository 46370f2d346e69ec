// The interval and targets texts of a scheduled scan: every style, the days
// and times that cannot be shown, the weekday names of the locale, and the
// targets named up to six.

#include <gtest/gtest.h>

#include <QLocale>
#include <string>
#include <vector>

#include "schedule/ScheduleText.h"

namespace {

// Formats in British English (a 24-hour clock) and puts the default locale
// back afterwards.
class ScheduleTextTest : public testing::Test {
protected:
    ScheduleTextTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~ScheduleTextTest() override { QLocale::setDefault(m_saved); }

    // The text of style at m_time; m_valid is 1 before the call.
    std::string Interval(int32_t style) {
        m_valid = 1;
        return FormatInterval(style, &m_time, &m_valid);
    }
    // style's text at m_time is text, and valid.
    void ExpectValid(int32_t style, const std::string& text) {
        EXPECT_EQ(Interval(style), text) << style;
        EXPECT_EQ(m_valid, 1) << style << " " << text;
    }
    // style at m_time cannot be shown.
    void ExpectInvalid(int32_t style) {
        Interval(style);
        EXPECT_EQ(m_valid, 0) << style;
    }

    // Sunday, 1 November 2026, 15:45:10.
    ScheduleTime m_time{2026, 11, 0, 1, 15, 45, 10, 0};
    int32_t m_valid = 1;

private:
    QLocale m_saved;
};

std::vector<Target> Folders(int count) {
    std::vector<Target> targets;
    for (int i = 1; i <= count; ++i)
        targets.push_back({kTargetFolder, "/srv/" + std::to_string(i)});
    return targets;
}

}  // namespace

TEST_F(ScheduleTextTest, EveryDayShowsTheTimeWithoutSeconds) {
    ExpectValid(kScheduleEveryDay, "Everyday 15:45");
}

TEST_F(ScheduleTextTest, LocalesWhoseShortTimeHasSecondsShowNone) {
    QLocale::setDefault(QLocale::c());
    ExpectValid(kScheduleEveryDay, "Everyday 15:45");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    ExpectValid(kScheduleEveryDay, "Everyday 3:45 PM");
}

TEST_F(ScheduleTextTest, EveryWeekShowsTheDaysNameThenTheTime) {
    ExpectValid(kScheduleEveryWeek, "Every week Sunday 15:45");
    m_time.wDayOfWeek = 1;
    ExpectValid(kScheduleEveryWeek, "Every week Monday 15:45");
    m_time.wDayOfWeek = 6;
    ExpectValid(kScheduleEveryWeek, "Every week Saturday 15:45");
}

TEST_F(ScheduleTextTest, ADayOfTheWeekAboveSixIsInvalid) {
    m_time.wDayOfWeek = 7;
    ExpectInvalid(kScheduleEveryWeek);
}

TEST_F(ScheduleTextTest, EveryMonthPutsTheWordDayRightAfterTheNumber) {
    m_time.wDay = 31;
    ExpectValid(kScheduleEveryMonth, "Every month 31day 15:45");
    m_time.wDay = 1;
    ExpectValid(kScheduleEveryMonth, "Every month 1day 15:45");
}

TEST_F(ScheduleTextTest, DayZeroAndDayThirtyTwoOfAMonthAreInvalid) {
    for (uint16_t day : {uint16_t{0}, uint16_t{32}}) {
        m_time.wDay = day;
        ExpectInvalid(kScheduleEveryMonth);
    }
}

TEST_F(ScheduleTextTest, OnceShowsTheLongDateThenTheTime) {
    ExpectValid(kScheduleOnce, "Sunday, 1 November 2026 15:45");
}

TEST_F(ScheduleTextTest, ADateThatDoesNotExistIsInvalidOnlyForOnce) {
    m_time.wMonth = 2;
    m_time.wDay = 30;
    ExpectInvalid(kScheduleOnce);
    ExpectValid(kScheduleEveryDay, "Everyday 15:45");
}

TEST_F(ScheduleTextTest, StyleFiveAndUnknownStylesAreEmptyAndValid) {
    for (int32_t style : {5, 0, 7, -1}) ExpectValid(style, "");
}

TEST_F(ScheduleTextTest, AtStartupNamesNoTime) {
    ExpectValid(kScheduleAtStartup, "Whenever the system starts");
}

TEST_F(ScheduleTextTest, ATimeOutOfRangeIsInvalidAndLeftOut) {
    m_time.wHour = 0xFFFF;
    EXPECT_EQ(Interval(kScheduleEveryDay), "Everyday ");
    EXPECT_EQ(m_valid, 0);
    m_time.wHour = 15;
    m_time.wMinute = 60;
    ExpectInvalid(kScheduleEveryWeek);
}

TEST_F(ScheduleTextTest, TheValidFlagIsNeverSet) {
    m_valid = 0;
    EXPECT_EQ(FormatInterval(kScheduleEveryDay, &m_time, &m_valid), "Everyday 15:45");
    EXPECT_EQ(m_valid, 0);
}

TEST_F(ScheduleTextTest, NoFlagAndNoTimeAreAllowed) {
    m_time.wDayOfWeek = 9;
    EXPECT_EQ(FormatInterval(kScheduleEveryWeek, &m_time, nullptr), "Every week  15:45");
    int32_t valid = 1;
    const std::string now = FormatInterval(kScheduleEveryDay, nullptr, &valid);
    EXPECT_EQ(now.rfind("Everyday ", 0), 0U) << now;
    EXPECT_GT(now.size(), std::string("Everyday ").size());
    EXPECT_EQ(valid, 1);
}

TEST_F(ScheduleTextTest, AGermanLocaleNamesGermanWeekdays) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ExpectValid(kScheduleEveryWeek, "Every week Sonntag 15:45");
    m_time.wDayOfWeek = 3;
    ExpectValid(kScheduleEveryWeek, "Every week Mittwoch 15:45");
}

TEST(ScheduleTextTargets, NoTargetsReadAsLocalHardDrives) {
    EXPECT_EQ(FormatTargets({}), "Local hard drives");
}

TEST(ScheduleTextTargets, TheAllDrivesRecordReadsAsLocalHardDrives) {
    EXPECT_EQ(FormatTargets({AllLocalDrivesTarget()}), "Local hard drives");
    EXPECT_EQ(FormatTargets({{kTargetFolder, "/srv/a"}, AllLocalDrivesTarget()}),
              "/srv/a, Local hard drives");
}

TEST(ScheduleTextTargets, TargetsAreJoinedInTheirOrder) {
    EXPECT_EQ(FormatTargets({{kTargetFolder, "/srv/b"}, {kTargetFile, "/srv/a.bin"}}),
              "/srv/b, /srv/a.bin");
}

TEST(ScheduleTextTargets, SixTargetsAreAllNamed) {
    EXPECT_EQ(FormatTargets(Folders(6)), "/srv/1, /srv/2, /srv/3, /srv/4, /srv/5, /srv/6");
}

TEST(ScheduleTextTargets, SevenTargetsShowSixNamesAndDots) {
    EXPECT_EQ(FormatTargets(Folders(7)), "/srv/1, /srv/2, /srv/3, /srv/4, /srv/5, /srv/6, ...");
    EXPECT_EQ(FormatTargets(Folders(12)), FormatTargets(Folders(7)));
}
