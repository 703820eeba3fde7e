#pragma once

#include "drawing/Canvas.h"
#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "drawing/AnalogueFace.h"
#include "foundation/Controls.h"
#include "platform/WallClock.h"

namespace clockcore {

/// The face of a clock: one repaint by clock kind, on a canvas.
class Face final : public ClockFace {
public:
    struct Parts {
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::CalculatorClock& Calculator;
        drawing::Background& Background;
        drawing::Overlays& Overlays;
    };

    Face(ClockData& data, mduUILib::ClockControls& controls, Canvas& canvas, const Parts& parts,
         const platform::WallClock& clock, platform::RandomNumbers& random);

    void ApplyWindowBackground() override;
    void ReadDigitalFormat() override;
    void PrepareClockFace() override;
    void DrawClockFace() override;

    /// Makes the next repaint a whole one.
    void Invalidate() { analogue_.Invalidate(); }

private:
    void DrawAnalogue();

    ClockData& data_;
    mduUILib::ClockControls& controls_;
    Canvas& canvas_;
    Parts parts_;
    const platform::WallClock& clock_;
    platform::RandomNumbers& random_;
    drawing::AnalogueFace analogue_;
    drawing::AnalogueLook look_;
    int revisionRead_ = -1;
};

}  // namespace clockcore
