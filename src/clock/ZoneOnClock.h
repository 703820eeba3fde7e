#pragma once

#include <optional>

#include "clock/ClockData.h"
#include "clock/ClockLook.h"
#include "foundation/Program.h"

namespace clockcore {

/// Puts the zone of another file on a clock, with that file's look or without it. The clock's own
/// file stays as it is, until the style is saved; at its next start the clock shows its own zone.
class ZoneOnClock {
public:
    ZoneOnClock(ClockData& data, const Program& program, ClockScreen& screen, ClockLook& look)
        : data_(data), program_(program), screen_(screen), look_(look) {}

    /// What is taken of a zone's file.
    enum class Take { ZoneOnly, WholeSet };
    /// @param name of a file in the folder of zone files, without its extension. One that can't be
    /// read is told in the status bar, and nothing changes.
    void TakeZone(const QString& name, Take what);
    /// Goes on to the next zone's file, in directory order, and from the last to the first. Files
    /// that can't be read are passed over; where none can be, the next one is told.
    void TakeNextZone(Take what);

private:
    QString PathOf(const QString& name) const;
    /// Nothing for a file that can't be read.
    std::optional<ClockProperties> ReadZone(const QString& name) const;
    void Put(const QString& name, ClockProperties set, Take what);
    void TellUnreadable(const QString& name);

    ClockData& data_;
    Program program_;
    ClockScreen& screen_;
    ClockLook& look_;
};

/// The base name of the file whose zone a clock shows.
QString PresentZone(const ClockData& data);

}  // namespace clockcore
