#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>

#include "clock/ClockData.h"
#include "clock/ClockHit.h"
#include "clock/MarkDrag.h"

class QMouseEvent;

namespace clockcore {

/// The left button on what timers are made and changed with: it drags a timer's mark, opens its
/// box with a double click, and opens the menu of a minute spot with a click. It watches the form's
/// events and takes the moves and the end of a mark's drag for itself; a press of the left button
/// is left to others, too, who may drag what lies there.
///
/// While a mark is dragged, the time that it has come to stands at the pointer. Escape takes the
/// drag back, and so do the right button, which opens no menu then, and whatever takes the window
/// or its keys away from under it, as a menu does that a key opens. On a disabled clock nothing is
/// done.
class TimerMouse final : public QObject {
public:
    /// What is asked for. All of it outlives this.
    struct Commands {
        std::function<void(int slot)> OpenMessageBox;
        std::function<void(const ClockHit& spot, const QPoint& globalPosition)> ShowMenu;
    };

    /// @param form the clock's form, whose events are watched
    TimerMouse(QWidget& form, const ClockData& data, const mduUILib::ClockControls& controls,
               MarkDrag& marks, Commands commands);

    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Keeps the mark that is dragged where it is, after each tick.
    void Follow();

private:
    bool Take(QEvent* event);
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Release(const QMouseEvent& event);
    bool DoubleClick(const QMouseEvent& event);
    bool TakeBack();
    /// From logical pixels of the form to device pixels of the surface.
    QPointF SurfacePoint(const QMouseEvent& event) const;
    /// Nothing on a clock whose face is not drawn.
    ClockHit HitAt(const QMouseEvent& event) const;

    QWidget& form_;
    const ClockData& data_;
    const mduUILib::ClockControls& controls_;
    MarkDrag& marks_;
    Commands commands_;
    bool holdsMark_ = false;  ///< the button is down on a mark
    /// A spot that the button is down on; a hand that trembles does not choose another.
    struct PressedSpot {
        ClockHit Spot;
        QPointF At;  ///< logical pixels
    };
    std::optional<PressedSpot> pressedSpot_;
};

}  // namespace clockcore
