#pragma once

// The fields of the date and time control, without any widget: how a format
// text splits into literals and fields, what each field shows, how its text
// reads back, and which member of a ScheduleTime it edits (docs/date-fields.md).
//
// A format is plain text in which "%" and a field character make a field; "%"
// and any other character stand for that character, so "%%" is one percent
// sign. "%I:%M %p" is an hour, a colon, the minutes, a blank and AM or PM.

#include <QChar>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <vector>

#include "schedule/ScheduleEntry.h"

// The field characters, in the order of the table of limits.
constexpr const char* kDateFieldChars = "yYmbBdaApHIMS";

// Whether c after "%" makes a field.
bool IsDateFieldChar(QChar c);

// One element of a format: a run of literal text, or a field.
struct DateFormatElement {
    bool isField = false;
    char kind = 0;    // a field's character
    QString literal;  // a literal's text

    bool operator==(const DateFormatElement&) const = default;
};

// The elements of format from the left. Literal characters next to each
// other make one literal.
std::vector<DateFormatElement> ParseDateFormat(const QString& format);

struct DateFieldLimits {
    int defaultValue;  // what a text beyond the limits reads as
    int lowest;
    int highest;
};

// Whether the locale keeps time on a 24-hour clock: its short time format
// has no AM/PM marker.
bool UsesTwentyFourHourClock(const QLocale& locale);

// The limits of the fields and the names they show, for one locale. A field
// character outside kDateFieldChars is taken as 'S', the kind a field has
// by default.
class DateFieldTable {
public:
    explicit DateFieldTable(const QLocale& locale);

    // The table of the process, built from the default locale on its first
    // use and kept from then on: a later change of the default locale does
    // not change a clock or the names that fields already show.
    static const DateFieldTable& Shared();

    bool Is24Hour() const { return m_24Hour; }
    DateFieldLimits Limits(char kind) const;
    // The names a field of kind shows, weekdays from Monday; empty for
    // numbers.
    QStringList Names(char kind) const;

    // The text of value in a field of kind; a value beyond the limits shows
    // as the lowest.
    QString FieldText(char kind, int value) const;
    // The value of a field's text; a text beyond the limits reads as the
    // field's default.
    int ReadText(char kind, const QString& text) const;
    // The value after steps from value (negative: down), held within the
    // limits; a value beyond them starts at the lowest.
    int Step(char kind, int value, int steps) const;

    // Puts value into the member of time that a field of kind edits. The
    // hour may be touched by both I and p, so the order of calls counts.
    void WriteTime(char kind, int value, ScheduleTime* time) const;
    // The value a field of kind shows for time.
    int ShowTime(char kind, const ScheduleTime& time) const;

private:
    QString NameText(char kind, int value) const;
    int ReadName(char kind, const QString& text) const;
    void WriteHour12(int value, ScheduleTime* time) const;

    bool m_24Hour;
    DateFieldLimits m_limitsOfI;
    QStringList m_dayNames;
    QStringList m_shortDayNames;
    QStringList m_monthNames;
    QStringList m_shortMonthNames;
    QStringList m_designators;
};
