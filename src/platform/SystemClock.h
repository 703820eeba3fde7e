#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "platform/WallClock.h"

namespace platform {

/// The machine's own clock. All tickers share one timer of the event loop, so that clocks that are
/// due together are woken by one event and painted in one go.
class SystemClock final : public WallClock {
public:
    SystemClock();
    ~SystemClock() override;
    Q_DISABLE_COPY_MOVE(SystemClock)

    QDateTime Now() const override;
    int OffsetFromGmt() const override;
    std::unique_ptr<Ticker> MakeTicker(std::function<void()> onTick) override;

private:
    class SystemTicker;

    void Arm();
    void FireDue();

    QTimer timer_;
    std::vector<SystemTicker*> tickers_;
    bool firing_ = false;
};

}  // namespace platform
