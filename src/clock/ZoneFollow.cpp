#include "clock/ZoneFollow.h"

#include "platform/Services.h"
#include "platform/WallClock.h"
#include "timezones/ExactOffset.h"

using namespace Qt::StringLiterals;

namespace clockcore {

bool ZoneFollow::Follow() {
    TimeZoneRecord& zone = data_.Zone;
    if (zone.ExactId.isEmpty() || !mduTimeZones::IsOutdated(zone, services_.Clock.Instant())) {
        return false;
    }
    const TimeZoneRecord before = zone;
    mduTimeZones::ApplyPresentOffset(services_, zone);
    if (zone.CurrentGMTHours == before.CurrentGMTHours && zone.CurrentName == before.CurrentName) {
        return false;
    }
    if (!data_.Is(ClockKind::CalculatorInput)) {
        controls_.lblLocation(1).Caption = zone.CurrentName;  // typing names it itself
    }
    screen_.ShowStatus(mduTimeZones::ChangeText(services_, zone));
    return true;
}

}  // namespace clockcore
