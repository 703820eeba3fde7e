#include "timezones/ExactOffset.h"

#include <algorithm>
#include <cstdlib>

#include "platform/Services.h"
#include "platform/WallClock.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ExactZone.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

using platform::ZoneSpan;

float HoursOf(int seconds) {
    return static_cast<float>(seconds / 3600.0);
}

QString TwoDigits(int number) {
    return QString::number(number).rightJustified(2, u'0');
}

}  // namespace

// The machine's own offset is the wall clock's, so that the zone's time is right whatever the
// database says of the machine.
void ApplyPresentOffset(const platform::Services& services, TimeZoneRecord& record) {
    const qint64 now = services.Clock.Instant();
    const auto span =
        record.ExactId.isEmpty() ? std::nullopt : services.Zones.SpanAt(record.ExactId, now);
    record.HoldsSince = -ZoneSpan::Always;
    record.HoldsUntil = ZoneSpan::Always;
    if (!span) {
        ApplyCurrentOffset(record, services.Clock.Now(), GetLocalZone(services).CurrentGMTHours);
        return;
    }
    const ZoneSpan machine = ExactZone(services.Zones, {}).At(now);
    record.HoldsSince = std::max(span->Since, machine.Since);
    record.HoldsUntil = std::min(span->Until, machine.Until);
    record.CurrentName = span->Daylight ? record.DaylightName : record.StandardName;
    record.CurrentGMTHours = HoursOf(-span->Offset);
    record.HoursFromLocal = HoursOf(span->Offset - services.Clock.OffsetFromGmt());
}

QString ChangeText(const platform::Services& services, const TimeZoneRecord& record) {
    const ZoneSpan present = ExactZone(services.Zones, record.ExactId).At(services.Clock.Instant());
    const QString place = record.ExactId.section(u'/', -1).replace(u'_', u' ');
    return u"%1 has changed to %2 time, %3"_s.arg(
        place, present.Daylight ? u"daylight"_s : u"standard"_s, OffsetText(present.Offset));
}

QString OffsetText(int offset) {
    const int size = std::abs(offset);
    const QString seconds = size % 60 == 0 ? QString() : u':' + TwoDigits(size % 60);
    return u"UTC"_s + (offset < 0 ? u'-' : u'+') + TwoDigits(size / 3600) + u':' +
           TwoDigits(size / 60 % 60) + seconds;
}

}  // namespace mduTimeZones
