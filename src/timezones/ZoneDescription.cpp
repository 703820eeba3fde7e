#include "timezones/ZoneDescription.h"

#include <cmath>

#include "foundation/Dates.h"
#include "foundation/Numbers.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::SYSTEMTIME;

const QString LineEnd = u"\r\n"_s;
const QString Greenwich = u"Greenwich Standard Time"_s;

/// @p number counts from the first day of the locale's week; 0 stands for 7.
QString WeekdayName(int number, const QLocale& locale) {
    const int counted = number == 0 ? 7 : number;
    if (counted < 1 || counted > 7) {
        return {};
    }
    const int day = (locale.firstDayOfWeek() - 1 + counted - 1) % 7 + 1;
    return locale.standaloneDayName(day, QLocale::LongFormat);
}

/// form = name " Begins on " date " At " time
///      | name " Begins on " ordinal weekday " in " month " (" date ") at " time
QString StartLine(const QString& name, const SYSTEMTIME& start, const QDate& today,
                  const QLocale& locale) {
    const QString begins = name + u" Begins on "_s;
    if (start.wYear != 0) {
        const QDate date = DateFromParts(start.wDay, start.wMonth, start.wYear, today);
        return begins + mduAPILib::ShortDate(date) + u" At "_s + TimeText(start);
    }
    const QDate date = RuleTransitionDate(start.wDay, start.wDayOfWeek, start.wMonth, today);
    return begins + OrdinalWord(start.wDay) + WeekdayName(start.wDayOfWeek, locale) + u" in "_s +
           locale.standaloneMonthName(start.wMonth, QLocale::LongFormat) + u" ("_s +
           mduAPILib::ShortDate(date) + u") at "_s + TimeText(start);
}

QString OffsetLine(const QString& name, std::int32_t bias) {
    return name + u" is "_s + HoursText(bias) + (bias > 0 ? u"before "_s : u"after "_s) + Greenwich;
}

}  // namespace

QString HoursText(std::int32_t minutes) {
    const double hours = minutes / 60.0;
    const double whole = std::trunc(hours);
    const int rest = mduAPILib::RoundToInteger((hours - whole) * 60);
    QString text = QString::number(std::abs(static_cast<std::int64_t>(whole))) + u" hour(s) "_s;
    if (rest != 0) {
        text += u"and "_s + QString::number(std::abs(rest)) + u" Minutes "_s;
    }
    return text;
}

QString OrdinalWord(int occurrence) {
    switch (occurrence) {
        case 1:
            return u" First "_s;
        case 2:
            return u" Second "_s;
        case 3:
            return u" Third "_s;
        case 4:
            return u" Fourth "_s;
        case 5:
            return u" Last "_s;
        default:
            return u" Unknown "_s;
    }
}

QString ZoneDescription(const TimeZoneRecord& record, const QDate& today, const QLocale& locale) {
    const bool daylight = HasDaylightRule(record);
    const auto startLine = [&](const QString& name, const SYSTEMTIME& start) {
        return StartLine(name, start, today, locale) + LineEnd;
    };
    QString text;
    if (daylight) {
        text += startLine(record.StandardName, record.StandardDate) +
                startLine(record.DaylightName, record.DaylightDate);
    }
    text += LineEnd + OffsetLine(record.StandardName, record.StandardBias);
    if (daylight) {
        text += LineEnd + OffsetLine(record.DaylightName, record.DaylightBias);
    }
    // The sense of "before" is the opposite of that in the lines above: a zone ahead of the local
    // one reads "before".
    const float ahead = record.HoursFromLocal;
    const int minutes = mduAPILib::RoundToInteger(static_cast<double>(ahead) * 60);
    return text + LineEnd + LineEnd + record.StandardName + u" is "_s + HoursText(minutes) + u' ' +
           (ahead > 0 ? u"before "_s : u"later than "_s) + u"Local Time"_s;
}

}  // namespace mduTimeZones
