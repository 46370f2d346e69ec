#include "schedule/ScheduleText.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <QTime>

#include "text/StringTable.h"

namespace {

constexpr uint32_t kAtStartup = 1200;
constexpr uint32_t kEveryDay = 1201;
constexpr uint32_t kEveryWeek = 1202;
constexpr uint32_t kEveryMonth = 1203;
constexpr uint32_t kLocalHardDrives = 1204;

constexpr int kLastDayOfWeek = 6;
constexpr int kLastDayOfMonth = 31;
constexpr std::size_t kMostTargetsNamed = 6;

void Invalidate(int32_t* valid) {
    if (valid != nullptr) *valid = 0;
}

// The locale's short time format without seconds: some locales' short
// format (the C locale's among them) shows them.
QString ShortTimeFormat() {
    static const QRegularExpression seconds(QStringLiteral("[:.]?s+|[.,]?z+"));
    return QLocale().timeFormat(QLocale::ShortFormat).remove(seconds);
}

// Short time without seconds; empty when a field is out of range.
QString TimeText(const ScheduleTime& time) {
    const QTime clock(time.wHour, time.wMinute, time.wSecond, time.wMilliseconds);
    return clock.isValid() ? QLocale().toString(clock, ShortTimeFormat()) : QString();
}

// Long date; empty when the date does not exist.
QString DateText(const ScheduleTime& time) {
    const QDate date(time.wYear, time.wMonth, time.wDay);
    return date.isValid() ? QLocale().toString(date, QLocale::LongFormat) : QString();
}

// The name of a day of the week, 0 being Sunday.
QString DayName(int dayOfWeek) {
    constexpr int kSunday = 7;
    return QLocale().dayName(dayOfWeek == 0 ? kSunday : dayOfWeek, QLocale::LongFormat);
}

// A string of the table with its placeholders %1, %2, ... filled in order.
template <typename... Arguments>
std::string Expand(uint32_t id, const Arguments&... arguments) {
    return QString::fromStdString(LoadString(id)).arg(arguments...).toStdString();
}

std::string WeekText(const ScheduleTime& time, const QString& clock, int32_t* valid) {
    if (time.wDayOfWeek > kLastDayOfWeek) {
        Invalidate(valid);
        return Expand(kEveryWeek, QString(), clock);
    }
    return Expand(kEveryWeek, DayName(time.wDayOfWeek), clock);
}

std::string MonthText(const ScheduleTime& time, const QString& clock, int32_t* valid) {
    if (time.wDay == 0 || time.wDay > kLastDayOfMonth) Invalidate(valid);
    return Expand(kEveryMonth, QString::number(time.wDay), clock);
}

std::string OnceText(const ScheduleTime& time, const QString& clock, int32_t* valid) {
    const QString date = DateText(time);
    if (date.isEmpty()) Invalidate(valid);
    return (date + ' ' + clock).toStdString();
}

}  // namespace

std::string FormatInterval(int32_t style, const ScheduleTime* time, int32_t* valid) {
    const ScheduleTime at = time != nullptr ? *time : LocalTimeNow();
    const QString clock = TimeText(at);
    if (clock.isEmpty()) Invalidate(valid);
    switch (style) {
        case kScheduleEveryDay: return Expand(kEveryDay, clock);
        case kScheduleEveryWeek: return WeekText(at, clock, valid);
        case kScheduleEveryMonth: return MonthText(at, clock, valid);
        case kScheduleOnce: return OnceText(at, clock, valid);
        case kScheduleAtStartup: return LoadString(kAtStartup);
        default: return {};
    }
}

std::string FormatTargets(const std::vector<Target>& targets) {
    std::string text;
    for (std::size_t named = 0; named < targets.size(); ++named) {
        if (named == kMostTargetsNamed) {
            text += ", ...";
            break;
        }
        if (!text.empty()) text += ", ";
        const Target& target = targets[named];
        text += target.kind == kTargetAllLocalDrives ? LoadString(kLocalHardDrives) : target.text;
    }
    return text.empty() ? LoadString(kLocalHardDrives) : text;
}
