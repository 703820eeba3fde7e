#pragma once

#include <QByteArray>
#include <QTimeZone>
#include <vector>

#include "platform/WallClock.h"

namespace platform {

/// A clock that stands still until it is advanced by hand. It drives scripts and tests: the tickers
/// that fall due on the way are called in order of their moments.
class SimulatedClock final : public WallClock {
public:
    /// @param now the local wall-clock reading to begin with (its own zone is
    /// ignored)
    /// @param zone the machine's zone, which gives `OffsetFromGmt`
    SimulatedClock(const QDateTime& now, const QTimeZone& zone);
    Q_DISABLE_COPY_MOVE(SimulatedClock)

    QDateTime Now() const override { return now_; }
    int OffsetFromGmt() const override;
    std::unique_ptr<Ticker> MakeTicker(std::function<void()> onTick) override;

    /// Sets the reading without calling anyone.
    void SetNow(const QDateTime& now);
    /// Another zone of the machine; the reading stays.
    void SetZone(const QTimeZone& zone) { zone_ = zone; }

    /// Lets @p milliseconds pass.
    void Advance(qint64 milliseconds);

private:
    class SimulatedTicker;
    SimulatedTicker* NextDue(const QDateTime& until) const;

    QDateTime now_;
    QTimeZone zone_;
    std::vector<SimulatedTicker*> tickers_;
};

}  // namespace platform
