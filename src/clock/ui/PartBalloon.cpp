#include "clock/ui/PartBalloon.h"

#include <QMouseEvent>

namespace clockcore {

namespace {

constexpr int RestTime = 500;  // milliseconds

}  // namespace

PartBalloon::PartBalloon(const Parts& parts, platform::WallClock& clock)
    : parts_(parts), balloonTip_(clock) {}

bool PartBalloon::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseMove: {
            const auto& move = static_cast<const QMouseEvent&>(*event);
            if (move.buttons() == Qt::NoButton && parts_.Form.isEnabled()) {
                Rest(move.position());
            }
            break;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::ContextMenu:
        case QEvent::KeyPress:
            balloonTip_.Destroy();
            break;
        case QEvent::Leave:
        case QEvent::Close:
        case QEvent::EnabledChange:
            Leave();
            break;
        default:
            break;
    }
    return false;
}

// The digits are one part, whichever of them the mouse is on.
ClockHit PartBalloon::PartUnder(const QPointF& logical) const {
    const ClockHit hit =
        HitAt(parts_.Data, parts_.Controls, Scale(), logical * parts_.Form.devicePixelRatioF());
    return hit.Part == ClockPart::Digits ? ClockHit{ClockPart::Digits} : hit;
}

void PartBalloon::Rest(const QPointF& logical) {
    const ClockHit hit = PartUnder(logical);
    if (hit == rests_) {
        return;
    }
    Leave();
    rests_ = hit;
    const PartHint hint = Hint();
    if (!hint.Text.isEmpty()) {
        balloonTip_.BalloonInfoSetup(&parts_.Form, hint.Title, hint.Text, CBalloonToolTip::Unset,
                                     CBalloonToolTip::ReadableColor(hint.Colour));
        balloonTip_.SetDelayTime(RestTime);
        balloonTip_.AfterDelay([this] { Show(); });
    }
}

void PartBalloon::Leave() {
    balloonTip_.Destroy();
    rests_ = {};
}

void PartBalloon::Show() {
    const double ratio = parts_.Form.devicePixelRatioF();
    const QRectF place = PlaceOfPart(parts_.Data, parts_.Controls, Scale(), rests_);
    const QRect logical = QRectF(place.topLeft() / ratio, place.size() / ratio).toAlignedRect();
    if (!logical.isEmpty()) {
        balloonTip_.Show(logical.left(), logical.top(), logical.size());
    }
}

PartHint PartBalloon::Hint() const {
    switch (rests_.Part) {
        case ClockPart::Speaker:
            return {{}, parts_.Clicks.SpeakerHint()};
        case ClockPart::Spot:
            return HintOfSpot(parts_.Controls.imgClockNumber(rests_.Index).ToolTipText);
        case ClockPart::TimerMark:
            return HintOfMark(parts_.Timers.Timer(rests_.Index));
        default:
            return HintOf(rests_.Part);
    }
}

QSize PartBalloon::Scale() const {
    return (QSizeF(parts_.Form.size()) * parts_.Form.devicePixelRatioF()).toSize();
}

}  // namespace clockcore
