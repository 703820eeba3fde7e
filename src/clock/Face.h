#pragma once

#include "clock/ClockData.h"
#include "clock/ClockWindow.h"
#include "drawing/AnalogueFace.h"
#include "drawing/Canvas.h"
#include "drawing/FaceComposer.h"
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

    Face(ClockData& data, mduUILib::ClockControls& controls, drawing::Canvas& canvas,
         const Parts& parts, const platform::WallClock& clock, platform::RandomNumbers& random);

    void ApplyWindowBackground() override;
    void ReadDigitalFormat() override;
    void PrepareClockFace() override;
    void DrawClockFace() override;
    void ShowChanges() override;
    void Invalidate() override { composer_.Invalidate(); }
    void StillChanged() override { composer_.StillChanged(); }

private:
    void PrepareReadOuts();
    void MoveHands();
    void AimHands(const drawing::HandTime& time);
    /// `lblClock`, which tells those who look from outside what the hands show.
    mduUILib::Control& HandText() { return controls_.lblClock(1); }
    void RecolourNumbers();

    ClockData& data_;
    mduUILib::ClockControls& controls_;
    drawing::Canvas& canvas_;
    Parts parts_;
    const platform::WallClock& clock_;
    platform::RandomNumbers& random_;
    drawing::FaceComposer composer_;
    std::optional<drawing::HandsFrame> hands_;
    drawing::AnalogueLook look_;
    int revisionRead_ = -1;
};

}  // namespace clockcore
