#include "schedule/DateFields.h"

#include <QByteArray>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace {

// Default, lowest and highest value by the place of the character in
// kDateFieldChars.
constexpr std::array<DateFieldLimits, 13> kDateFieldRows = {{
    {-1, 0, 99},      // y  year of the century
    {0, 1601, 2999},  // Y  full year
    {-1, 1, 12},      // m  month number
    {-1, 1, 12},      // b  full month name
    {-1, 1, 12},      // B  abbreviated month name
    {-1, 1, 31},      // d  day
    {-1, 0, 6},       // a  full weekday name, 0 is Sunday
    {-1, 0, 6},       // A  abbreviated weekday name
    {-1, 0, 1},       // p  AM or PM
    {-1, 0, 23},      // H  hour
    {-1, 1, 12},      // I  hour on a 12-hour clock
    {-1, 0, 59},      // M  minute
    {-1, 0, 59},      // S  second
}};

std::size_t DateFieldRow(char kind) {
    const char* place = kind == 0 ? nullptr : std::strchr(kDateFieldChars, kind);
    return place ? static_cast<std::size_t>(place - kDateFieldChars) : kDateFieldRows.size() - 1;
}

bool IsWeekdayKind(char kind) { return kind == 'a' || kind == 'A'; }

uint16_t DateWord(int value) { return static_cast<uint16_t>(value); }

// The place of text among names, compared without regard to case; -1 if
// it is none of them.
int DateNamePlace(const QStringList& names, const QString& text) {
    for (int place = 0; place < names.size(); ++place) {
        if (names[place].compare(text, Qt::CaseInsensitive) == 0) return place;
    }
    return -1;
}

