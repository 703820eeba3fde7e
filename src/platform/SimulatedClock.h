#pragma once

#include <QByteArray>
#include <QTimeZone>
#include <vector>

#include "platform/WallClock.h"

namespace platform {

/// A clock that stands still until it is advanced by hand. It drives scripts and tests: the tickers
/// that fall due on the way are called in order of their moments.
///
///     SimulatedClock clock(QDateTime(QDate(2026, 1, 5), QTime(12, 0), Qt::UTC), zone);
///     auto ticker = clock.MakeTicker(tick);
///     ticker->SetInterval(1000);
///     clock.Advance(3000);  // calls `tick` at 12:00:01, 12:00:02 and 12:00:03
///
/// It begins with a reading, and runs on without a jump whatever the zone does. Once it has been
/// told an instant it goes by that: its reading jumps where the zone's clock is changed, and is
/// exact in the hour that is lived through twice.
class SimulatedClock final : public WallClock {
public:
    /// @param now the local wall-clock reading to begin with (its own zone is
    /// ignored)
    /// @param zone the machine's zone, which gives `OffsetFromGmt`
    SimulatedClock(const QDateTime& now, const QTimeZone& zone);
    Q_DISABLE_COPY_MOVE(SimulatedClock)

    QDateTime Now() const override;
    /// That of the zone at the present reading; its standard offset where the zone's clock is put
    /// forward over that reading.
    int OffsetFromGmt() const override;
    std::unique_ptr<Ticker> MakeTicker(std::function<void()> onTick) override;

    /// Sets the reading without calling anyone. Tickers keep their moments: those that have been
    /// jumped over are called by the next `Advance`.
    void SetNow(const QDateTime& now);
    /// Sets the instant, in GMT, without calling anyone; tickers keep their moments, as ever.
    void SetInstant(const QDateTime& gmt);
    /// Sets the reading as a user sets a clock: what waits goes on waiting as long as before.
    void SetClock(const QDateTime& now);
    /// The instant of a reading; the earlier of two, and for one that is left out that of the clock
    /// put forward.
    QDateTime InstantOf(const QDateTime& reading) const;
    /// Another zone of the machine; the reading stays, or the instant where that is known.
    void SetZone(const QTimeZone& zone) { zone_ = zone; }

    /// Lets @p milliseconds pass. Each callback finds the reading at the moment that it was due
    /// for; what it sets anew may fall due within the same call.
    void Advance(qint64 milliseconds);

private:
    class SimulatedTicker;
    SimulatedTicker* NextDue(const QDateTime& until) const;

    /// The reading, or the instant once that is known. Tickers fall due by it.
    QDateTime moment_;
    bool knowsInstant_ = false;
    QTimeZone zone_;
    std::vector<SimulatedTicker*> tickers_;
};

}  // namespace platform
