#include "platform/CalendarWatch.h"

#include <utility>

namespace platform {

namespace {

constexpr int Minute = 60000;  // milliseconds

bool IsSameMonth(const QDate& one, const QDate& other) {
    return one.year() == other.year() && one.month() == other.month();
}

}  // namespace

CalendarWatch::CalendarWatch(WallClock& clock, std::function<void()> onNewMonth)
    : clock_(clock),
      onNewMonth_(std::move(onNewMonth)),
      seen_(clock.Now().date()),
      ticker_(clock.MakeTicker([this] { Look(); })) {
    ticker_->SetInterval(Minute);
}

void CalendarWatch::Look() {
    const QDate today = clock_.Now().date();
    if (!IsSameMonth(std::exchange(seen_, today), today)) {
        onNewMonth_();
    }
}

}  // namespace platform
