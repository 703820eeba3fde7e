#include "timezones/ZoneConversion.h"

#include <cmath>

#include "foundation/Dates.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

qint64 OffsetSeconds(const TimeZoneRecord& record) {
    return std::llrint(static_cast<double>(record.HoursFromLocal) * 3600.0);
}

}  // namespace

std::optional<QDateTime> MomentOfText(const QString& text, const QDateTime& now) {
    const QString dated =
        text.contains(u'/') ? text : mduAPILib::ShortDate(now.date()) + u' ' + text.trimmed();
    const auto parsed = mduAPILib::ParseMoment(dated, now.date().year());
    return parsed && (parsed->HasTime || text.contains(u'/')) ? std::optional(parsed->Moment)
                                                              : std::nullopt;
}

QString ConvertZoneTime(const QString& text, bool toZone, const TimeZoneRecord& record,
                        const QDateTime& now) {
    const std::optional<QDateTime> moment = MomentOfText(text, now);
    if (!moment) {
        return {};
    }
    const qint64 seconds = OffsetSeconds(record);
    const QDateTime converted = moment->addSecs(toZone ? seconds : -seconds);
    const QDate date = converted.date();
    return mduAPILib::ValidDate(date.day(), date.month(), date.year())
               ? mduAPILib::MomentText(converted)
               : QString();
}

QDateTime LocalMoment(const QDateTime& zoneMoment, const TimeZoneRecord& record) {
    return zoneMoment.addSecs(-OffsetSeconds(record));
}

}  // namespace mduTimeZones
