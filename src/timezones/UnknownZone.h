#pragma once

#include <QStringList>
#include <vector>

#include "foundation/ModuleState.h"

namespace platform {
struct Services;
}

/// A name that no zone has, as a slip of the finger makes it, runs as GMT. This tells so.
namespace mduTimeZones {

/// A zone by its standard name, and all that it is called: "Tokyo", "Osaka", "Japan".
struct CalledZone {
    QString StandardName;
    QStringList Names;
};

/// The standard name of the zone that is called most like @p typed, whatever the case and the
/// accents of its letters; the first of those that are equally near. A letter that is another, is
/// missing or is too much is a step: at most two, or a third of the letters of a long name, and
/// fewer than all. Empty when no zone is that near. "Tokio" gives "Tokyo Standard Time".
QString NearestZoneName(const QString& typed, const std::vector<CalledZone>& zones);

/// What to tell about a name that no zone of the database and no profile has; empty when one does.
///
///     No time zone is called "tokyo": it counts as GMT. The nearest is "Tokyo Standard Time"
QString UnknownZoneNotice(const platform::Services& services, const PathTable& paths,
                          const QString& name);

/// The same for the name of a clock, which may have a file of the user's own: nothing is told where
/// that holds another time than GMT.
QString UnknownClockNotice(const platform::Services& services, const PathTable& paths,
                           const QString& name);

}  // namespace mduTimeZones
