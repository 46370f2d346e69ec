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

struct DateTextCase {
    char kind;
    int value;
    const char* text;
};

class DateFieldsTest : public testing::Test {
protected:
    // Each value shows as its text.
    static void ExpectTexts(const DateFieldTable& table,
                            std::initializer_list<DateTextCase> cases) {
        for (const DateTextCase& c : cases) {
            EXPECT_EQ(table.FieldText(c.kind, c.value), QString::fromUtf8(c.text))
                << c.kind << " " << c.value;
        }
    }
    // Each text reads as its value.
    static void ExpectReads(const DateFieldTable& table,
                            std::initializer_list<DateTextCase> cases) {
        for (const DateTextCase& c : cases) {
            EXPECT_EQ(table.ReadText(c.kind, QString::fromUtf8(c.text)), c.value)
                << c.kind << " \"" << c.text << "\"";
        }
    }

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
    ExpectTexts(us, {{'d', 7, "7"},
                     {'H', 0, "0"},
                     {'M', 5, "05"},
                     {'S', 0, "00"},
                     {'M', 59, "59"},
                     {'Y', 2026, "2026"},
                     {'y', 3, "3"}});
}

TEST_F(DateFieldsTest, ValueBeyondTheLimitsShowsAsTheLowest) {
    ExpectTexts(us, {{'d', 0, "1"},
                     {'d', 32, "1"},
                     {'M', 60, "00"},
                     {'Y', 1600, "1601"},
                     {'Y', 3000, "1601"},
                     {'a', -1, "Sunday"}});
}

TEST_F(DateFieldsTest, WeekdayZeroIsSunday) {
    const char* names[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                           "Thursday", "Friday", "Saturday"};
    for (int day = 0; day < 7; ++day) EXPECT_EQ(us.FieldText('a', day), names[day]);
    EXPECT_EQ(us.FieldText('A', 0), "Sun");
    EXPECT_EQ(us.FieldText('A', 6), "Sat");
}

TEST_F(DateFieldsTest, MonthsAndDesignatorsByName) {
    ExpectTexts(us, {{'b', 1, "January"},
                     {'b', 12, "December"},
                     {'B', 3, "Mar"},
                     {'p', 0, "AM"},
                     {'p', 1, "PM"}});
}

TEST_F(DateFieldsTest, GermanNamesAndNoDesignatorOnA24HourClock) {
    ExpectTexts(de, {{'a', 0, "Sonntag"},
                     {'a', 1, "Montag"},
                     {'b', 3, "M\u00e4rz"},
                     {'p', 0, ""},
                     {'p', 1, ""}});
    EXPECT_EQ(de.Names('a').size(), 7);
    EXPECT_EQ(de.Names('B').size(), 12);
    EXPECT_TRUE(de.Names('d').isEmpty());
}

TEST_F(DateFieldsTest, NumbersReadAsAtoiDoesAfterLeadingBlanks) {
    ExpectReads(us, {{'d', 12, "  12"},
                     {'d', 12, "12th"},
                     {'M', 7, "07"},
                     {'H', 0, "x5"},
                     {'d', -1, "99999999999"},
                     {'d', -1, "-99999999999"}});
}

TEST_F(DateFieldsTest, EmptyFieldReadsZeroWhichIsBelowTheLimitsOfDayMonthAndHour) {
    ExpectReads(us, {{'d', -1, ""}, {'m', -1, ""}, {'I', -1, ""}, {'H', 0, ""}, {'M', 0, ""}});
}

TEST_F(DateFieldsTest, FullYearRefusesTheEndsBeyondItsLimits) {
    ExpectReads(us, {{'Y', 0, "1600"}, {'Y', 0, "3000"}, {'Y', 1601, "1601"}, {'Y', 2999, "2999"}});
}

TEST_F(DateFieldsTest, ThirteenInTheTwelveHourFieldReadsAsItsDefault) {
    EXPECT_EQ(us.ReadText('I', "13"), -1);
    EXPECT_EQ(us.ReadText('I', "12"), 12);
}

TEST_F(DateFieldsTest, NamesReadWithoutRegardToCase) {
    ExpectReads(us, {{'a', 0, "sunday"},
                     {'a', 1, "  MONDAY"},
                     {'a', 6, "Saturday"},
                     {'A', 6, "sat"},
                     {'b', 3, "march"},
                     {'B', 12, "DEC"},
                     {'p', 0, "am"},
                     {'p', 1, "Pm"}});
    EXPECT_EQ(de.ReadText('b', QString::fromUtf8("m\u00e4rz")), 3);
}

TEST_F(DateFieldsTest, UnknownNamesReadAsTheDefault) {
    ExpectReads(us,
                {{'a', -1, "Funday"}, {'a', -1, "Sun"}, {'b', -1, "Marchy"}, {'p', -1, "noon"}});
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
