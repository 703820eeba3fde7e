#pragma once

namespace shell {

/// The eye of the status bar: ten pictures that follow each other at most once in 150 ms, round and
/// round. `ShellStages` lets it move while the message line holds something.
class Eye {
public:
    static constexpr int Frames = 10;

    /// A step, if it is time for one. @param now hundredths of a second since midnight.
    /// @return whether the picture changed.
    bool AnimateEye(int now);

    int EyeFrame() const { return eyeFrame_; }  ///< 1 to 10; 0 before the first step

private:
    int eyeLastTime_ = 0;
    int eyeFrame_ = 0;
};

}  // namespace shell
