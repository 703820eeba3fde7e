#include "ctl/ZoneByName.h"

#include "timezones/UnknownZone.h"
#include "timezones/ZoneSources.h"

namespace ctl {

TimeZoneRecord FindAndTell(const Context& context, const QString& name) {
    const PathTable& paths = context.State.Paths;
    TellNotice(mduTimeZones::UnknownZoneNotice(context.Services, paths, name));
    return mduTimeZones::FindTimeZone(context.Services, paths, name);
}

void TellNotice(const QString& notice) {
    if (!notice.isEmpty()) {
        Complain(notice);
    }
}

}  // namespace ctl
