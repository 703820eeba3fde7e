#include "platform/SimulatedClock.h"

#include <algorithm>

namespace platform {

class SimulatedClock::SimulatedTicker final : public Ticker {
public:
    SimulatedTicker(SimulatedClock& clock, std::function<void()> onTick)
        : clock_(clock), onTick_(std::move(onTick)) {
        clock_.tickers_.push_back(this);
    }

    ~SimulatedTicker() override { std::erase(clock_.tickers_, this); }
    Q_DISABLE_COPY_MOVE(SimulatedTicker)

    void SetInterval(int milliseconds) override {
        interval_ = milliseconds;
        const QDateTime next = NextShot();
        if (!Due.isValid() || !next.isValid() || next < Due) {
            Due = next;
        }
    }

    int Interval() const override { return interval_; }

    void Fire() {
        Due = NextShot();
        if (!running_) {
            running_ = true;
            const std::function<void()> onTick = onTick_;
            SimulatedClock& clock = clock_;
            onTick();
            if (std::find(clock.tickers_.begin(), clock.tickers_.end(), this) !=
                clock.tickers_.end()) {
                running_ = false;
            }
        }
    }

    QDateTime Due;  // invalid while stopped

private:
    QDateTime NextShot() const {
        const QDateTime& moment = clock_.moment_;
        const int wait = interval_ == 1000 ? 1000 - moment.time().msec() : interval_;
        return interval_ > 0 ? moment.addMSecs(wait) : QDateTime();
    }

    SimulatedClock& clock_;
    std::function<void()> onTick_;
    int interval_ = 0;
    bool running_ = false;
};

SimulatedClock::SimulatedClock(const QDateTime& now, const QTimeZone& zone) : zone_(zone) {
    SetNow(now);
}

QDateTime SimulatedClock::Now() const {
    return knowsInstant_ ? moment_.addSecs(OffsetFromGmt()) : moment_;
}

int SimulatedClock::OffsetFromGmt() const {
    if (knowsInstant_) {
        return zone_.offsetFromUtc(moment_);
    }
    const QDateTime local(moment_.date(), moment_.time(), zone_);
    return local.isValid() ? local.offsetFromUtc() : zone_.standardTimeOffset(moment_);
}

std::unique_ptr<Ticker> SimulatedClock::MakeTicker(std::function<void()> onTick) {
    return std::make_unique<SimulatedTicker>(*this, std::move(onTick));
}

void SimulatedClock::SetNow(const QDateTime& now) {
    const QDateTime reading(now.date(), now.time(), Qt::UTC);
    moment_ = knowsInstant_ ? QDateTime(now.date(), now.time(), zone_).toUTC() : reading;
}

void SimulatedClock::SetClock(const QDateTime& now) {
    const QDateTime before = moment_;
    SetNow(now);
    for (SimulatedTicker* ticker : tickers_) {
        ticker->Due = ticker->Due.addMSecs(before.msecsTo(moment_));
    }
}

QDateTime SimulatedClock::InstantOf(const QDateTime& reading) const {
    return QDateTime(reading.date(), reading.time(), zone_).toUTC();
}

void SimulatedClock::SetInstant(const QDateTime& gmt) {
    if (!knowsInstant_) {
        const int ahead = OffsetFromGmt();
        for (SimulatedTicker* ticker : tickers_) {
            ticker->Due = ticker->Due.addSecs(-ahead);
        }
    }
    knowsInstant_ = true;
    moment_ = gmt.toUTC();
}

void SimulatedClock::Advance(qint64 milliseconds) {
    const QDateTime until = moment_.addMSecs(milliseconds);
    while (SimulatedTicker* ticker = NextDue(until)) {
        moment_ = std::max(moment_, ticker->Due);
        ticker->Fire();
    }
    moment_ = until;
}

SimulatedClock::SimulatedTicker* SimulatedClock::NextDue(const QDateTime& until) const {
    SimulatedTicker* next = nullptr;
    for (SimulatedTicker* ticker : tickers_) {
        if (ticker->Due.isValid() && ticker->Due <= until &&
            (next == nullptr || ticker->Due < next->Due)) {
            next = ticker;
        }
    }
    return next;
}

}  // namespace platform
