#pragma once

#include <QMdiArea>
#include <functional>
#include <memory>

#include "clock/ClockCanvas.h"
#include "clock/ClockWindow.h"
#include "clock/ui/MdiPlacement.h"
#include "foundation/Controls.h"
#include "platform/WallClock.h"

namespace clockcore {

/// The window of a clock's form, as its logic sees it, with its timer `timClock`.
///
/// For a clock in the shell the window is its frame there, for one that stands alone the form
/// itself.
class FormWindow final : public ClockWindow {
public:
    /// @param form the clock's own widget, which takes the keys
    /// @param area the shell's frame for its children; null for a clock that stands alone
    /// @param controls those that are enabled and disabled with the window
    /// @param timClock the clock's timer, which this window owns from now on; still stopped
    FormWindow(QWidget& form, QMdiArea* area, MdiPlacement& placement, ClockCanvas& canvas,
               mduUILib::ClockControls& controls, std::unique_ptr<platform::Ticker> timClock)
        : form_(form),
          area_(area),
          placement_(placement),
          canvas_(canvas),
          controls_(controls),
          timClock_(std::move(timClock)) {}

    /// Tells each interval that is another than before, in milliseconds, just before it is set. One
    /// watcher at a time.
    void WatchInterval(std::function<void(int)> watcher) { watcher_ = std::move(watcher); }
    /// Ends the tick, untold: for a clock that closes.
    void StopTimer() { timClock_->SetInterval(0); }
    /// Makes the clock the active one, and scrolls its shell until the clock can be seen. The form
    /// takes the keys.
    void Activate();

    bool IsMDIChild() const override { return area_ != nullptr; }
    /// In the shell the child in front, be the shell itself the active window or not.
    bool IsActiveForm() const override;
    bool IsActiveWindow() const override { return form_.isActiveWindow(); }
    bool IsEnabled() const override { return placement_.Outer().isEnabled(); }
    /// The frame with all that lies in it, and `Enabled` of each control.
    void EnableWindow(bool enabled) override;
    int TimerInterval() const override { return timClock_->Interval(); }
    void SetTimerInterval(int milliseconds) override;
    int ScaleLeft() const override { return 0; }
    int ScaleWidth() const override { return canvas_.Painted().ScaleWidth(); }
    void Cls() override { canvas_.Cls(); }
    void LockWindowUpdate(bool locked) override { canvas_.LockWindowUpdate(locked); }
    /// The controls of all three hands.
    void HideHandShapes() override;
    /// The close event follows at once.
    void CloseClock() override { placement_.Outer().close(); }

private:
    QWidget& form_;
    QMdiArea* area_;
    MdiPlacement& placement_;
    ClockCanvas& canvas_;
    mduUILib::ClockControls& controls_;
    std::unique_ptr<platform::Ticker> timClock_;
    std::function<void(int)> watcher_;
};

}  // namespace clockcore
