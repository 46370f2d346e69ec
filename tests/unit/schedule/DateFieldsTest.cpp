// The fields of the date and time control without widgets: formats split
// into literals and fields, the limits and texts of each field on a 12-hour
// (en_US) and a 24-hour (de_DE) locale, and the members of a ScheduleTime
// they write and show.

#include <gtest/gtest.h>

#include <QLocale>
#include <initializer_list>
#include <utility>
#include <vector>

#include "schedule/DateFields.h"

namespace {

DateFormatElement DateLiteral(const char* text) { return {false, 0, QString::fromUtf8(text)}; }
DateFormatElement DateField(char kind) { return {true, kind, QString()}; }

class DateFieldsTest : public testing::Test {
protected:
    // Writes the values in the order given, into a zeroed time.
    ScheduleTime Written(const DateFieldTable& table,
                         std::initializer_list<std::pair<char, int>> values) const {
        ScheduleTime time;
        for (const auto& [kind, value] : values) table.WriteTime(kind, value, &time);
        return time;
    }

    const DateFieldTable us{QLocale(QLocale::English, QLocale::UnitedStates)};
    const DateFieldTable de{QLocale(QLocale::German, QLocale::Germany)};
};

}  // namespace

TEST_F(DateFieldsTest, FieldCharactersAreThoseOfTheTable) {
    for (const char c : QByteArray(kDateFieldChars)) EXPECT_TRUE(IsDateFieldChar(QChar(c))) << c;
    for (const char c : {'%', 'x', 'D', 'h', 'c', ' '})
        EXPECT_FALSE(IsDateFieldChar(QChar(c))) << c;
    EXPECT_FALSE(IsDateFieldChar(QChar(0)));
}

TEST_F(DateFieldsTest, FormatSplitsIntoFieldsAndTheLiteralsBetweenThem) {
    const std::vector<DateFormatElement> expected = {
        DateField('I'), DateLiteral(":"), DateField('M'), DateLiteral(" "), DateField('p')};
    EXPECT_EQ(ParseDateFormat("%I:%M %p"), expected);
}

TEST_F(DateFieldsTest, PercentBeforeAnOtherCharacterGivesThatCharacter) {
    EXPECT_EQ(ParseDateFormat("%%"), std::vector<DateFormatElement>{DateLiteral("%")});
    const std::vector<DateFormatElement> expected = {DateLiteral("on q"), DateField('d'),
                                                     DateLiteral("Day%")};
    EXPECT_EQ(ParseDateFormat("on %q%dDay%%"), expected);
}

TEST_F(DateFieldsTest, FormatWithoutFieldIsOneLiteral) {
    EXPECT_EQ(ParseDateFormat("at start-up"),
              std::vector<DateFormatElement>{DateLiteral("at start-up")});
    EXPECT_TRUE(ParseDateFormat("").empty());
    EXPECT_EQ(ParseDateFormat("50%"), std::vector<DateFormatElement>{DateLiteral("50%")});
}

TEST_F(DateFieldsTest, TheClockFollowsTheLocalesTimeFormat) {
    EXPECT_FALSE(UsesTwentyFourHourClock(QLocale(QLocale::English, QLocale::UnitedStates)));
    EXPECT_TRUE(UsesTwentyFourHourClock(QLocale(QLocale::German, QLocale::Germany)));
    EXPECT_FALSE(us.Is24Hour());
    EXPECT_TRUE(de.Is24Hour());
}

TEST_F(DateFieldsTest, LimitsByCharacter) {
    const std::pair<char, DateFieldLimits> rows[] = {
        {'y', {-1, 0, 99}}, {'Y', {0, 1601, 2999}}, {'m', {-1, 1, 12}}, {'b', {-1, 1, 12}},
        {'B', {-1, 1, 12}}, {'d', {-1, 1, 31}},     {'a', {-1, 0, 6}},  {'A', {-1, 0, 6}},
        {'p', {-1, 0, 1}},  {'H', {-1, 0, 23}},     {'I', {-1, 1, 12}}, {'M', {-1, 0, 59}},
        {'S', {-1, 0, 59}}};
    for (const auto& [kind, limits] : rows) {
        const DateFieldLimits got = us.Limits(kind);
        EXPECT_EQ(got.defaultValue, limits.defaultValue) << kind;
        EXPECT_EQ(got.lowest, limits.lowest) << kind;
        EXPECT_EQ(got.highest, limits.highest) << kind;
    }
}

