#include "shell/Eye.h"

namespace shell {

bool Eye::AnimateEye(int now) {
    constexpr int leastPause = 15;
    // A reading before the last one belongs to a new day; the eye must not stand still through it.
    const bool newDay = now < eyeLastTime_;
    if (eyeLastTime_ != 0 && !newDay && now < eyeLastTime_ + leastPause) {
        return false;
    }
    eyeFrame_ = eyeFrame_ >= Frames ? 1 : eyeFrame_ + 1;
    eyeLastTime_ = now;
    return true;
}

}  // namespace shell