// The leading number of text as atoi reads it, held within int.
int DateLeadingNumber(const QString& text) {
    const QByteArray bytes = text.toLatin1();
    const long value = std::strtol(bytes.constData(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

QStringList LocaleDayNames(const QLocale& locale, QLocale::FormatType format) {
    QStringList names;
    for (int day = 1; day <= 7; ++day) names << locale.dayName(day, format);
    return names;
}

QStringList LocaleMonthNames(const QLocale& locale, QLocale::FormatType format) {
    QStringList names;
    for (int month = 1; month <= 12; ++month) names << locale.monthName(month, format);
    return names;
}

}  // namespace

bool IsDateFieldChar(QChar c) {
    return c.unicode() != 0 && c.unicode() < 0x80 &&
           std::strchr(kDateFieldChars, c.toLatin1()) != nullptr;
}

std::vector<DateFormatElement> ParseDateFormat(const QString& format) {
    std::vector<DateFormatElement> elements;
    QString literal;
    for (qsizetype i = 0; i < format.size(); ++i) {
        // A "%" that ends the format has nothing to stand for and stays.
        if (format[i] != u'%' || i + 1 == format.size()) {
            literal += format[i];
            continue;
        }
        const QChar next = format[++i];
        if (!IsDateFieldChar(next)) {
            literal += next;
            continue;
        }
        if (!literal.isEmpty()) elements.push_back({false, 0, literal});
        literal.clear();
        elements.push_back({true, next.toLatin1(), QString()});
    }
    if (!literal.isEmpty()) elements.push_back({false, 0, literal});
    return elements;
}

bool UsesTwentyFourHourClock(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    // Quoted text is shown as it is and may hold an 'a' of its own.
    format.remove(QRegularExpression(QStringLiteral("'[^']*'")));
    return !format.contains(u'a', Qt::CaseInsensitive);
}

DateFieldTable::DateFieldTable(const QLocale& locale)
    : m_24Hour(UsesTwentyFourHourClock(locale)),
      m_limitsOfI(m_24Hour ? DateFieldLimits{-1, 0, 23} : kDateFieldRows[DateFieldRow('I')]),
      m_dayNames(LocaleDayNames(locale, QLocale::LongFormat)),
      m_shortDayNames(LocaleDayNames(locale, QLocale::ShortFormat)),
      m_monthNames(LocaleMonthNames(locale, QLocale::LongFormat)),
      m_shortMonthNames(LocaleMonthNames(locale, QLocale::ShortFormat)),
      m_designators({locale.amText(), locale.pmText()}) {}

const DateFieldTable& DateFieldTable::Shared() {
    static const DateFieldTable table{QLocale()};
    return table;
}

DateFieldLimits DateFieldTable::Limits(char kind) const {
    return kind == 'I' ? m_limitsOfI : kDateFieldRows[DateFieldRow(kind)];
}

QStringList DateFieldTable::Names(char kind) const {
    switch (kind) {
        case 'a': return m_dayNames;
        case 'A': return m_shortDayNames;
        case 'b': return m_monthNames;
        case 'B': return m_shortMonthNames;
        case 'p': return m_designators;
        default: return {};
    }
}

QString DateFieldTable::FieldText(char kind, int value) const {
    const DateFieldLimits limits = Limits(kind);
    if (value < limits.lowest || value > limits.highest) value = limits.lowest;
    if (!Names(kind).isEmpty()) return NameText(kind, value);
    if (kind == 'M' || kind == 'S') return QStringLiteral("%1").arg(value, 2, 10, QChar(u'0'));
    return QString::number(value);
}

// value is within the limits.
QString DateFieldTable::NameText(char kind, int value) const {
    const QStringList names = Names(kind);
    if (kind == 'p') return m_24Hour ? QString() : names[value];
    // The names start on Monday, and 0 is Sunday.
    if (IsWeekdayKind(kind)) return names[value == 0 ? 6 : value - 1];
    return names[value - 1];
}

int DateFieldTable::ReadText(char kind, const QString& text) const {
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace()) ++start;
    const QString trimmed = text.mid(start);
    const int value = Names(kind).isEmpty() ? DateLeadingNumber(trimmed) : ReadName(kind, trimmed);
    const DateFieldLimits limits = Limits(kind);
    return value < limits.lowest || value > limits.highest ? limits.defaultValue : value;
}

// Unknown names give values beyond the limits.
int DateFieldTable::ReadName(char kind, const QString& text) const {
    if (kind == 'p' && m_24Hour) return text.isEmpty() ? 0 : -1;
    const int place = DateNamePlace(Names(kind), text);
    if (kind == 'p') return place;
    if (IsWeekdayKind(kind)) return place < 0 ? -2 : (place == 6 ? 0 : place + 1);
    return place + 1;
}

int DateFieldTable::Step(char kind, int value, int steps) const {
    const DateFieldLimits limits = Limits(kind);
    if (value < limits.lowest || value > limits.highest) return limits.lowest;
    const long long next = static_cast<long long>(value) + steps;
    return static_cast<int>(std::clamp<long long>(next, limits.lowest, limits.highest));
}

void DateFieldTable::WriteTime(char kind, int value, ScheduleTime* time) const {
    switch (kind) {
        case 'a':
        case 'A': time->wDayOfWeek = DateWord(value); break;
        case 'b':
        case 'B':
        case 'm': time->wMonth = DateWord(value); break;
        case 'd': time->wDay = DateWord(value); break;
        case 'H': time->wHour = DateWord(value); break;
        case 'M': time->wMinute = DateWord(value); break;
        case 'Y': time->wYear = DateWord(value); break;
        // Two-digit years below 50 are of the 1900s and the others of the
        // 2000s; stored schedules depend on this window.
        case 'y': time->wYear = DateWord(value < 50 ? 1900 + value : 2000 + value); break;
        case 'I':
            if (m_24Hour) {
                time->wHour = value <= 23 ? DateWord(value) : 0xFFFF;
            } else {
                WriteHour12(value, time);
            }
            break;
        case 'p':
            if (value == -1) {
                time->wHour = 0xFFFF;
            } else if (value != 0 && time->wHour < 12) {
                time->wHour = DateWord(time->wHour + 12);
            }
            break;
        default: time->wSecond = DateWord(value); break;
    }
}

// Twelve o'clock is hour 0 until p says PM. The hour is added to rather than
// set, so that p may come before or after I in the format; a value beyond
// the clock leaves an hour no interval accepts.
void DateFieldTable::WriteHour12(int value, ScheduleTime* time) const {
    if (value < 0 || value > 12) value = -13;
    if (value == 12) value = 0;
    if (time->wHour == 0 || time->wHour == 12) time->wHour = DateWord(time->wHour + value);
}

int DateFieldTable::ShowTime(char kind, const ScheduleTime& time) const {
    switch (kind) {
        case 'a':
        case 'A': return time.wDayOfWeek;
        case 'b':
        case 'B':
        case 'm': return time.wMonth;
        case 'd': return time.wDay;
        case 'H': return time.wHour;
        case 'M': return time.wMinute;
        case 'Y': return time.wYear;
        case 'y': return time.wYear % 100;
        case 'I':
            if (m_24Hour) return time.wHour;
            return time.wHour % 12 == 0 ? 12 : time.wHour % 12;
        case 'p': return !m_24Hour && time.wHour >= 12 ? 1 : 0;
        default: return time.wSecond;
    }
}