TEST_F(DateFieldsTest, OnA24HourClockTheTwelveHourFieldTakesTheWholeDay) {
    EXPECT_EQ(de.Limits('I').lowest, 0);
    EXPECT_EQ(de.Limits('I').highest, 23);
    EXPECT_EQ(de.ReadText('I', "13"), 13);
    EXPECT_EQ(de.ReadText('I', "0"), 0);
    EXPECT_EQ(us.ReadText('I', "0"), -1);
}

TEST_F(DateFieldsTest, NumbersShowPlainAndMinutesAndSecondsWithTwoDigits) {
    EXPECT_EQ(us.FieldText('d', 7), "7");
    EXPECT_EQ(us.FieldText('H', 0), "0");
    EXPECT_EQ(us.FieldText('M', 5), "05");
    EXPECT_EQ(us.FieldText('S', 0), "00");
    EXPECT_EQ(us.FieldText('M', 59), "59");
    EXPECT_EQ(us.FieldText('Y', 2026), "2026");
    EXPECT_EQ(us.FieldText('y', 3), "3");
}

TEST_F(DateFieldsTest, ValueBeyondTheLimitsShowsAsTheLowest) {
    EXPECT_EQ(us.FieldText('d', 0), "1");
    EXPECT_EQ(us.FieldText('d', 32), "1");
    EXPECT_EQ(us.FieldText('M', 60), "00");
    EXPECT_EQ(us.FieldText('Y', 1600), "1601");
    EXPECT_EQ(us.FieldText('Y', 3000), "1601");
    EXPECT_EQ(us.FieldText('a', -1), "Sunday");
}

TEST_F(DateFieldsTest, WeekdayZeroIsSunday) {
    const char* names[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                           "Thursday", "Friday", "Saturday"};
    for (int day = 0; day < 7; ++day) EXPECT_EQ(us.FieldText('a', day), names[day]);
    EXPECT_EQ(us.FieldText('A', 0), "Sun");
    EXPECT_EQ(us.FieldText('A', 6), "Sat");
}

TEST_F(DateFieldsTest, MonthsAndDesignatorsByName) {
    EXPECT_EQ(us.FieldText('b', 1), "January");
    EXPECT_EQ(us.FieldText('b', 12), "December");
    EXPECT_EQ(us.FieldText('B', 3), "Mar");
    EXPECT_EQ(us.FieldText('p', 0), "AM");
    EXPECT_EQ(us.FieldText('p', 1), "PM");
}

TEST_F(DateFieldsTest, GermanNamesAndNoDesignatorOnA24HourClock) {
    EXPECT_EQ(de.FieldText('a', 0), "Sonntag");
    EXPECT_EQ(de.FieldText('a', 1), "Montag");
    EXPECT_EQ(de.FieldText('b', 3), QString::fromUtf8("M\u00e4rz"));
    EXPECT_EQ(de.FieldText('p', 0), "");
    EXPECT_EQ(de.FieldText('p', 1), "");
    EXPECT_EQ(de.Names('a').size(), 7);
    EXPECT_EQ(de.Names('B').size(), 12);
    EXPECT_TRUE(de.Names('d').isEmpty());
}

TEST_F(DateFieldsTest, NumbersReadAsAtoiDoesAfterLeadingBlanks) {
    EXPECT_EQ(us.ReadText('d', "  12"), 12);
    EXPECT_EQ(us.ReadText('d', "12th"), 12);
    EXPECT_EQ(us.ReadText('M', "07"), 7);
    EXPECT_EQ(us.ReadText('H', "x5"), 0);
    EXPECT_EQ(us.ReadText('d', "99999999999"), -1);
    EXPECT_EQ(us.ReadText('d', "-99999999999"), -1);
}

TEST_F(DateFieldsTest, EmptyFieldReadsZeroWhichIsBelowTheLimitsOfDayMonthAndHour) {
    EXPECT_EQ(us.ReadText('d', ""), -1);
    EXPECT_EQ(us.ReadText('m', ""), -1);
    EXPECT_EQ(us.ReadText('I', ""), -1);
    EXPECT_EQ(us.ReadText('H', ""), 0);
    EXPECT_EQ(us.ReadText('M', ""), 0);
}

TEST_F(DateFieldsTest, FullYearRefusesTheEndsBeyondItsLimits) {
    EXPECT_EQ(us.ReadText('Y', "1600"), 0);
    EXPECT_EQ(us.ReadText('Y', "3000"), 0);
    EXPECT_EQ(us.ReadText('Y', "1601"), 1601);
    EXPECT_EQ(us.ReadText('Y', "2999"), 2999);
}

