#include "platform/TzRule.h"

#include <QDateTime>
#include <QtEndian>
#include <algorithm>
#include <cmath>

namespace platform {

namespace {

using Changes = std::vector<TzChange>;

std::int32_t Minutes(int seconds) {
    return static_cast<std::int32_t>(std::lround(seconds / 60.0));
}

int YearOf(const TzChange& change) {
    return TzLocalMoment(change.At, change.Before).date().year();
}

/// The zone can be a day ahead of the machine's year or behind it; what then lies between the year
/// and the present counts too.
bool Counts(const TzChange& change, int year, qint64 present) {
    const int own = YearOf(change);
    if (own == year) {
        return true;
    }
    return own < year ? change.At > present : change.At <= present;
}

Changes ChangesThatCount(const TzYear& year, qint64 present) {
    Changes counting;
    std::copy_if(year.Changes.begin(), year.Changes.end(), std::back_inserter(counting),
                 [&](const TzChange& change) { return Counts(change, year.Year, present); });
    return counting;
}

SYSTEMTIME AbsoluteDate(const QDateTime& moment) {
    const QDate date = moment.date();
    const QTime time = moment.time();
    const auto field = [](int value) { return static_cast<std::int16_t>(value); };
    return {field(date.year()),   field(date.month()), field(date.dayOfWeek() % 7),
            field(date.day()),    field(time.hour()),  field(time.minute()),
            field(time.second()), field(time.msec())};
}

/// Whether a yearly rule, written to a file as text and read back, gives that date again: the
/// reader takes the weekday's number for the occurrence, and only 0, 5 and 6 mean the last such
/// day.
bool SurvivesAsRule(const QDate& date) {
    const int weekday = date.dayOfWeek() % 7;
    const bool last = date.addDays(7).month() != date.month();
    return last && (weekday == 0 || weekday == 5 || weekday == 6);
}

SYSTEMTIME YearlyDate(const QDateTime& moment) {
    SYSTEMTIME date = AbsoluteDate(moment);
    if (SurvivesAsRule(moment.date())) {
        date.wYear = 0;
        date.wDay = 5;
    }
    return date;
}

void SetOffsets(TzRule& rule, int standard, int daylight) {
    rule.KeepsDaylight = true;
    rule.Bias = -Minutes(standard);
    rule.DaylightBias = -Minutes(daylight) - rule.Bias;
}

/// There and back again within the year.
bool IsPlainYear(const Changes& changes, int year) {
    return changes.size() == 2 && changes[0].Before == changes[1].After &&
           YearOf(changes[0]) == year && YearOf(changes[1]) == year;
}

TzRule PlainRule(const Changes& changes, qint64 present) {
    const bool northern = changes[0].After > changes[0].Before;
    const TzChange& toDaylight = changes[northern ? 0 : 1];
    const TzChange& toStandard = changes[northern ? 1 : 0];
    TzRule rule;
    SetOffsets(rule, toDaylight.Before, toDaylight.After);
    rule.DaylightDate = YearlyDate(TzLocalMoment(toDaylight.At, toDaylight.Before));
    rule.StandardDate = YearlyDate(TzLocalMoment(toStandard.At, toStandard.Before));
    const bool between = present >= changes[0].At && present < changes[1].At;
    rule.DaylightNow = between == northern;
    return rule;
}

/// Two neighbouring periods: the one that holds the present, and the next or else the last one.
TzRule RuleOfPresentPeriod(const Changes& changes, int year, qint64 present) {
    const auto offset = [&](std::size_t period) {
        return period == 0 ? changes[0].Before : changes[period - 1].After;
    };
    const auto count = std::count_if(changes.begin(), changes.end(),
                                     [&](const TzChange& change) { return change.At <= present; });
    const auto current = static_cast<std::size_t>(count);
    const std::size_t neighbour = current < changes.size() ? current + 1 : current - 1;
    const std::size_t daylight = offset(current) > offset(neighbour) ? current : neighbour;
    const std::size_t standard = daylight == current ? neighbour : current;

    TzRule rule;
    SetOffsets(rule, offset(standard), offset(daylight));
    rule.DaylightNow = daylight == current;
    rule.DaylightDate =
        AbsoluteDate(daylight == 0 ? QDate(year - 1, 1, 1).startOfDay(Qt::UTC)
                                   : TzLocalMoment(changes[daylight - 1].At, offset(standard)));
    rule.StandardDate = AbsoluteDate(daylight == changes.size()
                                         ? QDate(year + 1, 12, 31).startOfDay(Qt::UTC)
                                         : TzLocalMoment(changes[daylight].At, offset(daylight)));
    return rule;
}

int OffsetAt(const TzYear& year, qint64 instant) {
    int offset = year.FirstOffset;
    for (const TzChange& change : year.Changes) {
        offset = change.At <= instant ? change.After : offset;
    }
    return offset;
}

template <typename Number>
void Append(QByteArray& bytes, Number value) {
    const Number little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof(little));
}

void Append(QByteArray& bytes, const SYSTEMTIME& date) {
    for (const std::int16_t field : {date.wYear, date.wMonth, date.wDayOfWeek, date.wDay,
                                     date.wHour, date.wMinute, date.wSecond, date.wMilliseconds}) {
        Append(bytes, field);
    }
}

}  // namespace

TzRule MakeTzRule(const TzYear& year, qint64 present) {
    const Changes changes = ChangesThatCount(year, present);
    if (changes.empty()) {
        TzRule rule;
        rule.Bias = -Minutes(OffsetAt(year, present));
        return rule;
    }
    if (IsPlainYear(changes, year.Year)) {
        return PlainRule(changes, present);
    }
    return RuleOfPresentPeriod(changes, year.Year, present);
}

QByteArray TziBytes(const TzRule& rule) {
    QByteArray bytes;
    bytes.reserve(44);
    Append(bytes, rule.Bias);
    Append(bytes, std::int32_t{0});  // of standard time, beside `Bias`: none
    Append(bytes, rule.DaylightBias);
    Append(bytes, rule.StandardDate);
    Append(bytes, rule.DaylightDate);
    return bytes;
}

}  // namespace platform
