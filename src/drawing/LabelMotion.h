#pragma once

#include <QDateTime>
#include <memory>
#include <vector>

#include "drawing/Canvas.h"
#include "foundation/Controls.h"
#include "platform/WallClock.h"

namespace platform {
class RandomNumbers;
}

namespace drawing {

/// One step of a motion: after a pause, some labels take new places.
struct LabelStep {
    /// The new top of one label, in device pixels; labels count from 1.
    struct Place {
        int Label = 1;
        float Top = 0;
        bool operator==(const Place&) const = default;
    };

    int Delay = 0;  ///< milliseconds since the step before
    std::vector<Place> Places;
    bool operator==(const LabelStep&) const = default;
};

using LabelSteps = std::vector<LabelStep>;

/// How labels move up and down, by the numbers of the motions.
enum class Motion {
    Rest = 0,     ///< all to the base, at once
    Arc = 1,      ///< one label a step, along an uneven arc
    Scatter = 2,  ///< each to a random place below the base, at once
    Sine = 3,     ///< all together, one whole sine in 51 steps
    Wave = 4      ///< travels through the row in 50 steps, of which the first comes at once
};

/// The steps that move @p count labels up and down around @p base, by @p amplitude pixels at most,
/// @p pause milliseconds apart (a pause of 0 counts as 1). Seeds the random numbers. A number that
/// is no motion moves nothing.
///
/// `Rest` and `Scatter` are one step without a delay; the sine and the wave are steps that move
/// every label.
LabelSteps AnimateLabels(int count, double base, double amplitude, int pause, Motion motion,
                         platform::RandomNumbers& random);

/// Plays the steps of a motion by the clock, each with `ShowChanges`. Steps that are overdue are
/// played together, so that a busy machine does not lag behind.
class LabelMotion {
public:
    /// All that it is given outlives it. @p labels holds as many as the motions move.
    LabelMotion(mduUILib::ControlArray& labels, Canvas& window, platform::WallClock& clock)
        : labels_(labels), window_(window), clock_(clock) {}

    /// Begins a motion; one that is under way is taken to its end first. Where nobody can see the
    /// window the labels take their last places at once. What is due at once is left for the pass
    /// that is under way to show.
    void Play(LabelSteps steps);

    /// Takes the motion to its last step at once, and shows nothing.
    /// @return whether there was one
    bool Finish();

private:
    /// The ticker's call: plays what is due, and waits for the rest. Once nobody can see the window
    /// any more the motion is taken to its end.
    void PlayDue();
    void PlayNext();
    /// Lets the ticker come for the next step, at the latest after that step's own delay: the wall
    /// clock may be set back meanwhile.
    void Wait();

    mduUILib::ControlArray& labels_;
    Canvas& window_;
    platform::WallClock& clock_;
    std::unique_ptr<platform::Ticker> ticker_;  // made for the first motion
    LabelSteps steps_;
    std::size_t next_ = 0;
    QDateTime due_;  // of the next step
};

}  // namespace drawing
