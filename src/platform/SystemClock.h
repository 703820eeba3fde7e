#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "platform/WallClock.h"

namespace platform {

/// The machine's own clock. All tickers share one timer of the event loop, so that clocks that are
/// due together are woken by one event and painted in one go.
///
/// Intervals are measured by a clock that nobody sets; only the turn of the second is read from the
/// wall clock. A change of the machine's time or zone is so seen at the next `Now`, and moves no
/// shot that is under way. A ticker whose callback runs a nested event loop holds up itself alone:
/// the others go on inside that loop. A ticker may be destroyed in its own callback, but must not
/// outlive this object.
class SystemClock final : public WallClock {
public:
    SystemClock();
    ~SystemClock() override;
    Q_DISABLE_COPY_MOVE(SystemClock)

    QDateTime Now() const override;
    /// Daylight time included; 0 where the machine can't tell.
    int OffsetFromGmt() const override;
    qint64 Instant() const override;
    std::unique_ptr<Ticker> MakeTicker(std::function<void()> onTick) override;

private:
    class SystemTicker;

    /// Sets the timer to the earliest shot of a ticker that is not in its callback.
    void Arm();
    /// Calls all tickers whose moment has come, in the order in which they were made.
    void FireDue();

    QTimer timer_;
    /// Null for one that has gone; its place is closed up when no callback runs any more.
    std::vector<SystemTicker*> tickers_;
    bool firing_ = false;
};

}  // namespace platform
