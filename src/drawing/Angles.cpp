#include "drawing/Angles.h"

#include <QStringList>

namespace drawing {

namespace {

HandAngles Forward(const HandTime& time) {
    return {Pi - Pi * time.Hour / 6 - Pi * time.Minute / 360, Pi - TwoPi * time.Minute / 60,
            Pi - TwoPi * time.Second / 60};
}

HandAngles Mirrored(const HandTime& time) {
    const HandAngles forward = Forward(time);
    return {-forward.Hour, -forward.Minute, -forward.Second};
}

bool OnLeftHours(int hour) {
    return (hour > 6 && hour < 12) || (hour > 18 && hour < 24);
}

bool OnLeftMinutes(int value) {
    return value > 30 && value < 60;
}

}  // namespace

HandAngles AnglesAt(const HandTime& time, ClockSpecial special) {
    const HandAngles forward = Forward(time);
    const HandAngles mirrored = Mirrored(time);
    if (special == ClockSpecial::AnalogueBackward) {
        return mirrored;
    }
    const bool rightHalf = special == ClockSpecial::AnalogueRightHalf;
    if (!rightHalf && special != ClockSpecial::AnalogueLeftHalf) {
        return forward;
    }
    // On the right half, what would lie left is mirrored; on the left half, what would lie right.
    return {OnLeftHours(time.Hour) == rightHalf ? mirrored.Hour : forward.Hour,
            OnLeftMinutes(time.Minute) == rightHalf ? mirrored.Minute : forward.Minute,
            OnLeftMinutes(time.Second) == rightHalf ? mirrored.Second : forward.Second};
}

}  // namespace drawing