TEST_F(DateFieldsTest, ThirteenInTheTwelveHourFieldReadsAsItsDefault) {
    EXPECT_EQ(us.ReadText('I', "13"), -1);
    EXPECT_EQ(us.ReadText('I', "12"), 12);
}

TEST_F(DateFieldsTest, NamesReadWithoutRegardToCase) {
    EXPECT_EQ(us.ReadText('a', "sunday"), 0);
    EXPECT_EQ(us.ReadText('a', "  MONDAY"), 1);
    EXPECT_EQ(us.ReadText('a', "Saturday"), 6);
    EXPECT_EQ(us.ReadText('A', "sat"), 6);
    EXPECT_EQ(us.ReadText('b', "march"), 3);
    EXPECT_EQ(us.ReadText('B', "DEC"), 12);
    EXPECT_EQ(us.ReadText('p', "am"), 0);
    EXPECT_EQ(us.ReadText('p', "Pm"), 1);
    EXPECT_EQ(de.ReadText('b', QString::fromUtf8("m\u00e4rz")), 3);
}

TEST_F(DateFieldsTest, UnknownNamesReadAsTheDefault) {
    EXPECT_EQ(us.ReadText('a', "Funday"), -1);
    EXPECT_EQ(us.ReadText('a', "Sun"), -1);
    EXPECT_EQ(us.ReadText('b', "Marchy"), -1);
    EXPECT_EQ(us.ReadText('p', "noon"), -1);
}

TEST_F(DateFieldsTest, DesignatorOnA24HourClockMustBeEmpty) {
    EXPECT_EQ(de.ReadText('p', ""), 0);
    EXPECT_EQ(de.ReadText('p', "PM"), -1);
}

TEST_F(DateFieldsTest, StepsStayWithinTheLimits) {
    EXPECT_EQ(us.Step('d', 5, 1), 6);
    EXPECT_EQ(us.Step('d', 31, 1), 31);
    EXPECT_EQ(us.Step('d', 1, -1), 1);
    EXPECT_EQ(us.Step('d', -1, 1), 1);
    EXPECT_EQ(us.Step('a', 6, 1), 6);
    EXPECT_EQ(us.Step('Y', 2026, -10), 2016);
    EXPECT_EQ(us.Step('M', 0, 2147483647), 59);
}

TEST_F(DateFieldsTest, EachFieldWritesItsMember) {
    const ScheduleTime time =
        Written(us, {{'Y', 2026}, {'m', 11}, {'a', 3}, {'d', 23}, {'H', 17}, {'M', 45}, {'S', 9}});
    EXPECT_EQ(time, (ScheduleTime{2026, 11, 3, 23, 17, 45, 9, 0}));
    EXPECT_EQ(Written(us, {{'b', 4}}).wMonth, 4);
    EXPECT_EQ(Written(us, {{'B', 5}}).wMonth, 5);
    EXPECT_EQ(Written(us, {{'A', 6}}).wDayOfWeek, 6);
}

TEST_F(DateFieldsTest, DefaultsAreStoredAsAllOnesInTheWord) {
    EXPECT_EQ(Written(us, {{'d', -1}}).wDay, 0xFFFF);
    EXPECT_EQ(Written(us, {{'m', -1}}).wMonth, 0xFFFF);
    EXPECT_EQ(Written(us, {{'p', -1}}).wHour, 0xFFFF);
}

TEST_F(DateFieldsTest, TwoDigitYearsBelowFiftyAreOfThe1900s) {
    EXPECT_EQ(Written(us, {{'y', 0}}).wYear, 1900);
    EXPECT_EQ(Written(us, {{'y', 49}}).wYear, 1949);
    EXPECT_EQ(Written(us, {{'y', 50}}).wYear, 2050);
    EXPECT_EQ(Written(us, {{'y', 99}}).wYear, 2099);
    // So 2026 does not come back as itself.
    ScheduleTime time;
    time.wYear = 2026;
    EXPECT_EQ(us.ShowTime('y', time), 26);
    EXPECT_EQ(Written(us, {{'y', us.ShowTime('y', time)}}).wYear, 1926);
}

TEST_F(DateFieldsTest, TwelveWithPmIsNoonAndWithAmMidnight) {
    EXPECT_EQ(Written(us, {{'I', 12}, {'M', 30}, {'p', 1}}).wHour, 12);
    EXPECT_EQ(Written(us, {{'I', 12}, {'M', 30}, {'p', 0}}).wHour, 0);
    EXPECT_EQ(Written(us, {{'I', 1}, {'p', 1}}).wHour, 13);
    EXPECT_EQ(Written(us, {{'I', 11}, {'p', 0}}).wHour, 11);
}

