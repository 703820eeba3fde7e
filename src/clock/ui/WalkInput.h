#pragma once

#include <QObject>
#include <QWidget>

#include "clock/ClockClicks.h"
#include "clock/PartNudge.h"
#include "clock/PartWalk.h"
#include "drawing/Canvas.h"

class QFocusEvent;
class QKeyEvent;
class QPainter;

namespace clockcore {

/// The keyboard on a clock's parts. Tab and Shift+Tab walk along them, and at the end on to the
/// next window; a ring shows where the walk is. Enter, the return key and the space bar open the
/// part's menu, the arrow keys push what can be dragged, and what they have come to is stored when
/// the key is let go. Escape ends the walk, and so do a click and a focus that goes elsewhere.
///
/// The menu key and Shift+F10 open the menu of the part with the ring, or that of the clock. Tab
/// is a calculator's own. A disabled clock is not walked along: disabling it ends the walk, and
/// stores what the arrow keys have done until then.
///
/// As a filter of the form's events it takes the keys of a walk for itself.
class WalkInput final : public QObject {
public:
    /// What the walk goes along and asks. All of it outlives the walk.
    struct Parts {
        QWidget& Form;
        const ClockData& Data;
        const mduUILib::ClockControls& Controls;
        drawing::Canvas& Canvas;
        const timers::ClockTimers& Timers;
        ClockClicks& Clicks;
        PartNudge& Nudge;
    };

    explicit WalkInput(const Parts& parts) : parts_(parts) {}

    /// Nothing outside of a walk.
    const std::optional<ClockHit>& Focus() const { return walk_.Focus(); }
    /// Paints the ring over the face: a light line within a dark one, each a logical pixel thin.
    /// @param painter of the form, in logical pixels
    void PaintRing(QPainter& painter);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Take(QEvent* event);
    bool PressKey(const QKeyEvent& event);
    bool PressWalkKey(int key);
    bool Step(bool forward);
    bool Push(int key);
    void TakeFocus(const QFocusEvent& event);
    void Leave();
    bool ShowMenu();
    /// Brings the ring to where the part is now.
    void ShowRing();
    QRectF RingPlace() const;
    QSize Scale() const;

    Parts parts_;
    PartWalk walk_;
    QRectF ring_;  ///< as it is painted, in logical pixels; empty for none
};

}  // namespace clockcore
