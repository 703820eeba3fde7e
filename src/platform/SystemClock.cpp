#include "platform/SystemClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

namespace platform {

namespace {

constexpr int SecondAligned = 1000;
constexpr qint64 BehindTheTurn = 1;  // milliseconds

qint64 SteadyMilliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 UntilNextSecond() {
    const qint64 past = QDateTime::currentMSecsSinceEpoch() % 1000;
    return 1000 - past + BehindTheTurn;
}

}  // namespace

class SystemClock::SystemTicker final : public Ticker {
public:
    SystemTicker(SystemClock& clock, std::function<void()> onTick)
        : clock_(clock), onTick_(std::move(onTick)) {
        clock_.tickers_.push_back(this);
    }

    ~SystemTicker() override {
        std::replace(clock_.tickers_.begin(), clock_.tickers_.end(), this,
                     static_cast<SystemTicker*>(nullptr));
    }
    Q_DISABLE_COPY_MOVE(SystemTicker)

    void SetInterval(int milliseconds) override {
        interval_ = milliseconds;
        Due = milliseconds > 0 ? std::min(Due, SteadyMilliseconds() + Wait()) : Never;
        clock_.Arm();
    }

    int Interval() const override { return interval_; }

    void Fire() {
        if (running_) {
            return;  // a nested event loop reached us inside our own call
        }
        Due = interval_ > 0 ? SteadyMilliseconds() + Wait() : Never;
        running_ = true;
        const std::shared_ptr<bool> alive = alive_;
        const std::function<void()> onTick = onTick_;  // the call may end this ticker's life
        onTick();
        if (*alive) {
            running_ = false;
        }
    }

    bool IsRunning() const { return running_; }

    static constexpr qint64 Never = std::numeric_limits<qint64>::max();
    qint64 Due = Never;

private:
    struct Death {
        std::shared_ptr<bool> Alive;
        ~Death() { *Alive = false; }
    };

    qint64 Wait() const { return interval_ == SecondAligned ? UntilNextSecond() : interval_; }

    SystemClock& clock_;
    std::function<void()> onTick_;
    int interval_ = 0;
    bool running_ = false;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    Death death_{alive_};
};

SystemClock::SystemClock() {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { FireDue(); });
}

SystemClock::~SystemClock() = default;

QDateTime SystemClock::Now() const {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    return QDateTime::fromMSecsSinceEpoch(now + OffsetFromGmt() * qint64{1000}, Qt::UTC);
}

int SystemClock::OffsetFromGmt() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    return localtime_r(&now, &local) != nullptr ? static_cast<int>(local.tm_gmtoff) : 0;
}

qint64 SystemClock::Instant() const {
    return QDateTime::currentSecsSinceEpoch();
}

std::unique_ptr<Ticker> SystemClock::MakeTicker(std::function<void()> onTick) {
    return std::make_unique<SystemTicker>(*this, std::move(onTick));
}

void SystemClock::Arm() {
    qint64 next = SystemTicker::Never;
    for (const SystemTicker* ticker : tickers_) {
        if (ticker != nullptr && !ticker->IsRunning()) {
            next = std::min(next, ticker->Due);
        }
    }
    if (next == SystemTicker::Never) {
        timer_.stop();
    } else {
        timer_.start(static_cast<int>(std::max<qint64>(0, next - SteadyMilliseconds())));
    }
}

void SystemClock::FireDue() {
    const bool outermost = !std::exchange(firing_, true);
    const qint64 now = SteadyMilliseconds();
    // Arm first: a tick may run a nested event loop, in which the other clocks go on.
    Arm();
    for (std::size_t i = 0; i < tickers_.size(); ++i) {  // a tick may add tickers
        if (tickers_[i] != nullptr && tickers_[i]->Due <= now) {
            tickers_[i]->Fire();
        }
    }
    if (outermost) {
        firing_ = false;
        std::erase(tickers_, nullptr);
    }
    Arm();
}

}  // namespace platform
