#pragma once

#include <QRegion>
#include <functional>
#include <memory>

#include "platform/WallClock.h"

class QPainter;

/// The change from one background picture to the next, strip by strip, in five modes:
///
/// | mode | strips                                                                  |
/// |------|-------------------------------------------------------------------------|
/// | 1    | rows from the top, a soft bright band before them                       |
/// | 2    | columns from the left, with the same band                               |
/// | 3    | a column and a row in each step, along the diagonal from the top left   |
/// | 4    | columns from the left                                                   |
/// | 5    | every second column, let down from the top; then the rest, from below   |
///
/// Any other mode is as mode 1.
namespace drawing {

/// What a wipe has revealed of a surface when @p part of it (0 to 1) is done: nothing at 0, all of
/// it at 1, and never less than at an earlier part.
QRegion WipeRevealed(int mode, const QSize& size, double part);

/// Paints the grey lines before the edge of the modes 1 and 2: 20 logical pixels, growing brighter
/// away from it. Nothing in the other modes, before a wipe has begun and when it is done.
void PaintWipeBand(QPainter& painter, int mode, const QSize& size, double part,
                   double devicePixelRatio);

/// Plays wipes in time: half a second each, at any size of the surface and however long a step
/// takes to paint.
class BackgroundWipe {
public:
    /// @param onStep is called after each step; after the last one no wipe is under way
    BackgroundWipe(platform::WallClock& clock, std::function<void()> onStep);

    void Start(int mode);
    /// Ends a wipe without a further call of `onStep`. No timer is left running.
    void Stop();

    bool IsUnderWay() const { return underWay_; }
    int Mode() const { return mode_; }
    double Part() const { return part_; }  ///< what is done of it, 0 to 1

private:
    void Step();

    platform::WallClock& clock_;
    std::function<void()> onStep_;
    std::unique_ptr<platform::Ticker> ticker_;  // made with the first wipe
    QDateTime started_;
    int steps_ = 0;
    int mode_ = 0;
    double part_ = 0;
    bool underWay_ = false;
};

}  // namespace drawing
