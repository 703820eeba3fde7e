#pragma once

#include <QDateTime>
#include <functional>
#include <memory>

#include "platform/WallClock.h"

class QWidget;

namespace clockcore {

inline constexpr int LongestReveal = 10000;  ///< milliseconds

/// Counts a time that is given in milliseconds, in steps, from 0 to 1.
class WindowReveal {
public:
    /// @param step is told the part of the time that has passed; the last call is 1
    WindowReveal(platform::WallClock& clock, std::function<void(double)> step);

    /// Begins with a call of 0. No longer than `LongestReveal`.
    void Start(int milliseconds);
    /// Goes to the end at once.
    void Finish();
    bool IsRunning() const { return ticker_->Interval() > 0; }

private:
    void Step();

    platform::WallClock& clock_;
    std::function<void(double)> step_;
    std::unique_ptr<platform::Ticker> ticker_;
    QDateTime started_;
    int milliseconds_ = 0;
};

/// Shows what @p window looks like at this moment, shrinking to its centre, in its place within its
/// parent. The window itself may go at once; the image goes by itself, with its parent at the
/// latest.
void ShowShrinking(const QWidget& window, platform::WallClock& clock, int milliseconds);

}  // namespace clockcore