TEST_F(DateFieldsTest, DesignatorMayComeBeforeTheHour) {
    EXPECT_EQ(Written(us, {{'p', 1}, {'I', 3}}).wHour, 15);
    EXPECT_EQ(Written(us, {{'p', 1}, {'I', 12}}).wHour, 12);
    EXPECT_EQ(Written(us, {{'p', 0}, {'I', 12}}).wHour, 0);
}

TEST_F(DateFieldsTest, HourBeyondTheTwelveHourClockLeavesNoValidHour) {
    const int value = us.ReadText('I', "13");
    EXPECT_EQ(Written(us, {{'I', value}, {'p', 0}}).wHour, 0x10000 - 13);
    EXPECT_EQ(Written(us, {{'I', value}, {'p', 1}}).wHour, 0x10000 - 13);
    EXPECT_EQ(Written(us, {{'p', 1}, {'I', value}}).wHour, 0xFFFF);
}

TEST_F(DateFieldsTest, OnA24HourClockTheHourFieldSetsTheHour) {
    EXPECT_EQ(Written(de, {{'I', 23}}).wHour, 23);
    EXPECT_EQ(Written(de, {{'I', 0}, {'p', 0}}).wHour, 0);
    EXPECT_EQ(Written(de, {{'I', 24}}).wHour, 0xFFFF);
    EXPECT_EQ(Written(de, {{'I', de.ReadText('I', "24")}}).wHour, 0xFFFF);
}

TEST_F(DateFieldsTest, TwelveHourClockShowsNoonAndMidnightAsTwelve) {
    ScheduleTime time;
    const std::pair<uint16_t, std::pair<int, int>> hours[] = {
        {0, {12, 0}}, {1, {1, 0}}, {11, {11, 0}}, {12, {12, 1}}, {13, {1, 1}}, {23, {11, 1}}};
    for (const auto& [hour, shown] : hours) {
        time.wHour = hour;
        EXPECT_EQ(us.ShowTime('I', time), shown.first) << hour;
        EXPECT_EQ(us.ShowTime('p', time), shown.second) << hour;
    }
}

TEST_F(DateFieldsTest, On24HourClockTheHourShowsAsItIsAndTheDesignatorAsZero) {
    ScheduleTime time;
    time.wHour = 13;
    EXPECT_EQ(de.ShowTime('I', time), 13);
    EXPECT_EQ(de.ShowTime('p', time), 0);
}

TEST_F(DateFieldsTest, EveryHourComesBackThroughTheTwelveHourFields) {
    for (uint16_t hour = 0; hour < 24; ++hour) {
        ScheduleTime shown;
        shown.wHour = hour;
        shown.wMinute = 7;
        const ScheduleTime back =
            Written(us, {{'I', us.ShowTime('I', shown)}, {'M', 7}, {'p', us.ShowTime('p', shown)}});
        EXPECT_EQ(back.wHour, hour);
    }
}

TEST_F(DateFieldsTest, EachFieldShowsItsMember) {
    const ScheduleTime time{1999, 7, 4, 18, 21, 5, 59, 0};
    const std::pair<char, int> shown[] = {{'Y', 1999}, {'y', 99}, {'m', 7}, {'b', 7},
                                          {'B', 7},    {'d', 18}, {'a', 4}, {'A', 4},
                                          {'H', 21},   {'M', 5},  {'S', 59}};
    for (const auto& [kind, value] : shown) EXPECT_EQ(us.ShowTime(kind, time), value) << kind;
}

TEST_F(DateFieldsTest, TheProcessTableKeepsTheLocaleOfItsFirstUse) {
    const DateFieldTable& shared = DateFieldTable::Shared();
    EXPECT_EQ(&DateFieldTable::Shared(), &shared);
    const QLocale before;
    EXPECT_EQ(shared.Is24Hour(), UsesTwentyFourHourClock(before));
    // Another default locale with the other clock changes nothing.
    QLocale::setDefault(shared.Is24Hour() ? QLocale(QLocale::English, QLocale::UnitedStates)
                                          : QLocale(QLocale::German, QLocale::Germany));
    EXPECT_NE(UsesTwentyFourHourClock(QLocale()), shared.Is24Hour());
    EXPECT_EQ(DateFieldTable::Shared().Is24Hour(), UsesTwentyFourHourClock(before));
    EXPECT_EQ(DateFieldTable::Shared().Names('a'), DateFieldTable(before).Names('a'));
    QLocale::setDefault(before);
}
