#include "timezones/ExactDescription.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "foundation/Dates.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ExactZone.h"
#include "timezones/ZoneDescription.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

const QString LineEnd = u"\r\n"_s;
constexpr int YearsOfARule = 8;
constexpr int ChangesAtMost = 40;  // several a year, as in the years around a fast

/// What the clock shows at the moment of a change, before it is set.
QDateTime ReadingBefore(const ZoneChange& change) {
    return QDateTime::fromSecsSinceEpoch(change.At + change.Before.Offset, Qt::UTC);
}

/// The dates of the changes in the month of the first and to the same clock, for eight years.
std::vector<QDate> DatesOfRule(const ExactZone& zone, const ZoneChange& first) {
    const QDate begin = ReadingBefore(first).date();
    std::vector<QDate> dates;
    std::optional<ZoneChange> change = first;
    for (int i = 0; change && i < ChangesAtMost; ++i, change = zone.NextChange(change->At)) {
        const QDate date = ReadingBefore(*change).date();
        if (date.year() - begin.year() >= YearsOfARule) {
            break;
        }
        if (change->After.Offset == first.After.Offset && date.month() == begin.month()) {
            dates.push_back(date);
        }
    }
    return dates;
}

/// The occurrence that the weekday of all dates is in its month, 5 for the last; 0 for none.
int CommonOccurrence(const std::vector<QDate>& dates) {
    const auto all = [&](auto holds) { return std::all_of(dates.begin(), dates.end(), holds); };
    const auto occurrence = [](const QDate& date) { return (date.day() + 6) / 7; };
    const QDate first = dates.front();
    if (dates.size() < YearsOfARule ||
        !all([&](const QDate& date) { return date.dayOfWeek() == first.dayOfWeek(); })) {
        return 0;
    }
    if (all([&](const QDate& date) { return occurrence(date) == occurrence(first); })) {
        return occurrence(first);
    }
    return all([](const QDate& date) { return date.addDays(7).month() != date.month(); }) ? 5 : 0;
}

QString WordsOf(const ExactZone& zone, const ZoneChange& change, const QLocale& locale) {
    const std::vector<QDate> dates = DatesOfRule(zone, change);
    const int occurrence = CommonOccurrence(dates);
    const QDate date = dates.front();
    return occurrence == 0
               ? QString()
               : OrdinalWord(occurrence).trimmed() + u' ' +
                     locale.standaloneDayName(date.dayOfWeek(), QLocale::LongFormat) + u" in "_s +
                     locale.standaloneMonthName(date.month(), QLocale::LongFormat);
}

QString NameOf(const platform::ZoneSpan& span, const TimeZoneRecord& record) {
    return span.Daylight ? record.DaylightName : record.StandardName;
}

std::int32_t MinutesOf(int seconds) {
    return static_cast<std::int32_t>(std::lround(seconds / 60.0));
}

/// "5 hour(s) behind Local Time".
QString Difference(const platform::Services& services, int offset, qint64 instant) {
    const int ahead = offset - ExactZone(services.Zones, {}).At(instant).Offset;
    return ahead == 0 ? u"the same as Local Time"_s
                      : HoursText(MinutesOf(ahead)) +
                            (ahead > 0 ? u"ahead of Local Time"_s : u"behind Local Time"_s);
}

QString ChangeLine(const platform::Services& services, const TimeZoneRecord& record,
                   const ZoneChange& change, const QLocale& locale) {
    const QDateTime moment = ReadingBefore(change);
    const QString date = mduAPILib::ShortDate(moment.date());
    const QString words = WordsOf(ExactZone(services.Zones, record.ExactId), change, locale);
    return NameOf(change.After, record) + u" Begins on "_s +
           (words.isEmpty() ? date : words + u" ("_s + date + u')') + u" at "_s +
           mduAPILib::MomentText(moment).section(u' ', 1) + u", then "_s +
           Difference(services, change.After.Offset, change.At);
}

QString OffsetLine(const platform::ZoneSpan& span, const TimeZoneRecord& record) {
    return NameOf(span, record) + u" is "_s + HoursText(MinutesOf(span.Offset)) +
           (span.Offset < 0 ? u"before "_s : u"after "_s) + u"Greenwich Standard Time"_s;
}

QString ExactDescription(const platform::Services& services, const TimeZoneRecord& record,
                         const QLocale& locale) {
    const qint64 now = services.Clock.Instant();
    const ExactZone zone(services.Zones, record.ExactId);
    const platform::ZoneSpan present = zone.At(now);
    QStringList changes;
    QStringList offsets{OffsetLine(present, record)};
    auto change = zone.NextChange(now);
    for (int i = 0; i < 2 && change; ++i, change = zone.NextChange(change->At)) {
        changes += ChangeLine(services, record, *change, locale);
        offsets += OffsetLine(change->After, record);
    }
    offsets.removeDuplicates();
    const QString head = changes.isEmpty() ? QString() : changes.join(LineEnd) + LineEnd;
    return head + LineEnd + offsets.join(LineEnd) + LineEnd + LineEnd + NameOf(present, record) +
           u" is "_s + Difference(services, present.Offset, now) + LineEnd + u"Exact rules of "_s +
           record.ExactId;
}

}  // namespace

QString RuleWords(const platform::Services& services, const QString& id, qint64 instant,
                  const QLocale& locale) {
    const ExactZone zone(services.Zones, id);
    const auto change = zone.NextChange(instant - 1);
    return change ? WordsOf(zone, *change, locale) : QString();
}

QString PresentDescription(const platform::Services& services, const TimeZoneRecord& record,
                           const QLocale& locale) {
    if (!record.ExactId.isEmpty()) {
        return ExactDescription(services, record, locale);
    }
    const QString text = ZoneDescription(record, services.Clock.Now().date(), locale);
    return record.LacksId ? text + LineEnd + LineEnd +
                                u"The rules are those stored in its file: the time zone database "
                                "has no identifier for it"_s
                          : text;
}

}  // namespace mduTimeZones
