#include "timezones/ExactKeys.h"

#include <algorithm>
#include <cmath>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ExactZone.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::ZoneSpan;

bool IsToBeExact(const ClockProperties& properties) {
    return ZoneKeyValue(properties, ZoneRulesKey) == ZoneRulesNames().first();
}

bool IsKnown(const platform::Services& services, const QString& id) {
    return !id.isEmpty() && services.Zones.SpanAt(id, services.Clock.Instant()).has_value();
}

bool Shows(const ZoneSpan& span, const TimeZoneRecord& record, bool isDaylight) {
    const std::int32_t bias = isDaylight ? record.DaylightBias : record.StandardBias;
    return span.Daylight == isDaylight && -std::lround(span.Offset / 60.0) == bias;
}

/// Whether the zone has had the record's offsets since 2000, or in the last year before that, or
/// will have them within a year.
bool HasKept(const platform::Services& services, const QString& id, const TimeZoneRecord& record) {
    const ExactZone zone(services.Zones, id);
    constexpr qint64 year = qint64{366} * 86400;
    constexpr qint64 begin = 946684800;  // 1 January 2000
    const qint64 now = services.Clock.Instant();
    bool standard = false;
    bool daylight = !HasDaylightRule(record);
    ZoneSpan span = zone.At(std::min(begin, now - year));
    for (;; span = zone.At(span.Until)) {
        standard = standard || Shows(span, record, false);
        daylight = daylight || Shows(span, record, true);
        if (span.Until > now + year) {
            return standard && daylight;
        }
    }
}

QString IdOfProfile(const platform::Services& services, const QString& path) {
    ClockProperties profile;
    const bool isRead = path.endsWith(u".ini"_s, Qt::CaseInsensitive) &&
                        mduLib::ReadPropertyFile(services.FileSystem, path, profile);
    return isRead ? ZoneKeyValue(profile, ZoneIdKey) : QString();
}

/// Empty when no identifier is found.
QString FindId(const platform::Services& services, const QString& source,
               const TimeZoneRecord& record, const ClockProperties& properties) {
    const QString city = ZoneKeyValue(properties, u"City"_s);
    for (const QString& id :
         {IdOfProfile(services, source), services.Zones.IdOf(record.StandardName),
          city.isEmpty() ? QString() : services.Zones.IdOf(city)}) {
        if (IsKnown(services, id) && HasKept(services, id, record)) {
            return id;
        }
    }
    return {};
}

}  // namespace

QStringList ZoneRulesNames() {
    return {u"Exact"_s, u"As Stored"_s};
}

bool FillZoneId(const platform::Services& services, const QString& source,
                const TimeZoneRecord& record, ClockProperties& properties) {
    if (!IsToBeExact(properties) || !ZoneKeyValue(properties, ZoneIdKey).isEmpty()) {
        return false;
    }
    const QString id = FindId(services, source, record, properties);
    if (!id.isEmpty()) {
        mduLib::PutProperty(ZoneIdKey, id, properties);
    }
    return !id.isEmpty();
}

bool OverlayExactKeys(const platform::Services& services, const QString& source,
                      TimeZoneRecord& record, ClockProperties& properties) {
    record.ExactId.clear();
    record.LacksId = false;
    if (!IsToBeExact(properties)) {
        return false;
    }
    const bool isFilledIn = FillZoneId(services, source, record, properties);
    const QString id = ZoneKeyValue(properties, ZoneIdKey);
    if (!IsKnown(services, id)) {
        record.LacksId = true;
        return false;
    }
    record.ExactId = id;
    TakeTzi(services.Zones.TziOfId(id).value_or(QByteArray()), record);
    return RenewZoneRules(record, properties, services.Clock.Now().date()) || isFilledIn;
}

}  // namespace mduTimeZones
