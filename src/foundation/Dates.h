#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

/// The one text form of dates in files and on the screen: day/month/year with four digits, such as
/// "25/03/2008", and a time as "h:mm:ss" on 24 hours. Moments are wall-clock readings that carry
/// `Qt::UTC` (see `platform::WallClock::Now`). "." never separates a date.
namespace mduAPILib {

/// A moment read from a text. A time alone has no date, a date alone has the time 0:00:00.
struct ParsedMoment {
    QDateTime Moment;
    bool HasDate = false;
    bool HasTime = false;
};

/// Reads "d/m/yyyy", "d/m" (in the present year), "h:mm", "h:mm:ss", each time optionally with AM
/// or PM behind it, or a date and a time with blanks between. Nothing for any other text. An hour
/// above 12 may stand before PM, as in "15:00 PM", but not before AM.
std::optional<ParsedMoment> ParseMoment(const QString& text, int presentYear);

QString ShortDate(const QDate& date);         ///< "25/03/2008"
QString MomentText(const QDateTime& moment);  ///< "25/03/2008 9:05:07"

/// Date and time from parts; a part out of its range gives nothing. Years run from 100 to 9999.
std::optional<QDate> ValidDate(int day, int month, int year);

/// A moment from a date and a time of day, whose parts may exceed their range and then carry over.
QDateTime MomentAt(const QDate& date, int hour, int minute, int second);

}  // namespace mduAPILib
