#include "timezones/ZoneArithmetic.h"

#include <cmath>
#include <utility>

#include "foundation/Dates.h"
#include "platform/ZoneDatabase.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::SYSTEMTIME;

/// Hours are added as a whole number of seconds.
QDateTime PlusHours(const QDateTime& moment, float hours) {
    return moment.addSecs(std::llrint(static_cast<double>(hours) * 3600.0));
}

QDateTime CutToSecond(const QDateTime& moment) {
    return moment.addMSecs(-moment.time().msec());
}

QDateTime RuleMoment(const SYSTEMTIME& rule, const QDate& today) {
    const QDate date = RuleTransitionDate(rule.wDay, rule.wDayOfWeek, rule.wMonth, today);
    return mduAPILib::MomentAt(date, rule.wHour, rule.wMinute, rule.wSecond);
}

QDateTime AbsoluteMoment(const SYSTEMTIME& transition, const QDate& today) {
    const QDate date = DateFromParts(transition.wDay, transition.wMonth, transition.wYear, today);
    return mduAPILib::MomentAt(date, transition.wHour, transition.wMinute, transition.wSecond);
}

// The two tests of the year differ: a daylight year of -1 is a rule moved back by a year, and only
// the rule form of the end has a second taken off.
QDateTime DaylightStart(const TimeZoneRecord& record, const QDate& today) {
    const SYSTEMTIME& start = record.DaylightDate;
    return start.wYear < 1 ? RuleMoment(start, today) : AbsoluteMoment(start, today);
}

QDateTime DaylightEnd(const TimeZoneRecord& record, const QDate& today) {
    const SYSTEMTIME& end = record.StandardDate;
    return end.wYear != 0 ? AbsoluteMoment(end, today) : RuleMoment(end, today).addSecs(-1);
}

/// Whether daylight time holds at @p zoneTime, a reading of the zone's standard clock.
bool IsDaylight(const TimeZoneRecord& record, const QDateTime& zoneTime, const QDate& today) {
    const QDateTime start = DaylightStart(record, today);
    const QDateTime end = DaylightEnd(record, today);
    if (end > start) {
        return zoneTime > start && zoneTime < end;
    }
    return (zoneTime > start.addYears(-1) && zoneTime < end) ||
           (zoneTime > start && zoneTime < end.addYears(1));
}

/// Gives the record its standard state and tells whether daylight time holds at a local moment.
bool BeginsAsStandard(TimeZoneRecord& record, const QDateTime& localMoment, const QDate& today,
                      float localGMTHours) {
    record.CurrentGMTHours = Hours(record.StandardBias);
    record.CurrentName = record.StandardName;
    const QDateTime zoneTime =
        PlusHours(CutToSecond(localMoment), localGMTHours - record.CurrentGMTHours);
    return HasDaylightRule(record) && IsDaylight(record, zoneTime, today);
}

}  // namespace

float Hours(std::int32_t minutes) {
    return static_cast<float>(minutes / 60.0);
}

QString TimeText(const SYSTEMTIME& time) {
    return u"%1:%2:%3"_s.arg(time.wHour)
        .arg(time.wMinute, 2, 10, QChar(u'0'))
        .arg(time.wSecond, 2, 10, QChar(u'0'));
}

bool HasDaylightRule(const TimeZoneRecord& record) {
    return record.DaylightDate.wMonth != 0 && record.DaylightDate.wDay != 0;
}

QDate DateFromParts(int day, int month, int year, const QDate& today) {
    return mduAPILib::ValidDate(day, month, year).value_or(today);
}

QDate RuleTransitionDate(int occurrence, int weekday, int month, const QDate& today) {
    const QDate first = DateFromParts(1, month, today.year(), today);
    QDate date = first.addDays(weekday - first.dayOfWeek() % 7);
    int count = 0;
    for (int step = 0; step < 7; ++step) {
        const bool inMonth = date.month() == month;
        if (!inMonth && count != 0) {
            return date.addDays(-7);
        }
        if (inMonth && ++count == occurrence) {
            return date;
        }
        date = date.addDays(7);
    }
    return date;
}

QDateTime TransitionValue(const SYSTEMTIME& transition, const QDate& today) {
    if (transition.wYear >= 1) {
        return AbsoluteMoment(transition, today);
    }
    const QString text =
        u"%1/%2 "_s.arg(transition.wDay).arg(transition.wMonth) + TimeText(transition);
    const auto parsed = mduAPILib::ParseMoment(text, today.year());
    return parsed ? parsed->Moment : QDateTime();
}

void ApplyCurrentOffset(TimeZoneRecord& record, const QDateTime& now, float localGMTHours) {
    if (BeginsAsStandard(record, now, now.date(), localGMTHours)) {
        record.CurrentGMTHours = Hours(record.DaylightBias);
        record.CurrentName = record.DaylightName;
    }
    record.HoursFromLocal = localGMTHours - record.CurrentGMTHours;
}

QString ZoneNameAtTime(const QDateTime& localMoment, const QDateTime& now, TimeZoneRecord& record,
                       float localGMTHours) {
    const bool daylight = BeginsAsStandard(record, localMoment, now.date(), localGMTHours);
    return daylight ? record.DaylightName : record.StandardName;
}

QDateTime GetClockTime(const TimeZoneRecord& record, const QDateTime& now) {
    return PlusHours(CutToSecond(now), record.HoursFromLocal);
}

}  // namespace mduTimeZones
