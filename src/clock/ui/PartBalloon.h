#pragma once

#include <QObject>
#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/PartHints.h"
#include "foundation/ui/CBalloonToolTip.h"
#include "timers/ClockTimers.h"

namespace clockcore {

/// The hint of the part under the mouse, in the clock's balloon. It comes when the mouse has rested
/// half a second, beside the part that it is about, and goes when the mouse comes to another part,
/// a button is pressed, or the window hides or closes. A part that has been pressed has no hint
/// until the mouse has been elsewhere, and a disabled clock has none at all.
///
/// A filter of the form's events that takes none of them.
class PartBalloon final : public QObject {
public:
    /// What the hints tell of. All of it outlives the balloon.
    struct Parts {
        QWidget& Form;
        const ClockData& Data;
        const mduUILib::ClockControls& Controls;
        const timers::ClockTimers& Timers;
        const ClockClicks& Clicks;
    };

    PartBalloon(const Parts& parts, platform::WallClock& clock);

    const CBalloonToolTip& BalloonTip() const { return balloonTip_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Rest(const QPointF& logical);
    void Leave();
    void Show();
    ClockHit PartUnder(const QPointF& logical) const;
    PartHint Hint() const;
    QSize Scale() const;

    Parts parts_;
    CBalloonToolTip balloonTip_;
    ClockHit rests_;  ///< the part that the mouse is on
};

}  // namespace clockcore
