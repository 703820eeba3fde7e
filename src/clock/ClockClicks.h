#pragma once

#include <QPoint>
#include <QString>

#include "clock/ClockHit.h"

namespace clockcore {

/// What comes of clicks on the parts of a clock.
class ClockClicks {
public:
    virtual ~ClockClicks() = default;

    virtual void ClickSpeaker() = 0;
    virtual void ClickAction() = 0;
    virtual QString SpeakerHint() const = 0;  ///< empty for none

    /// A right click on a part, at a point of the screen.
    virtual void ShowMenu(ClockPart part, const QPoint& globalPosition) = 0;
    /// A right click on a clock that is disabled.
    virtual void ShowDisabledMenu(const QPoint& globalPosition) = 0;
};

}  // namespace clockcore
