#include "foundation/Dates.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace mduAPILib {

namespace {

// moment = date | time | date blanks time
// date   = d "/" m [ "/" yyyy ]
// time   = h ":" mm [ ":" ss ] [ [ blanks ] ( "AM" | "PM" ) ]
const QRegularExpression& MomentPattern() {
    static const QRegularExpression pattern(
        u"\\A(?:(?<day>[0-9]{1,2})/(?<month>[0-9]{1,2})(?:/(?<year>[0-9]{3,4}))?)?"
        "(?:(?<gap> +)?(?<hour>[0-9]{1,2}):(?<minute>[0-9]{1,2})(?::(?<second>[0-9]{1,2}))?"
        "(?: *(?<half>[AaPp][Mm]))?)?\\z"_s);
    return pattern;
}

std::optional<QDate> DatePart(const QRegularExpressionMatch& match, int presentYear) {
    const QString year = match.captured(u"year"_s);
    return ValidDate(match.captured(u"day"_s).toInt(), match.captured(u"month"_s).toInt(),
                     year.isEmpty() ? presentYear : year.toInt());
}

// Read-outs pair an hour of 24 with the mark of its half of the day, so "15:00 PM" is understood.
std::optional<int> HourOfDay(int hour, const QString& half) {
    if (half.isEmpty()) {
        return hour;
    }
    if (half.compare(u"PM"_s, Qt::CaseInsensitive) == 0) {
        return hour < 12 ? hour + 12 : hour;
    }
    if (hour > 12) {
        return std::nullopt;
    }
    return hour % 12;
}

std::optional<QTime> TimePart(const QRegularExpressionMatch& match) {
    const std::optional<int> hour =
        HourOfDay(match.captured(u"hour"_s).toInt(), match.captured(u"half"_s));
    const QTime time(hour.value_or(-1), match.captured(u"minute"_s).toInt(),
                     match.captured(u"second"_s).toInt());
    return time.isValid() ? std::optional(time) : std::nullopt;
}

}  // namespace

std::optional<ParsedMoment> ParseMoment(const QString& text, int presentYear) {
    const QRegularExpressionMatch match = MomentPattern().match(text.trimmed());
    ParsedMoment result;
    result.HasDate = !match.captured(u"day"_s).isEmpty();
    result.HasTime = !match.captured(u"hour"_s).isEmpty();
    const bool gap = !match.captured(u"gap"_s).isEmpty();
    if ((!result.HasDate && !result.HasTime) || gap != (result.HasDate && result.HasTime)) {
        return std::nullopt;
    }
    const std::optional<QDate> date = result.HasDate ? DatePart(match, presentYear) : QDate();
    const std::optional<QTime> time = result.HasTime ? TimePart(match) : QTime(0, 0);
    if (!date || !time) {
        return std::nullopt;
    }
    result.Moment = QDateTime(*date, *time, Qt::UTC);
    return result;
}

QString ShortDate(const QDate& date) {
    return date.toString(u"dd/MM/yyyy"_s);
}

QString MomentText(const QDateTime& moment) {
    return ShortDate(moment.date()) + moment.time().toString(u" H:mm:ss"_s);
}

std::optional<QDate> ValidDate(int day, int month, int year) {
    const QDate date(year, month, day);
    if (!date.isValid() || year < 100 || year > 9999) {
        return std::nullopt;
    }
    return date;
}

QDateTime MomentAt(const QDate& date, int hour, int minute, int second) {
    const qint64 seconds = hour * 3600LL + minute * 60LL + second;
    return QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(seconds);
}

}  // namespace mduAPILib
