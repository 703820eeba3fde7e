#pragma once

#include <QString>

namespace platform {
struct Services;
}

namespace mduTimeZones {

/// The zone that the program starts with: its property file becomes the current one. That there is
/// a zone of that name is not looked into.
struct StartZone {
    QString Name;     ///< the command line as it stands, or the machine's own zone
    QString Problem;  ///< why the name can't name a file, for a message; empty when it can
};

/// An empty @p commandLine means the zone that the machine's settings select.
///
///     ChooseStartZone(services, u"Tokyo Standard Time"_s).Problem  // empty
///     ChooseStartZone(services, u"../x"_s).Problem                 // tells why not
StartZone ChooseStartZone(const platform::Services& services, const QString& commandLine);

}  // namespace mduTimeZones
