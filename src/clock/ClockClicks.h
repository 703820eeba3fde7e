#pragma once

#include <QPoint>
#include <QString>

#include "clock/ClockHit.h"

namespace clockcore {

/// What comes of clicks on the parts of a clock.
/// `ClockInput` finds out what a click means and asks for it here.
class ClockClicks {
public:
    virtual ~ClockClicks() = default;

    /// The left button on the speaker mark, without Ctrl.
    virtual void ClickSpeaker() = 0;
    /// The left button on the mark or the text of an action that counts down.
    virtual void ClickAction() = 0;
    /// The hint for a pointer that rests on the speaker mark; empty for none.
    virtual QString SpeakerHint() const = 0;

    /// A double click with the left button where there is no part.
    virtual void DoubleClickGround() {}
    /// A key that the calculator does not take: see `ClockKeys`. @return whether it meant something
    virtual bool PressKey(int /*code*/, int /*shift*/) { return false; }

    /// A right click on a part, at a point of the screen. The menu opens there; this does not wait
    /// for it.
    virtual void ShowMenu(const ClockHit& hit, const QPoint& globalPosition) = 0;
    /// A right click on a clock that is disabled.
    virtual void ShowDisabledMenu(const QPoint& globalPosition) = 0;
};

}  // namespace clockcore
