#include "timezones/ZoneYear.h"

#include "foundation/Dates.h"
#include "timezones/ZoneKeys.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

bool IsOpenEnd(const QDateTime& moment) {
    const QDate date = moment.date();
    const bool edge =
        (date.month() == 1 && date.day() == 1) || (date.month() == 12 && date.day() == 31);
    return edge && moment.time() == QTime(0, 0);
}

bool IsDayOfAnotherYear(const QString& text, int year) {
    const auto parsed = mduAPILib::ParseMoment(text, year);
    return parsed && parsed->HasDate && !IsOpenEnd(parsed->Moment) &&
           parsed->Moment.date().year() != year;
}

}  // namespace

bool IsOfAnotherYear(const ClockProperties& properties, const QDate& today) {
    const auto isOld = [&](const QString& key) {
        return IsDayOfAnotherYear(ZoneKeyValue(properties, key), today.year());
    };
    return isOld(u"Time Zone Standard Start Time"_s) || isOld(u"Time Zone Daylight Start Time"_s);
}

}  // namespace mduTimeZones
