#pragma once

#include <QDate>
#include <functional>
#include <memory>

#include "platform/WallClock.h"

namespace platform {

/// Tells of every new month, and so of every new year, while the program runs: within a minute of
/// its beginning, or of the machine's waking up in it. A clock that is set to another month counts,
/// too, also to an earlier one.
class CalendarWatch {
public:
    /// @param onNewMonth is called from the event loop; it is not for the month in which the watch
    /// begins
    CalendarWatch(WallClock& clock, std::function<void()> onNewMonth);

private:
    /// Compares today with the day that was seen last, once a minute.
    void Look();

    WallClock& clock_;
    std::function<void()> onNewMonth_;
    QDate seen_;
    std::unique_ptr<Ticker> ticker_;
};

}  // namespace platform
